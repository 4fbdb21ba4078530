#include "common/Ritagli.h"

#include <gtest/gtest.h>

namespace parvik {
namespace {

TEST(Da, GivesWhatFollowsAndNothingBehindTheEnd) {
  EXPECT_EQ(Da("abc", 0), "abc");
  EXPECT_EQ(Da("abc", 2), "c");
  EXPECT_EQ(Da("abc", 3), "");
  EXPECT_EQ(Da("abc", 4), "");
  EXPECT_EQ(Da("", 1), "");
}

TEST(SenzaUltimi, GivesNothingWhereThereAreNotSoMany) {
  EXPECT_EQ(SenzaUltimi("abc", 0), "abc");
  EXPECT_EQ(SenzaUltimi("abc", 2), "a");
  EXPECT_EQ(SenzaUltimi("abc", 3), "");
  EXPECT_EQ(SenzaUltimi("abc", 4), "");
}

TEST(Rifila, TakesSpacesOffBothEndsAndNoneWithin) {
  EXPECT_EQ(Rifila("  a b "), "a b");
  EXPECT_EQ(Rifila("ab"), "ab");
  EXPECT_EQ(Rifila("   "), "");
  EXPECT_EQ(Rifila(""), "");
}

TEST(Rifila, TakesNothingButSpacesUnlessToldTo) {
  EXPECT_EQ(Rifila(" \ta\t "), "\ta\t");
  EXPECT_EQ(Rifila(" \ta\xA0\t ", " \t"), "a\xA0");
}

TEST(ParoleDi, GivesWhatStandsBetweenSpaces) {
  EXPECT_EQ(ParoleDi("  due  parole\tqui "), (std::vector<std::string_view>{"due", "parole\tqui"}));
  EXPECT_TRUE(ParoleDi("  ").empty());
  EXPECT_TRUE(ParoleDi("").empty());
}

}  // namespace
}  // namespace parvik
