// What is kept from one session to the next (docs/impostazioni.md).
#include <gtest/gtest.h>

#include <QScreen>
#include <QTest>
#include <fstream>
#include <map>

#include "Finestra.h"
#include "app/qtRicordo.h"
#include "output/ricAnte.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;
using prova::Finestra;

class QtRicordi : public testing::Test {
 protected:
  /// All that lies in the folders of configuration files, with its bytes.
  std::map<std::string, std::string> Tutto() {
    std::map<std::string, std::string> tutto;
    for (const fs::path& cartella : {finestra_.Configurazione(), finestra_.ConfigurazioneDiTutti()}) {
      if (!fs::exists(cartella)) continue;
      for (const auto& voce : fs::recursive_directory_iterator(cartella))
        tutto[voce.path().string()] = voce.is_regular_file() ? prova::Contenuto(voce.path()) : "";
    }
    return tutto;
  }
  void Ricorda() { finestra_.Azione("mnuRicorda").trigger(); }
  void Scrivi(const fs::path& file, const std::string& byte) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << byte;
  }
  bool Spuntata(const char* nome) { return finestra_.Azione(nome).isChecked(); }

  Finestra finestra_;
};

TEST_F(QtRicordi, KeepsNothingUntilItIsTurnedOn) {
  finestra_.Scegli(1);
  finestra_.Apri("FATT01.IMG");
  QTest::keyClicks(&finestra_.Sezione(0), "zz");
  for (const char* nome : {"mnuSalva", "mnuAnte", "mnuBarraStato", "mnuMisura", "mnuRighello", "mnuFlagVeri",
                           "mnuRighe", "mnuSettaFlag", "mnuNuovo"})
    finestra_.Azione(nome).trigger();
  finestra_->resize(700, 500);
  finestra_.Riavvia();
  EXPECT_EQ(Tutto(), (std::map<std::string, std::string>()));
  EXPECT_FALSE(Spuntata("mnuRicorda"));
  EXPECT_TRUE(Spuntata("mnuBarraStato"));
  EXPECT_FALSE(Spuntata("mnuRighello"));
}

TEST_F(QtRicordi, KeepsSwitchesAndWindowWhileItIsOn) {
  Ricorda();
  finestra_.Scegli(1);
  finestra_.Azione("mnuBarraStato").trigger();
  finestra_.Azione("mnuRighello").trigger();
  finestra_->resize(640, 480);
  finestra_->move(30, 20);
  finestra_.Riavvia();
  EXPECT_TRUE(Spuntata("mnuRicorda"));
  EXPECT_FALSE(Spuntata("mnuBarraStato"));
  EXPECT_TRUE(Spuntata("mnuRighello"));
  EXPECT_FALSE(Spuntata("mnuMisura"));
  EXPECT_EQ(finestra_->size(), QSize(640, 480));
  EXPECT_EQ(finestra_->pos(), QPoint(30, 20));
}

TEST_F(QtRicordi, KeepsTheSheetOfEachDocumentType) {
  Foglio suo = FoglioDi(Carta::Personalizzata);
  suo.Larghezza = 1505;
  suo.LineePerPollice = 8;
  suo.Margini = {10, 20, 30, 40};
  Ricordo ricordo;
  ricordo.Fogli.Imposta(1, suo);
  ricordo.Fogli.Imposta(4, FoglioDi(Carta::Modulo12));
  qtRicordo(finestra_.Configurazione(), {}).Scrivi(ricordo);
  const auto letto = qtRicordo(finestra_.Configurazione(), {}).Leggi();
  ASSERT_TRUE(letto);
  EXPECT_TRUE(letto->Fogli == ricordo.Fogli);
  finestra_.Riavvia();
  finestra_.Scegli(4);
  EXPECT_EQ(finestra_.Anteprima().SulFoglio()->Pagina.Righe, 72U);
  finestra_.Azione("mnuNuovo").trigger();
  finestra_.Scegli(2);
  EXPECT_EQ(finestra_.Anteprima().SulFoglio(), std::nullopt);
}

TEST_F(QtRicordi, ASheetThatCannotBeIsNone) {
  for (const char* riga :
       {"1\\Carta=B7", "1\\Carta=", "1\\Carta=A4\n1\\Larghezza=99999999999999999999\n1\\Altezza=1",
        "1\\Carta=A4\n1\\Larghezza=2100\n1\\Altezza=2970\n1\\Linee=0",
        "1\\Carta=A4\n1\\Larghezza=2100\n1\\Altezza=2970\n1\\Linee=6\n1\\MargineAlto=2147483647"}) {
    Scrivi(finestra_.Impostazioni(), std::string("[Fogli]\nsize=1\n1\\Tipo=1\n") + riga + "\n");
    finestra_.Riavvia();
    finestra_.Scegli(1);
    EXPECT_EQ(finestra_.Anteprima().SulFoglio(), std::nullopt) << riga;
  }
}

TEST_F(QtRicordi, RemovesTheFileWhenItIsTurnedOff) {
  Ricorda();
  ASSERT_TRUE(fs::exists(finestra_.Impostazioni()));
  Ricorda();
  EXPECT_EQ(Tutto(), (std::map<std::string, std::string>()));
  finestra_.Riavvia();
  EXPECT_EQ(Tutto(), (std::map<std::string, std::string>()));
  EXPECT_FALSE(Spuntata("mnuRicorda"));
}

TEST_F(QtRicordi, PutsTheWindowNowhereOffTheScreen) {
  Ricorda();
  const QRect libero = finestra_->screen()->availableGeometry();
  for (const QRect& posto :
       {QRect(30000, 20000, 500, 400), QRect(libero.right() - 20, libero.bottom() - 20, 500, 400),
        QRect(-4000, -4000, 9000, 9000), QRect(10, 10, 9000, 20)}) {
    Ricordo ricordo;
    ricordo.Finestra = posto;
    qtRicordo(finestra_.Configurazione(), {}).Scrivi(ricordo);
    finestra_.Riavvia();
    EXPECT_TRUE(libero.contains(finestra_->geometry())) << posto.x() << " " << posto.width();
    qtRicordo(finestra_.Configurazione(), {}).Scrivi(ricordo);
  }
}

TEST_F(QtRicordi, ADefaultForAllUsersTurnsItOn) {
  Scrivi(finestra_.ConfigurazioneDiTutti() / "ordavia" / "parvik32.ini",
         "[General]\nRicorda=true\n[Mostra]\nRighello=true\n");
  finestra_.Riavvia();
  EXPECT_TRUE(Spuntata("mnuRicorda"));
  EXPECT_TRUE(Spuntata("mnuRighello"));
}

TEST_F(QtRicordi, ADefaultForAllUsersThatDoesNotTurnItOnIsNotHeard) {
  Scrivi(finestra_.ConfigurazioneDiTutti() / "ordavia" / "parvik32.ini", "[Mostra]\nRighello=true\n");
  finestra_.Riavvia();
  EXPECT_FALSE(Spuntata("mnuRicorda"));
  EXPECT_FALSE(Spuntata("mnuRighello"));
}

TEST_F(QtRicordi, ABrokenFileCostsTheSettingsAndNothingElse) {
  using namespace std::string_literals;
  for (const std::string& byte :
       {""s, "\0\xFF[[[=\n\n%%"s, "[Finestra]\nPosto=@Rect(x)\nMassimizzata=forse\n[Recenti]\nsize=-7\n"s,
        "[Recenti]\nsize=99999999\n1\\File=relativo\n1\\Tipo=tanto\n[Testo]\nIngrandimento=999999999999\n"s,
        "[Mostra]\nBarraStato=@Variant(\\0\\0\\0)\n"s}) {
    Scrivi(finestra_.Impostazioni(), byte);
    finestra_.Riavvia();
    EXPECT_TRUE(Spuntata("mnuRicorda"));
    finestra_.Scegli(1);
    finestra_.Apri("FATT01.IMG");
    EXPECT_FALSE(finestra_.Sezione(0).toPlainText().isEmpty());
    finestra_.Azione("mnuNuovo").trigger();
  }
}

TEST_F(QtRicordi, AFileThatCannotBeWrittenOrReadCostsTheSettingsAndNothingElse) {
  fs::create_directories(finestra_.Impostazioni());  // where the file should be there is a folder
  Ricorda();
  EXPECT_TRUE(Spuntata("mnuRicorda"));
  finestra_.Azione("mnuRighello").trigger();
  finestra_.Riavvia();
  EXPECT_FALSE(Spuntata("mnuRighello"));
  Ricorda();
  Ricorda();
  EXPECT_FALSE(Spuntata("mnuRicorda"));
  fs::remove_all(finestra_.Configurazione());
  Scrivi(finestra_.Configurazione(), "a file in the place of the folder");
  Ricorda();
  finestra_.Riavvia();
  EXPECT_FALSE(Spuntata("mnuRicorda"));
}

TEST_F(QtRicordi, KeepsTheTemplatesThatWereOpenedAndSaved) {
  Ricorda();
  finestra_.Scegli(1);
  finestra_.Apri("FATT01.IMG");
  finestra_.Persona().Scegliera(finestra_.Modello("MIO.IMG"));
  finestra_.Azione("mnuSalvaNome").trigger();
  finestra_->close();
  const auto ricordo = qtRicordo(finestra_.Configurazione(), {}).Leggi();
  ASSERT_TRUE(ricordo);
  EXPECT_EQ(ricordo->Modelli.Voci(),
            (std::vector<ModelloRecente>{{.File = finestra_.Modello("MIO.IMG"), .Tipo = 1},
                                         {.File = finestra_.Modello("FATT01.IMG"), .Tipo = 1}}));
}

TEST(QtRicordo, KeepsAFileNameThatIsNoUtf8) {
  const prova::CartellaTemporanea cartella;
  Ricordo ricordo;
  ricordo.Scelte.Imposta(Preferenza::Ricorda, true);
  ricordo.Modelli.Aggiungi({.File = "/velkor/\xFF\xE8 a.IMG", .Tipo = 12});
  ricordo.Ingrandimento = -2;
  ricordo.Finestra = {1, 2, 300, 200};
  qtRicordo(cartella.Percorso(), {}).Scrivi(ricordo);
  EXPECT_EQ(qtRicordo(cartella.Percorso(), {}).Leggi(), ricordo);
}

}  // namespace
}  // namespace parvik
