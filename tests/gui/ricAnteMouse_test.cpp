// The mouse in the preview pane.
#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include "PannelloDiProva.h"

namespace parvik {
namespace {

using prova::Pannello;

constexpr auto Sinistro = Qt::LeftButton;

void Sposta(ricAnte& pannello, QPoint punto) {
  QMouseEvent evento(QEvent::MouseMove, punto, pannello.viewport()->mapToGlobal(QPointF(punto)), Qt::NoButton,
                     Sinistro, Qt::NoModifier);
  QCoreApplication::sendEvent(pannello.viewport(), &evento);
}

TEST(RicAnteMouse, ThePointerIsTheTextPointer) {
  Pannello pannello("a");
  EXPECT_EQ(pannello->viewport()->cursor().shape(), Qt::IBeamCursor);
}

TEST(RicAnteMouse, AClickPlacesTheCaretAtTheNearestEdgeOfACharacter) {
  Pannello pannello("abcdef\r\nghi\r\n");
  const QRect c = pannello->RettangoloDi(2);
  QTest::mouseClick(pannello->viewport(), Sinistro, {}, QPoint(c.left() + 2, c.center().y()));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{2, 0}));
  QTest::mouseClick(pannello->viewport(), Sinistro, {}, QPoint(c.right() - 1, c.center().y()));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{3, 0}));
}

TEST(RicAnteMouse, AClickOutsideOfTheTextGoesToTheNearestLine) {
  Pannello pannello("abc\r\nde");
  QTest::mouseClick(pannello->viewport(), Sinistro, {}, QPoint(300, pannello.Su(0).y()));
  EXPECT_EQ(pannello->Cursore(), 3U);
  QTest::mouseClick(pannello->viewport(), Sinistro, {}, QPoint(300, 250));
  EXPECT_EQ(pannello->Cursore(), 7U);
  QTest::mouseClick(pannello->viewport(), Sinistro, {}, QPoint(0, 1));
  EXPECT_EQ(pannello->Cursore(), 0U);
}

TEST(RicAnteMouse, AClickEndsASelectionEvenAtItsStart) {
  Pannello pannello("abcdef");
  pannello->Seleziona(0, 4);
  QTest::mouseClick(pannello->viewport(), Sinistro, {}, QPoint(0, pannello.Su(0).y()));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{0, 0}));
}

TEST(RicAnteMouse, ShiftAndAClickExtendTheSelection) {
  Pannello pannello("abcdef\r\nghi");
  pannello->Seleziona(4, 4);
  const QPoint h = pannello->RettangoloDi(9).topLeft() + QPoint(1, 5);
  QTest::mouseClick(pannello->viewport(), Sinistro, Qt::ShiftModifier, h);
  EXPECT_EQ(pannello->Selezionato(), (Selezione{4, 5}));
  QTest::mouseClick(pannello->viewport(), Sinistro, Qt::ShiftModifier,
                    pannello->RettangoloDi(1).topLeft() + QPoint(1, 5));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{1, 3}));
  EXPECT_EQ(pannello->Cursore(), 1U);
}

TEST(RicAnteMouse, ADragSelectsInBothDirections) {
  Pannello pannello("abcdef\r\nghi");
  const auto bordo = [&pannello](std::size_t byte) {
    return pannello->RettangoloDi(byte).topLeft() + QPoint(1, 5);
  };
  QTest::mousePress(pannello->viewport(), Sinistro, {}, bordo(4));
  Sposta(*pannello, bordo(10));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{4, 6}));
  Sposta(*pannello, bordo(1));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{1, 3}));
  QTest::mouseRelease(pannello->viewport(), Sinistro, {}, bordo(1));
  Sposta(*pannello, bordo(10));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{1, 3})) << "the drag is over";
}

TEST(RicAnteMouse, ADoubleClickSelectsAWordAndADragFromItWholeWords) {
  Pannello pannello("uno due, tre quattro");
  QTest::mouseDClick(pannello->viewport(), Sinistro, {}, pannello.Su(5));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{4, 3}));
  QTest::mouseRelease(pannello->viewport(), Sinistro, {}, pannello.Su(5));
  QTest::mousePress(pannello->viewport(), Sinistro, {}, QPoint(300, 200));
  QTest::mouseRelease(pannello->viewport(), Sinistro, {}, QPoint(300, 200));

  QMouseEvent doppio(QEvent::MouseButtonDblClick, pannello.Su(10),
                     pannello->viewport()->mapToGlobal(QPointF(pannello.Su(10))), Sinistro, Sinistro,
                     Qt::NoModifier);
  QCoreApplication::sendEvent(pannello->viewport(), &doppio);
  EXPECT_EQ(pannello->Selezionato(), (Selezione{9, 3}));
  Sposta(*pannello, pannello.Su(14));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{9, 11}));
  Sposta(*pannello, pannello.Su(5));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{4, 8}));
  EXPECT_EQ(pannello->Cursore(), 4U);
}

TEST(RicAnteMouse, ATripleClickSelectsALineWithItsEnd) {
  Pannello pannello("uno\r\ndue tre\r\nquattro");
  const QPoint punto = pannello.Su(6);
  QTest::mouseDClick(pannello->viewport(), Sinistro, {}, punto);
  QTest::mousePress(pannello->viewport(), Sinistro, {}, punto);
  EXPECT_EQ(pannello->Selezionato(), (Selezione{5, 9}));
  QTest::mouseRelease(pannello->viewport(), Sinistro, {}, punto);
}

/// How many timers it and its parts have running.
qsizetype Orologi(ricAnte& pannello) {
  const QAbstractEventDispatcher* orologi = QAbstractEventDispatcher::instance();
  qsizetype quanti = orologi->registeredTimers(&pannello).size();
  for (QObject* parte : pannello.findChildren<QObject*>()) quanti += orologi->registeredTimers(parte).size();
  return quanti;
}

TEST(RicAnteMouse, AMouseHeldBelowScrollsOnAndSelects) {
  Pannello pannello(prova::Ripeti("riga\r\n", 500));
  QTest::mousePress(pannello->viewport(), Sinistro, {}, pannello.Su(2));
  Sposta(*pannello, QPoint(10, pannello->viewport()->height() + 40));
  EXPECT_TRUE(QTest::qWaitFor([&] { return pannello->verticalScrollBar()->value() >= 10; }));
  const auto orologi = Orologi(*pannello);
  QTest::mouseRelease(pannello->viewport(), Sinistro, {}, QPoint(10, pannello->viewport()->height() + 40));
  const auto primaVisibile = static_cast<std::size_t>(pannello->verticalScrollBar()->value());
  EXPECT_GT(pannello->Contenuto().RigaDi(pannello->Cursore()), primaVisibile);
  EXPECT_EQ(Orologi(*pannello), orologi - 1) << "nothing scrolls on";
}

TEST(RicAnteMouse, AReleasedButtonTellsThatTheCaretMoved) {
  Pannello pannello("abc");
  QSignalSpy mosso(&*pannello, &ricAnte::CursoreMosso);
  QTest::mousePress(pannello->viewport(), Sinistro, {}, pannello.Su(1));
  EXPECT_EQ(mosso.count(), 0);
  QTest::mouseRelease(pannello->viewport(), Sinistro, {}, pannello.Su(1));
  EXPECT_EQ(mosso.count(), 1);
}

TEST(RicAnteMouse, OtherButtonsLeaveTheSelectionAlone) {
  Pannello pannello("abcdef");
  pannello->Seleziona(1, 3);
  QTest::mouseClick(pannello->viewport(), Qt::RightButton, {}, pannello.Su(5));
  QTest::mouseClick(pannello->viewport(), Qt::MiddleButton, {}, pannello.Su(5));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{1, 2}));
}

TEST(RicAnteMouse, TheWheelScrollsByLines) {
  Pannello pannello(prova::Ripeti("riga\r\n", 500));
  constexpr int Scatto = -120;  // one notch towards the user
  QWheelEvent evento(QPointF(20, 20), pannello->viewport()->mapToGlobal(QPointF(20, 20)), QPoint(),
                     QPoint(0, Scatto), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(pannello->viewport(), &evento);
  EXPECT_EQ(pannello->verticalScrollBar()->value(), QApplication::wheelScrollLines());
  EXPECT_EQ(pannello->Cursore(), 0U);
}

}  // namespace
}  // namespace parvik
