#include "common/qtFiltro.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>

#include "Finestra.h"
#include "common/qtCampi.h"

namespace parvik {
namespace {

/// A window with one box, which has the focus.
class QtFiltro : public testing::Test {
 protected:
  QtFiltro() {
    campo_.show();
    campo_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&campo_));
    campo_.setFocus();
  }

  static void Copia(const QString& testo) { QGuiApplication::clipboard()->setText(testo); }
  void Incolla(const QString& testo) {
    Copia(testo);
    QTest::keyClick(&campo_, Qt::Key_V, Qt::ControlModifier);
  }
  void Annulla() { QTest::keyClick(&campo_, Qt::Key_Z, Qt::ControlModifier); }
  void Ripeti() { QTest::keyClick(&campo_, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
  /// Whether the box takes it.
  bool Lascia(const QString& testo, QPointF dove) {
    QMimeData dati;
    dati.setText(testo);
    QDragEnterEvent arrivo(dove.toPoint(), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&campo_, &arrivo);
    QDropEvent evento(dove, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&campo_, &evento);
    return evento.isAccepted();
  }
  /// Through the box's own menu, by the access key of its entry.
  void IncollaDalMenu() {
    QContextMenuEvent evento(QContextMenuEvent::Mouse, QPoint(3, 3), campo_.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&campo_, &evento);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_I);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  }

  QLineEdit campo_;
};

TEST_F(QtFiltro, APasteThatWasFilteredIsOneStepToUndo) {
  TestoDiCodice(campo_);
  QTest::keyClicks(&campo_, "ab");
  Incolla("c\nd");
  QTest::keyClicks(&campo_, "ef");
  EXPECT_EQ(campo_.text(), "abc def");
  Annulla();
  EXPECT_EQ(campo_.text(), "abc d");
  Annulla();
  EXPECT_EQ(campo_.text(), "ab");
  Annulla();
  EXPECT_EQ(campo_.text(), "");
  for (int i = 0; i < 3; ++i) Ripeti();
  EXPECT_EQ(campo_.text(), "abc def");
}

TEST_F(QtFiltro, APasteOverASelectionCanBeUndone) {
  TestoDiCodice(campo_);
  QTest::keyClicks(&campo_, "abcd");
  campo_.setSelection(1, 2);
  Incolla("\r\n");
  EXPECT_EQ(campo_.text(), "a d");
  Annulla();
  EXPECT_EQ(campo_.text(), "abcd");
}

TEST_F(QtFiltro, APasteOfDigitsAmongOthersCanBeUndone) {
  SoloCifre(campo_, 4);
  QTest::keyClicks(&campo_, "12");
  Incolla("x3y4z5");
  EXPECT_EQ(campo_.text(), "1234");
  Annulla();
  EXPECT_EQ(campo_.text(), "12");
}

TEST_F(QtFiltro, ADropAndAComposedTextCanBeUndone) {
  TestoDiCodice(campo_);
  QTest::keyClicks(&campo_, "ab");
  EXPECT_TRUE(Lascia("«x»\n", QPointF(0, 5)));
  EXPECT_EQ(campo_.text(), "x ab");
  Annulla();
  EXPECT_EQ(campo_.text(), "ab");
  campo_.setCursorPosition(1);
  QInputMethodEvent composto;
  composto.setCommitString("»Ω");
  QApplication::sendEvent(&campo_, &composto);
  EXPECT_EQ(campo_.text(), "a?b");
  Annulla();
  EXPECT_EQ(campo_.text(), "ab");
}

TEST_F(QtFiltro, TheMenuPastesAsTheKeysDo) {
  TestoDiCodice(campo_);
  QTest::keyClicks(&campo_, "ab");
  for (const auto& [testo, atteso] : {std::pair("«c»\nd", "abc d"), {"ef", "abef"}}) {
    Copia(testo);
    IncollaDalMenu();
    EXPECT_EQ(campo_.text(), atteso);
    Annulla();
    EXPECT_EQ(campo_.text(), "ab");
  }
}

TEST_F(QtFiltro, ADelimiterTypedOverASelectionLeavesTextAndSelection) {
  TestoDiCodice(campo_);
  QTest::keyClicks(&campo_, "abc");
  campo_.setSelection(0, 2);
  QTest::sendKeyEvent(QTest::Click, &campo_, Qt::Key_guillemotleft, "«", Qt::NoModifier);
  EXPECT_EQ(campo_.text(), "abc");
  EXPECT_EQ(campo_.selectedText(), "ab");
}

TEST_F(QtFiltro, AThirdLevelKeyWritesAndAControlKeyDoesNot) {
  SoloCifre(campo_, 4, "@");
  QTest::keyClicks(&campo_, "12");
  campo_.selectAll();
  const auto altGr = Qt::ControlModifier | Qt::AltModifier;
  QTest::sendKeyEvent(QTest::Click, &campo_, Qt::Key_E, "€", altGr);
  EXPECT_EQ(campo_.selectedText(), "12") << "refused, it leaves the selection";
  QTest::sendKeyEvent(QTest::Click, &campo_, Qt::Key_At, "@", altGr);
  EXPECT_EQ(campo_.text(), "@");
  QTest::sendKeyEvent(QTest::Click, &campo_, Qt::Key_A, "a", Qt::ControlModifier);
  EXPECT_EQ(campo_.selectedText(), "@") << "the command that selects all";
}

TEST_F(QtFiltro, ATextThatIsTooLongMayOnlyGetShorter) {
  SoloCifre(campo_, 2);
  ImpostaComeSta(campo_, "12345");
  campo_.setSelection(1, 1);
  QTest::keyClicks(&campo_, "9");
  EXPECT_EQ(campo_.text(), "12345");
  campo_.setSelection(1, 2);
  QTest::keyClicks(&campo_, "9");
  EXPECT_EQ(campo_.text(), "1945");
}

TEST_F(QtFiltro, ACodesTextTakesNoMoreThanItsLimit) {
  TestoDiCodice(campo_, 2);
  QTest::keyClicks(&campo_, "a");
  Incolla("«\nbc");
  EXPECT_EQ(campo_.text(), "a ");
  QTest::keyClicks(&campo_, "d");
  EXPECT_EQ(campo_.text(), "a ");
}

TEST_F(QtFiltro, WhatIsSearchedForIsAnyTextInOneLine) {
  UnaRiga(campo_);
  Incolla("«Ω»\r\n\rx");
  EXPECT_EQ(campo_.text(), "«Ω»  x");
}

TEST_F(QtFiltro, AnOldTextStaysAsItStandsBesideWhatComesIn) {
  TestoDiCodice(campo_);
  ImpostaComeSta(campo_, "a\nb");
  campo_.setCursorPosition(2);
  Incolla("\n");
  EXPECT_EQ(campo_.text(), "a\n b");
  Annulla();
  EXPECT_EQ(campo_.text(), "a\nb");
}

TEST_F(QtFiltro, ABoxThatOnlyShowsIsNotChangedByAnyone) {
  SoloLettura(campo_);
  ImpostaComeSta(campo_, "«V1»");
  QTest::keyClicks(&campo_, "x");
  Incolla("x");
  EXPECT_FALSE(Lascia("x", QPointF(0, 5)));
  campo_.setText("x");
  EXPECT_EQ(campo_.text(), "«V1»");
  campo_.clear();
  EXPECT_EQ(campo_.text(), "«V1»");
  campo_.selectAll();
  QTest::keyClick(&campo_, Qt::Key_Backspace);
  EXPECT_EQ(campo_.text(), "«V1»");
}

}  // namespace
}  // namespace parvik
