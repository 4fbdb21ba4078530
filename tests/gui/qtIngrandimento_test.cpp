// The size of the texts (docs/menus.md).
#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "Finestra.h"
#include "editor/Ingrandimento.h"
#include "output/ricCelle.h"

namespace parvik {
namespace {

using prova::Finestra;

class QtIngrandimento : public testing::Test {
 protected:
  QtIngrandimento() {
    finestra_.Scegli(1);
    finestra_.Apri("FATT01.IMG");
    finestra_.Azione("mnuAnte").trigger();
  }
  double Punti(int sezione = 0) { return finestra_.Sezione(sezione).font().pointSizeF(); }
  int Cella() { return finestra_.Anteprima().RettangoloDi(0).height(); }
  void Premi(Qt::Key tasto) { QTest::keyClick(QApplication::focusWidget(), tasto, Qt::ControlModifier); }
  void Gira(QWidget& dove, int quanto, Qt::KeyboardModifiers con = Qt::ControlModifier) {
    const QPointF punto(20, 20);
    QWheelEvent rotella(punto, dove.mapToGlobal(punto), {}, QPoint(0, quanto), Qt::NoButton, con,
                        Qt::NoScrollPhase, false);
    QApplication::sendEvent(&dove, &rotella);
  }

  Finestra finestra_;
};

TEST_F(QtIngrandimento, KeysMakeSectionsAndPreviewLargerAndSmallerTogether) {
  const double punti = Punti();
  const int cella = Cella();
  Premi(Qt::Key_Plus);
  Premi(Qt::Key_Equal);
  EXPECT_EQ(Punti(), punti + 2);
  EXPECT_EQ(Punti(2), punti + 2);
  EXPECT_GT(Cella(), cella);
  finestra_.Anteprima().setFocus();
  Premi(Qt::Key_Minus);
  EXPECT_EQ(Punti(), punti + 1);
  Premi(Qt::Key_0);
  EXPECT_EQ(Punti(), punti);
  EXPECT_EQ(Cella(), cella);
  EXPECT_TRUE(finestra_->close()) << "not modified";
}

TEST_F(QtIngrandimento, CtrlAndTheWheelDoTheSameAndScrollNothing) {
  const double punti = Punti();
  for (QWidget* dove : {finestra_.Sezione(1).viewport(), finestra_.Anteprima().viewport()}) {
    Gira(*dove, 60);
    EXPECT_EQ(Punti(), punti) << "half a step";
    Gira(*dove, 60);
    EXPECT_EQ(Punti(), punti + 1);
    Gira(*dove, -120);
    EXPECT_EQ(Punti(), punti);
  }
  Gira(*finestra_.Anteprima().viewport(), -360);
  EXPECT_EQ(finestra_.Anteprima().verticalScrollBar()->value(), 0);
  EXPECT_EQ(Punti(), punti - 3);
  Gira(*finestra_.Anteprima().viewport(), -360, Qt::NoModifier);
  EXPECT_EQ(Punti(), punti - 3);
}

TEST_F(QtIngrandimento, StaysBetweenSixAndFortyEightPoints) {
  for (int i = 0; i < 60; ++i) Premi(Qt::Key_Plus);
  EXPECT_LE(Punti(), PuntiMassimi);
  EXPECT_GT(Punti(), PuntiMassimi - 1);
  for (int i = 0; i < 100; ++i) Premi(Qt::Key_Minus);
  EXPECT_GE(Punti(), PuntiMinimi);
  EXPECT_LT(Punti(), PuntiMinimi + 1);
  Premi(Qt::Key_Plus);
  EXPECT_GT(Punti(), PuntiMinimi + 0.5) << "the first key back counts";
}

TEST_F(QtIngrandimento, IsKeptOnlyWhereThatIsWanted) {
  const double punti = Punti();
  Premi(Qt::Key_Plus);
  finestra_.Riavvia();
  finestra_.Scegli(1);
  EXPECT_EQ(Punti(), punti);
  finestra_.Azione("mnuRicorda").trigger();
  Premi(Qt::Key_Plus);
  finestra_.Riavvia();
  finestra_.Scegli(1);
  EXPECT_EQ(Punti(), punti + 1);
}

TEST(CelleSuSchermo, AreLargerByTheScaleAndThoseOfPaperNever) {
  const QWidget schermo;
  const Celle una = Celle::SuSchermo(CarattereAnteprima(), schermo);
  const Celle doppia = Celle::SuSchermo(CarattereAnteprima(), schermo, 2);
  EXPECT_NEAR(doppia.Avanzamento({}), 2 * una.Avanzamento({}), 2);
  EXPECT_EQ(Celle::SuCarta(CarattereAnteprima()).Avanzamento({}),
            Celle::SuCarta(CarattereAnteprima()).Avanzamento({.Corpo = CorpoCarattere::Normale}));
}

}  // namespace
}  // namespace parvik
