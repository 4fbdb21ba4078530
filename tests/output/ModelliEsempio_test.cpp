// The templates of the example installation, rendered by the program and by the rules word for word.
#include <gtest/gtest.h>

#include "output/GeneraStampa.h"
#include "output/Leggibile.h"
#include "supporto/Cartelle.h"
#include "supporto/ConNome.h"
#include "supporto/RiferimentoStampa.h"
#include "supporto/RiferimentoStili.h"
#include "template/ImmagineModello.h"

namespace parvik::prova {
namespace {

struct Modello {
  const char* Nome;
  std::size_t Tipo;
};
using prova::PrintTo;

class ModelloEsempioTest : public testing::TestWithParam<std::tuple<Modello, bool>> {
 protected:
  void SetUp() override {
    const auto [modello, veri] = GetParam();
    const auto catalogo = Catalogo::CaricaCampi(Contenuto(Esempio() / "D_IMG" / "CAMPI.TXT"));
    ASSERT_TRUE(catalogo);
    const TipoDoc& tipo = catalogo->TipiDoc()[modello.Tipo - 1];
    ASSERT_TRUE(flag_.Carica(*catalogo, tipo).empty());
    for (std::size_t i = 0; i < flag_.Righe().size(); ++i) flag_.SettaFlag(i, veri);
    const std::string byte = Contenuto(Esempio() / "D_IMG" / (std::string(modello.Nome) + ".IMG"));
    letta_ = *LeggiImmagine(byte, FormatoDi(tipo.NumSezioni), ImpostazioniPredefinite());
    ASSERT_FALSE(letta_.Testi[0].empty());
    numSezioni_ = tipo.NumSezioni;
  }

  DatiStampa Dati() const {
    return {.Testi = {letta_.Testi[0], letta_.Testi[1], letta_.Testi[2]},
            .NumSezioni = numSezioni_,
            .RigheCorpo = letta_.Corpo.RigheCorpo,
            .LineeCorpo = letta_.Corpo.LineeCorpo,
            .Flag = flag_};
  }

  DatiRiferimento Riferimento() const {
    return {.Testi = letta_.Testi,
            .NumSezioni = numSezioni_,
            .RigheCorpo = letta_.Corpo.RigheCorpo,
            .LineeCorpo = letta_.Corpo.LineeCorpo,
            .RigheFlag = flag_.Righe()};
  }

  std::string Stampa(TipoStampa destinazione) const {
    class Raccoglie final : public UscitaRighe {
     public:
      bool Righe(std::string_view righe) override {
        Testo += righe;
        return true;
      }
      std::string Testo;
    } uscita;
    EXPECT_TRUE(GeneraStampa(Dati(), destinazione, uscita));
    return uscita.Testo;
  }

 private:
  ImmagineLetta letta_;
  FlagPerStampe flag_;
  std::int16_t numSezioni_ = 0;
};

TEST_P(ModelloEsempioTest, IsRenderedToAFileAsTheRulesSay) {
  EXPECT_EQ(Stampa(TipoStampa::File), StampaDiRiferimento(Riferimento(), 1));
}

TEST_P(ModelloEsempioTest, IsPreviewedAsTheRulesSay) {
  const TestoConAspetti riferimento = StiliDiRiferimento(StampaDiRiferimento(Riferimento(), 2));
  const Anteprima anteprima = GeneraAnteprima(Dati());
  EXPECT_EQ(anteprima.Testo, riferimento.Testo);
  EXPECT_TRUE(AspettiPerByte(anteprima.Testo, anteprima.Tratti) == riferimento.Aspetti);
}

// No example has literal text that looks like a style marker.
TEST_P(ModelloEsempioTest, IsPreviewedAsTheFileWithTheEndMarker) {
  EXPECT_EQ(GeneraAnteprima(Dati()).Testo, Stampa(TipoStampa::File) + "\r\n--- Fine file ---");
}

TEST_P(ModelloEsempioTest, IsPrintedAsItIsWrittenToAFile) {
  EXPECT_EQ(Stampa(TipoStampa::Ausiliario), Stampa(TipoStampa::File));
}

INSTANTIATE_TEST_SUITE_P(
    Tutti, ModelloEsempioTest,
    testing::Combine(testing::Values(Modello{"FATT01", 1}, Modello{"FATTEST", 1}, Modello{"NCRED01", 3},
                                     Modello{"DDT01", 4}, Modello{"ORDCL01", 5}, Modello{"PREV01", 7},
                                     Modello{"RICEV01", 8}, Modello{"ESTCL01", 10}, Modello{"LIST01", 12},
                                     Modello{"COLLO01", 14}, Modello{"SOLL01", 15}),
                     testing::Bool()),
    [](const auto& caso) {
      return std::string(std::get<0>(caso.param).Nome) + (std::get<1>(caso.param) ? "_veri" : "");
    });

}  // namespace
}  // namespace parvik::prova
