#include "common/Utf16.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "common/TestoPercorso.h"

namespace parvik {
namespace {

const std::u16string Misto = u"a\u00E0\u20AC\U0001F600z";
const std::string MistoUtf8 = "a\xC3\xA0\xE2\x82\xAC\xF0\x9F\x98\x80z";

TEST(Utf16, IsTheSameTextInUtf8) {
  EXPECT_EQ(Utf8DaUtf16(Misto), MistoUtf8);
  EXPECT_EQ(Utf16DaUtf8(MistoUtf8), Misto);
  EXPECT_EQ(Utf8DaUtf16(u""), "");
  EXPECT_EQ(Utf16DaUtf8(""), u"");
}

TEST(Utf16, ComesBackWhateverUnitsItHas) {
  for (const char16_t a : {u'a', char16_t{0xD800}, char16_t{0xDBFF}, char16_t{0xDC00}, char16_t{0xDFFF},
                           char16_t{0xE000}, char16_t{0xFFFF}, char16_t{0x7FF}, char16_t{0x800}}) {
    for (const char16_t b : {u'b', char16_t{0xD800}, char16_t{0xDC00}}) {
      const std::u16string testo = {a, b};
      EXPECT_EQ(Utf16DaUtf8(Utf8DaUtf16(testo)), testo) << static_cast<int>(a) << ' ' << static_cast<int>(b);
    }
  }
}

TEST(Utf16, HasAReplacementForEachByteThatBelongsToNoCharacter) {
  EXPECT_EQ(Utf16DaUtf8("a\xE0"), u"a\uFFFD");
  EXPECT_EQ(Utf16DaUtf8("\xC3z"), u"\uFFFDz");
  EXPECT_EQ(Utf16DaUtf8("\x80\xFF"), u"\uFFFD\uFFFD");
  EXPECT_EQ(Utf16DaUtf8("\xC0\xAF"), u"\uFFFD\uFFFD") << "longer than it must be";
  EXPECT_EQ(Utf16DaUtf8("\xF4\x90\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD") << "beyond the last character";
}

TEST(TestoPercorso, IsThePathInBytesAndBack) {
  EXPECT_EQ(TestoPercorso(PercorsoDaTesto(MistoUtf8)), MistoUtf8);
  EXPECT_EQ(PercorsoDaTesto("a") / "b.img", std::filesystem::path("a/b.img"));
  EXPECT_EQ(TestoPercorso(std::filesystem::path()), "");
}

}  // namespace
}  // namespace parvik
