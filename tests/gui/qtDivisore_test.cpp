// Dragging the boundary: where it can be grasped, and where it goes.
#include <QLabel>

#include "BancoDivisore.h"

namespace parvik {
namespace {

using prova::QtDivisore;
using prova::Trova;

TEST_F(QtDivisore, ThePointerSizesOnThePanesLeftEdgeOnly) {
  Muovi({Bordo(), 200});
  EXPECT_EQ(Puntatore(), Qt::SizeHorCursor);
  Muovi({Bordo() + 1, 200});
  EXPECT_EQ(Puntatore(), std::nullopt);
}

TEST_F(QtDivisore, ThePointerDoesNotSizeOnThePanesTopRow) {
  Muovi({Bordo(), Pannello().y()});
  EXPECT_EQ(Puntatore(), std::nullopt);
  Muovi({Bordo(), Pannello().y() + 1});
  EXPECT_EQ(Puntatore(), Qt::SizeHorCursor);
}

TEST_F(QtDivisore, MovingOverASectionWithTheButtonUpRestoresThePointer) {
  Muovi({Bordo(), 200});
  Muovi({Bordo() - 6, 100});  // in front of the grip
  EXPECT_EQ(Puntatore(), std::nullopt);
}

TEST_F(QtDivisore, MovingOverALabelRestoresTheSizingPointerAndNoOther) {
  auto* etichetta = Trova<QLabel>(*finestra_, "lblTCP_0");
  Muovi({Bordo(), 200});
  Manda(QEvent::MouseMove, etichetta->geometry().center(), Qt::NoButton, Qt::NoButton, *etichetta);
  EXPECT_EQ(Puntatore(), std::nullopt);
  QApplication::setOverrideCursor(Qt::IBeamCursor);
  Manda(QEvent::MouseMove, etichetta->geometry().center(), Qt::NoButton, Qt::NoButton, *etichetta);
  EXPECT_EQ(Puntatore(), Qt::IBeamCursor);
}

TEST_F(QtDivisore, LeavingThePaneRestoresThePointer) {
  Muovi({Bordo(), 200});
  QEvent evento(QEvent::Leave);
  QApplication::sendEvent(&Pannello(), &evento);
  EXPECT_EQ(Puntatore(), std::nullopt);
}

TEST_F(QtDivisore, DraggingOverThePaneMovesItsLeftEdgeAndKeepsTheRightOne) {
  const QRect prima = Pannello().geometry();
  const QRect testata = Testata().geometry();
  Afferra();
  Muovi({prima.x() + 90, 300}, Qt::LeftButton);
  EXPECT_EQ(Pannello().geometry(), prima.adjusted(90, 0, 0, 0));
  for (int i = 0; i < 3; ++i) EXPECT_EQ(finestra_.Sezione(i).geometry().right() + 1 + 5, prima.x() + 90) << i;
  EXPECT_EQ(Testata().geometry(), testata.adjusted(0, 0, 90, 0));
  EXPECT_EQ(Puntatore(), Qt::SizeHorCursor);
}

TEST_F(QtDivisore, TheDragGoesOnWhereTheMouseHasCrossedIntoASection) {
  const QRect prima = Pannello().geometry();
  Afferra();
  Muovi({prima.x() - 120, 100}, Qt::LeftButton);
  EXPECT_EQ(Pannello().geometry(), prima.adjusted(-120, 0, 0, 0));
  Lascia({prima.x() - 120, 100});
  EXPECT_EQ(Puntatore(), std::nullopt);
  Muovi({prima.x() - 150, 100});
  EXPECT_EQ(Pannello().x(), prima.x() - 120) << "the drag is over";
}

TEST_F(QtDivisore, TheStatusLabelFollowsThePaneAndTheLabelsStay) {
  const auto* stato = Trova<QLabel>(*finestra_, "lblRighe");
  const QPoint etichetta = Trova<QLabel>(*finestra_, "lblTCP_1")->pos();
  const QRect prima = stato->geometry();
  Afferra();
  Muovi({Bordo() + 60, 300}, Qt::LeftButton);
  EXPECT_EQ(stato->geometry(), prima.adjusted(60, 0, 0, 0));
  EXPECT_EQ(Trova<QLabel>(*finestra_, "lblTCP_1")->pos(), etichetta);
}

TEST_F(QtDivisore, ReleasingTheLeftButtonOverThePaneEndsTheDragAndTheRightOneDoesNot) {
  Afferra();
  const int x = Bordo() + 50;
  Muovi({x, 300}, Qt::LeftButton);
  Manda(QEvent::MouseButtonRelease, {x, 300}, Qt::RightButton, Qt::LeftButton, Sotto({x, 300}));
  EXPECT_EQ(Puntatore(), Qt::SizeHorCursor);
  Lascia({x, 300});
  EXPECT_EQ(Puntatore(), std::nullopt);
}

TEST_F(QtDivisore, NeitherColumnCanVanish) {
  const int sinistra = Testata().x();
  const int destra = Pannello().geometry().right() + 1;
  Afferra();
  Muovi({sinistra + 125, 100}, Qt::LeftButton);
  EXPECT_EQ(Pannello().x(), sinistra + 125);
  EXPECT_EQ(Testata().width(), 120);  // the grip has the rest
  Muovi({sinistra + 124, 100}, Qt::LeftButton);
  EXPECT_EQ(Pannello().x(), sinistra + 125);
  Muovi({destra - 120, 100}, Qt::LeftButton);
  EXPECT_EQ(Pannello().x(), destra - 120);
  Muovi({destra - 119, 100}, Qt::LeftButton);
  EXPECT_EQ(Pannello().x(), destra - 120);
}

TEST_F(QtDivisore, AMoveFarBeyondStopsAtTheBound) {
  const int sinistra = Testata().x();
  const int destra = Pannello().geometry().right() + 1;
  Afferra();
  Manda(QEvent::MouseMove, {-300, 100}, Qt::NoButton, Qt::LeftButton, Pannello());  // which has the mouse
  EXPECT_EQ(Pannello().x(), sinistra + 125);
  Manda(QEvent::MouseButtonRelease, {-300, 100}, Qt::LeftButton, Qt::NoButton, Pannello());
  Afferra();
  Manda(QEvent::MouseMove, {destra + 400, 300}, Qt::NoButton, Qt::LeftButton, Pannello());
  EXPECT_EQ(Pannello().x(), destra - 120);
}

TEST_F(QtDivisore, ASecondDragNeedsNoMoveInBetween) {
  const int prima = Bordo();
  Afferra();
  Muovi({prima + 80, 300}, Qt::LeftButton);
  Lascia({prima + 80, 300});
  EXPECT_EQ(Puntatore(), std::nullopt);
  Premi({prima + 80, 300});
  EXPECT_EQ(Puntatore(), Qt::SizeHorCursor);
  Muovi({prima + 30, 300}, Qt::LeftButton);
  EXPECT_EQ(Bordo(), prima + 30);
  Lascia({prima + 30, 300});
  Manda(QEvent::MouseButtonDblClick, {prima + 30, 300}, Qt::LeftButton, Qt::LeftButton, Pannello());
  Muovi({prima, 300}, Qt::LeftButton);
  EXPECT_EQ(Bordo(), prima) << "a quick second press is a double click";
}

TEST_F(QtDivisore, OnlyTheLeftButtonOnTheEdgeBelowTheTopRowBeginsADrag) {
  const int prima = Bordo();
  const auto trascina = [this](QPoint da, Qt::MouseButton tasto) {
    Premi(da, tasto);
    Muovi({da.x() + 60, 300}, tasto);
    Lascia({da.x() + 60, 300}, tasto);
  };
  trascina({prima, 200}, Qt::RightButton);
  trascina({prima, Pannello().y()}, Qt::LeftButton);
  trascina({prima + 1, 200}, Qt::LeftButton);
  trascina({prima - 1, 200}, Qt::LeftButton);
  EXPECT_EQ(Bordo(), prima);
  EXPECT_EQ(Puntatore(), std::nullopt);
  trascina({prima, 200}, Qt::LeftButton);
  EXPECT_EQ(Bordo(), prima + 60);
}

TEST_F(QtDivisore, ADragSelectsNoText) {
  Testata().setPlainText("alcune parole qui\n");
  Afferra();
  Muovi({Bordo() - 30, 5}, Qt::LeftButton);
  Muovi({Bordo() - 60, 5}, Qt::LeftButton);
  Lascia({Bordo(), 5});
  EXPECT_FALSE(Testata().textCursor().hasSelection());
}

TEST_F(QtDivisore, ASelectionThatPassesTheEdgeDoesNotBecomeADrag) {
  const int prima = Bordo();
  Premi({prima + 40, 200});
  Muovi({prima, 200}, Qt::LeftButton);
  EXPECT_EQ(Puntatore(), std::nullopt);
  Muovi({prima + 30, 200}, Qt::LeftButton);
  EXPECT_EQ(Bordo(), prima);
}

}  // namespace
}  // namespace parvik
