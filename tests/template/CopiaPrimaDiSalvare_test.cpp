// What Save and Save As keep of a file that the template did not come from.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "template/BancoComandi.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;

class CopiaPrimaDiSalvare : public BancoComandi {
 protected:
  void SetUp() override { Crea(File, Vecchio); }
  void Apri() {
    interlocutore_.Scegliera(File);
    comandi_.Apri(tre_);
  }
  /// A file with what the sections hold.
  void Salva(std::string_view testata = "t\r\n") {
    Imposta({std::string(testata), "c\r\n", "p\r\n"});
    comandi_.Salva(tre_);
  }
  /// That this is all there is: the file, and what was kept of it.
  void AttendiTenuto(std::string_view copia) const {
    AttendiMessaggi({});
    EXPECT_EQ((Elenco{"A.IMG", "A.IMG~"}), Nomi(dirImg_.Percorso()));
    EXPECT_EQ(copia, Contenuto(dirImg_ / "A.IMG~"));
  }
  void AttendiNullaTenuto() const {
    AttendiMessaggi({});
    EXPECT_EQ(Elenco{"A.IMG"}, Nomi(dirImg_.Percorso()));
  }

  const fs::path File = dirImg_ / "A.IMG";
  const std::string Vecchio = "n\r\n" + Marcatore("7;1;CS") + "m\r\no\r\n";
};

TEST_F(CopiaPrimaDiSalvare, KeepsNothingOfTheFileThatWasOpened) {
  Apri();
  Salva();
  EXPECT_NE(Vecchio, Contenuto(File));
  AttendiNullaTenuto();
}

TEST_F(CopiaPrimaDiSalvare, KeepsNothingOfWhatItWroteItself) {
  Apri();
  Salva("uno\r\n");
  Salva("due\r\n");
  AttendiNullaTenuto();
}

TEST_F(CopiaPrimaDiSalvare, KeepsTheFileThatNewLeftTheNameOf) {
  Apri();
  comandi_.Nuovo(tre_);
  Salva();
  EXPECT_EQ("t\r\n" + Marcatore("7;1;CS") + "c\r\np\r\n", Contenuto(File));
  EXPECT_FALSE(documento_.Stato().Modificato);
  AttendiTenuto(Vecchio);
}

TEST_F(CopiaPrimaDiSalvare, KeepsItOnceAndNotWhatItWroteAfterwards) {
  Apri();
  comandi_.Nuovo(tre_);
  Salva("uno\r\n");
  Salva("due\r\n");
  AttendiTenuto(Vecchio);
}

TEST_F(CopiaPrimaDiSalvare, KeepsWhatNewJustSaved) {
  Apri();
  documento_.Stato().Modificato = true;
  Imposta(Sezione::Testata, "salvato\r\n");
  interlocutore_.Rispondera(Risposta::Si);
  comandi_.Nuovo(tre_);
  const std::string salvato = Contenuto(File);
  Salva();
  EXPECT_EQ(salvato, Contenuto(dirImg_ / "A.IMG~"));
}

TEST_F(CopiaPrimaDiSalvare, KeepsWhatSomebodyElseWroteMeanwhile) {
  Apri();
  Crea(File, "di un altro\r\n");
  Salva();
  AttendiTenuto("di un altro\r\n");
}

TEST_F(CopiaPrimaDiSalvare, KeepsOnlyTheNewest) {
  Apri();
  Crea(File, "primo\r\n");
  Salva("uno\r\n");
  Crea(File, "secondo\r\n");
  Salva("due\r\n");
  AttendiTenuto("secondo\r\n");
}

TEST_F(CopiaPrimaDiSalvare, KeepsNothingWhereTheFileHasTheBytesThatAreSaved) {
  Apri();
  Crea(File, FileIniziale());
  documento_.Stato().Corpo = ImpostazioniPredefinite();
  Salva();
  EXPECT_EQ(FileIniziale(), Contenuto(File));
  AttendiNullaTenuto();
}

TEST_F(CopiaPrimaDiSalvare, KeepsAFileThatCouldNotBeReadToItsEnd) {
  const std::string troppo = "n\r\n" + Marcatore("40000;1;") + "m\r\no\r\n";
  Crea(File, troppo);
  Apri();
  Salva();
  AttendiTenuto(troppo);
}

TEST_F(CopiaPrimaDiSalvare, KeepsNothingOfAFileWhoseMarkerPromisedTooMuch) {
  Crea(File, "n\r\n" + Marcatore("7;5;CS") + "m\r\n");
  Apri();
  Salva();
  AttendiNullaTenuto();
}

TEST_F(CopiaPrimaDiSalvare, KeepsTheFileThatSaveAsReplaces) {
  Crea(dirImg_ / "B.IMG", "di B\r\n");
  Apri();
  interlocutore_.Scegliera(dirImg_ / "B.IMG");
  comandi_.SalvaConNome(tre_);
  EXPECT_EQ((Elenco{"A.IMG", "B.IMG", "B.IMG~"}), Nomi(dirImg_.Percorso()));
  EXPECT_EQ(Vecchio, Contenuto(dirImg_ / "B.IMG"));
  EXPECT_EQ("di B\r\n", Contenuto(dirImg_ / "B.IMG~"));
  Salva();  // to B, which it now comes from
  EXPECT_EQ("di B\r\n", Contenuto(dirImg_ / "B.IMG~"));
}

TEST_F(CopiaPrimaDiSalvare, KeepsNothingWhenSaveAsChoosesTheFileThatWasOpened) {
  Apri();
  Imposta(Sezione::Testata, "altro\r\n");
  interlocutore_.Scegliera(File);
  comandi_.SalvaConNome(tre_);
  AttendiNullaTenuto();
}

TEST_F(CopiaPrimaDiSalvare, KeepsNothingOfAFileThatWasNotThere) {
  Apri();
  fs::remove(File);
  Salva();
  AttendiNullaTenuto();
}

TEST_F(CopiaPrimaDiSalvare, FailsRatherThanReplaceWhatItCannotKeep) {
  Crea(dirImg_ / "A.IMG~" / "dentro", "");  // a folder has the name of the copy
  Apri();
  comandi_.Nuovo(tre_);
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Ok);
  Salva();
  AttendiMessaggi({Errore(NumeroErrore::AccessoPercorsoFile)});
  EXPECT_EQ(Vecchio, Contenuto(File));
  EXPECT_TRUE(documento_.Stato().Modificato);
  EXPECT_EQ((Elenco{"A.IMG", "A.IMG~"}), Nomi(dirImg_.Percorso()));
}

TEST_F(CopiaPrimaDiSalvare, SaveAsIsSilentWhenItCannotKeepAFile) {
  Crea(dirImg_ / "A.IMG~" / "dentro", "");
  interlocutore_.Scegliera(File);
  documento_.Stato().Modificato = true;
  comandi_.SalvaConNome(tre_);
  AttendiMessaggi({});
  EXPECT_EQ(Vecchio, Contenuto(File));
  EXPECT_TRUE(documento_.Stato().Modificato);
  EXPECT_EQ("", documento_.Stato().NomeFile);
}

TEST_F(CopiaPrimaDiSalvare, GivesTheCopyTheRightsOfTheFile) {
  fs::permissions(File, fs::perms{0600});
  Apri();
  comandi_.Nuovo(tre_);
  Salva();
  if (!ConDiritti) GTEST_SKIP() << "no permission bits here";
  EXPECT_EQ(0600U, Modo(dirImg_ / "A.IMG~"));
}

}  // namespace
}  // namespace parvik::prova
