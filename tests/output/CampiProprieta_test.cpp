// The fields of random templates: where they are measured is where the run writes them.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <optional>

#include "output/CampiAMisura.h"
#include "output/StampaCasuale.h"
#include "output/TracciaStampa.h"

namespace parvik::prova {
namespace {

/// A template in a document, and the run of its texts.
struct Modello {
  Modello() {
    for (const Sezione sezione : TutteLeSezioni) {
      std::string& testo = Prova.Riferimento.Testi[Indice(sezione)];
      testo = ConFiniRiga(testo);
      Contenuto.Imposta(sezione, testo);
    }
    Contenuto.Stato().Corpo.RigheCorpo = static_cast<std::int16_t>(Prova.Riferimento.RigheCorpo);
    Contenuto.Stato().Corpo.LineeCorpo = static_cast<std::int16_t>(Prova.Riferimento.LineeCorpo);
  }

  bool HaSezione(Sezione sezione) const {
    return static_cast<int>(Indice(sezione)) < Prova.Riferimento.NumSezioni;
  }

  ProvaStampa Prova = ProvaCasuale();
  Documento Contenuto;
};

/// Where the line begins that has that byte of a text.
std::size_t InizioRiga(std::string_view testo, std::size_t byte) {
  const std::size_t fine = testo.substr(0, byte).rfind("\r\n");
  return fine == std::string_view::npos ? 0 : fine + 2;
}

/// Every line of the sections that a run renders, and where it begins in its section.
template <class Prova>
void PerOgniRiga(const Modello& modello, Prova prova) {
  for (const Sezione sezione : TutteLeSezioni) {
    const TestoSezione& testo = modello.Contenuto.Testo(sezione);
    if (!modello.HaSezione(sezione) || testo.Vale("\r\n")) continue;
    for (std::size_t riga = 0; riga < testo.Righe(); ++riga) prova(sezione, riga, testo.Riga(riga).Inizio);
  }
}

TEST(CampiProprieta, StandInTheColumnsThatTheFirstRepetitionOfTheRunWritesThemIn) {
  std::size_t confrontati = 0;
  EXPECT_TRUE(rc::check([&confrontati] {
    Modello modello;
    TracciaStampa traccia;
    Raccolta raccolta;
    RC_ASSERT(!!GeneraStampa(modello.Prova.Dati(), TipoStampa::File, raccolta, traccia));
    const CampiAMisura campi(modello.Contenuto, modello.Prova.Flag);
    PerOgniRiga(modello, [&](Sezione sezione, std::size_t riga, std::size_t inizio) {
      if (modello.Contenuto.Testo(sezione).CodiceAperto(riga)) return;  // begins in the middle of what prints
      std::size_t colonna = 0;
      std::optional<std::size_t> primo;  // where the run writes the line
      for (const PezzoMisurato& pezzo : campi.Riga(sezione, riga).Pezzi) {
        const auto luoghi = traccia.LuoghiDi(sezione, inizio + pezzo.Parte.Inizio);
        if (pezzo.Larghezza > 0 &&
            !luoghi.empty()) {  // what takes no cell now may be written by another time
          const std::size_t scritto = luoghi.front().Inizio;
          if (!primo) primo = InizioRiga(raccolta.Testo, scritto);
          RC_ASSERT(scritto - *primo == colonna);
          ++confrontati;
        }
        const auto codice = traccia.CodiceA(sezione, inizio + pezzo.Parte.Inizio);
        if (pezzo.Codice && codice) {
          RC_ASSERT(codice->Larghezza == pezzo.Larghezza);
          if (*pezzo.Codice != TipoCodice::Flag) RC_ASSERT(codice->Nascosto == !pezzo.Mostrato);
        }
        colonna += pezzo.Larghezza;
      }
    });
  }));
  EXPECT_GT(confrontati, 100U);
}

/// What the lines of a section say, and the looks of their first bytes.
struct Detto {
  std::vector<RigaMisurata> Righe;
  std::vector<Aspetto> Aspetti;
  std::vector<bool> Aperte;  // begin in a code
};

Detto Senti(const Documento& documento, Sezione sezione, const CampiAMisura& campi) {
  Detto detto;
  const TestoSezione& testo = documento.Testo(sezione);
  for (std::size_t riga = 0; riga < testo.Righe(); ++riga) {
    detto.Righe.push_back(campi.Riga(sezione, riga));
    detto.Aspetti.push_back(campi.AspettoA(sezione, testo.Riga(riga).Inizio));
    detto.Aperte.push_back(testo.CodiceAperto(riga).has_value());
  }
  return detto;
}

Modifica ModificaCasuale(const TestoSezione& testo) {
  const auto posto = [&testo](std::size_t byte) {
    const bool spezza =
        byte > 0 && byte < testo.Dimensione() && testo[byte - 1] == '\r' && testo[byte] == '\n';
    return spezza ? byte - 1 : byte;
  };
  const std::size_t quanti = testo.Dimensione() + 1;
  const auto [inizio, fine] = std::minmax(
      {posto(*rc::gen::inRange<std::size_t>(0, quanti)), posto(*rc::gen::inRange<std::size_t>(0, quanti))});
  return {.Dove = inizio, .Tolti = fine - inizio, .Messi = ConFiniRiga(*TestoCasuale())};
}

TEST(CampiProprieta, FollowEveryChangeAsIfTheyWereMeasuredAnew) {
  EXPECT_TRUE(rc::check([] {
    Modello modello;
    const CampiAMisura campi(modello.Contenuto, modello.Prova.Flag);
    for (int volta = 0; volta < 3; ++volta) {
      for (const Sezione sezione : TutteLeSezioni) Senti(modello.Contenuto, sezione, campi);
      const Sezione dove = *rc::gen::element(Sezione::Testata, Sezione::Corpo, Sezione::Piede);
      modello.Contenuto.Applica(dove, ModificaCasuale(modello.Contenuto.Testo(dove)), GenereModifica::Intera,
                                {});
      const CampiAMisura nuovi(modello.Contenuto, modello.Prova.Flag);
      for (const Sezione sezione : TutteLeSezioni) {
        const Detto detto = Senti(modello.Contenuto, sezione, campi);
        const Detto nuovo = Senti(modello.Contenuto, sezione, nuovi);
        RC_ASSERT(detto.Righe == nuovo.Righe);
        RC_ASSERT(detto.Aspetti == nuovo.Aspetti);
      }
    }
  }));
}

/// Who keeps what the lines left need look no further than this.
TEST(CampiProprieta, OfALineFollowFromItsBytesAndFromWhatTheLineInFrontLeft) {
  EXPECT_TRUE(rc::check([] {
    Modello modello;
    const CampiAMisura campi(modello.Contenuto, modello.Prova.Flag);
    const Sezione dove = *rc::gen::element(Sezione::Testata, Sezione::Corpo, Sezione::Piede);
    const Detto prima = Senti(modello.Contenuto, dove, campi);
    const Modifica modifica = ModificaCasuale(modello.Contenuto.Testo(dove));
    modello.Contenuto.Applica(dove, modifica, GenereModifica::Intera, {});
    const TestoSezione& testo = modello.Contenuto.Testo(dove);
    const Detto dopo = Senti(modello.Contenuto, dove, campi);
    const std::size_t toccata = testo.RigaDi(modifica.Dove + modifica.Messi.size());
    for (std::size_t riga = toccata + 1; riga < testo.Righe(); ++riga) {
      const std::size_t era = riga + prima.Righe.size() - dopo.Righe.size();
      if (prima.Aperte[era] || dopo.Aperte[riga]) continue;
      if (prima.Righe[era - 1].Lascito != dopo.Righe[riga - 1].Lascito) continue;
      RC_ASSERT(prima.Righe[era] == dopo.Righe[riga]);
    }
  }));
}

}  // namespace
}  // namespace parvik::prova
