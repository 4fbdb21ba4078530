#include "output/StampaSuFile.h"

#include <gtest/gtest.h>

#include "common/FileDiProva.h"
#include "output/CatalogoDiProva.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

class StampaSuFileTest : public testing::Test {
 protected:
  void SetUp() override { Crea(File, "vecchio"); }
  /// One block: it is the first and the last.
  std::optional<Scritto> Stampa() {
    return StampaSuFile(File, {.Testi = {"a\r\n", "", ""}, .NumSezioni = 1, .Flag = Flag},
                        Smetti.get_token());
  }
  std::vector<std::string> Rimasti() const { return Nomi(Cartella.Percorso()); }

  CartellaTemporanea Cartella;
  const std::filesystem::path File = Cartella / "uscita.txt";
  const FlagPerStampe Flag = FlagDi({{.Numero = 1}});
  std::stop_source Smetti;
};

TEST_F(StampaSuFileTest, ReplacesTheFileByTheWholeRun) {
  EXPECT_TRUE(Stampa());
  EXPECT_EQ(Contenuto(File), "a\r\n");
}

TEST_F(StampaSuFileTest, LeavesTheFileOfARunThatIsGivenUpInItsLastBlock) {
  Smetti.request_stop();
  EXPECT_FALSE(Stampa());
  EXPECT_EQ(Contenuto(File), "vecchio");
  EXPECT_EQ(Rimasti(), std::vector<std::string>{"uscita.txt"});
}

TEST_F(StampaSuFileTest, StopsAfterTheBlockDuringWhichItWasGivenUp) {
  auto file = ScritturaSicura::Apri(File);
  ASSERT_TRUE(file);
  RigheSuFile righe(std::move(*file), Smetti.get_token());
  EXPECT_TRUE(righe.Righe("a\r\n"));
  Smetti.request_stop();
  EXPECT_FALSE(righe.Righe("b\r\n"));
  EXPECT_FALSE(righe.Continua());
}

}  // namespace
}  // namespace parvik::prova
