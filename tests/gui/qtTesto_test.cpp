#include "common/qtTesto.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "Finestra.h"

namespace parvik {
namespace {

std::string Byte(int valore) {
  return {static_cast<char>(static_cast<unsigned char>(valore))};
}

TEST(QtTesto, EveryByteComesBackAsItself) {
  for (int valore = 0; valore < 256; ++valore) {
    EXPECT_EQ(DaSchermo(PerSchermo(Byte(valore))), Byte(valore)) << "byte " << valore;
  }
}

TEST(QtTesto, EveryByteHasACharacterOfItsOwnThatAnEditorCanShow) {
  std::set<char16_t> visti;
  for (int valore = 0; valore < 256; ++valore) {
    const QString carattere = PerSchermo(Byte(valore));
    ASSERT_EQ(carattere.size(), 1) << "byte " << valore;
    EXPECT_TRUE(visti.insert(carattere.at(0).unicode()).second) << "byte " << valore;
    EXPECT_NE(carattere.at(0).category(), QChar::Other_Control) << "byte " << valore;
  }
}

TEST(QtTesto, ALineEndIsOneLineFeedOnTheScreen) {
  EXPECT_EQ(PerSchermo("a\r\nb\r\n\r\n"), QStringLiteral("a\nb\n\n"));
  EXPECT_EQ(DaSchermo(QStringLiteral("a\nb\n\n")), "a\r\nb\r\n\r\n");
}

TEST(QtTesto, ALoneCarriageReturnOrLineFeedIsVisibleAndKept) {
  EXPECT_EQ(PerSchermo("a\rb\nc"), QStringLiteral("a\u240Db\u240Ac"));
  EXPECT_EQ(DaSchermo(PerSchermo("\r\r\n\n\r")), "\r\r\n\n\r");
}

TEST(QtTesto, TheToolkitsSeparatorsAreLineEnds) {
  EXPECT_EQ(DaSchermo(QStringLiteral("a\u2029b\u2028c")), "a\r\nb\r\nc");
}

TEST(QtTesto, WhatTheCodePageDoesNotHaveIsOneQuestionMarkEach) {
  EXPECT_EQ(DaSchermo(QStringLiteral("a\u4E2Db\U0001F600c")), "a?b?c");
  EXPECT_EQ(SoloAnsi(QStringLiteral("\u4E2D\u20AC")), QStringLiteral("?\u20AC"));
}

TEST(QtTesto, InOneLineEachLineEndIsASpaceAndNothingElseChanges) {
  EXPECT_EQ(InUnaRiga(QStringLiteral("a\r\nb\rc\nd\u2028e\u2029f\u0085g\vh\fi")), "a b c d e f g h i");
  EXPECT_EQ(InUnaRiga(QStringLiteral("a\u240D\u240Ab\u240Dc\u240Ad\u240Be\u240Cf")), "a b c d e f");
  EXPECT_EQ(InUnaRiga("\n\r\r\n"), "   ");
  const QString altri = QStringLiteral("\t\u2409\u2408\u240E \u00A0\u2027\u202A\u0084\u0086\u4E2D\u00AB");
  EXPECT_EQ(InUnaRiga(altri), altri);
}

TEST(QtTesto, TheDelimitersAreTheGuillemets) {
  EXPECT_EQ(PerSchermo("\xAB"
                       "V1;40L"
                       "\xBB"),
            QStringLiteral("\u00ABV1;40L\u00BB"));
}

TEST(QtTesto, MessagesKeepTheirAccentsAndBreakTheirLines) {
  EXPECT_EQ(DaUtf8("sarà\r\nSì"), QStringLiteral("sar\u00E0\nS\u00EC"));
}

}  // namespace
}  // namespace parvik
