// The status bar in the main window (docs/barra-di-stato.md).
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QStatusBar>
#include <QTest>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::Trova;

class BarStato : public testing::Test {
 protected:
  QStatusBar& Barra() { return *Trova<QStatusBar>(*finestra_, "barStato"); }
  QLabel& Campo(const char* nome) { return *Trova<QLabel>(Barra(), nome); }
  QString Dopo(const char* nome, const QString& atteso) {
    static_cast<void>(QTest::qWaitFor([&] { return Campo(nome).text() == atteso; }, 1000));
    return Campo(nome).text();
  }
  void PortaA(int sezione, int posizione) {
    QTextCursor cursore(finestra_.Sezione(sezione).document());
    cursore.setPosition(posizione);
    finestra_.Sezione(sezione).setTextCursor(cursore);
  }

  Finestra finestra_;
};

TEST_F(BarStato, IsThereWithADocumentTypeAndCanBeHidden) {
  EXPECT_EQ(finestra_->findChild<QStatusBar*>("barStato"), nullptr) << "nothing to tell, nothing made";
  finestra_.Scegli(1);
  EXPECT_TRUE(Barra().isVisible());
  EXPECT_EQ(finestra_->centralWidget()->geometry().bottom() + 1, Barra().geometry().top());
  finestra_.Azione("mnuBarraStato").trigger();
  EXPECT_FALSE(Barra().isVisible());
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return finestra_->centralWidget()->geometry().bottom() + 1 == finestra_->height(); }));
  finestra_.Azione("mnuBarraStato").trigger();
  EXPECT_TRUE(Barra().isVisible());
  finestra_.Azione("mnuNuovo").trigger();
  EXPECT_FALSE(Barra().isVisible());
}

TEST_F(BarStato, FollowsKeysCaretSectionAndSelection) {
  finestra_.Scegli(1);
  EXPECT_EQ(Dopo("lblSezione", "Testata: riga 1, col. 1"), "Testata: riga 1, col. 1");
  QTest::keyClicks(&finestra_.Sezione(0), "abc");
  EXPECT_EQ(Dopo("lblSezione", "Testata: riga 1, col. 4"), "Testata: riga 1, col. 4");
  EXPECT_EQ(Campo("lblColCarta").text(), "Stampa: col. 4");
  QTest::keyClick(&finestra_.Sezione(0), Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(Dopo("lblCodice", "1 carattere selezionato"), "1 carattere selezionato");
  finestra_.Sezione(2).setFocus();
  EXPECT_EQ(Dopo("lblSezione", "Piede: riga 1, col. 1"), "Piede: riga 1, col. 1");
  EXPECT_EQ(Campo("lblCodice").text(), "");
}

TEST_F(BarStato, TellsTheCodeThePathAndTheLinesOfTheRun) {
  finestra_.Scegli(1);
  finestra_.Apri("FATT01.IMG");
  PortaA(0, static_cast<int>(finestra_.Sezione(0).toPlainText().indexOf(QString(QChar(0xAB)) + "V")) + 1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Campo("lblCodice").text().startsWith("Variabile "); }, 1000))
      << Campo("lblCodice").text().toStdString();
  EXPECT_EQ(Campo("lblPercorso").text(), QString::fromStdString(finestra_.Modello("FATT01.IMG").string()));
  EXPECT_EQ(Campo("lblPagine").text(), "") << "opening has hidden the preview";
  finestra_.Azione("mnuAnte").trigger();
  EXPECT_EQ(Dopo("lblPagine", "71 righe + fine"), "71 righe + fine");
}

TEST_F(BarStato, ShowsAFieldWholeWhereThereIsRoomForIt) {
  finestra_->resize(1600, 700);
  finestra_.Scegli(1);
  finestra_.Apri("FATT01.IMG");
  finestra_.Azione("mnuAnte").trigger();
  QTest::keyClicks(&finestra_.Sezione(0), "z");
  ASSERT_EQ(Dopo("lblAggiornata", "Anteprima non aggiornata"), "Anteprima non aggiornata");
  for (const char* nome : {"lblSezione", "lblColCarta", "lblAggiornata", "lblPagine"})
    EXPECT_EQ(Campo(nome).toolTip(), "") << nome << ": what is cut is the tooltip";
}

TEST_F(BarStato, GivesTheCodeWhatThePathDoesNotNeed) {
  finestra_->resize(1600, 700);
  finestra_.Scegli(1);
  finestra_.Apri("FATT01.IMG");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !Campo("lblPercorso").text().isEmpty(); }, 1000));
  const int necessaria = Campo("lblPercorso").fontMetrics().horizontalAdvance(Campo("lblPercorso").text());
  EXPECT_EQ(Campo("lblPercorso").toolTip(), "") << "it is whole";
  EXPECT_LT(Campo("lblPercorso").width(), necessaria * 5 / 4);
  EXPECT_GT(Campo("lblCodice").width(), Campo("lblPercorso").width());
}

TEST_F(BarStato, IsReadWholeByAssistiveTechnologiesHoweverNarrow) {
  finestra_.Scegli(1);
  finestra_.Apri("FATT01.IMG");
  finestra_->resize(420, 400);
  const QString percorso = QString::fromStdString(finestra_.Modello("FATT01.IMG").string());
  ASSERT_EQ(Dopo("lblPercorso", percorso), percorso);
  EXPECT_EQ(Campo("lblPercorso").toolTip(), percorso);
  QAccessibleInterface* barra = QAccessible::queryAccessibleInterface(&Barra());
  ASSERT_NE(barra, nullptr);
  EXPECT_EQ(barra->text(QAccessible::Name), "Barra di stato");
  EXPECT_EQ(barra->role(), QAccessible::StatusBar);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&Campo("lblPercorso"))->text(QAccessible::Name), percorso);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&Campo("lblSezione"))->text(QAccessible::Name),
            "Testata: riga 1, col. 1");
}

TEST_F(BarStato, NeverWidensTheWindowOrOverlapsItself) {
  finestra_.Scegli(1);
  const QSize minima = finestra_->minimumSizeHint();
  finestra_.Apri("FATT01.IMG");
  finestra_.Azione("mnuAnte").trigger();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !Campo("lblPagine").text().isEmpty(); }, 1000));
  EXPECT_EQ(finestra_->minimumSizeHint().width(), minima.width());
  for (const int larghezza : {1600, 1024, 600, 300}) {
    finestra_->resize(larghezza, 500);
    int x = 0;
    for (const char* nome :
         {"lblSezione", "lblColCarta", "lblCodice", "lblPercorso", "lblAggiornata", "lblPagine"}) {
      const QRect posto = Campo(nome).geometry();
      EXPECT_GE(posto.left(), x) << nome << larghezza;
      EXPECT_LE(posto.right(), Barra().width()) << nome << larghezza;
      x = posto.left() + posto.width();
    }
    EXPECT_GT(Campo("lblSezione").width(), 30) << larghezza;
  }
}

TEST_F(BarStato, TakesNoFocusAndLeavesTheBoundaryWhereItWasDragged) {
  finestra_.Scegli(1);
  QWidget& vista = *finestra_.Anteprima().viewport();
  QTest::mouseMove(&vista, QPoint(0, 40));
  QTest::mousePress(&vista, Qt::LeftButton, {}, QPoint(0, 40));
  QTest::mouseMove(&vista, QPoint(-70, 40));
  QTest::mouseRelease(&vista, Qt::LeftButton, {}, QPoint(0, 40));
  const int sinistra = finestra_.Anteprima().x();
  const QWidget* focus = QApplication::focusWidget();
  finestra_.Azione("mnuBarraStato").trigger();
  finestra_.Azione("mnuBarraStato").trigger();
  ASSERT_TRUE(Barra().isVisible());
  EXPECT_EQ(finestra_.Anteprima().x(), sinistra);
  EXPECT_EQ(QApplication::focusWidget(), focus);
  finestra_->resize(finestra_->width() + 10, finestra_->height());
  EXPECT_NE(finestra_.Anteprima().x(), sinistra);
}

}  // namespace
}  // namespace parvik
