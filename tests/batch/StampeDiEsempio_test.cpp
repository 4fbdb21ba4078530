// The example templates, rendered by the batch program: the golden files (accetta-stampe.sh makes them anew),
// the text file of the core, and the preview's text are the same.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "output/GeneraStampa.h"
#include "template/ImmagineModello.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

class StampaEsempioTest : public testing::TestWithParam<ModelloEsempio> {
 protected:
  void SetUp() override {
    auto catalogo = Catalogo::CaricaCampi(Contenuto(Esempio() / "D_IMG" / "CAMPI.TXT"));
    ASSERT_TRUE(catalogo);
    tipo_ = catalogo->TipiDoc()[static_cast<std::size_t>(GetParam().Tipo) - 1];
    ASSERT_TRUE(flag_.Carica(*catalogo, tipo_).empty());
  }

  /// `stampa` with these flags true.
  Esecuzione Stampa(const std::string& veri) const {
    std::vector<std::string> argomenti = {"stampa", "--tipo", std::to_string(GetParam().Tipo)};
    if (!veri.empty()) argomenti.insert(argomenti.end(), {"--veri", veri});
    argomenti.push_back(FileDi(GetParam()).string());
    return EseguiEsempio(argomenti);
  }

  /// The number of every flag of the type.
  std::string TuttiIFlag() const {
    std::string numeri;
    for (std::size_t i = 0; i < flag_.Righe().size(); ++i) {
      if (i > 0) numeri += ',';
      numeri += std::to_string(static_cast<int>(flag_.Numero(i)));
    }
    return numeri;
  }

  /// The text of the preview, without its end marker.
  std::string Anteprima(bool veri) {
    for (std::size_t i = 0; i < flag_.Righe().size(); ++i) flag_.SettaFlag(i, veri);
    const ImmagineLetta letta =
        *LeggiImmagine(Contenuto(FileDi(GetParam())), FormatoDi(tipo_.NumSezioni), ImpostazioniPredefinite());
    const std::string testo = GeneraAnteprima({.Testi = {letta.Testi[0], letta.Testi[1], letta.Testi[2]},
                                               .NumSezioni = tipo_.NumSezioni,
                                               .RigheCorpo = letta.Corpo.RigheCorpo,
                                               .LineeCorpo = letta.Corpo.LineeCorpo,
                                               .Flag = flag_})
                                  .Testo;
    const std::string fine = "\r\n--- Fine file ---";
    EXPECT_TRUE(testo.ends_with(fine));
    return testo.substr(0, testo.size() - std::min(testo.size(), fine.size()));
  }

 private:
  TipoDoc tipo_;
  FlagPerStampe flag_;
};

TEST_P(StampaEsempioTest, IsTheGoldenFileWithoutTrueFlags) {
  EXPECT_EQ(Stampa(""), (Esecuzione{0, Contenuto(Dati() / "stampa" / (GetParam().Nome + ".txt")), ""}));
}

TEST_P(StampaEsempioTest, IsTheGoldenFileWithAllFlagsTrue) {
  EXPECT_EQ(Stampa(TuttiIFlag()),
            (Esecuzione{0, Contenuto(Dati() / "stampa" / (GetParam().Nome + ".veri.txt")), ""}));
}

TEST_P(StampaEsempioTest, IsThePreviewWithoutItsMarkers) {
  EXPECT_EQ(Stampa("").Uscita, Anteprima(false));
  EXPECT_EQ(Stampa(TuttiIFlag()).Uscita, Anteprima(true));
}

INSTANTIATE_TEST_SUITE_P(Tutti, StampaEsempioTest, testing::ValuesIn(ModelliEsempio()),
                         [](const auto& caso) { return caso.param.Nome; });

std::set<std::string> NomiIn(const fs::path& cartella, const std::string& estensione) {
  std::set<std::string> nomi;
  for (const auto& voce : fs::directory_iterator(cartella)) {
    if (voce.path().extension() == estensione) nomi.insert(voce.path().filename().string());
  }
  return nomi;
}

TEST(StampeDiEsempio, AreThereForEveryExampleTemplateAndNoOther) {
  std::set<std::string> modelli;
  std::set<std::string> stampe;
  for (const ModelloEsempio& modello : ModelliEsempio()) {
    modelli.insert(modello.Nome + ".IMG");
    stampe.insert({modello.Nome + ".txt", modello.Nome + ".veri.txt"});
  }
  EXPECT_EQ(NomiIn(Esempio() / "D_IMG", ".IMG"), modelli);
  EXPECT_EQ(NomiIn(Dati() / "stampa", ".txt"), stampe);
}

}  // namespace
}  // namespace parvik::prova
