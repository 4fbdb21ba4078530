#include "template/txtTCP.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QTest>

#include "Finestra.h"

namespace parvik {
namespace {

TEST(TxtTCP, All256ByteValuesSurviveTheEditor) {
  std::string tutti;
  for (int valore = 0; valore < 256; ++valore) tutti += static_cast<char>(static_cast<unsigned char>(valore));
  tutti += "\r\n";
  txtTCP editor(Sezione::Testata, nullptr);
  editor.ImpostaAnsi(tutti);
  EXPECT_EQ(editor.Ansi(), tutti);
}

TEST(TxtTCP, AnAccessibleNameTellsTheSections) {
  EXPECT_EQ(txtTCP(Sezione::Testata, nullptr).accessibleName(), "Testata");
  EXPECT_EQ(txtTCP(Sezione::Corpo, nullptr).accessibleName(), "Corpo");
  EXPECT_EQ(txtTCP(Sezione::Piede, nullptr).accessibleName(), "Piede");
}

TEST(TxtTCP, TheFontHasOneWidth) {
  const txtTCP editor(Sezione::Testata, nullptr);
  EXPECT_EQ(editor.fontMetrics().horizontalAdvance("iiii"), editor.fontMetrics().horizontalAdvance("MMMM"));
}

TEST(TxtTCP, EveryKeyPressedIsToldEvenIfItChangesNothing) {
  txtTCP editor(Sezione::Corpo, nullptr);
  for (const Qt::Key tasto : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Control, Qt::Key_F5, Qt::Key_Escape}) {
    QSignalSpy spia(&editor, &txtTCP::Modificata);
    QTest::keyClick(&editor, tasto);
    EXPECT_EQ(spia.count(), 1) << "key " << tasto;
  }
}

TEST(TxtTCP, SettingTheTextIsNoEditAndCannotBeUndone) {
  txtTCP editor(Sezione::Corpo, nullptr);
  const QSignalSpy spia(&editor, &txtTCP::Modificata);
  editor.ImpostaAnsi("uno\r\n");
  EXPECT_EQ(spia.count(), 0);
  editor.undo();
  EXPECT_EQ(editor.Ansi(), "uno\r\n");
}

TEST(TxtTCP, CompletingTheLastLineKeepsCaretAndUndoHistory) {
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi("");
  QTest::keyClicks(&editor, "x");
  const QSignalSpy spia(&editor, &txtTCP::Modificata);
  editor.CompletaUltimaRiga();
  EXPECT_EQ(editor.Ansi(), "x\r\n");
  EXPECT_EQ(editor.textCursor().position(), 1);
  EXPECT_EQ(spia.count(), 0);
  editor.undo();
  editor.undo();
  EXPECT_EQ(editor.Ansi(), "");
}

TEST(TxtTCP, WhatHasNoPlaceInATemplateIsAQuestionMarkAtOnce) {
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi("");
  QTest::sendKeyEvent(QTest::Click, &editor, Qt::Key_unknown, QStringLiteral("\u4E2D"), Qt::NoModifier);
  EXPECT_EQ(editor.toPlainText(), "?");
}

TEST(TxtTCP, PastedTextKeepsItsLinesAndLosesWhatTheCodePageDoesNotHave) {
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi("");
  QApplication::clipboard()->setText(QStringLiteral("a\r\nb\rc\n\u4E2D\u20AC"));
  editor.paste();
  EXPECT_EQ(editor.Ansi(), "a\r\nb\r\nc\r\n?\x80");
}

TEST(TxtTCP, WhatIsCopiedAndPastedIsTheSameByteForByte) {
  std::string byte;
  for (int valore = 0; valore < 256; ++valore) byte += static_cast<char>(static_cast<unsigned char>(valore));
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi(byte + "\r\n");
  editor.selectAll();
  editor.copy();
  editor.ImpostaAnsi("");
  editor.paste();
  EXPECT_EQ(editor.Ansi(), byte + "\r\n");
}

TEST(TxtTCP, ComposedTextGoesThroughTheSameDoor) {
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi("");
  const QSignalSpy spia(&editor, &txtTCP::Modificata);
  QInputMethodEvent composto;
  composto.setCommitString(QStringLiteral("\u00E8\u4E2D"));
  QApplication::sendEvent(&editor, &composto);
  EXPECT_EQ(editor.Ansi(), "\xE8?");
  EXPECT_GE(spia.count(), 1);
}

TEST(TxtTCP, ShiftEnterIsALineEndLikeEnter) {
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi("");
  QTest::keyClicks(&editor, "a");
  QTest::keyClick(&editor, Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClicks(&editor, "b");
  EXPECT_EQ(editor.Ansi(), "a\r\nb");
}

}  // namespace
}  // namespace parvik
