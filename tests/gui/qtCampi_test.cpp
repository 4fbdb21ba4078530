#include "common/qtCampi.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QVBoxLayout>

#include "Finestra.h"

namespace parvik {
namespace {

/// A window with two boxes; the first has the focus.
class QtCampi : public testing::Test {
 protected:
  QtCampi() {
    auto* disposizione = new QVBoxLayout(&finestra_);
    disposizione->addWidget(&altro_);
    disposizione->addWidget(&campo_);
    finestra_.show();
    finestra_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&finestra_));
    altro_.setFocus();
  }

  void Incolla(const QString& testo) {
    QGuiApplication::clipboard()->setText(testo);
    QTest::keyClick(&campo_, Qt::Key_V, Qt::ControlModifier);
  }

  /// A press at the end of the text; `fino` is where the button comes up.
  void Trascina(const QPoint& da, const QPoint& fino) {
    QTest::mousePress(&campo_, Qt::LeftButton, {}, da);
    QTest::mouseMove(&campo_, fino);
    QTest::mouseRelease(&campo_, Qt::LeftButton, {}, fino);
  }

  QPoint AllaFine() { return {campo_.width() - 5, campo_.height() / 2}; }

  QWidget finestra_;
  QLineEdit altro_;
  QLineEdit campo_;
};

using SoloCifreTest = QtCampi;
using ComeStaTest = QtCampi;
using SelezionaTuttoTest = QtCampi;

TEST_F(SoloCifreTest, DigitsAreTypedAndOtherKeysHaveNoEffect) {
  SoloCifre(campo_, 9);
  QTest::keyClicks(&campo_, "1a2 3-4,5.6*7+8");
  QTest::sendKeyEvent(QTest::Click, &campo_, Qt::Key_Eacute, QString("é"), Qt::NoModifier);
  QTest::keyClicks(&campo_, "9");
  EXPECT_EQ(campo_.text(), "123456789");
}

TEST_F(SoloCifreTest, NoMoreThanTheMaximumIsTyped) {
  SoloCifre(campo_, 3);
  QTest::keyClicks(&campo_, "12345");
  EXPECT_EQ(campo_.text(), "123");
}

TEST_F(SoloCifreTest, BackspaceDeleteAndTheCaretKeysWork) {
  SoloCifre(campo_, 3);
  QTest::keyClicks(&campo_, "123");
  QTest::keyClick(&campo_, Qt::Key_Backspace);
  EXPECT_EQ(campo_.text(), "12");
  QTest::keyClick(&campo_, Qt::Key_Home);
  QTest::keyClick(&campo_, Qt::Key_Delete);
  EXPECT_EQ(campo_.text(), "2");
  QTest::keyClicks(&campo_, "45");
  EXPECT_EQ(campo_.text(), "452");
  EXPECT_EQ(campo_.cursorPosition(), 2);
}

TEST_F(SoloCifreTest, ALetterTypedOverASelectionLeavesTextAndSelection) {
  SoloCifre(campo_, 3);
  campo_.setText("123");
  campo_.setSelection(1, 2);
  QTest::keyClick(&campo_, Qt::Key_A);
  EXPECT_EQ(campo_.text(), "123");
  EXPECT_EQ(campo_.selectedText(), "23");
}

TEST_F(SoloCifreTest, ADigitReplacesTheSelectionOfAFullBox) {
  SoloCifre(campo_, 3);
  campo_.setText("123");
  campo_.selectAll();
  QTest::keyClicks(&campo_, "45");
  EXPECT_EQ(campo_.text(), "45");
}

TEST_F(SoloCifreTest, CharactersThatAreNamedAreLetThroughToo) {
  SoloCifre(campo_, 3, "*");
  QTest::keyClicks(&campo_, "*a1");
  EXPECT_EQ(campo_.text(), "*1");
}

TEST_F(SoloCifreTest, PastingTakesTheDigits) {
  SoloCifre(campo_, 5);
  campo_.setText("19");
  campo_.setCursorPosition(1);
  Incolla("a2 b3\n");
  EXPECT_EQ(campo_.text(), "1239");
  EXPECT_EQ(campo_.cursorPosition(), 3);
}

TEST_F(SoloCifreTest, PastingTakesWhatFits) {
  SoloCifre(campo_, 3);
  campo_.setText("19");
  campo_.setCursorPosition(1);
  Incolla("2345");
  EXPECT_EQ(campo_.text(), "129");
}

TEST_F(SoloCifreTest, PastingNothingThatIsAllowedChangesNothing) {
  SoloCifre(campo_, 3);
  campo_.setText("12");
  campo_.selectAll();
  Incolla("abc");
  EXPECT_EQ(campo_.text(), "12");
}

TEST_F(SoloCifreTest, TheInputMethodGoesThroughTheSameFilter) {
  SoloCifre(campo_, 3);
  campo_.setText("1");
  QInputMethodEvent composto;
  composto.setCommitString("ê2");
  QApplication::sendEvent(&campo_, &composto);
  EXPECT_EQ(campo_.text(), "12");
}

TEST_F(SoloCifreTest, UndoWorksAfterARefusedKey) {
  SoloCifre(campo_, 3);
  QTest::keyClicks(&campo_, "12a34");
  QTest::keyClick(&campo_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(campo_.text(), "");
}

TEST_F(ComeStaTest, ATextOfTheProgramIsNeitherCheckedNorCut) {
  SoloCifre(campo_, 3);
  const QString lungo(40000, 'x');
  ImpostaComeSta(campo_, lungo);
  EXPECT_EQ(campo_.text(), lungo);
}

TEST_F(ComeStaTest, KeysThatMayNotWriteLeaveItAlone) {
  SoloCifre(campo_, 2);
  ImpostaComeSta(campo_, "-12");
  QTest::keyClicks(&campo_, "a-3");
  EXPECT_EQ(campo_.text(), "-12");
  Incolla("4");
  EXPECT_EQ(campo_.text(), "-12");
}

TEST_F(ComeStaTest, ATextThatIsTooLongCanBeShortenedAndThenObeysTheMaximum) {
  SoloCifre(campo_, 3);
  ImpostaComeSta(campo_, "12345");
  QTest::keyClick(&campo_, Qt::Key_Backspace);
  EXPECT_EQ(campo_.text(), "1234");
  QTest::keyClick(&campo_, Qt::Key_9);
  EXPECT_EQ(campo_.text(), "1234");
  QTest::keyClick(&campo_, Qt::Key_Backspace);
  QTest::keyClick(&campo_, Qt::Key_Backspace);
  QTest::keyClicks(&campo_, "99");
  EXPECT_EQ(campo_.text(), "129");
}

TEST_F(ComeStaTest, WhatStandsBesideAnEditStays) {
  SoloCifre(campo_, 4);
  ImpostaComeSta(campo_, "a1b");
  campo_.setCursorPosition(2);
  QTest::keyClick(&campo_, Qt::Key_7);
  EXPECT_EQ(campo_.text(), "a17b");
  EXPECT_EQ(campo_.cursorPosition(), 3);
}

TEST_F(ComeStaTest, TypingOverTheWholeTextReplacesIt) {
  SoloCifre(campo_, 2);
  ImpostaComeSta(campo_, "-32768");
  campo_.selectAll();
  QTest::keyClicks(&campo_, "7");
  EXPECT_EQ(campo_.text(), "7");
}

TEST_F(ComeStaTest, UndoBringsItBackAndLettersStayOut) {
  SoloCifre(campo_, 2);
  ImpostaComeSta(campo_, "-12");
  campo_.selectAll();
  QTest::keyClick(&campo_, Qt::Key_Backspace);
  ASSERT_EQ(campo_.text(), "");
  QTest::keyClick(&campo_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(campo_.text(), "-12");
  campo_.deselect();
  QTest::keyClick(&campo_, Qt::Key_A);
  EXPECT_EQ(campo_.text(), "-12");
}

TEST_F(ComeStaTest, ABoxWithoutAFilterJustTakesTheText) {
  ImpostaComeSta(campo_, "abc");
  EXPECT_EQ(campo_.text(), "abc");
}

TEST_F(SelezionaTuttoTest, TheTabKeySelectsTheWholeText) {
  SelezionaTuttoAlFuoco(campo_);
  campo_.setText("123");
  campo_.setSelection(0, 1);
  QTest::keyClick(&altro_, Qt::Key_Tab);
  ASSERT_TRUE(campo_.hasFocus());
  EXPECT_EQ(campo_.selectedText(), "123");
}

TEST_F(SelezionaTuttoTest, AClickIntoTheTextSelectsTheWholeOfIt) {
  SelezionaTuttoAlFuoco(campo_);
  campo_.setText("123");
  QTest::mouseClick(&campo_, Qt::LeftButton, {}, {6, campo_.height() / 2});
  ASSERT_TRUE(campo_.hasFocus());
  EXPECT_EQ(campo_.selectedText(), "123");
}

TEST_F(SelezionaTuttoTest, AClickWithAShakingHandSelectsTheWholeText) {
  SelezionaTuttoAlFuoco(campo_);
  campo_.setText("123");
  Trascina(AllaFine(), AllaFine() - QPoint(1, 0));
  EXPECT_EQ(campo_.selectedText(), "123");
}

TEST_F(SelezionaTuttoTest, WhatADragSelectedStaysSelected) {
  SelezionaTuttoAlFuoco(campo_);
  campo_.setText("123456789");
  const int fine = campo_.fontMetrics().horizontalAdvance("12345");
  Trascina({0, campo_.height() / 2}, {fine, campo_.height() / 2});
  EXPECT_TRUE(campo_.hasSelectedText());
  EXPECT_NE(campo_.selectedText(), "123456789");
  EXPECT_EQ(campo_.selectionStart(), 0);
}

TEST_F(SelezionaTuttoTest, AShiftClickSelectsFromWhereTheCaretWas) {
  SelezionaTuttoAlFuoco(campo_);
  campo_.setText("123456");
  campo_.setCursorPosition(2);
  QTest::mouseClick(&campo_, Qt::LeftButton, Qt::ShiftModifier, AllaFine());
  ASSERT_TRUE(campo_.hasFocus());
  EXPECT_EQ(campo_.selectedText(), "3456");
}

TEST_F(SelezionaTuttoTest, ASecondClickPutsTheCaret) {
  SelezionaTuttoAlFuoco(campo_);
  campo_.setText("123");
  QTest::mouseClick(&campo_, Qt::LeftButton, {}, AllaFine());
  QTest::mouseClick(&campo_, Qt::LeftButton, {}, AllaFine());
  EXPECT_EQ(campo_.selectedText(), "");
  EXPECT_EQ(campo_.cursorPosition(), 3);
}

TEST_F(SelezionaTuttoTest, AMenuOverTheBoxLeavesTheSelection) {
  SelezionaTuttoAlFuoco(campo_);
  campo_.setText("123");
  campo_.setFocus();
  campo_.setSelection(1, 1);
  QMenu menu(&campo_);
  menu.addAction("Copia");
  menu.popup(campo_.mapToGlobal(campo_.rect().center()));
  ASSERT_TRUE(menu.isVisible());
  menu.close();
  ASSERT_TRUE(campo_.hasFocus());
  EXPECT_EQ(campo_.selectedText(), "2");
}

}  // namespace
}  // namespace parvik
