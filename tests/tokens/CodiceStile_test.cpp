#include "tokens/CodiceStile.h"

#include <gtest/gtest.h>

#include "supporto/ConNome.h"

namespace parvik {
namespace {

struct CasoStile {
  const char* Nome;
  Stile Voce;
  std::string_view Parola;
  std::string_view Codice;
};
using prova::PrintTo;

class StileTest : public testing::TestWithParam<CasoStile> {};

TEST_P(StileTest, IsWrittenAsItsWord) {
  EXPECT_EQ(ParolaStile(GetParam().Voce), GetParam().Parola);
  EXPECT_EQ(CostruisciStile(GetParam().Voce), GetParam().Codice);
}

TEST_P(StileTest, IsRecognisedByItsWord) {
  EXPECT_EQ(StileDi(GetParam().Parola), GetParam().Voce);
}

TEST_P(StileTest, IsRecognisedByTheFirstTwoLettersAlone) {
  EXPECT_EQ(StileDi(GetParam().Parola.substr(0, 2)), GetParam().Voce);
  EXPECT_EQ(StileDi(std::string(GetParam().Parola.substr(0, 2)) + "??"), GetParam().Voce);
}

INSTANTIATE_TEST_SUITE_P(Casi, StileTest,
                         testing::Values(CasoStile{"normal", Stile::Normale, "NORMALE",
                                                   "\xAB"
                                                   "S;NORMALE\xBB"},
                                         CasoStile{"bold", Stile::Grassetto, "GRASSETTO",
                                                   "\xAB"
                                                   "S;GRASSETTO\xBB"},
                                         CasoStile{"compressed", Stile::Compresso, "COMPRESSO",
                                                   "\xAB"
                                                   "S;COMPRESSO\xBB"},
                                         CasoStile{"italic", Stile::Italico, "ITALICO",
                                                   "\xAB"
                                                   "S;ITALICO\xBB"},
                                         CasoStile{"underlined", Stile::Sottolineato, "SOTTOLINEATO",
                                                   "\xAB"
                                                   "S;SOTTOLINEATO\xBB"}),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(StileDi, RecognisesBoldInAnyCaseOfItsTwoLetters) {
  EXPECT_EQ(StileDi(LeggiStile("S;Grassetto")), Stile::Grassetto);
  EXPECT_EQ(StileDi("grassetto"), Stile::Grassetto);
  EXPECT_EQ(StileDi("gRxy"), Stile::Grassetto);
  EXPECT_EQ(StileDi("Gr"), Stile::Grassetto);
}

TEST(StileDi, KnowsNoOtherWord) {
  for (const std::string_view parola : {"", "G", "XX", " GR", "G R", "1", "GE", "ON", "\xC7O"}) {
    EXPECT_EQ(StileDi(parola), std::nullopt) << '"' << parola << '"';
  }
}

TEST(LeggiStile, IsEverythingAfterTheFirstSeparator) {
  EXPECT_EQ(LeggiStile("S;GRASSETTO"), "GRASSETTO");
  EXPECT_EQ(LeggiStile("S;a;b"), "a;b");
  EXPECT_EQ(LeggiStile("Sxy;IT"), "IT");
}

TEST(LeggiStile, IsEmptyWithoutAWord) {
  EXPECT_EQ(LeggiStile("S;"), "");
  EXPECT_EQ(LeggiStile("S"), "");
  EXPECT_EQ(LeggiStile("SGRASSETTO"), "");
  EXPECT_EQ(LeggiStile(""), "");
}

}  // namespace
}  // namespace parvik
