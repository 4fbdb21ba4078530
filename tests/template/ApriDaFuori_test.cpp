// A template named outside: on the command line, or dropped on the window.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "template/BancoComandi.h"

namespace parvik::prova {
namespace {

class ApriDaFuori : public BancoComandi {
 protected:
  void SetUp() override { Crea(dirImg_ / "MODELLO1.IMG", "n\r\n" + Marcatore("7;1;CS") + "m\r\no\r\n"); }

  static Messaggio Errore(NumeroErrore numero, const std::filesystem::path& file) {
    Messaggio messaggio = BancoComandi::Errore(numero);
    messaggio.Testo += "\r\n" + file.string();
    return messaggio;
  }

  void AttendiNienteCambiato() {
    EXPECT_EQ((TestiSezioni{"t\r\n", "c\r\n", "p\r\n"}), TestiOra());
    EXPECT_TRUE(contorno_.Fatti.empty());
    EXPECT_EQ("prima.img", documento_.Stato().NomeFile);
  }
};

TEST_F(ApriDaFuori, DoesWhatOpenDoesWithTheChosenFile) {
  comandi_.ApriDaFuori(tre_, dirImg_ / "MODELLO1.IMG");
  EXPECT_EQ((TestiSezioni{"n\r\n", "m\r\n", "o\r\n"}), TestiOra());
  EXPECT_EQ(dirImg_ / "MODELLO1.IMG", documento_.Stato().NomeFile);
  EXPECT_FALSE(documento_.Stato().Modificato);
  EXPECT_EQ((std::vector<std::string>{"anteprima spenta", "flag azzerati", "titolo Ordavia - MODELLO1.IMG"}),
            contorno_.Fatti);
  AttendiMessaggi({});
}

TEST_F(ApriDaFuori, FindsTheFileThatANameWithoutExtensionMeans) {
  if (!DistingueCasi()) GTEST_SKIP() << "this system does not tell the cases of letters apart";
  comandi_.ApriDaFuori(tre_, dirImg_ / "modello1");
  EXPECT_EQ(dirImg_ / "MODELLO1.IMG", documento_.Stato().NomeFile);
}

TEST_F(ApriDaFuori, TellsOfAFileThatIsNotThereAndChangesNothing) {
  documento_.Stato().NomeFile = "prima.img";
  documento_.Stato().Modificato = true;  // and does not even ask about it
  interlocutore_.Rispondera(Risposta::Ok);
  comandi_.ApriDaFuori(tre_, dirImg_ / "MANCA.IMG");
  AttendiMessaggi({Errore(NumeroErrore::FileNonTrovato, dirImg_ / "MANCA.IMG")});
  AttendiNienteCambiato();
  EXPECT_TRUE(documento_.Stato().Modificato);
}

TEST_F(ApriDaFuori, AsksAboutAModifiedTemplateFirst) {
  documento_.Stato().NomeFile = "prima.img";
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Annulla);
  comandi_.ApriDaFuori(tre_, dirImg_ / "MODELLO1.IMG");
  AttendiMessaggi({Domanda()});
  AttendiNienteCambiato();
}

TEST_F(ApriDaFuori, TellsThatTheFileEndsTooSoonAndShowsWhatThereIs) {
  const std::filesystem::path corto = dirImg_ / "CORTO.IMG";
  Crea(corto, "n\r\n" + Marcatore("7;9;") + "m\r\n");
  interlocutore_.Rispondera(Risposta::Ok);
  comandi_.ApriDaFuori(tre_, corto);
  AttendiMessaggi({Errore(NumeroErrore::InputOltreFine, corto)});
  EXPECT_EQ((TestiSezioni{"n\r\n", "m\r\n", ""}), TestiOra());
}

TEST_F(ApriDaFuori, TellsOfAFileTooLargeForAWindow) {
  documento_.Stato().NomeFile = "prima.img";
  const std::filesystem::path grande = dirImg_ / "GRANDE.IMG";
  Crea(grande, "");
  std::filesystem::resize_file(grande, (128ULL << 20U) + 1);
  interlocutore_.Rispondera(Risposta::Ok);
  comandi_.ApriDaFuori(tre_, grande);
  AttendiMessaggi({Errore(NumeroErrore::MemoriaEsaurita, grande)});
  AttendiNienteCambiato();
}

}  // namespace
}  // namespace parvik::prova
