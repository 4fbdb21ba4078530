#include "tokens/CodiceCostante.h"

#include <gtest/gtest.h>

#include "supporto/ConNome.h"

namespace parvik {
namespace {

struct CasoTesto {
  const char* Nome;
  std::string Testo;
  std::string Codice;
};
using prova::PrintTo;

class TestoCostanteTest : public testing::TestWithParam<CasoTesto> {};

TEST_P(TestoCostanteTest, IsBuiltIntoTheCodeAndReadBack) {
  const std::string codice = CostruisciCostante(GetParam().Testo);
  EXPECT_EQ(codice, GetParam().Codice);
  EXPECT_EQ(LeggiCostante(codice.substr(1, codice.size() - 2)), GetParam().Testo);
}

INSTANTIATE_TEST_SUITE_P(Casi, TestoCostanteTest,
                         testing::Values(CasoTesto{"words", "Totale documento",
                                                   "\xAB"
                                                   "V0;\"Totale documento\"\xBB"},
                                         CasoTesto{"one_character", "x",
                                                   "\xAB"
                                                   "V0;\"x\"\xBB"},
                                         CasoTesto{"spaces_around", "  x ",
                                                   "\xAB"
                                                   "V0;\"  x \"\xBB"},
                                         CasoTesto{"quotes_inside", "detto \"il\" resto",
                                                   "\xAB"
                                                   "V0;\"detto \"il\" resto\"\xBB"},
                                         CasoTesto{"a_quote_alone", "\"",
                                                   "\xAB"
                                                   "V0;\"\"\"\xBB"},
                                         CasoTesto{"separators", "a;b,c",
                                                   "\xAB"
                                                   "V0;\"a;b,c\"\xBB"},
                                         CasoTesto{"accents", "citt\xE0",
                                                   "\xAB"
                                                   "V0;\"citt\xE0\"\xBB"},
                                         CasoTesto{"a_tab", "\t",
                                                   "\xAB"
                                                   "V0;\"\t\"\xBB"},
                                         CasoTesto{"a_nul", std::string(1, '\0'),
                                                   "\xAB"
                                                   "V0;\"" +
                                                       std::string(1, '\0') + "\"\xBB"}),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(CostruisciCostante, BuildsNothingWhileTheTextIsEmptyOrOnlySpaces) {
  EXPECT_EQ(CostruisciCostante(""), "");
  EXPECT_EQ(CostruisciCostante(" "), "");
  EXPECT_EQ(CostruisciCostante("     "), "");
}

struct CasoMalformato {
  const char* Nome;
  std::string_view Contenuto;
  std::string Atteso;
};

class CostanteMalformataTest : public testing::TestWithParam<CasoMalformato> {};

// The text is cut out by its length: five less than the content's, from the character after the first quote
// on.
TEST_P(CostanteMalformataTest, IsReadByLengthAllTheSame) {
  EXPECT_EQ(LeggiCostante(GetParam().Contenuto), GetParam().Atteso);
}

INSTANTIATE_TEST_SUITE_P(Casi, CostanteMalformataTest,
                         testing::Values(CasoMalformato{"empty", "", ""},
                                         CasoMalformato{"nothing_after_the_separator", "V0;", ""},
                                         CasoMalformato{"one_quote_only", "V0;\"", ""},
                                         CasoMalformato{"no_text", "V0;\"\"", ""},
                                         CasoMalformato{"closing_quote_missing", "V0;\"abc", "ab"},
                                         CasoMalformato{"text_before_the_quote", "V0;ab\"cd\"", "cd\""},
                                         CasoMalformato{"text_after_the_quote", "V0;\"ab\"cd", "ab\"c"},
                                         CasoMalformato{"no_quotes_at_all", "V0;abcdef", "V0;a"},
                                         CasoMalformato{"quote_at_the_end", "V0;abc\"", ""}),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

}  // namespace
}  // namespace parvik
