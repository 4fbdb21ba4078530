#include "sistema/IdentitaFile.h"

#include <gtest/gtest.h>

#include <chrono>

#include "supporto/Cartelle.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

class IdentitaFileTest : public testing::Test {
 protected:
  IdentitaFileTest() { prova::Crea(File, "uno"); }

  prova::CartellaTemporanea cartella_;
  const fs::path File = cartella_ / "a";
};

TEST_F(IdentitaFileTest, IsTheSameWhileNobodyTouchesTheFile) {
  const auto prima = IdentitaDi(File);
  ASSERT_TRUE(prima);
  EXPECT_EQ(*prima, *IdentitaDi(File));
  EXPECT_EQ(prima->Dimensione, 3U);
}

TEST_F(IdentitaFileTest, IsTheSameWhileNobodyTouchesTheFileUnderALink) {
  if (!prova::Collegamenti()) GTEST_SKIP() << "no links here";
  fs::create_symlink(File, cartella_ / "b");
  EXPECT_EQ(*IdentitaDi(File), *IdentitaDi(cartella_ / "b"));
}

TEST_F(IdentitaFileTest, IsAnotherOneAfterEachKindOfChange) {
  const auto prima = IdentitaDi(File);
  ASSERT_TRUE(prima);
  const auto quando = fs::last_write_time(File);
  fs::last_write_time(File, quando + std::chrono::nanoseconds(1000));
  EXPECT_NE(*prima, *IdentitaDi(File)) << "touched";
  prova::Crea(File, "quattro");
  fs::last_write_time(File, quando);
  EXPECT_NE(*prima, *IdentitaDi(File)) << "of another size";
  fs::rename(File, cartella_ / "c");
  prova::Crea(File, "uno");
  fs::last_write_time(File, quando);
  EXPECT_NE(*prima, *IdentitaDi(File)) << "another file";
}

TEST_F(IdentitaFileTest, TellsWhatIsNotThereAndWhatIsNoFile) {
  EXPECT_EQ(IdentitaDi(cartella_ / "manca").Errore(), NumeroErrore::FileNonTrovato);
  EXPECT_EQ(IdentitaDi(File / "dentro").Errore(), NumeroErrore::PercorsoNonTrovato);
  EXPECT_EQ(IdentitaDi(cartella_.Percorso()).Errore(), NumeroErrore::AccessoPercorsoFile);
}

}  // namespace
}  // namespace parvik
