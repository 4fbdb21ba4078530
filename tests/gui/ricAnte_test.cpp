#include "output/ricAnte.h"

#include <gtest/gtest.h>

#include <QTest>

#include "Finestra.h"

namespace parvik {
namespace {

Anteprima DiProva(std::string testo) {
  Anteprima anteprima{.Testo = std::move(testo), .Tratti = {}};
  anteprima.Tratti = MettiStili(anteprima.Testo);
  return anteprima;
}

QTextCharFormat FormatoIn(const ricAnte& pannello, int posizione) {
  QTextCursor cursore(pannello.document());
  cursore.setPosition(posizione + 1);
  return cursore.charFormat();
}

TEST(RicAnte, ShowsTheTextWithoutMarkersAndTheLooksThatTheyAskFor) {
  ricAnte pannello(nullptr);
  pannello.Mostra(DiProva("aS;GRb\r\nS;ITc\r\nS;SOd\r\nS;COe\r\nS;NOf\r\n"));
  EXPECT_EQ(pannello.toPlainText(), "ab\nc\nd\ne\nf\n");
  EXPECT_EQ(FormatoIn(pannello, 0).fontPointSize(), 10);
  EXPECT_FALSE(FormatoIn(pannello, 0).font().bold());
  EXPECT_TRUE(FormatoIn(pannello, 1).font().bold());
  EXPECT_EQ(FormatoIn(pannello, 1).fontPointSize(), 9.75);
  EXPECT_TRUE(FormatoIn(pannello, 3).fontItalic());
  EXPECT_TRUE(FormatoIn(pannello, 5).fontUnderline());
  EXPECT_EQ(FormatoIn(pannello, 7).fontPointSize(), 8);
  EXPECT_EQ(FormatoIn(pannello, 9).fontPointSize(), 10);
}

TEST(RicAnte, IsReadAndSelectedButNotEdited) {
  ricAnte pannello(nullptr);
  pannello.Mostra(DiProva("uno\r\ndue\r\n"));
  QTest::keyClicks(&pannello, "x");
  EXPECT_EQ(pannello.toPlainText(), "uno\ndue\n");
  QTest::keyClick(&pannello, Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(pannello.textCursor().selectedText(), "u");
}

TEST(RicAnte, ANewRunReplacesTheTextAndPutsTheCaretAtItsStart) {
  ricAnte pannello(nullptr);
  pannello.Mostra(DiProva("uno\r\ndue\r\n"));
  QTest::keyClick(&pannello, Qt::Key_End, Qt::ControlModifier);
  pannello.Mostra(DiProva("tre\r\n"));
  EXPECT_EQ(pannello.toPlainText(), "tre\n");
  EXPECT_EQ(pannello.textCursor().position(), 0);
  EXPECT_FALSE(pannello.textCursor().hasSelection());
}

TEST(RicAnte, ARunWithoutTextEmptiesThePane) {
  ricAnte pannello(nullptr);
  pannello.Mostra(DiProva("uno\r\n"));
  pannello.Mostra({});
  EXPECT_EQ(pannello.toPlainText(), "");
}

TEST(RicAnte, HasItsAccessibleName) {
  EXPECT_EQ(ricAnte(nullptr).accessibleName(), "Anteprima");
}

}  // namespace
}  // namespace parvik
