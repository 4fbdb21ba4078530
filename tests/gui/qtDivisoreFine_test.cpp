// How dragging the boundary is given up, and how long it stays where it was left.
#include <QTest>

#include "BancoDivisore.h"

namespace parvik {
namespace {

using prova::QtDivisore;

TEST_F(QtDivisore, EscapeGivesTheDragUpAndPutsTheBoundaryBack) {
  const QRect prima = Pannello().geometry();
  Afferra();
  Muovi({prima.x() + 90, 300}, Qt::LeftButton);
  ASSERT_NE(Pannello().geometry(), prima);
  QTest::keyClick(&Testata(), Qt::Key_Escape);
  EXPECT_EQ(Pannello().geometry(), prima);
  EXPECT_EQ(Puntatore(), std::nullopt);
  Muovi({prima.x() + 50, 300}, Qt::LeftButton);
  EXPECT_EQ(Pannello().geometry(), prima) << "the button is still down, and nothing is dragged";
  Lascia({prima.x() + 50, 300});
  Afferra();
  Muovi({prima.x() - 40, 300}, Qt::LeftButton);
  EXPECT_EQ(Pannello().x(), prima.x() - 40) << "the next drag is one again";
}

TEST_F(QtDivisore, EscapeGoesBackToWhereTheSecondDragBegan) {
  const int prima = Bordo();
  Afferra();
  Muovi({prima + 70, 300}, Qt::LeftButton);
  Lascia({prima + 70, 300});
  Afferra();
  Muovi({prima - 70, 300}, Qt::LeftButton);
  QTest::keyClick(&Testata(), Qt::Key_Escape);
  EXPECT_EQ(Bordo(), prima + 70);
}

/// Keys that reach a section.
class Contatore final : public QObject {
 public:
  int Tasti = 0;

 protected:
  bool eventFilter(QObject* /*oggetto*/, QEvent* evento) override {
    Tasti += evento->type() == QEvent::KeyPress ? 1 : 0;
    return false;
  }
};

TEST_F(QtDivisore, EscapeReachesTheSectionUnlessADragIsGivenUp) {
  Contatore contatore;
  Testata().installEventFilter(&contatore);
  Muovi({Bordo(), 200});
  QTest::keyClick(&Testata(), Qt::Key_Escape);
  EXPECT_EQ(contatore.Tasti, 1) << "the pointer sizes, but no button is down";
  EXPECT_EQ(Puntatore(), Qt::SizeHorCursor);
  Premi({Bordo(), 200});
  QTest::keyClick(&Testata(), Qt::Key_Escape);
  EXPECT_EQ(contatore.Tasti, 1);
  QTest::keyClick(&Testata(), Qt::Key_Escape);
  EXPECT_EQ(contatore.Tasti, 2) << "the drag was given up already";
  Lascia({Bordo(), 200});
  QTest::keyClick(&Testata(), Qt::Key_Escape);
  EXPECT_EQ(contatore.Tasti, 3);
}

TEST_F(QtDivisore, OtherKeysLeaveTheDragAlone) {
  const int prima = Bordo();
  Afferra();
  Muovi({prima + 70, 300}, Qt::LeftButton);
  QTest::keyClick(&Testata(), Qt::Key_Left);
  Muovi({prima + 50, 300}, Qt::LeftButton);
  EXPECT_EQ(Bordo(), prima + 50);
}

TEST_F(QtDivisore, ADragThatLosesThePreviewIsOver) {
  Afferra();
  finestra_.Azione("mnuAnte").trigger();
  EXPECT_EQ(Puntatore(), std::nullopt);
  finestra_.Azione("mnuAnte").trigger();
  const int prima = Bordo();
  Muovi({prima + 60, 300}, Qt::LeftButton);
  EXPECT_EQ(Bordo(), prima);
}

TEST_F(QtDivisore, ThePlaceLastsUntilTheWindowIsResized) {
  const int prima = Bordo();
  Afferra();
  Muovi({prima + 80, 300}, Qt::LeftButton);
  Lascia({prima + 80, 300});
  finestra_.Azione("mnuRighe").trigger();  // lays nothing out
  EXPECT_EQ(Bordo(), prima + 80);
  finestra_->resize(finestra_->width(), finestra_->height() + 30);
  QApplication::processEvents();
  EXPECT_EQ(Bordo(), prima);
}

TEST_F(QtDivisore, TurningThePreviewOffAndOnPutsTheBoundaryBackInTheMiddle) {
  const int prima = Bordo();
  Afferra();
  Muovi({prima + 80, 300}, Qt::LeftButton);
  Lascia({prima + 80, 300});
  finestra_.Azione("mnuAnte").trigger();
  finestra_.Azione("mnuAnte").trigger();
  EXPECT_EQ(Bordo(), prima);
}

}  // namespace
}  // namespace parvik
