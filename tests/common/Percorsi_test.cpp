#include "common/Percorsi.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

TEST(TrovaSenzaCaso, PrefersTheExactName) {
  if (!DistingueCasi()) GTEST_SKIP() << "this system does not tell the cases of letters apart";
  const CartellaTemporanea cartella;
  Crea(cartella / "CAMPI.TXT", "");
  Crea(cartella / "Campi.txt", "");
  EXPECT_EQ(cartella / "Campi.txt", TrovaSenzaCaso(cartella.Percorso(), "Campi.txt"));
}

TEST(TrovaSenzaCaso, FindsANameWrittenInAnotherCase) {
  if (!DistingueCasi()) GTEST_SKIP() << "this system does not tell the cases of letters apart";
  const CartellaTemporanea cartella;
  Crea(cartella / "Campi.txt", "");
  EXPECT_EQ(cartella / "Campi.txt", TrovaSenzaCaso(cartella.Percorso(), "CAMPI.TXT"));
}

TEST(TrovaSenzaCaso, FindsAFolderToo) {
  if (!DistingueCasi()) GTEST_SKIP() << "this system does not tell the cases of letters apart";
  const CartellaTemporanea cartella;
  fs::create_directory(cartella / "d_Img");
  EXPECT_EQ(cartella / "d_Img", TrovaSenzaCaso(cartella.Percorso(), "D_IMG"));
}

TEST(TrovaSenzaCaso, TakesTheFirstInByteOrderOfSeveral) {
  if (!DistingueCasi()) GTEST_SKIP() << "this system does not tell the cases of letters apart";
  const CartellaTemporanea cartella;
  Crea(cartella / "campi.txt", "");
  Crea(cartella / "campi.TXT", "");
  Crea(cartella / "Campi.txt", "");
  EXPECT_EQ(cartella / "Campi.txt", TrovaSenzaCaso(cartella.Percorso(), "CAMPI.TXT"));
}

TEST(TrovaSenzaCaso, GivesTheExactPathWhenThereIsNothing) {
  const CartellaTemporanea cartella;
  Crea(cartella / "CAMPI.TXT.old", "");
  EXPECT_EQ(cartella / "CAMPI.TXT", TrovaSenzaCaso(cartella.Percorso(), "CAMPI.TXT"));
  EXPECT_EQ(cartella / "manca" / "CAMPI.TXT", TrovaSenzaCaso(cartella / "manca", "CAMPI.TXT"));
}

TEST(UgualiSenzaCaso, FoldsTheLettersAToZAndNothingElse) {
  EXPECT_TRUE(UgualiSenzaCaso("", ""));
  EXPECT_TRUE(UgualiSenzaCaso("abcXYZ09_", "ABCxyz09_"));
  EXPECT_FALSE(UgualiSenzaCaso("abc", "abcd"));
  EXPECT_FALSE(UgualiSenzaCaso("[", "{"));  // their bytes differ as those of letters do
  EXPECT_FALSE(UgualiSenzaCaso("@", "`"));
  EXPECT_FALSE(UgualiSenzaCaso("\xC0", "\xE0"));  // letters of the code page, but not A to Z
}

TEST(EsisteFile, SaysYesToFilesDevicesAndLinksToThem) {
  if (!Collegamenti()) GTEST_SKIP() << "no links here";
  const CartellaTemporanea cartella;
  Crea(cartella / "file", "");
  fs::create_symlink("file", cartella / "collegamento");
  EXPECT_TRUE(EsisteFile(cartella / "file"));
  EXPECT_TRUE(EsisteFile(cartella / "collegamento"));
  EXPECT_TRUE(EsisteFile("/dev/null"));
}

TEST(EsisteFile, SaysNoToFoldersAndToWhatIsNotThere) {
  if (!Collegamenti()) GTEST_SKIP() << "no links here";
  const CartellaTemporanea cartella;
  Crea(cartella / "file", "");
  fs::create_symlink("manca", cartella / "pendente");
  EXPECT_FALSE(EsisteFile(cartella.Percorso()));
  EXPECT_FALSE(EsisteFile(cartella / "manca"));
  EXPECT_FALSE(EsisteFile(cartella / "pendente"));
  EXPECT_FALSE(EsisteFile(cartella / "file" / "sotto"));
  EXPECT_FALSE(EsisteFile(""));
}

TEST(UltimiCaratteri, GivesTheWholeOfAShortText) {
  EXPECT_EQ("", UltimiCaratteri("", 12));
  EXPECT_EQ("A.IMG", UltimiCaratteri("A.IMG", 12));
  EXPECT_EQ("MODELLO1.IMG", UltimiCaratteri("MODELLO1.IMG", 12));
}

TEST(UltimiCaratteri, CutsALongText) {
  EXPECT_EQ("MODELLO1.IMG", UltimiCaratteri("C:\\D_IMG\\MODELLO1.IMG", 12));
  EXPECT_EQ("", UltimiCaratteri("abc", 0));
}

TEST(UltimiCaratteri, CountsCharactersNotBytes) {
  EXPECT_EQ("ààà€", UltimiCaratteri("xààà€", 4));
  EXPECT_EQ("😀b", UltimiCaratteri("a😀b", 2));
}

}  // namespace
}  // namespace parvik::prova
