#include "common/Esito.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace parvik {
namespace {

TEST(Esito, HoldsAValue) {
  Esito<std::string> esito(std::string("sì"));
  ASSERT_TRUE(esito);
  EXPECT_EQ(*esito, "sì");
  esito->clear();
  EXPECT_EQ(std::as_const(esito)->size(), 0U);
}

TEST(Esito, HoldsAnErrorOfItsOwnType) {
  struct Motivo {
    int Codice;
  };
  const Esito<std::string, Motivo> esito(Motivo{7});
  ASSERT_FALSE(esito);
  EXPECT_EQ(esito.Errore().Codice, 7);
}

TEST(Esito, GivesAwayAValueThatCannotBeCopied) {
  Esito<std::unique_ptr<int>> esito(std::make_unique<int>(3));
  const std::unique_ptr<int> preso = std::move(*esito);
  EXPECT_EQ(*preso, 3);
}

TEST(Esito, OfNothingIsSuccessOrAnError) {
  EXPECT_TRUE(Esito<void>());
  const Esito<void> esito(NumeroErrore::DiscoPieno);
  ASSERT_FALSE(esito);
  EXPECT_EQ(esito.Errore(), NumeroErrore::DiscoPieno);
}

constexpr const char* MancaIlValore = "Esito.h:\\w+: .*expected: a result that is a value";
constexpr const char* MancaLErrore = "Esito.h:\\w+: .*expected: a result that is an error";

/// Who asks for what is not there.
TEST(EsitoDeathTest, ThatIsAnErrorHasNoValue) {
  const Esito<std::string> esito(NumeroErrore::Overflow);
  EXPECT_EXIT(static_cast<void>(*esito), testing::ExitedWithCode(EXIT_FAILURE), MancaIlValore);
  EXPECT_EXIT(static_cast<void>(esito->size()), testing::ExitedWithCode(EXIT_FAILURE), MancaIlValore);
}

TEST(EsitoDeathTest, ThatIsAValueHasNoError) {
  const Esito<std::string> esito(std::string("x"));
  EXPECT_EXIT(static_cast<void>(esito.Errore()), testing::ExitedWithCode(EXIT_FAILURE), MancaLErrore);
}

TEST(EsitoDeathTest, OfNothingThatIsSuccessHasNoError) {
  const Esito<void> esito;
  EXPECT_EXIT(static_cast<void>(esito.Errore()), testing::ExitedWithCode(EXIT_FAILURE), MancaLErrore);
}

}  // namespace
}  // namespace parvik
