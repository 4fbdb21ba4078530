#include "tokens/ValoreCampo.h"

#include <gtest/gtest.h>

#include "supporto/ConNome.h"

namespace parvik {
namespace {

struct Caso {
  const char* Nome;
  FormatoCampo Formato;
  std::string_view Atteso;
};
using prova::PrintTo;

class ValoreCampoTest : public testing::TestWithParam<Caso> {};

TEST_P(ValoreCampoTest, ShowsTheFieldAsItWillBePrinted) {
  EXPECT_EQ(ValoreCampo(GetParam().Formato), GetParam().Atteso);
}

std::string Nome(const testing::TestParamInfo<Caso>& caso) {
  return caso.param.Nome;
}

INSTANTIATE_TEST_SUITE_P(
    ZeroVisibile, ValoreCampoTest,
    testing::Values(
        Caso{"at_the_right_end", {.Larghezza = 5, .ZeroVisibile = true}, "    0"},
        Caso{"fills_a_field_of_one", {.Larghezza = 1, .ZeroVisibile = true}, "0"},
        Caso{"has_no_room", {.Larghezza = 0, .ZeroVisibile = true}, ""},
        Caso{"has_no_room_at_all", {.Larghezza = -3, .ZeroVisibile = true}, ""},
        Caso{"goes_before_the_fill", {.Larghezza = 3, .Riempimento = "*", .ZeroVisibile = true}, "  0"},
        Caso{"goes_before_decimals_left_unchecked",
             {.Larghezza = 6, .ZeroVisibile = true, .Decimali = "2"},
             "     0"},
        Caso{"leaves_the_word_to_checked_decimals",
             {.Larghezza = 6, .ZeroVisibile = true, .ConDecimali = true, .Decimali = "2"},
             "  0,00"},
        Caso{"leaves_the_word_to_the_fill_without_a_number_of_decimals",
             {.Larghezza = 3, .Riempimento = "*", .ZeroVisibile = true, .ConDecimali = true, .Decimali = "*"},
             "***"}),
    Nome);

INSTANTIATE_TEST_SUITE_P(
    Decimali, ValoreCampoTest,
    testing::Values(
        Caso{"two_in_ten", {.Larghezza = 10, .ConDecimali = true, .Decimali = "2"}, "      0,00"},
        Caso{"count_without_the_check", {.Larghezza = 10, .Decimali = "2"}, "      0,00"},
        Caso{"just_fit", {.Larghezza = 11, .ConDecimali = true, .Decimali = "9"}, "0,000000000"},
        Caso{"do_not_fit", {.Larghezza = 10, .ConDecimali = true, .Decimali = "9"}, ""},
        Caso{"do_not_fit_a_filled_field",
             {.Larghezza = 3, .Riempimento = "*", .ConDecimali = true, .Decimali = "2"},
             ""},
        Caso{"none_written_otherwise", {.Larghezza = 4, .ConDecimali = true, .Decimali = "00"}, "  0,"},
        Caso{"negative", {.Larghezza = 9, .ConDecimali = true, .Decimali = "-1"}, ""},
        Caso{"enormous", {.Larghezza = 9, .ConDecimali = true, .Decimali = "99999999999"}, ""}),
    Nome);

INSTANTIATE_TEST_SUITE_P(
    Riempimento, ValoreCampoTest,
    testing::Values(Caso{"over_the_whole_width", {.Larghezza = 4, .Riempimento = "*"}, "****"},
                    Caso{"none", {.Larghezza = 4}, ""},
                    Caso{"none_though_decimals_are_checked", {.Larghezza = 4, .ConDecimali = true}, ""},
                    Caso{"with_no_decimals_text", {.Larghezza = 2, .Riempimento = "*", .Decimali = ""}, "**"},
                    Caso{"with_as_many_decimals_as_there_are",
                         {.Larghezza = 2, .Riempimento = "*", .Decimali = "*"},
                         "**"},
                    Caso{"no_width", {.Larghezza = 0, .Riempimento = "*"}, ""},
                    Caso{"negative_width", {.Larghezza = -1, .Riempimento = "*"}, ""},
                    Caso{"a_text_of_the_catalogue_counts_by_its_first_character",
                         {.Larghezza = 3, .Riempimento = "ab"},
                         "aaa"},
                    Caso{"any_byte", {.Larghezza = 2, .Riempimento = "\xE0"}, "\xE0\xE0"}),
    Nome);

}  // namespace
}  // namespace parvik
