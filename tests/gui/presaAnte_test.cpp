// The visible grip of the boundary between sections and preview.
#include "app/presaAnte.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::Trova;

class Presa : public testing::Test {
 protected:
  Presa() {
    finestra_.Scegli(1);
    finestra_.Attiva();
  }
  presaAnte& Quella() { return *Trova<presaAnte>(*finestra_, "presaAnte"); }
  QRect Pannello() { return finestra_.Anteprima().geometry(); }
  QRect Testata() { return finestra_.Sezione(0).geometry(); }
  /// Takes the grip by its second pixel and goes on by so many.
  void Trascina(int quanto) {
    QTest::mousePress(&Quella(), Qt::LeftButton, {}, QPoint(1, 50));
    QMouseEvent mossa(QEvent::MouseMove, QPointF(1 + quanto, 50),
                      Quella().mapToGlobal(QPointF(1 + quanto, 50)), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&Quella(), &mossa);
  }

  Finestra finestra_;
};

TEST_F(Presa, FillsTheFivePixelsBetweenSectionsAndPane) {
  EXPECT_EQ(Quella().geometry(), QRect(Testata().right() + 1, Pannello().top(), 5, Pannello().height()));
  EXPECT_EQ(Pannello().left(), Quella().geometry().right() + 1);
  EXPECT_EQ(Quella().cursor().shape(), Qt::SplitHCursor);
}

TEST_F(Presa, ComesAndGoesWithThePreview) {
  finestra_.Azione("mnuAnte").trigger();
  EXPECT_FALSE(Quella().isVisible());
  finestra_.Azione("mnuAnte").trigger();
  EXPECT_TRUE(Quella().isVisible());
}

TEST_F(Presa, DragsTheBoundary) {
  const QRect pannello = Pannello();
  const QRect testata = Testata();
  Trascina(60);
  EXPECT_EQ(Pannello(), pannello.adjusted(60, 0, 0, 0));
  EXPECT_EQ(Testata(), testata.adjusted(0, 0, 60, 0));
  QTest::mouseRelease(&Quella(), Qt::LeftButton, {}, QPoint(1, 50));
  EXPECT_EQ(Pannello(), pannello.adjusted(60, 0, 0, 0));
}

TEST_F(Presa, EscapePutsTheBoundaryBackAndNothingIsDraggedThen) {
  const QRect pannello = Pannello();
  Trascina(60);
  QTest::keyClick(&Quella(), Qt::Key_Escape);
  EXPECT_EQ(Pannello(), pannello);
  QMouseEvent mossa(QEvent::MouseMove, QPointF(40, 50), Quella().mapToGlobal(QPointF(40, 50)), Qt::NoButton,
                    Qt::LeftButton, {});
  QApplication::sendEvent(&Quella(), &mossa);
  EXPECT_EQ(Pannello(), pannello);
  QTest::mouseRelease(&Quella(), Qt::LeftButton, {}, QPoint(1, 50));
}

TEST_F(Presa, KeysMoveTheBoundaryFromAnywhereInTheWindow) {
  const QRect pannello = Pannello();
  QTest::keyClick(&finestra_.Sezione(0), Qt::Key_Right, Qt::AltModifier | Qt::ShiftModifier);
  EXPECT_GT(Pannello().left(), pannello.left());
  EXPECT_EQ(Pannello().right(), pannello.right());
  finestra_.Anteprima().setFocus();
  QTest::keyClick(&finestra_.Anteprima(), Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
  EXPECT_EQ(Pannello(), pannello);
}

TEST_F(Presa, IsASplitterForAssistiveTechnologies) {
  QAccessibleInterface* interfaccia = QAccessible::queryAccessibleInterface(&Quella());
  ASSERT_NE(interfaccia, nullptr);
  EXPECT_EQ(interfaccia->role(), QAccessible::Splitter);
  EXPECT_EQ(interfaccia->text(QAccessible::Name), "Divisore anteprima");
}

}  // namespace
}  // namespace parvik
