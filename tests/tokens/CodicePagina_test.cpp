#include "tokens/CodicePagina.h"

#include <gtest/gtest.h>

namespace parvik {
namespace {

TEST(CostruisciPagina, WritesTheNumberAsItWasTyped) {
  EXPECT_EQ(CostruisciPagina("1"),
            "\xAB"
            "P1\xBB");
  EXPECT_EQ(CostruisciPagina("999"),
            "\xAB"
            "P999\xBB");
  EXPECT_EQ(CostruisciPagina(" 1 "),
            "\xAB"
            "P 1 \xBB");
}

TEST(CostruisciPagina, BuildsNothingWhileTheNumberIsEmptyOrOnlySpaces) {
  EXPECT_EQ(CostruisciPagina(""), "");
  EXPECT_EQ(CostruisciPagina("   "), "");
}

TEST(LeggiPagina, IsEverythingAfterTheLetter) {
  EXPECT_EQ(LeggiPagina("P1"), "1");
  EXPECT_EQ(LeggiPagina("P001"), "001");
  EXPECT_EQ(LeggiPagina("P12;x\""), "12;x\"");
}

TEST(LeggiPagina, IsEmptyWithoutANumber) {
  EXPECT_EQ(LeggiPagina("P"), "");
  EXPECT_EQ(LeggiPagina(""), "");
}

}  // namespace
}  // namespace parvik
