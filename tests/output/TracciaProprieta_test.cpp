// The trace of a run, on texts rich in what a run gives a meaning to: every byte that was written has one
// origin, and there and back comes out where it began.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "output/StampaCasuale.h"
#include "output/TracciaStampa.h"

namespace parvik::prova {
namespace {

/// A traced run and what it wrote, after the style pass if there is one.
struct Tracciata {
  ProvaStampa Prova = ProvaCasuale();
  TracciaStampa Traccia;
  std::string Testo;

  std::string_view Sezione(parvik::Sezione quale) const { return Prova.Riferimento.Testi[Indice(quale)]; }
};

bool Copre(const Selezione& parte, std::size_t byte) {
  return parte.Inizio <= byte && byte < parte.Fine();
}

/// Whether one of the places is that byte of the output.
bool TraILuoghi(const Tracciata& tracciata, const OrigineStampa& origine, std::size_t byte) {
  for (const LuogoStampa& luogo : tracciata.Traccia.LuoghiDi(origine.Dove, origine.Parte.Inizio))
    for (std::size_t volta = 0; volta < luogo.Volte; ++volta)
      if (Copre(tracciata.Traccia.Mostrato(luogo, volta), byte)) return true;
  return false;
}

/// How far apart the bytes are that are tried: all of them, unless there are very many.
std::size_t Passo(std::size_t quanti) {
  constexpr std::size_t Abbastanza = 60;
  return 1 + quanti / Abbastanza;
}

/// `quanti` bytes of the output are the run's, and the rest is the end marker.
void OgniByteHaUnOrigine(const Tracciata& tracciata, std::size_t quanti) {
  for (std::size_t byte = 0; byte < quanti; byte += Passo(quanti)) {
    const auto origine = tracciata.Traccia.OrigineDi(byte);
    RC_ASSERT(origine.has_value());
    const std::string_view sezione = tracciata.Sezione(origine->Dove);
    RC_ASSERT(origine->Parte.Fine() <= sezione.size());
    RC_ASSERT(TraILuoghi(tracciata, *origine, byte));
    const auto posto = tracciata.Traccia.PostoDi(byte);
    RC_ASSERT(posto && posto->Da == *origine);
    RC_ASSERT(tracciata.Traccia.UscitoDi(*posto) == byte);
    const char primo = sezione[origine->Parte.Inizio];
    if (origine->Codice) RC_ASSERT(primo == '\xAB' && sezione[origine->Parte.Fine() - 1] == '\xBB');
    const bool crSolo = primo == '\r' && tracciata.Testo[byte] == '\n';
    if (!origine->Codice) RC_ASSERT(tracciata.Testo[byte] == primo || crSolo);
  }
}

/// What a section's bytes have come to comes from them.
void OgniLuogoRiporta(const Tracciata& tracciata) {
  for (const parvik::Sezione sezione : TutteLeSezioni) {
    const std::size_t quanti = tracciata.Sezione(sezione).size();
    for (std::size_t byte = 0; byte < quanti; byte += Passo(quanti)) {
      for (const LuogoStampa& luogo : tracciata.Traccia.LuoghiDi(sezione, byte)) {
        const Selezione ultima = tracciata.Traccia.Mostrato(luogo, luogo.Volte - 1);
        for (std::size_t uscito = ultima.Inizio; uscito < ultima.Fine(); uscito += Passo(ultima.Lunghezza)) {
          const auto origine = tracciata.Traccia.OrigineDi(uscito);
          RC_ASSERT(origine && origine->Dove == sezione && Copre(origine->Parte, byte));
        }
      }
    }
  }
}

/// However often a section is repeated.
void NullaDiTroppo(const TracciaStampa& traccia) {
  RC_ASSERT(traccia.Giri().size() <= 3 * MaxSezioni);
}

TEST(TracciaProprieta, HoldForTheTextFile) {
  EXPECT_TRUE(rc::check([] {
    Tracciata tracciata;
    Raccolta raccolta;
    RC_ASSERT(!!GeneraStampa(tracciata.Prova.Dati(), TipoStampa::File, raccolta, tracciata.Traccia));
    tracciata.Testo = raccolta.Testo;
    RC_ASSERT(tracciata.Testo == StampaDiRiferimento(tracciata.Prova.Riferimento, 1));
    RC_ASSERT(tracciata.Traccia.Scritti() == tracciata.Testo.size());
    OgniByteHaUnOrigine(tracciata, tracciata.Testo.size());
    OgniLuogoRiporta(tracciata);
    NullaDiTroppo(tracciata.Traccia);
    RC_ASSERT(!tracciata.Traccia.OrigineDi(tracciata.Testo.size()));
  }));
}

TEST(TracciaProprieta, HoldForThePreviewBehindItsStyles) {
  EXPECT_TRUE(rc::check([] {
    Tracciata tracciata;
    const auto anteprima = GeneraAnteprima(tracciata.Prova.Dati(), std::stop_token(), tracciata.Traccia);
    RC_ASSERT(!!anteprima);
    tracciata.Testo = anteprima->Testo;
    RC_ASSERT(tracciata.Testo == GeneraAnteprima(tracciata.Prova.Dati()).Testo);
    std::size_t quanti = 0;
    while (quanti < tracciata.Testo.size() && tracciata.Traccia.OrigineDi(quanti)) ++quanti;
    RC_ASSERT(tracciata.Testo.size() - quanti <= FineAnteprima.size() + 2);
    OgniByteHaUnOrigine(tracciata, quanti);
    OgniLuogoRiporta(tracciata);
    NullaDiTroppo(tracciata.Traccia);
  }));
}

}  // namespace
}  // namespace parvik::prova
