#include "editor/CopiaEsempio.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

TEST(CopiaEsempio, MakesAnInstallationThatCanBeChanged) {
  const CartellaTemporanea dir;
  const fs::path dove = dir / "uno" / "due";
  ASSERT_TRUE(CopiaEsempio(Esempio(), dove));
  EXPECT_EQ(Contenuto(dove / "D_IMG" / "FATT01.IMG"), Contenuto(Esempio() / "D_IMG" / "FATT01.IMG"));
  EXPECT_EQ(Contenuto(dove / "VELKOR.INI"), Contenuto(Esempio() / "VELKOR.INI"));
  EXPECT_TRUE(fs::is_directory(dove / "D_STM"));
}

TEST(CopiaEsempio, TakesAnEmptyFolder) {
  const CartellaTemporanea dir;
  fs::create_directory(dir / "vuota");
  EXPECT_TRUE(CopiaEsempio(Esempio(), dir / "vuota"));
}

TEST(CopiaEsempio, LeavesAFolderWithSomethingInItAlone) {
  const CartellaTemporanea dir;
  fs::create_directory(dir / "piena");
  Crea(dir / "piena" / "CAMPI.TXT", "mio");
  const auto esito = CopiaEsempio(Esempio(), dir / "piena");
  ASSERT_FALSE(esito);
  EXPECT_EQ(esito.Errore(), (dir / "piena").string() + ": la cartella non è vuota");
  EXPECT_EQ(fs::directory_iterator(dir / "piena")->path().filename(), "CAMPI.TXT");
}

TEST(CopiaEsempio, SaysWhatStandsInItsWay) {
  const CartellaTemporanea dir;
  Crea(dir / "file", "mio");
  const auto esito = CopiaEsempio(Esempio(), dir / "file" / "sotto");
  ASSERT_FALSE(esito);
  EXPECT_NE(esito.Errore().find("Si è verificato l'errore: "), std::string::npos) << esito.Errore();
}

}  // namespace
}  // namespace parvik::prova
