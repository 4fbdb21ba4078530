#include "tokens/CodiceFlag.h"

#include <gtest/gtest.h>

#include <ostream>

#include "supporto/ConNome.h"

namespace parvik {

static void PrintTo(const CodiceFlag& flag, std::ostream* uscita) {
  *uscita << '"' << flag.Numero << "\" \"" << flag.Interruttore << '"';
}

namespace {

TEST(CostruisciFlag, WritesNumberAndSwitchWithNothingBetweenThem) {
  EXPECT_EQ(CostruisciFlag({.Numero = "3", .Interruttore = "S"}),
            "\xAB"
            "F3S\xBB");
  EXPECT_EQ(CostruisciFlag({.Numero = "14", .Interruttore = "N"}),
            "\xAB"
            "F14N\xBB");
}

TEST(CostruisciFlag, WritesTheSwitchOfTheCatalogueAsItStands) {
  EXPECT_EQ(CostruisciFlag({.Numero = "3", .Interruttore = ""}),
            "\xAB"
            "F3\xBB");
  EXPECT_EQ(CostruisciFlag({.Numero = "3", .Interruttore = "s;x"}),
            "\xAB"
            "F3s;x\xBB");
}

TEST(CodiceFlag, WithoutASwitchReadsBackAsNAndIsRewrittenWithIt) {
  const CodiceFlag letto = LeggiFlag("F7");
  EXPECT_EQ(letto, (CodiceFlag{.Numero = "7", .Interruttore = "N"}));
  EXPECT_EQ(CostruisciFlag(letto),
            "\xAB"
            "F7N\xBB");
}

struct CasoFlag {
  const char* Nome;
  std::string_view Contenuto;
  CodiceFlag Atteso;
};
using prova::PrintTo;

class LetturaFlagTest : public testing::TestWithParam<CasoFlag> {};

TEST_P(LetturaFlagTest, TakesALastCharacterThatIsNoDigitForTheSwitch) {
  EXPECT_EQ(LeggiFlag(GetParam().Contenuto), GetParam().Atteso);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, LetturaFlagTest,
    testing::Values(CasoFlag{"with_spaces", "F3S", {.Numero = "3", .Interruttore = "S"}},
                    CasoFlag{"without_spaces", "F14N", {.Numero = "14", .Interruttore = "N"}},
                    CasoFlag{"no_switch", "F7", {.Numero = "7", .Interruttore = "N"}},
                    CasoFlag{"no_switch_and_three_digits", "F123", {.Numero = "123", .Interruttore = "N"}},
                    CasoFlag{"other_letter", "F7x", {.Numero = "7", .Interruttore = "x"}},
                    CasoFlag{"two_letters", "F7SN", {.Numero = "7S", .Interruttore = "N"}},
                    CasoFlag{"space_as_switch", "F7 ", {.Numero = "7", .Interruttore = " "}},
                    CasoFlag{"accented_letter", "F7\xE0", {.Numero = "7", .Interruttore = "\xE0"}},
                    CasoFlag{"negative", "F-1N", {.Numero = "-1", .Interruttore = "N"}},
                    CasoFlag{"no_number", "FS", {.Numero = "", .Interruttore = "S"}},
                    CasoFlag{"no_digits", "Fabc", {.Numero = "ab", .Interruttore = "c"}},
                    CasoFlag{"digit_after_letters", "Fab1", {.Numero = "ab1", .Interruttore = "N"}},
                    CasoFlag{"letter_alone", "F", {.Numero = "", .Interruttore = "N"}},
                    CasoFlag{"empty", "", {.Numero = "", .Interruttore = "N"}}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

}  // namespace
}  // namespace parvik
