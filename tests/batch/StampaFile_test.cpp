// `stampa -o`.
#include <gtest/gtest.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/FileDiProva.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

class StampaFileTest : public testing::Test {
 protected:
  Esecuzione StampaSu(const fs::path& uscita, const std::vector<fs::path>& modelli) const {
    std::vector<std::string> argomenti = {"stampa", "--tipo", "1", "-o", uscita.string()};
    for (const fs::path& modello : modelli) argomenti.push_back(modello.string());
    return Esegui(Host.Argomenti(std::move(argomenti)));
  }

  HostDiProva Host;
  fs::path A = Host.Modello("a.img", "a\r\n");
  fs::path B = Host.Modello("b.img", "b\xE0\r\n");
  fs::path Manca = Host.Percorso() / "manca.img";
  fs::path Uscita = Host.Percorso() / "uscita.txt";
  std::string NonTrovato = Detto(Manca, "Si è verificato l'errore: 53 Impossibile trovare il file");
};

TEST_F(StampaFileTest, WritesAllFilesIntoTheOneNamed) {
  EXPECT_EQ(StampaSu(Uscita, {A, B}), (Esecuzione{0, "", ""}));
  EXPECT_EQ(Contenuto(Uscita), "a\r\nb\xE0\r\n");
}

TEST_F(StampaFileTest, ReplacesAFileThatIsThere) {
  Crea(Uscita, "un testo molto pi\xF9 lungo di prima\r\n");
  EXPECT_EQ(StampaSu(Uscita, {A}), (Esecuzione{0, "", ""}));
  EXPECT_EQ(Contenuto(Uscita), "a\r\n");
}

TEST_F(StampaFileTest, LeavesNothingElseInTheFolder) {
  Crea(Host.Percorso() / "fuori" / "uscita.txt", "x");
  EXPECT_EQ(StampaSu(Host.Percorso() / "fuori" / "uscita.txt", {A, Manca}).Stato, 2);
  EXPECT_EQ(Nomi(Host.Percorso() / "fuori"), std::vector<std::string>{"uscita.txt"});
}

TEST_F(StampaFileTest, WritesAnEmptyFileForAnEmptyTemplate) {
  EXPECT_EQ(StampaSu(Uscita, {Host.Modello("vuoto.img", "")}), (Esecuzione{0, "", ""}));
  EXPECT_EQ(Contenuto(Uscita), "");
}

TEST_F(StampaFileTest, WritesWhatCouldBeReadAndEndsWithStatus2) {
  EXPECT_EQ(StampaSu(Uscita, {A, Manca, B}), (Esecuzione{2, "", NonTrovato}));
  EXPECT_EQ(Contenuto(Uscita), "a\r\nb\xE0\r\n");
}

TEST_F(StampaFileTest, LeavesAFileAloneWhenNothingCouldBeRead) {
  Crea(Uscita, "vecchio");
  EXPECT_EQ(StampaSu(Uscita, {Manca}), (Esecuzione{2, "", NonTrovato}));
  EXPECT_EQ(Contenuto(Uscita), "vecchio");
}

TEST_F(StampaFileTest, MakesNoFileWhenNothingCouldBeRead) {
  EXPECT_EQ(StampaSu(Uscita, {Manca}), (Esecuzione{2, "", NonTrovato}));
  EXPECT_FALSE(fs::exists(Uscita));
}

TEST_F(StampaFileTest, MayWriteOverTheTemplateItRead) {
  EXPECT_EQ(StampaSu(B, {A, B}), (Esecuzione{0, "", ""}));
  EXPECT_EQ(Contenuto(B), "a\r\nb\xE0\r\n");
}

TEST_F(StampaFileTest, CannotWriteIntoAFolderThatIsNotThere) {
  const fs::path dove = Host.Percorso() / "manca" / "uscita.txt";
  EXPECT_EQ(StampaSu(dove, {A}),
            (Esecuzione{2, "", Detto(dove, "Si è verificato l'errore: 76 Impossibile trovare il percorso")}));
}

TEST_F(StampaFileTest, CannotWriteOverAFolder) {
  EXPECT_EQ(
      StampaSu(Host.Percorso(), {A}),
      (Esecuzione{
          2, "", Detto(Host.Percorso(), "Si è verificato l'errore: 75 Errore di accesso al percorso/file")}));
}

TEST_F(StampaFileTest, ReportsADiskThatIsFull) {
  EXPECT_EQ(StampaSu("/dev/full", {A}),
            (Esecuzione{2, "", Detto("/dev/full: Si è verificato l'errore: 61 Disco pieno")}));
}

}  // namespace
}  // namespace parvik::prova
