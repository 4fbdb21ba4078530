#include "common/Windows1252.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace parvik::prova {
namespace {

// What the code page has in the place of the C1 controls; the undefined five are written as those controls.
constexpr std::u16string_view DaOttanta =
    u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F"
    u"\u0090‘’“”•–—˜™š›œ\u009DžŸ";

TEST(UnicodeDiAnsi, GivesTheCodePagesCharacterForEachOfThe256Bytes) {
  ASSERT_EQ(32U, DaOttanta.size());
  for (std::size_t byte = 0; byte < 256; ++byte) {
    const bool speciale = byte >= 0x80 && byte < 0xA0;
    const char16_t atteso = speciale ? DaOttanta[byte - 0x80] : static_cast<char16_t>(byte);
    EXPECT_EQ(static_cast<unsigned int>(atteso), static_cast<unsigned int>(UnicodeDiAnsi[byte])) << byte;
  }
}

TEST(UnicodeDiAnsi, GivesNoCharacterTwice) {
  EXPECT_EQ(256U, std::set<char16_t>(UnicodeDiAnsi.begin(), UnicodeDiAnsi.end()).size());
}

TEST(Utf8DaAnsi, LeavesAsciiAloneControlCharactersIncluded) {
  std::string ascii;
  for (int byte = 0; byte < 0x80; ++byte) ascii.push_back(static_cast<char>(byte));
  EXPECT_EQ(ascii, Utf8DaAnsi(ascii));
}

TEST(Utf8DaAnsi, WritesTheUpperHalfAsUtf8) {
  std::string alti;
  for (int byte = 0x80; byte < 0x100; ++byte) alti.push_back(static_cast<char>(byte));
  EXPECT_EQ(
      "€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F"
      "\u0090‘’“”•–—˜™š›œ\u009DžŸ"
      "\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
      "ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
      "àáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ",
      Utf8DaAnsi(alti));
}

TEST(Utf8SenzaControlli, PutsSpacesInPlaceOfControlCharacters) {
  EXPECT_EQ("a  b  \u20AC ", Utf8SenzaControlli("a\r\nb\x7F\x81\x80\x1B"));
}

TEST(AnsiDaUtf8, GivesTheBytesBackThatMadeIt) {
  std::string tutti;
  for (int byte = 0; byte < 0x100; ++byte) tutti.push_back(static_cast<char>(byte));
  EXPECT_EQ(AnsiDaUtf8(Utf8DaAnsi(tutti)), tutti);
}

TEST(AnsiDaUtf8, TakesWhatTheCodePageLacksForAQuestionMarkAndKeepsWhatIsNoUtf8) {
  EXPECT_EQ(AnsiDaUtf8("a\u4E00b\U0001F600c"), "a?b?c");
  EXPECT_EQ(AnsiDaUtf8("\xE0x\xE2\x82"), "\xE0x\xE2\x82");
  EXPECT_EQ(AnsiDaUtf8("\xC0\x80\xFF"), "\xC0\x80\xFF");
}

TEST(Utf8DaAnsi, MixesBytesOfBothHalves) {
  EXPECT_EQ("Località: 5 €", Utf8DaAnsi("Localit\xE0: 5 \x80"));
  EXPECT_EQ("", Utf8DaAnsi(""));
}

}  // namespace
}  // namespace parvik::prova
