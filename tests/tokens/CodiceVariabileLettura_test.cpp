#include <gtest/gtest.h>

#include <array>

#include "supporto/ConNome.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/StampaVariabile.h"

namespace parvik {
namespace {

// clang-format off
const std::array<Variabile, 4> Variabili = {
    Variabile{.Descrizione = "Nome", .Intero1 = 12, .Intero2 = 40, .Testo1 = "x", .Intero3 = 0, .Intero4 = 0,
              .Intero5 = 5, .Intero6 = 1, .Intero7 = 1, .Intero8 = 1, .Testo2 = "2", .Testo3 = "1"},
    Variabile{.Descrizione = "Importo", .Intero1 = 25, .Intero2 = 40, .Testo1 = "x", .Intero3 = 1, .Intero4 = 1,
              .Intero5 = 5, .Intero6 = 1, .Intero7 = 1, .Intero8 = 1, .Testo2 = "3", .Testo3 = "1"},
    Variabile{.Descrizione = "Quota", .Intero1 = 8, .Intero2 = 40, .Testo1 = "", .Intero3 = 1, .Intero4 = 7,
              .Intero5 = 0, .Intero6 = 0, .Intero7 = 0, .Intero8 = 0, .Testo2 = "0", .Testo3 = "0"},
    Variabile{.Descrizione = "Doppione", .Intero1 = 12, .Intero2 = 1, .Testo1 = "", .Intero3 = 1, .Intero4 = 1,
              .Intero5 = 0, .Intero6 = 0, .Intero7 = 0, .Intero8 = 0, .Testo2 = "0", .Testo3 = "0"}};

/// What a code of the string variable 12 says: width, alignment, fill, lines.
Variabile Nome(std::int16_t larghezza, std::int16_t sinistra, std::string riempimento, std::int16_t linee) {
  return {.Descrizione = "Nome", .Intero1 = 12, .Intero2 = larghezza, .Testo1 = std::move(riempimento),
          .Intero3 = sinistra, .Intero4 = 0, .Intero5 = linee, .Intero6 = 0, .Intero7 = 0, .Intero8 = 0,
          .Testo2 = "0", .Testo3 = "0"};
}

struct Interruttori { std::int16_t Segno; std::int16_t Zero; std::int16_t Migliaia; };

/// What a code of the numeric variable 25 says.
Variabile Importo(std::int16_t larghezza, std::int16_t sinistra, std::string riempimento, Interruttori accesi,
                  std::string decimali, std::string euro) {
  return {.Descrizione = "Importo", .Intero1 = 25, .Intero2 = larghezza, .Testo1 = std::move(riempimento),
          .Intero3 = sinistra, .Intero4 = 1, .Intero5 = 0, .Intero6 = accesi.Segno, .Intero7 = accesi.Zero,
          .Intero8 = accesi.Migliaia, .Testo2 = std::move(decimali), .Testo3 = std::move(euro)};
}
// clang-format on

struct Caso {
  const char* Nome;
  std::string_view Contenuto;
  Variabile Atteso;
  std::size_t Voce;
};
using prova::PrintTo;

class LetturaVariabileTest : public testing::TestWithParam<Caso> {};

TEST_P(LetturaVariabileTest, TakesTheFormatFromTheCodeAndTheTypeFromTheCatalogue) {
  const VariabileLetta letta = LeggiVariabile(GetParam().Contenuto, Variabili);
  EXPECT_EQ(letta.Formato, GetParam().Atteso);
  EXPECT_EQ(letta.Voce, GetParam().Voce);
}

INSTANTIATE_TEST_SUITE_P(
    Stringhe, LetturaVariabileTest,
    testing::Values(Caso{"plain", "V12;30L", Nome(30, 1, "", 0), 0},
                    Caso{"to_the_right", "V12;30R", Nome(30, 0, "", 0), 0},
                    Caso{"lines_and_fill", "V12,3;35L\".\"", Nome(35, 1, ".", 3), 0},
                    Caso{"zero_lines", "V12,0;35L", Nome(35, 1, "", 0), 0},
                    Caso{"letter_in_front", "V12;L30", Nome(30, 1, "", 0), 0},
                    Caso{"letter_R_in_front", "V12;R30\"-\"", Nome(30, 0, "-", 0), 0},
                    Caso{"small_letter_is_right", "V12;30l", Nome(30, 0, "", 0), 0},
                    Caso{"other_letter_is_right", "V12;30C", Nome(30, 0, "", 0), 0},
                    Caso{"width_alone_is_left", "V12;30", Nome(30, 1, "", 0), 0},
                    Caso{"width_alone_with_fill", "V12;30\"*\"", Nome(30, 1, "*", 0), 0},
                    Caso{"fill_is_a_quote", "V12;30L\"\"\"", Nome(30, 1, "\"", 0), 0},
                    Caso{"fill_is_a_space", "V12;30L\" \"", Nome(30, 1, " ", 0), 0},
                    Caso{"fill_of_two_keeps_the_first", "V12;30L\"ab\"", Nome(30, 1, "a", 0), 0},
                    Caso{"fill_letter_is_no_alignment", "V12;30R\"L\"", Nome(30, 0, "L", 0), 0},
                    Caso{"leading_zero_of_the_number", "V012;30L", Nome(30, 1, "", 0), 0},
                    Caso{"leading_zero_of_the_width", "V12;0999L", Nome(999, 1, "", 0), 0}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

INSTANTIATE_TEST_SUITE_P(
    Numeri, LetturaVariabileTest,
    testing::Values(
        Caso{"everything", "V25;12R\"*\";.0,2-;1", Importo(12, 0, "*", {1, 1, 1}, "2", "1"), 1},
        Caso{"nothing", "V25;10R;#;0", Importo(10, 0, "", {0, 0, 0}, "0", "0"), 1},
        Caso{"zero_visible", "V25;10R;0;0", Importo(10, 0, "", {0, 1, 0}, "0", "0"), 1},
        Caso{"thousands_without_zero", "V25;10R;.#;0", Importo(10, 0, "", {0, 0, 1}, "0", "0"), 1},
        Caso{"thousands_after_the_zero", "V25;10R;0.;0", Importo(10, 0, "", {0, 0, 1}, "0", "0"), 1},
        Caso{"sign_in_front", "V25;10R;-0;0", Importo(10, 0, "", {1, 0, 0}, "0", "0"), 1},
        Caso{"variable_decimals", "V25;10R;#,*;0", Importo(10, 0, "", {0, 0, 0}, "*", "0"), 1},
        Caso{"two_digits_of_decimals", "V25;10R;#,12;0", Importo(10, 0, "", {0, 0, 0}, "1", "0"), 1},
        Caso{"to_the_left", "V25;10L;#;0", Importo(10, 1, "", {0, 0, 0}, "0", "0"), 1},
        Caso{"width_alone_is_right", "V25;10;#;0", Importo(10, 0, "", {0, 0, 0}, "0", "0"), 1},
        Caso{"euro_of_the_catalogue", "V25;10R;#,2", Importo(10, 0, "", {0, 0, 0}, "2", "1"), 1},
        Caso{"no_numeric_group", "V25;10R", Importo(10, 0, "", {0, 0, 0}, "0", "1"), 1},
        Caso{"euro_is_the_last_character", "V25;10R;#;10;7", Importo(10, 0, "", {0, 0, 0}, "0", "7"), 1}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(LeggiVariabile, ReadsAStringWithANumericGroupWithAllItsSwitchesOff) {
  EXPECT_EQ(LeggiVariabile("V12;30L;#;0", Variabili).Formato, Nome(30, 1, "", 0));
  EXPECT_EQ(LeggiVariabile("V12;30L;.0,2-;1", Variabili).Formato, Nome(30, 1, "", 0));
}

TEST(LeggiVariabile, DropsTheLineCountOfANumberSoThatTheRebuiltCodeLacksIt) {
  const VariabileLetta letta = LeggiVariabile("V25,2;12R;#;0", Variabili);
  EXPECT_EQ(letta.Formato, Importo(12, 0, "", {0, 0, 0}, "0", "0"));
  EXPECT_EQ(CostruisciVariabile(letta.Formato),
            "\xAB"
            "V25;12R;#;0\xBB");
}

TEST(LeggiVariabile, TakesAnyTypeButZeroForANumber) {
  const VariabileLetta letta = LeggiVariabile("V8;10R;0,2;1", Variabili);
  EXPECT_EQ(letta.Voce, std::size_t{2});
  EXPECT_EQ(letta.Formato.Intero4, 7);
  EXPECT_EQ(CostruisciVariabile(letta.Formato),
            "\xAB"
            "V8;10R;0,2;1\xBB");
}

TEST(LeggiVariabile, SelectsNothingForANumberThatTheTableLacks) {
  const VariabileLetta letta = LeggiVariabile("V77,2;12R\"*\";.0,2-;1", Variabili);
  EXPECT_EQ(letta.Voce, std::nullopt);
  // Without an entry the type counts as string.
  EXPECT_EQ(letta.Formato, (Variabile{.Descrizione = "",
                                      .Intero1 = 77,
                                      .Intero2 = 12,
                                      .Testo1 = "*",
                                      .Intero3 = 0,
                                      .Intero4 = 0,
                                      .Intero5 = 2,
                                      .Intero6 = 0,
                                      .Intero7 = 0,
                                      .Intero8 = 0,
                                      .Testo2 = "0",
                                      .Testo3 = "0"}));
}

TEST(LeggiVariabile, SelectsNothingInAnEmptyTable) {
  EXPECT_EQ(LeggiVariabile("V12;30L", {}).Voce, std::nullopt);
}

}  // namespace
}  // namespace parvik
