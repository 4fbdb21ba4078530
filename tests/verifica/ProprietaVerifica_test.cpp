// What holds of every template: what is planted is found at its place, what is clean is clean, a mend keeps
// what prints.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "common/Delimitatori.h"
#include "output/GeneraStampa.h"
#include "template/ImmagineModello.h"
#include "tokens/Pezzi.h"
#include "verifica/Correzioni.h"
#include "verifica/DiProva.h"
#include "verifica/ModelliCasuali.h"

namespace parvik::prova {
namespace {

class Raccolta final : public UscitaRighe {
 public:
  bool Righe(std::string_view righe) override {
    Testo += righe;
    return true;
  }
  std::string Testo;
};

/// All that a file prints: as text and in the preview with its looks, all flags true or all false.
struct Resa {
  std::string Stampa;
  std::string Anteprima;
  std::vector<Tratto> Tratti;

  bool operator==(const Resa&) const = default;
};

Resa Rendi(const std::string& byte, int tipo, bool veri) {
  const std::int16_t sezioni = TipoDiVerifica(tipo).NumSezioni;
  const ImmagineLetta letta = *LeggiImmagine(byte, FormatoDi(sezioni), ImpostazioniPredefinite());
  FlagPerStampe flag;
  flag.Carica(CatalogoDiVerifica(), TipoDiVerifica(tipo));
  for (std::size_t i = 0; i < flag.Righe().size(); ++i) flag.SettaFlag(i, veri);
  const DatiStampa dati{.Testi = {letta.Testi[0], letta.Testi[1], letta.Testi[2]},
                        .NumSezioni = sezioni,
                        .RigheCorpo = letta.Corpo.RigheCorpo,
                        .LineeCorpo = letta.Corpo.LineeCorpo,
                        .Flag = flag};
  Raccolta raccolta;
  RC_ASSERT(static_cast<bool>(GeneraStampa(dati, TipoStampa::File, raccolta)));
  Anteprima anteprima = GeneraAnteprima(dati);
  return {std::move(raccolta.Testo), std::move(anteprima.Testo), std::move(anteprima.Tratti)};
}

/// A file without the contents of its codes, with either kind of delimiters.
std::string SenzaContenuti(std::string byte) {
  for (char& c : byte) {
    if (c == DelimFileApertura) c = DelimApertura;
    if (c == DelimFileChiusura) c = DelimChiusura;
  }
  std::string resto;
  LettorePezzi lettore(byte);
  while (const auto pezzo = lettore.Prossimo())
    resto += pezzo->Genere == GenerePezzo::Codice ? "<>" : std::string(pezzo->In(byte));
  return resto;
}

TEST(ProprietaVerifica, FindsWhatWasPlantedAndNothingElse) {
  EXPECT_TRUE(rc::check([] {
    ModelloCasuale modello = ModelloPulito();
    std::string attesi;
    for (const Guasto& guasto : Guasta(modello)) {
      if (!attesi.empty()) attesi += ", ";
      attesi += std::to_string(guasto.Riga) + ":" + std::to_string(guasto.Colonna) + " ";
      attesi += VoceDi(guasto.Quale).Nome;
    }
    RC_CLASSIFY(!attesi.empty(), "faulty");
    RC_ASSERT(Trova(modello.Scritto()) == attesi);
  }));
}

TEST(ProprietaVerifica, FindsNothingInACleanTemplate) {
  EXPECT_TRUE(rc::check([] { RC_ASSERT(Trova(ModelloPulito().Scritto()) == ""); }));
}

TEST(ProprietaVerifica, TellsPlacesInsideTheTextInTheOrderOfTheFile) {
  EXPECT_TRUE(rc::check([] {
    const std::string byte = FileCasuale();
    const int tipo = *rc::gen::element(1, 2);
    Verificatore verificatore(CatalogoDiVerifica(), TipoDiVerifica(tipo));
    OpzioniVerifica opzioni;
    opzioni.Larghezza = 20;
    opzioni.Righe = 5;
    opzioni.Cornici = true;
    const std::vector<Rilievo> rilievi = *verificatore.File(byte, opzioni);
    RC_ASSERT(std::ranges::is_sorted(
        rilievi, {}, [](const Rilievo& r) { return std::tuple(r.Riga, r.Colonna, r.Quale); }));
    const ImmagineLetta letta =
        *LeggiImmagine(byte, FormatoDi(TipoDiVerifica(tipo).NumSezioni), ImpostazioniPredefinite());
    for (const Rilievo& rilievo : rilievi) {
      RC_ASSERT(!rilievo.Testo.empty());
      if (rilievo.Dove)
        RC_ASSERT(rilievo.Inizio + rilievo.Lunghezza <= letta.Testi[Indice(*rilievo.Dove)].size());
    }
  }));
}

TEST(ProprietaVerifica, TellsTheSameWhateverItHasCheckedBefore) {
  EXPECT_TRUE(rc::check([] {
    const std::string primo = FileCasuale();
    const std::string secondo = FileCasuale();
    Verificatore usato(CatalogoDiVerifica(), TipoDiVerifica(1));
    Verificatore nuovo(CatalogoDiVerifica(), TipoDiVerifica(1));
    static_cast<void>(*usato.File(primo, {}));
    RC_ASSERT(*usato.File(secondo, {}) == *nuovo.File(secondo, {}));
  }));
}

TEST(ProprietaCorreggi, KeepsWhatPrintsAndAllOtherBytesAndLeavesNothingToMend) {
  EXPECT_TRUE(rc::check([] {
    const std::string prima = FileCasuale();
    const int tipo = *rc::gen::element(1, 2);
    Verificatore verificatore(CatalogoDiVerifica(), TipoDiVerifica(tipo));
    const FileCorretto corretto = *Correggi(prima, verificatore, CatalogoDiVerifica(), {});
    RC_TAG(corretto.Fatte > 0 ? "mended" : "as it was");
    for (const bool veri : {false, true})
      RC_ASSERT(Rendi(prima, tipo, veri) == Rendi(corretto.Byte, tipo, veri));
    RC_ASSERT(SenzaContenuti(prima) == SenzaContenuti(corretto.Byte));
    RC_ASSERT((corretto.Fatte == 0) == (corretto.Byte == prima));
    const FileCorretto ancora = *Correggi(corretto.Byte, verificatore, CatalogoDiVerifica(), {});
    RC_ASSERT(ancora.Byte == corretto.Byte);
    RC_ASSERT(ancora.Mancate.size() == corretto.Mancate.size());
  }));
}

}  // namespace
}  // namespace parvik::prova
