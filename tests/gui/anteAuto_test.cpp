// "Anteprima automatica" in the window, with real keys.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include "Finestra.h"
#include "common/qtTesto.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::Trova;

/// Three sections; the preview is shown, and follows by itself.
class AnteAuto : public testing::Test {
 protected:
  AnteAuto() {
    finestra_.Scegli(1);
    finestra_.Azione("mnuAnteAuto").trigger();
    finestra_.Sezione(0).setFocus();
  }

  void Scrivi(const char* testo) { QTest::keyClicks(&finestra_.Sezione(0), testo); }
  void Premi(Qt::Key tasto, Qt::KeyboardModifiers con = {}) {
    QTest::keyClick(&finestra_.Sezione(0), tasto, con);
  }
  ricAnte& Pannello() { return finestra_.Anteprima(); }
  std::string Mostrata() { return finestra_.TestoAnteprima().toStdString(); }
  /// The beginning of what the pane shows, once it is that.
  void Mostrera(const std::string& inizio) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Mostrata().starts_with(inizio); }))
        << "it shows " << Mostrata().substr(0, 200);
  }
  /// A Testata of so many lines: "riga 0", "riga 1" and so on.
  void ScriviRighe(int quante, const char* coda = "") {
    QString testo;
    for (int i = 0; i < quante; ++i) testo += QStringLiteral("riga %1%2\n").arg(i).arg(coda);
    finestra_.Sezione(0).setPlainText(testo);
  }
  int PrimaRiga() { return Pannello().verticalScrollBar()->value(); }
  std::size_t Posto(const char* parola) { return Pannello().Contenuto().Testo().find(parola); }

  Finestra finestra_;
};

TEST_F(AnteAuto, WhatIsTypedShowsInThePreviewByItself) {
  Scrivi("uno");
  EXPECT_EQ(Mostrata(), "") << "not in the middle of a key";
  Mostrera("uno\n");
  Scrivi(" due");
  Mostrera("uno due\n");
}

TEST_F(AnteAuto, ABurstOfKeysIsOneRun) {
  int volte = 0;
  QObject::connect(&Pannello(), &ricAnte::Mostrata, &Pannello(), [&volte] { ++volte; });
  Scrivi("tante lettere");
  Mostrera("tante lettere\n");
  EXPECT_EQ(volte, 1);
}

TEST_F(AnteAuto, UndoAndRedoShowByThemselves) {
  Scrivi("uno");
  Mostrera("uno\n");
  Premi(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Mostrata().empty(); }));
  Premi(Qt::Key_Y, Qt::ControlModifier);
  Mostrera("uno\n");
}

TEST_F(AnteAuto, APrintFlagThatIsSetInItsWindowShowsByItself) {
  finestra_.Sezione(0).setPlainText(QString::fromUtf8("[«F97»«P7»]\n"));
  Mostrera("[]\n");
  finestra_.Azione("mnuSettaFlag").trigger();
  auto* flag = Trova<QDialog>(*finestra_, "frmSettaFlag");
  Trova<QListWidget>(*flag, "lstFlag")->selectAll();
  QTest::mouseClick(Trova<QRadioButton>(*flag, "optVEFA_0"), Qt::LeftButton);
  Mostrera("[7]\n");
  QTest::mouseClick(Trova<QRadioButton>(*flag, "optVEFA_1"), Qt::LeftButton);
  Mostrera("[]\n");
}

TEST_F(AnteAuto, TurningItOnRendersWhatHasChangedMeanwhile) {
  finestra_.Azione("mnuAnteAuto").trigger();
  Scrivi("uno");
  Finestra::Calma();
  EXPECT_EQ(Mostrata(), "") << "off, editing never refreshes it";
  finestra_.Azione("mnuAnteAuto").trigger();
  Mostrera("uno\n");
}

TEST_F(AnteAuto, ALongTemplateFollowsToo) {
  ScriviRighe(60'000);
  Mostrera("riga 0\n");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Mostrata().find("riga 59999\n") != std::string::npos; }));
  Scrivi("x");
  Scrivi("y");
  Mostrera("xyriga 0\n");
}

TEST_F(AnteAuto, ScrollPlaceCaretAndSelectionStayWithTheirText) {
  ScriviRighe(300);
  Mostrera("riga 0\n");
  const std::size_t prima = Posto("riga 150");
  Pannello().Seleziona(prima, prima + 8);
  Pannello().verticalScrollBar()->setValue(148);
  QTest::keyClick(&finestra_.Sezione(0), Qt::Key_Home, Qt::ControlModifier);
  finestra_.Azione("mnuAnteAuto").trigger();  // the marks are not to scroll here
  Scrivi("a");
  Premi(Qt::Key_Return);
  finestra_.Azione("mnuAnteAuto").trigger();
  Mostrera("a\nriga 0\n");
  EXPECT_EQ(Pannello().Contenuto().Testo().substr(Pannello().Selezionato().Inizio, 8), "riga 150");
  EXPECT_EQ(Pannello().Selezionato().Lunghezza, 8U);
}

TEST_F(AnteAuto, WhatIsTypedIsKeptInSight) {
  ScriviRighe(300);
  Mostrera("riga 0\n");
  EXPECT_EQ(PrimaRiga(), 0);
  Premi(Qt::Key_End, Qt::ControlModifier);
  Premi(Qt::Key_Up);
  Scrivi("x");
  EXPECT_TRUE(QTest::qWaitFor([this] { return PrimaRiga() > 200; }));
  const QRect qui = Pannello().RettangoloDi(Posto("xriga 299"));
  EXPECT_TRUE(Pannello().viewport()->rect().contains(qui));
}

TEST_F(AnteAuto, ARunByCommandPutsTheCaretAtTheStart) {
  ScriviRighe(10);
  Mostrera("riga 0\n");
  Pannello().Seleziona(20, 20);
  finestra_.Azione("mnuAnte").trigger();
  finestra_.Azione("mnuAnte").trigger();
  EXPECT_EQ(Pannello().Cursore(), 0U);
}

TEST_F(AnteAuto, GivingTheTypeUpWhileALongRunIsUnderWayIsSafe) {
  ScriviRighe(200'000);
  QTest::qWait(1);
  finestra_.Persona().Rispondera(Risposta::No);
  finestra_.Azione("mnuNuovo").trigger();
  EXPECT_FALSE(Pannello().isVisible());
  finestra_.Scegli(12);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Mostrata().empty(); }));
  Scrivi("uno");
  Mostrera("uno\n");
}

TEST_F(AnteAuto, ClosingTheWindowWhileALongRunIsUnderWayIsSafe) {
  ScriviRighe(200'000);
  QTest::qWait(1);
  finestra_.Persona().Rispondera(Risposta::No);
  finestra_->close();
  EXPECT_FALSE(finestra_->isVisible());
}

TEST_F(AnteAuto, ACommandThatRendersMeanwhileIsTheOneThatCounts) {
  ScriviRighe(400'000);
  QTest::qWait(1);
  finestra_.Azione("mnuAnte").trigger();
  finestra_.Azione("mnuAnte").trigger();
  EXPECT_TRUE(Mostrata().find("riga 399999\n") != std::string::npos);
  EXPECT_EQ(Pannello().Cursore(), 0U);
}

}  // namespace
}  // namespace parvik
