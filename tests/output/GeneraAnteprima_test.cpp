#include <gtest/gtest.h>

#include "output/CatalogoDiProva.h"
#include "output/Leggibile.h"

namespace parvik::prova {
namespace {

std::string Anteprima(std::string_view testata, const std::vector<FlagDiProva>& flag = {}) {
  const FlagPerStampe righe = FlagDi(flag);
  const auto anteprima = GeneraAnteprima(
      {.Testi = {testata, "", ""}, .NumSezioni = 1, .RigheCorpo = 0, .LineeCorpo = 0, .Flag = righe});
  return Leggibile(anteprima.Testo, anteprima.Tratti);
}

TEST(GeneraAnteprima, EndsWithTheEndMarkerOnALineOfItsOwn) {
  EXPECT_EQ(Anteprima("a\r\n\r\nb\r\n"), "a¶¶b¶¶--- Fine file ---");
}

TEST(GeneraAnteprima, ShowsAnEmptyPaneWhenNothingWasRendered) {
  EXPECT_EQ(Anteprima(""), "");
  EXPECT_EQ(Anteprima("\r\n"), "");
  EXPECT_EQ(Anteprima("a line without its end"), "");
}

TEST(GeneraAnteprima, ShowsAnEmptyLineAsALine) {
  EXPECT_EQ(Anteprima("\r\n\r\n"), "¶¶¶--- Fine file ---");
}

TEST(GeneraAnteprima, TurnsStyleCodesIntoFormatting) {
  EXPECT_EQ(Anteprima("\xAB"
                      "S;GRASSETTO\xBB"
                      "Totale\xAB"
                      "S;NORMALE\xBB"
                      " \xAB"
                      "V0;\"12,00\"\xBB"
                      "\r\n"),
            "<GR>Totale</GR> 12,00¶¶--- Fine file ---");
}

TEST(GeneraAnteprima, LetsALastStyleRunOnOverTheEndMarker) {
  EXPECT_EQ(Anteprima("a\xAB"
                      "S;IT\xBB"
                      "b\r\n"),
            "a<IT>b¶¶--- Fine file ---</IT>");
}

TEST(GeneraAnteprima, TakesLiteralTextForAStyleMarker) {
  EXPECT_EQ(Anteprima("PS;COsi\r\n"), "P<CO>si¶¶--- Fine file ---</CO>");
}

TEST(GeneraAnteprima, TakesOnlyFourCharactersOfAStyleCode) {
  EXPECT_EQ(Anteprima("a\xAB"
                      "S;G\xBB"
                      "Rb\r\n"),
            "a<GR>b¶¶--- Fine file ---</GR>");
  EXPECT_EQ(Anteprima("a\xAB"
                      "Sxyzt\xBB"
                      "b\r\n"),
            "aSxyzb¶¶--- Fine file ---");
  EXPECT_EQ(Anteprima("a\xAB"
                      "S\xBB"
                      "b\r\n"),
            "aSb¶¶--- Fine file ---");
}

TEST(GeneraAnteprima, HidesAStyleAfterAFalseFlag) {
  EXPECT_EQ(Anteprima("a\xAB"
                      "F1N\xBB\xAB"
                      "S;GR\xBB"
                      "b\r\n",
                      {{.Numero = 1, .Vero = false}}),
            "ab¶¶--- Fine file ---");
}

TEST(GeneraAnteprima, RepeatsAStyleForAnUnknownCode) {
  EXPECT_EQ(Anteprima("a\xAB"
                      "S;GR\xBB"
                      "b\xAB"
                      "S;IT\xBB"
                      "c\xAB"
                      "X\xBB"
                      "d\r\n"),
            "a<GR>b</GR><IT>cd¶¶--- Fine file ---</IT>");
}

}  // namespace
}  // namespace parvik::prova
