#include "tokens/CodiceLingua.h"

#include <gtest/gtest.h>

#include <ostream>

#include "supporto/ConNome.h"

namespace parvik {

static void PrintTo(const CodiceLingua& lingua, std::ostream* uscita) {
  *uscita << '"' << lingua.IndiceTabella << "\" \"" << lingua.Lunghezza << '"';
}

namespace {

TEST(CostruisciLingua, WritesIndexAndWidth) {
  EXPECT_EQ(CostruisciLingua({.IndiceTabella = "5", .Lunghezza = "20"}),
            "\xAB"
            "L5;20\xBB");
}

TEST(CostruisciLingua, WritesNoSeparatorWithoutAWidth) {
  EXPECT_EQ(CostruisciLingua({.IndiceTabella = "5", .Lunghezza = ""}),
            "\xAB"
            "L5\xBB");
}

TEST(CostruisciLingua, BuildsNothingWithoutAnIndex) {
  EXPECT_EQ(CostruisciLingua({.IndiceTabella = "", .Lunghezza = "20"}), "");
  EXPECT_EQ(CostruisciLingua({.IndiceTabella = "", .Lunghezza = ""}), "");
}

TEST(CodiceLingua, WithoutAWidthReadsBackAsTenAndIsRewrittenWithIt) {
  const CodiceLingua letto = LeggiLingua("L3");
  EXPECT_EQ(letto, (CodiceLingua{.IndiceTabella = "3", .Lunghezza = "10"}));
  EXPECT_EQ(CostruisciLingua(letto),
            "\xAB"
            "L3;10\xBB");
}

struct CasoLingua {
  const char* Nome;
  std::string_view Contenuto;
  CodiceLingua Atteso;
};
using prova::PrintTo;

class LetturaLinguaTest : public testing::TestWithParam<CasoLingua> {};

TEST_P(LetturaLinguaTest, TakesIndexAndWidthAsTheyStand) {
  EXPECT_EQ(LeggiLingua(GetParam().Contenuto), GetParam().Atteso);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, LetturaLinguaTest,
    testing::Values(CasoLingua{"both", "L5;20", {.IndiceTabella = "5", .Lunghezza = "20"}},
                    CasoLingua{"index_only", "L5", {.IndiceTabella = "5", .Lunghezza = "10"}},
                    CasoLingua{"empty_width", "L5;", {.IndiceTabella = "5", .Lunghezza = ""}},
                    CasoLingua{"empty_index", "L;20", {.IndiceTabella = "", .Lunghezza = "20"}},
                    CasoLingua{"no_numbers", "Lab;cd", {.IndiceTabella = "ab", .Lunghezza = "cd"}},
                    CasoLingua{"two_separators", "L5;20;3", {.IndiceTabella = "5", .Lunghezza = "20;3"}},
                    CasoLingua{"spaces", "L 5 ; 20 ", {.IndiceTabella = " 5 ", .Lunghezza = " 20 "}},
                    CasoLingua{"letter_alone", "L", {.IndiceTabella = "", .Lunghezza = "10"}},
                    CasoLingua{"empty", "", {.IndiceTabella = "", .Lunghezza = "10"}}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

}  // namespace
}  // namespace parvik
