// What stands in a field that is drawn as wide as it prints, and a code that is given another width.
#include "tokens/TestoCampo.h"

#include <gtest/gtest.h>

#include <array>

#include "supporto/ConNome.h"
#include "tokens/ConLarghezza.h"

namespace parvik {
namespace {

Variabile Voce(std::int16_t numero, const std::string& descrizione, std::int16_t tipo) {
  Variabile variabile;
  variabile.Intero1 = numero;
  variabile.Descrizione = descrizione;
  variabile.Intero4 = tipo;
  variabile.Testo3 = "0";
  return variabile;
}

const std::array Voci = {Voce(105, "Descrizione articolo ", 0), Voce(25, "Imponibile", 1), Voce(9, "", 0),
                         Variabile{}};

struct Caso {
  const char* Nome;
  const char* Contenuto;
  PostoCampo Posto;
  const char* Atteso;
};

using prova::PrintTo;

class Campo : public testing::TestWithParam<Caso> {};

TEST_P(Campo, Shows) {
  const Caso& caso = GetParam();
  const std::string testo = TestoCampo(caso.Contenuto, caso.Posto, Voci);
  EXPECT_EQ(testo, caso.Atteso);
  EXPECT_EQ(testo.size(), caso.Posto.Celle);
}

INSTANTIATE_TEST_SUITE_P(
    TestoCampo, Campo,
    testing::Values(
        Caso{"AVariablesDescriptionAndItsFill", "V105;29L\".\"", {29, 29}, "Descrizione articolo........."},
        Caso{"BlanksWithoutAFill", "V105;22L", {22, 22}, "Descrizione articolo  "},
        Caso{"DotsWhereThereIsNoRoom", "V105;12L", {12, 12}, "Descrizione\x85"},
        Caso{"LettersWhereThereIsRoomForVeryFew", "V105;3L", {3, 3}, "Des"},
        Caso{"NumbersAtTheRight", "V25;14R\"*\";.0,2;0", {14, 14}, "****Imponibile"},
        Caso{"TheNumberWithoutADescription", "V9;12L", {12, 12}, "Variabile 9 "},
        Caso{"TheNumberOfAnUnknownVariable", "V77;12L", {12, 12}, "Variabile 77"},
        Caso{"AConstantsOwnText", "V0;\" Tot. \"", {6, 6}, " Tot. "},
        Caso{"ALanguageEntry", "L5;12", {12, 12}, "Lingua 5    "},
        Caso{"APageWithoutRoomByItsNumber", "P12", {2, 2}, "12"},
        Caso{"ACodeOfUnknownKind", "XYZ", {5, 5}, "XYZ  "},
        Caso{"TheWidthOfAFieldThatIsCut",
             "V105;1200L",
             {40, 1200},
             "(1200 caratteri) Descrizione articolo   "},
        Caso{"NothingWithoutCells", "V105;0L", {0, 0}, ""}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(ConLarghezza, IsTheCodeThatItsDialogWouldWrite) {
  EXPECT_EQ(ConLarghezza("V105;29L\".\"", 32, Voci),
            "\xAB"
            "V105;32L\".\"\xBB");
  EXPECT_EQ(ConLarghezza("V25;12R\"*\";.0,2-;1", 9, Voci),
            "\xAB"
            "V25;9R\"*\";.0,2-;1\xBB");
  EXPECT_EQ(ConLarghezza("L5", 20, Voci),
            "\xAB"
            "L5;20\xBB");
}

TEST(ConLarghezza, IsNothingOfACodeWithoutAWidthAndOfAnUnknownVariable) {
  for (const char* contenuto :
       {"V0;\"testo\"", "F1N", "S;GRASSETTO", "P1", "X", "V77;12R;.0,2;0", "V;5L", "L;5"})
    EXPECT_EQ(ConLarghezza(contenuto, 20, Voci), std::nullopt) << contenuto;
}

}  // namespace
}  // namespace parvik
