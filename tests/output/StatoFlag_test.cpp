// How flags show and hide what follows them.
#include <gtest/gtest.h>

#include "output/CatalogoDiProva.h"
#include "tokens/Codice.h"

namespace parvik::prova {
namespace {

const std::vector<FlagDiProva> Flag = {{.Numero = 1, .Vero = true}, {.Numero = 2, .Vero = false}};

std::string Cod(std::string_view contenuto) {
  return ConDelimitatori(contenuto);
}

TEST(StatoFlag, HidesExactlyTheNextCodeAfterAFalseFlag) {
  EXPECT_EQ(Reso(Cod("F2N") + Cod("P1") + Cod("P2") + "\r\n", Flag), "2\r\n");
}

TEST(StatoFlag, HidesACodeOfAnyKind) {
  for (const std::string_view nascosto : {"V1;5L", "V0;\"x\"", "S;GR", "L5", "P1", "X", ""}) {
    EXPECT_EQ(Reso(Cod("F2N") + Cod(nascosto) + Cod("P2") + "\r\n", Flag), "2\r\n") << nascosto;
  }
}

TEST(StatoFlag, ShowsTheNextCodeAfterATrueFlag) {
  EXPECT_EQ(Reso(Cod("F1N") + Cod("P1") + Cod("P2") + "\r\n", Flag), "12\r\n");
}

TEST(StatoFlag, LeavesTextBetweenFlagAndCodeAlone) {
  EXPECT_EQ(Reso("a" + Cod("F2N") + "b" + Cod("P1") + "c\r\n", Flag), "abc\r\n");
}

TEST(StatoFlag, ReachesOverLineEnds) {
  EXPECT_EQ(Reso("a" + Cod("F2N") + "\r\n" + Cod("P1") + "b\r\n" + Cod("P2") + "\r\n", Flag),
            "a\r\nb\r\n2\r\n");
}

TEST(StatoFlag, GivesNoTextForAFlagItself) {
  EXPECT_EQ(Reso("[" + Cod("F1N") + "]\r\n", Flag), "[]\r\n");
}

TEST(StatoFlag, IsSetAnewByEachFlag) {
  EXPECT_EQ(Reso(Cod("F2N") + Cod("F1N") + Cod("P1") + "\r\n", Flag), "1\r\n");
  EXPECT_EQ(Reso(Cod("F1N") + Cod("F2N") + Cod("P1") + Cod("P2") + "\r\n", Flag), "2\r\n");
  EXPECT_EQ(Reso(Cod("F2N") + Cod("F2N") + Cod("P1") + Cod("P2") + "\r\n", Flag), "2\r\n");
}

TEST(StatoFlag, StaysAsItIsForANumberThatNoRowHas) {
  EXPECT_EQ(Reso(Cod("F2N") + Cod("F50N") + Cod("P1") + Cod("P2") + "\r\n", Flag), "2\r\n");
  EXPECT_EQ(Reso(Cod("F50N") + Cod("P1") + Cod("P2") + "\r\n", Flag), "12\r\n");
}

TEST(StatoFlag, TakesThePageConditionsForFlags) {
  EXPECT_EQ(
      Reso(Cod("F97N") + Cod("P1") + Cod("F98S") + Cod("P2") + Cod("F99") + Cod("P3") + Cod("P4") + "\r\n"),
      "4\r\n");
}

TEST(StatoFlag, TakesTheSwitchOffTheNumberWhateverItIs) {
  for (const std::string_view flag :
       {"F2", "F2S", "F2N", "F2x", "F2SN", "F02N", "F 2N", "F2.0N", "F+2", "F2;7"}) {
    EXPECT_EQ(Reso(Cod(flag) + Cod("P1") + Cod("P2") + "\r\n", Flag), "2\r\n") << flag;
  }
}

TEST(StatoFlag, ComparesTheNumbersAsNumbers) {
  for (const std::string_view flag : {"F2.5N", "F-2N", "F22N", "F99999999999999999999N", "FN", "F"}) {
    EXPECT_EQ(Reso(Cod(flag) + Cod("P1") + Cod("P2") + "\r\n", Flag), "12\r\n") << flag;
  }
}

TEST(StatoFlag, MeetsNoRowForAFlagOfThreeDigits) {
  EXPECT_EQ(Reso(Cod("F123N") + Cod("P1") + "\r\n", {{.Numero = 123, .Vero = false}}), "1\r\n");
  EXPECT_EQ(Reso(Cod("F12N") + Cod("P1") + "\r\n", {{.Numero = 123, .Vero = false}}), "\r\n");
}

TEST(StatoFlag, FollowsTheFirstRowOfANumber) {
  const std::string testo = Cod("F7N") + Cod("P1") + "\r\n";
  EXPECT_EQ(Reso(testo, {{.Numero = 7, .Vero = true}, {.Numero = 7, .Vero = false}}), "1\r\n");
  EXPECT_EQ(Reso(testo, {{.Numero = 7, .Vero = false}, {.Numero = 7, .Vero = true}}), "\r\n");
}

TEST(StatoFlag, ReadsAFlagWithoutANumberAsZero) {
  EXPECT_EQ(Reso(Cod("FS") + Cod("P1") + "\r\n", {{.Numero = 0, .Vero = false}}), "\r\n");
}

TEST(CodiceSconosciuto, RepeatsTheTextOfTheCodeBeforeIt) {
  EXPECT_EQ(Reso(Cod("P1") + "-" + Cod("X") + "-" + Cod("") + "\r\n"), "1-1-1\r\n");
}

TEST(CodiceSconosciuto, RepeatsNothingAtTheStartOfARun) {
  EXPECT_EQ(Reso("a" + Cod("X") + "b\r\n"), "ab\r\n");
}

TEST(CodiceSconosciuto, RepeatsTheEmptyTextOfFlagsAndHiddenCodes) {
  EXPECT_EQ(Reso(Cod("P1") + Cod("F1N") + Cod("X") + "\r\n", Flag), "1\r\n");
  EXPECT_EQ(Reso(Cod("P1") + Cod("F2N") + Cod("P2") + Cod("X") + "\r\n", Flag), "1\r\n");
}

TEST(CodiceSconosciuto, RepeatsACodeOfALineBefore) {
  EXPECT_EQ(Reso(Cod("P1") + "\r\n" + Cod("X") + "\r\n"), "1\r\n1\r\n");
}

TEST(CodiceSconosciuto, IsHiddenByAFalseFlagLikeAnyOther) {
  EXPECT_EQ(Reso(Cod("P1") + Cod("F2N") + Cod("X") + Cod("X") + "\r\n", Flag), "1\r\n");
}

}  // namespace
}  // namespace parvik::prova
