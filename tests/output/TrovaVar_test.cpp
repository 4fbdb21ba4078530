// What each code becomes, seen through a template of one line.
#include "output/TrovaVar.h"

#include <gtest/gtest.h>

#include "output/CatalogoDiProva.h"
#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

struct Caso {
  const char* Nome;
  std::string_view Contenuto;
  std::string Atteso;
};

using prova::PrintTo;

class CampioneTest : public testing::TestWithParam<Caso> {};

TEST_P(CampioneTest, StandsForTheCode) {
  EXPECT_EQ(ResoCodice(GetParam().Contenuto), GetParam().Atteso);
}

std::string NomeDi(const testing::TestParamInfo<Caso>& caso) {
  return caso.param.Nome;
}

// A width, and neither zero nor decimals: the fill, or "$".
INSTANTIATE_TEST_SUITE_P(
    VariabileSenzaFormato, CampioneTest,
    testing::Values(Caso{"left", "V12;5L", "$$$$$"}, Caso{"right", "V12;5R", "$$$$$"},
                    Caso{"letter_in_front_is_no_number", "V12;L5", ""}, Caso{"lines", "V40,3;7L", "$$$$$$$"},
                    Caso{"fill", "V40,3;7L\".\"", "......."},
                    Caso{"fill_is_a_quote", "V1;4L\"\"\"", "\"\"\"\""},
                    Caso{"fill_is_an_accent", "V1;3L\"\xE0\"", "\xE0\xE0\xE0"},
                    Caso{"quote_at_the_end", "V1;45L\"", "$$$$"}, Caso{"quote_eats_the_width", "V1;4\"", ""},
                    Caso{"unclosed_fill_costs_three_characters", "V1;45\"*", "****"},
                    Caso{"width_zero", "V1;0L", ""}, Caso{"no_width", "V1;L", ""},
                    Caso{"nothing_after_p1", "V1;", ""}, Caso{"no_separator", "V12", ""},
                    Caso{"letter_alone", "V", ""}, Caso{"negative", "V1;-5L", ""},
                    Caso{"half_to_even_down", "V1;2.5L", "$$"}, Caso{"half_to_even_up", "V1;3.5L", "$$$$"},
                    Caso{"leading_point", "V1;.7L", "$"}, Caso{"spaces_in_front", "V1;  3L", "$$$"},
                    Caso{"a_sign", "V1;+3L", "$$$"}, Caso{"no_exponent", "V1;1e2L", "$"},
                    Caso{"last_character_hash", "V1;6R;#", "$$$$$$"},
                    Caso{"last_character_hash_with_fill", "V1;6R\"*\";#", "******"}),
    NomeDi);

// Two separators: the declared length is filled, and a zero shows a sample.
INSTANTIATE_TEST_SUITE_P(
    VariabileConFormato, CampioneTest,
    testing::Values(
        Caso{"no_zero", "V8;6R;#;0", "      "}, Caso{"no_zero_and_fill", "V8;6R\"*\";#;1", "******"},
        Caso{"decimals_without_zero", "V8;6R;#,2;1", "      "},
        Caso{"euro_is_no_zero", "V8;6R;#-;0", "      "}, Caso{"zero_right", "V8;6R;0;0", "     0"},
        Caso{"zero_left", "V8;6L;0;0", "0     "}, Caso{"zero_with_fill", "V8;6R\"*\";0;0", "*****0"},
        Caso{"zero_left_with_fill", "V8;6L\"*\";0;0", "0*****"},
        Caso{"no_letter_is_right", "V8;6;0;0", "     0"},
        Caso{"other_letter_is_right", "V8;6X;0;0", "     0"}, Caso{"letter_R_wins", "V8;6LR;0;0", "     0"},
        Caso{"fill_R_is_an_R", "V8;6L\"R\";0;0", "RRRRR0"}, Caso{"fill_L_is_an_L", "V8;6\"L\";0;0", "0LLLLL"},
        Caso{"decimals", "V25;12R\"*\";.0,2-;1", "********0,00"},
        Caso{"decimals_left", "V25;8L;.0,3;1", "0,000   "}, Caso{"exactly_as_long", "V1;5R;0,3;0", "0,000"},
        Caso{"too_short", "V1;4R;0,3;0", "####"}, Caso{"much_too_short", "V1;1R;0,3;0", "#"},
        Caso{"too_short_by_all", "V1;0R;0,3;0", ""}, Caso{"variable_decimals", "V1;6R;0,*;0", "    0,"},
        Caso{"no_decimals_after_the_comma", "V1;6R;0,;0", "    0,"}, Caso{"width_zero", "V1;0R;0;0", ""},
        Caso{"ten_decimals", "V1;14R;0,10;0", "  0,0000000000"},
        Caso{"zero_of_the_decimals", "V1;6R;#,0;1", "    0,"},
        Caso{"comma_with_the_zero_behind_it", "V1;6R;,20;1", "######"}, Caso{"no_euro", "V1;6R;0", "     0"},
        Caso{"no_euro_decimals", "V1;6R;0,2", "  0,00"},
        Caso{"euro_zero_without_its_separator", "V1;6R;#0", "     0"},
        Caso{"nothing_after_p2", "V1;4R;", "    "}, Caso{"nothing_after_p3", "V1;4R;;", "    "},
        Caso{"p3_costs_two_characters", "V1;4R;0;", "    "}, Caso{"fill_after_p2", "V1;4R;\"*\";0", "****"},
        Caso{"quote_at_the_end", "V1;4R;#\"", "    "}, Caso{"quote_left_at_the_end", "V1;4R;0\";1", "   0"},
        Caso{"fill_separator", "V1;4R\";\";0;0", ";;;0"}, Caso{"length_up_to_p2_only", "V1;;0;0", ""}),
    NomeDi);

INSTANTIATE_TEST_SUITE_P(Lingua, CampioneTest,
                         testing::Values(Caso{"width", "L5;3", "$$$"}, Caso{"no_width", "L5", "$$$$$$$$$$"},
                                         Caso{"empty_width", "L5;", ""}, Caso{"zero_width", "L5;0", ""},
                                         Caso{"negative_width", "L5;-3", ""}, Caso{"word", "L5;abc", ""},
                                         Caso{"digits_before_a_word", "L5;2abc", "$$"},
                                         Caso{"second_separator", "L5;4;7", "$$$$"},
                                         Caso{"letter_alone", "L", "$$$$$$$$$$"},
                                         Caso{"quotes_have_no_meaning", "L5;2\"*\"", "$$"}),
                         NomeDi);

INSTANTIATE_TEST_SUITE_P(
    Costante, CampioneTest,
    testing::Values(Caso{"text", "V0;\"Totale\"", "Totale"}, Caso{"spaces", "V0;\"  x \"", "  x "},
                    Caso{"quotes_inside", "V0;\"a\"b\"", "a\"b"}, Caso{"empty", "V0;\"\"", ""},
                    Caso{"separators_inside", "V0;\"a;0,L\"", "a;0,L"},
                    Caso{"no_quotes", "V0;Totale", "otal"}, Caso{"short", "V0;", ""},
                    Caso{"one_character", "V0;x", ""}, Caso{"letter_C_is_a_constant", "Cxyzabcde", "abcd"},
                    Caso{"letter_C_alone", "C", ""}, Caso{"V01_is_a_variable", "V01;3L", "$$$"}),
    NomeDi);

INSTANTIATE_TEST_SUITE_P(Pagina, CampioneTest,
                         testing::Values(Caso{"number", "P1", "1"}, Caso{"as_it_stands", "P001 x", "001 x"},
                                         Caso{"letter_alone", "P", ""}),
                         NomeDi);

INSTANTIATE_TEST_SUITE_P(Altro, CampioneTest,
                         testing::Values(Caso{"style_in_a_file", "S;GRASSETTO", ""}, Caso{"flag", "F1N", ""},
                                         Caso{"unknown", "X", ""}, Caso{"empty", "", ""},
                                         Caso{"small_letter", "v12;5L", ""}),
                         NomeDi);

TEST(Campione, OfAnEnormousLengthIsBounded) {
  TrovaVar trovaVar(TipoStampa::File, FlagPerStampe());
  EXPECT_EQ(trovaVar("L1;99999999999999999999").RiempiPrima, 1'000'000U);
  EXPECT_EQ(ResoCodice("V1;1000001L").size(), 1'000'000U);
  EXPECT_EQ(ResoCodice("V1;5R;0,99999999999;0"), "#####");
}

}  // namespace
}  // namespace parvik::prova
