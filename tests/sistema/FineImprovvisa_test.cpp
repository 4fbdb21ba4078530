// A save under way when the program ends by a bug.
#include <gtest/gtest.h>

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "common/FileDiProva.h"
#include "common/Precondizione.h"
#include "sistema/ScritturaSicura.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

using Elenco = std::vector<std::string>;

/// A save that `mai` keeps from its end: something lies beside the old file when it does.
void SalvaFinoA(const std::filesystem::path& file, void (*mai)()) {
  auto scrittura = ScritturaSicura::Apri(file);
  if (!scrittura || !scrittura->Scrivi("half of the new")) std::_Exit(2);
  if (Nomi(file.parent_path()).size() < 2) std::_Exit(3);
  mai();
  static_cast<void>(scrittura->Conferma());
}

TEST(FineImprovvisaDeathTest, ByAPreconditionThatIsNotMetLeavesTheOldFileAndNothingElse) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "old");
  EXPECT_EXIT(SalvaFinoA(cartella / "a.img", [] { PARVIK_ESIGE(false, "the sun shines"); }),
              testing::ExitedWithCode(EXIT_FAILURE), "expected: the sun shines");
  EXPECT_EQ(Contenuto(cartella / "a.img"), "old");
  EXPECT_EQ(Nomi(cartella.Percorso()), Elenco{"a.img"});
}

void Sfuggi() noexcept {
  static_cast<void>(std::string().at(1));
}

TEST(FineImprovvisaDeathTest, ByAnExceptionThatNobodyCaughtLeavesTheSame) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "old");
  EXPECT_EXIT(
      {
        std::set_terminate(EccezioneSfuggita);
        SalvaFinoA(cartella / "a.img", Sfuggi);
      },
      testing::ExitedWithCode(EXIT_FAILURE), "uncaught exception: basic_string::at");
  EXPECT_EQ(Contenuto(cartella / "a.img"), "old");
  EXPECT_EQ(Nomi(cartella.Percorso()), Elenco{"a.img"});
}

}  // namespace
}  // namespace parvik::prova
