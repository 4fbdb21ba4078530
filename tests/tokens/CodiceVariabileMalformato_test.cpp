#include <gtest/gtest.h>

#include <array>

#include "supporto/ConNome.h"
#include "tokens/CodiceVariabile.h"

namespace parvik {
namespace {

// clang-format off
const std::array<Variabile, 2> Variabili = {
    Variabile{.Descrizione = "Nome", .Intero1 = 12, .Intero2 = 40, .Testo1 = "", .Intero3 = 1, .Intero4 = 0,
              .Intero5 = 0, .Intero6 = 0, .Intero7 = 0, .Intero8 = 0, .Testo2 = "0", .Testo3 = "0"},
    Variabile{.Descrizione = "Importo", .Intero1 = 25, .Intero2 = 40, .Testo1 = "", .Intero3 = 0, .Intero4 = 1,
              .Intero5 = 0, .Intero6 = 0, .Intero7 = 0, .Intero8 = 0, .Testo2 = "0", .Testo3 = "1"}};
// clang-format on

/// A record without a look at the table: what is read when the text says nothing is shown by the rebuilt
/// code.
struct Caso {
  const char* Nome;
  std::string_view Contenuto;
  std::string_view Ricostruito;
};
using prova::PrintTo;

class VariabileMalformataTest : public testing::TestWithParam<Caso> {};

TEST_P(VariabileMalformataTest, IsReadWithTheDefaultsOfWhatItLacks) {
  const VariabileLetta letta = LeggiVariabile(GetParam().Contenuto, Variabili);
  EXPECT_EQ(CostruisciVariabile(letta.Formato), GetParam().Ricostruito);
}

INSTANTIATE_TEST_SUITE_P(Casi, VariabileMalformataTest,
                         testing::Values(Caso{"empty", "",
                                              "\xAB"
                                              "V0;0L\xBB"},
                                         Caso{"letter_alone", "V",
                                              "\xAB"
                                              "V0;0L\xBB"},
                                         Caso{"number_alone", "V12",
                                              "\xAB"
                                              "V12;0L\xBB"},
                                         Caso{"separator_alone", ";",
                                              "\xAB"
                                              "V0;0L\xBB"},
                                         Caso{"no_width", "V12;",
                                              "\xAB"
                                              "V12;0L\xBB"},
                                         Caso{"letter_for_width", "V12;R",
                                              "\xAB"
                                              "V12;0R\xBB"},
                                         Caso{"no_number", "V;30L",
                                              "\xAB"
                                              "V0;30L\xBB"},
                                         Caso{"word_for_number", "Vab;30L",
                                              "\xAB"
                                              "V0;30L\xBB"},
                                         Caso{"number_beyond_16_bits", "V70000;30L",
                                              "\xAB"
                                              "V0;30L\xBB"},
                                         Caso{"width_beyond_16_bits", "V12;99999L",
                                              "\xAB"
                                              "V12;0L\xBB"},
                                         Caso{"negative_width", "V12;-5",
                                              "\xAB"
                                              "V12;0L\xBB"},
                                         Caso{"negative_line_count", "V12,-3;30L",
                                              "\xAB"
                                              "V12;30L\xBB"},
                                         Caso{"empty_line_count", "V12,;30L",
                                              "\xAB"
                                              "V12;30L\xBB"},
                                         Caso{"word_for_line_count", "V12,x;30L",
                                              "\xAB"
                                              "V12;30L\xBB"},
                                         Caso{"two_line_counts", "V12,3,4;30L",
                                              "\xAB"
                                              "V12,3;30L\xBB"},
                                         Caso{"word_for_width", "V12;abc",
                                              "\xAB"
                                              "V12;0R\xBB"},
                                         Caso{"letters_on_both_sides", "V12;L30R",
                                              "\xAB"
                                              "V12;30L\xBB"},
                                         Caso{"fill_before_the_width", "V12;\"*\"30L",
                                              "\xAB"
                                              "V12;0L\"*\"\xBB"},
                                         Caso{"fill_unclosed", "V12;30L\"*",
                                              "\xAB"
                                              "V12;30L\"*\"\xBB"},
                                         Caso{"quote_at_the_end", "V12;30L\"",
                                              "\xAB"
                                              "V12;30L\xBB"},
                                         Caso{"no_fill_between_the_quotes", "V12;30L\"\"",
                                              "\xAB"
                                              "V12;30L\"\"\"\xBB"},
                                         Caso{"fill_is_a_separator", "V12;30L\";\"",
                                              "\xAB"
                                              "V12;30L\xBB"},
                                         Caso{"empty_numeric_group", "V25;10R;;1",
                                              "\xAB"
                                              "V25;10R;#;1\xBB"},
                                         Caso{"nothing_after_the_second_separator", "V25;10R;",
                                              "\xAB"
                                              "V25;10R;#;1\xBB"},
                                         Caso{"comma_at_the_end", "V25;10R;0,;0",
                                              "\xAB"
                                              "V25;10R;0;0\xBB"},
                                         Caso{"word_for_decimals", "V25;10R;0,x;0",
                                              "\xAB"
                                              "V25;10R;0,x;0\xBB"},
                                         Caso{"point_alone", "V25;10R;.;0",
                                              "\xAB"
                                              "V25;10R;.#;0\xBB"},
                                         Caso{"empty_euro", "V25;10R;#;",
                                              "\xAB"
                                              "V25;10R;#;;\xBB"},
                                         Caso{"only_separators", "V25;;;",
                                              "\xAB"
                                              "V25;0R;#;;\xBB"},
                                         Caso{"many_separators", "V25;10R;0;1;0;1",
                                              "\xAB"
                                              "V25;10R;0;1\xBB"},
                                         Caso{"not_a_variable_at_all", "F25;10R;0;1",
                                              "\xAB"
                                              "V25;10R;0;1\xBB"}),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

}  // namespace
}  // namespace parvik
