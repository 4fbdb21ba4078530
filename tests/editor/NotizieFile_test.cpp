// What is told of a file that others write, and when (docs/notizie.md).
#include "editor/NotizieFile.h"

#include "BancoEditore.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

class NotizieFileTest : public BancoEditore {
 protected:
  NotizieFileTest() {
    editore_.ScegliTipo(Listino);
    Crea(File, "uno\r\n");
    Apri();
  }
  void Apri() {
    interlocutore_.Scegliera(File);
    editore_.Apri();
    notizie_.Aggiorna(true);
  }
  void Salva() {
    editore_.Salva();
    notizie_.Aggiorna(true);
  }
  /// As when the window is activated; what is told then.
  Notizia Guarda() {
    const auto lavoro = notizie_.DaGuardare();
    if (lavoro) notizie_.Consegna(lavoro->Esegui());
    return notizie_.Ora();
  }
  /// Another program's, which is seen however quick it was.
  void Altrui(const std::string& byte) {
    Crea(File, byte);
    Tocca();
  }
  void Tocca() { fs::last_write_time(File, fs::last_write_time(File) + std::chrono::seconds(toccato_ *= 3)); }

  const fs::path File = dir_ / "A.IMG";
  NotizieFile notizie_{editore_.Modello(), dir_ / "esecuzione"};
  int toccato_ = 1;  // of whole seconds, and no two sums of them alike
};

TEST_F(NotizieFileTest, NothingIsToldOfAFileAsItWasRead) {
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
}

TEST_F(NotizieFileTest, NothingIsLookedAtWithoutAFile) {
  editore_.Nuovo();
  notizie_.Aggiorna(editore_.TipoScelto());
  EXPECT_FALSE(notizie_.DaGuardare());
  editore_.ScegliTipo(Fattura);
  notizie_.Aggiorna(true);
  EXPECT_FALSE(notizie_.DaGuardare()) << "its name is left, but the document does not come from it";
}

TEST_F(NotizieFileTest, AnothersChangeIsToldOnce) {
  Altrui("due\r\n");
  EXPECT_EQ(Guarda(), Notizia::Cambiato);
  EXPECT_EQ(notizie_.File(), File);
  notizie_.Ignora();
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
  Tocca();
  EXPECT_EQ(Guarda(), Notizia::Nessuna) << "the same content";
  Altrui("tre\r\n");
  EXPECT_EQ(Guarda(), Notizia::Cambiato) << "another change";
}

TEST_F(NotizieFileTest, AChangeOfTheSameSizeIsSeenToo) {
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
  Altrui("UNO\r\n");
  EXPECT_EQ(Guarda(), Notizia::Cambiato);
}

TEST_F(NotizieFileTest, AMereTouchIsNotTold) {
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
  Tocca();
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
  fs::rename(File, dir_ / "B.IMG");
  Crea(File, "uno\r\n");
  EXPECT_EQ(Guarda(), Notizia::Nessuna) << "another file with the same bytes";
}

TEST_F(NotizieFileTest, OnesOwnSaveIsNotTold) {
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
  Imposta(Sezione::Testata, "mio\r\n");
  Salva();
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
}

TEST_F(NotizieFileTest, ASaveOverAnothersChangeEndsTheNotice) {
  Altrui("due\r\n");
  EXPECT_EQ(Guarda(), Notizia::Cambiato);
  Salva();
  EXPECT_EQ(notizie_.Ora(), Notizia::Nessuna);
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
  EXPECT_EQ(Contenuto(dir_ / "A.IMG~"), "due\r\n");
}

TEST_F(NotizieFileTest, ALookThatBeganBeforeASaveCountsForNothing) {
  Altrui("due\r\n");
  const auto lavoro = notizie_.DaGuardare();
  ASSERT_TRUE(lavoro);
  const SguardoFile prima = lavoro->Esegui();
  editore_.Salva();
  notizie_.Consegna(prima);  // in the middle of the command
  EXPECT_EQ(notizie_.Ora(), Notizia::Nessuna);
  notizie_.Aggiorna(true);
  notizie_.Consegna(prima);
  EXPECT_EQ(notizie_.Ora(), Notizia::Nessuna);
}

TEST_F(NotizieFileTest, AFileThatHasGoneIsToldOnceAndForgottenWhenItIsBack) {
  fs::rename(File, dir_ / "B.IMG");
  EXPECT_EQ(Guarda(), Notizia::Sparito);
  notizie_.Ignora();
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
  fs::rename(dir_ / "B.IMG", File);
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
  fs::remove(File);
  EXPECT_EQ(Guarda(), Notizia::Sparito) << "once more";
}

TEST_F(NotizieFileTest, WhatCannotBeFoundOutIsNotTold) {
  if (!Collegamenti()) GTEST_SKIP() << "no links here";
  fs::remove(File);
  fs::create_directory(File);
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
  fs::remove(File);
  fs::create_symlink(File, File);
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
}

TEST_F(NotizieFileTest, AFileThatGrewBeyondAllTemplatesIsToldWithoutBeingRead) {
  fs::resize_file(File, 200ULL << 20U);
  EXPECT_EQ(Guarda(), Notizia::Cambiato);
  notizie_.Ignora();
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
}

TEST_F(NotizieFileTest, AFileThatWasNotTouchedIsNotReadAgain) {
  const auto prima = std::chrono::floor<std::chrono::seconds>(fs::last_write_time(File));
  fs::last_write_time(File, prima);
  EXPECT_EQ(Guarda(), Notizia::Nessuna);
  Crea(File, "UNO\r\n");
  fs::last_write_time(File, prima);
  EXPECT_EQ(Guarda(), Notizia::Nessuna) << "nothing but its bytes could tell it";
}

class DueFinestre : public NotizieFileTest {
 protected:
  DueFinestre() {
    fs::create_directory(Esecuzione);
    notizie_.Aggiorna(false);
    notizie_.Aggiorna(true);
  }
  /// Another window that has the file open, under whatever name.
  struct Altra {
    Altra(const fs::path& file, const fs::path& esecuzione) : Notizie(Modello, esecuzione) {
      Modello.Stato().Origine = {.File = file, .Byte = std::make_shared<const std::string>()};
      Notizie.Aggiorna(true);
    }
    Documento Modello;
    NotizieFile Notizie;
  };
  Notizia Dice(const fs::path& file) const { return Altra(file, Esecuzione).Notizie.Ora(); }

  const fs::path Esecuzione = dir_ / "esecuzione";
};

TEST_F(DueFinestre, TheSecondOneIsToldThatTheFileIsOpenAlready) {
  EXPECT_EQ(notizie_.Ora(), Notizia::Nessuna);
  EXPECT_EQ(Dice(File), Notizia::GiaAperto);
  EXPECT_EQ(Dice(FileNuovo()), Notizia::Nessuna) << "another file";
}

TEST_F(DueFinestre, TheSecondOneIsToldUnderAnotherNameToo) {
  if (!Collegamenti()) GTEST_SKIP() << "no links here";
  fs::create_symlink(File, FileNuovo());
  EXPECT_EQ(Dice(FileNuovo()), Notizia::GiaAperto);
}

TEST_F(DueFinestre, TheFirstOneIsToldWhenItSavesUnderTheOthersName) {
  Crea(FileNuovo(), "x");
  const Altra altra(FileNuovo(), Esecuzione);
  interlocutore_.Scegliera(FileNuovo());
  editore_.SalvaConNome();
  notizie_.Aggiorna(true);
  EXPECT_EQ(notizie_.Ora(), Notizia::GiaAperto);
  EXPECT_EQ(notizie_.File(), FileNuovo());
  EXPECT_EQ(Dice(File), Notizia::Nessuna) << "it has given up the name before";
}

TEST_F(DueFinestre, ItIsToldOnceAndStaysUntilItWasSeen) {
  const Altra altra(File, Esecuzione);
  notizie_.Aggiorna(false);
  Apri();
  EXPECT_EQ(notizie_.Ora(), Notizia::GiaAperto);
  Salva();
  EXPECT_EQ(notizie_.Ora(), Notizia::GiaAperto);
  EXPECT_EQ(Guarda(), Notizia::GiaAperto);
  notizie_.Ignora();
  Salva();
  EXPECT_EQ(notizie_.Ora(), Notizia::Nessuna);
}

TEST_F(DueFinestre, NewAndTheEndGiveTheFileUp) {
  editore_.Nuovo();
  notizie_.Aggiorna(editore_.TipoScelto());
  EXPECT_EQ(Dice(File), Notizia::Nessuna);
  { const Altra altra(File, Esecuzione); }
  EXPECT_EQ(Dice(File), Notizia::Nessuna);
  EXPECT_TRUE(fs::is_empty(Esecuzione / "ordavia"));
}

TEST_F(DueFinestre, WithoutAFolderNothingIsToldAndNothingGoesWrong) {
  for (const fs::path& nessuna : {fs::path(), dir_ / "manca", File}) {
    const Altra prima(File, nessuna);
    const Altra seconda(File, nessuna);
    EXPECT_EQ(seconda.Notizie.Ora(), Notizia::Nessuna) << nessuna;
  }
}

TEST_F(NotizieFileTest, EveryNoticeHasItsWords) {
  EXPECT_EQ(Parole(Notizia::GiaAperto), "è già aperto in un'altra finestra");
  EXPECT_EQ(Parole(Notizia::Cambiato), "è stato cambiato da un altro programma");
  EXPECT_EQ(Parole(Notizia::Sparito), "non c'è più: è stato tolto o spostato");
  EXPECT_EQ(Parole(Notizia::Nessuna), "");
}

}  // namespace
}  // namespace parvik::prova
