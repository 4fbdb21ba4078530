#include "common/TestoMostrabile.h"

#include <gtest/gtest.h>

namespace parvik::prova {
namespace {

TEST(Mostrabile, LeavesCharactersAsTheyAre) {
  for (const std::string_view testo :
       {"", "a.img", "C:\\VELKOR\\x", "caff\xC3\xA8 \xE2\x82\xAC", "\xC2\xA0", "\xDF\xBF", "\xE0\xA0\x80",
        "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "\xED\x9F\xBF", "\xEE\x80\x80"}) {
    EXPECT_EQ(Mostrabile(testo), testo);
  }
}

TEST(Mostrabile, WritesEachByteOfAControlCharacterAsANumber) {
  EXPECT_EQ(Mostrabile("a\nb\r\tc\x1B[31m\x7F"), "a\\x0Ab\\x0D\\x09c\\x1B[31m\\x7F");
  EXPECT_EQ(Mostrabile(std::string(1, '\0')), "\\x00");
  EXPECT_EQ(Mostrabile("\xC2\x80\xC2\x9F"), "\\xC2\\x80\\xC2\\x9F");
  EXPECT_EQ(Mostrabile("\xE2\x80\xA8\xE2\x80\xA9"), "\\xE2\\x80\\xA8\\xE2\\x80\\xA9");
}

TEST(Mostrabile, WritesEachByteThatIsNoUtf8AsANumber) {
  EXPECT_EQ(Mostrabile("caff\xE8.img"), "caff\\xE8.img");
  EXPECT_EQ(Mostrabile("\x80\xBF\xFE\xFF"), "\\x80\\xBF\\xFE\\xFF");
  EXPECT_EQ(Mostrabile("\xE2\x82"), "\\xE2\\x82");           // cut short
  EXPECT_EQ(Mostrabile("\xE2\x82x"), "\\xE2\\x82x");         // and something behind it
  EXPECT_EQ(Mostrabile("\xC0\xAF"), "\\xC0\\xAF");           // too long a form
  EXPECT_EQ(Mostrabile("\xE0\x9F\xBF"), "\\xE0\\x9F\\xBF");  // the same
  EXPECT_EQ(Mostrabile("\xF0\x8F\xBF\xBF"), "\\xF0\\x8F\\xBF\\xBF");
  EXPECT_EQ(Mostrabile("\xED\xA0\x80"), "\\xED\\xA0\\x80");           // half a pair
  EXPECT_EQ(Mostrabile("\xF4\x90\x80\x80"), "\\xF4\\x90\\x80\\x80");  // beyond the last character
}

}  // namespace
}  // namespace parvik::prova
