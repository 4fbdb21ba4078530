// The main window around the code dialogs: print flags, caret status, tooltips.
#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QTest>
#include <QToolTip>

#include "Finestra.h"
#include "output/frmSettaFlag.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::Trova;

frmSettaFlag& FlagPerStampe(Finestra& finestra) {
  return *Trova<frmSettaFlag>(*finestra, "frmSettaFlag");
}

void ImpostaTesto(QPlainTextEdit& editor, const char* utf8) {
  editor.setPlainText(QString::fromUtf8(utf8));
}

TEST(FinestraFlag, TheMenuEntryShowsAndHidesTheWindow) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuSettaFlag").trigger();
  EXPECT_TRUE(FlagPerStampe(finestra).isVisible());
  EXPECT_FALSE(FlagPerStampe(finestra).isModal());
  EXPECT_TRUE(finestra.Azione("mnuSettaFlag").isChecked());
  finestra.Azione("mnuSettaFlag").trigger();
  EXPECT_FALSE(FlagPerStampe(finestra).isVisible());
  EXPECT_FALSE(finestra.Azione("mnuSettaFlag").isChecked());
}

TEST(FinestraFlag, TheCloseBoxHidesTheWindowAndUnchecksTheEntry) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuSettaFlag").trigger();
  FlagPerStampe(finestra).close();
  EXPECT_FALSE(FlagPerStampe(finestra).isVisible());
  EXPECT_FALSE(finestra.Azione("mnuSettaFlag").isChecked());
}

TEST(FinestraFlag, AFlagThatIsSetShowsItsCodeInThePreview) {
  Finestra finestra;
  finestra.Scegli(1);
  ImpostaTesto(finestra.Sezione(0), "«F1N»«V0;\"estero\"»\n");
  finestra.Azione("mnuSettaFlag").trigger();
  auto* lista = Trova<QListWidget>(FlagPerStampe(finestra), "lstFlag");
  lista->item(0)->setSelected(true);
  QTest::mouseClick(Trova<QRadioButton>(FlagPerStampe(finestra), "optVEFA_0"), Qt::LeftButton);
  finestra.Azione("mnuSettaFlag").trigger();
  finestra.Azione("mnuAnte").trigger();
  finestra.Azione("mnuAnte").trigger();
  EXPECT_TRUE(finestra.TestoAnteprima().startsWith("estero\n"));
}

TEST(FinestraFlag, OpeningAFileSetsEveryRowToFalse) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuSettaFlag").trigger();
  auto* lista = Trova<QListWidget>(FlagPerStampe(finestra), "lstFlag");
  lista->selectAll();
  QTest::mouseClick(Trova<QRadioButton>(FlagPerStampe(finestra), "optVEFA_0"), Qt::LeftButton);
  EXPECT_TRUE(lista->item(3)->text().endsWith('V'));
  finestra.Apri("FATT01.IMG");
  for (int i = 0; i < lista->count(); ++i) EXPECT_TRUE(lista->item(i)->text().endsWith('F')) << i;
}

TEST(FinestraFlag, NewHidesTheWindowAndAnotherTypeBringsItsOwnRows) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuSettaFlag").trigger();
  const int fattura = Trova<QListWidget>(FlagPerStampe(finestra), "lstFlag")->count();
  finestra.Azione("mnuNuovo").trigger();
  EXPECT_FALSE(FlagPerStampe(finestra).isVisible());
  EXPECT_FALSE(finestra.Azione("mnuSettaFlag").isChecked());
  finestra.Scegli(12);
  EXPECT_EQ(Trova<QListWidget>(FlagPerStampe(finestra), "lstFlag")->count(), 4 + 3);
  EXPECT_NE(fattura, 4 + 3);
}

TEST(FinestraStato, ArrowKeysAndClicksInThePreviewShowLineAndColumn) {
  Finestra finestra;
  finestra.Scegli(12);
  ImpostaTesto(finestra.Sezione(0), "ab\ncd\n");
  finestra.Azione("mnuAnte").trigger();
  finestra.Azione("mnuAnte").trigger();
  const auto* stato = Trova<QLabel>(*finestra, "lblRighe");
  ricAnte& anteprima = finestra.Anteprima();
  QTest::keyClick(&anteprima, Qt::Key_Up);
  EXPECT_EQ(stato->text(), "Riga: 1 Col.: 1");
  QTest::keyClick(&anteprima, Qt::Key_Down);
  QTest::keyClick(&anteprima, Qt::Key_Right);
  EXPECT_EQ(stato->text(), "Riga: 2 Col.: 2");
  QTest::keyClick(&anteprima, Qt::Key_End);
  EXPECT_EQ(stato->text(), "Riga: 2 Col.: 2") << "other keys leave it as it is";
  QTest::mouseClick(anteprima.viewport(), Qt::LeftButton, {},
                    anteprima.RettangoloDi(anteprima.Cursore()).topLeft() + QPoint(0, 3));
  EXPECT_EQ(stato->text(), "Riga: 2 Col.: 3");
}

TEST(FinestraStato, LineAndColumnShowFromTheFirstShowingOnAndAnewAfterEachRun) {
  Finestra finestra;
  finestra.Scegli(12);
  const auto* stato = Trova<QLabel>(*finestra, "lblRighe");
  ASSERT_TRUE(stato->isVisible());
  EXPECT_EQ(stato->text(), "Riga: 1 Col.: 1") << "nothing was rendered yet";
  ImpostaTesto(finestra.Sezione(0), "ab\ncd\n");
  ricAnte& anteprima = finestra.Anteprima();
  for (int volta = 0; volta < 2; ++volta) {
    finestra.Azione("mnuAnte").trigger();
    finestra.Azione("mnuAnte").trigger();
    EXPECT_EQ(stato->text(), "Riga: 1 Col.: 1") << "the caret is at the start of what was rendered";
    QTest::keyClick(&anteprima, Qt::Key_Down);
    QTest::keyClick(&anteprima, Qt::Key_Right);
    EXPECT_EQ(stato->text(), "Riga: 2 Col.: 2");
  }
}

TEST(FinestraStato, LineAndColumnStandAnewAfterALongRunToo) {
  Finestra finestra;
  finestra.Scegli(12);
  finestra.Azione("mnuAnte").trigger();
  ImpostaTesto(finestra.Sezione(0), (std::string(1'500'000, 'x') + "\n").c_str());
  finestra.Azione("mnuAnte").trigger();
  EXPECT_TRUE(finestra.TestoAnteprima().endsWith("--- Fine file ---"));
  EXPECT_EQ(Trova<QLabel>(*finestra, "lblRighe")->text(), "Riga: 1 Col.: 1");
}

TEST(FinestraStato, LabelsKeepTheirColoursWhileADialogHasTheFocus) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Sezione(1).setFocus();
  const auto rossa = [&finestra](const char* nome) {
    return Trova<QLabel>(*finestra, nome)->palette().color(QPalette::WindowText) == QColor(255, 0, 0);
  };
  prova::NelProssimoDialogo([&rossa](QDialog& dialogo) {
    EXPECT_TRUE(rossa("lblTCP_1"));
    EXPECT_FALSE(rossa("lblTCP_0"));
    dialogo.reject();
  });
  finestra.Azione("mnuPagina").trigger();
  EXPECT_TRUE(rossa("lblTCP_1"));
}

TEST(FinestraStato, TheMouseOverALabelEndsTheSizingPointerAndNoOther) {
  Finestra finestra;
  finestra.Scegli(1);
  auto* etichetta = Trova<QLabel>(*finestra, "lblTCP_1");
  QApplication::setOverrideCursor(Qt::IBeamCursor);
  QTest::mouseMove(etichetta, QPoint(3, 3));
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::IBeamCursor);
  QApplication::changeOverrideCursor(Qt::SizeHorCursor);
  QTest::mouseMove(etichetta, QPoint(4, 9));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
}

TEST(FinestraCodici, TheDialogOffersTheVariablesOfTheActiveSection) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Sezione(2).setFocus();
  QString prima;
  prova::NelProssimoDialogo([&prima](QDialog& dialogo) {
    prima = Trova<QListWidget>(dialogo, "lstVar")->item(0)->text();
    dialogo.reject();
  });
  finestra.Azione("mnuVar").trigger();
  EXPECT_EQ(prima, "Totale merce");
}

/// What the mouse over a place of that part of a character is told.
QString Descrizione(QPlainTextEdit& sezione, int posizione, double parte = 0.4) {
  QTextCursor cursore(sezione.document());
  cursore.setPosition(posizione);
  const QRect davanti = sezione.cursorRect(cursore);
  const int larghezza = sezione.fontMetrics().horizontalAdvance(u'M');
  const QPoint punto(davanti.left() + static_cast<int>(larghezza * parte), davanti.center().y());
  for (QWidget* finestra : QApplication::topLevelWidgets())
    if (finestra->inherits("QTipLabel")) finestra->hide();  // by itself it goes a little later
  QHelpEvent evento(QEvent::ToolTip, punto, sezione.viewport()->mapToGlobal(punto));
  QApplication::sendEvent(sezione.viewport(), &evento);
  return QToolTip::isVisible() ? QToolTip::text() : QString();
}

TEST(FinestraCodici, TheMouseOverACodeTellsWhatItIs) {
  Finestra finestra;
  finestra.Scegli(1);
  QPlainTextEdit& piede = finestra.Sezione(2);
  ImpostaTesto(piede, "«V201;15R;.0,2;1» «V9;1L»");
  EXPECT_TRUE(Descrizione(piede, 3).startsWith("Variabile 201 · Totale merce · 15 caratteri a destra"))
      << Descrizione(piede, 3).toStdString();
  EXPECT_TRUE(Descrizione(piede, 20).startsWith("Variabile 9 · sconosciuta"))
      << Descrizione(piede, 20).toStdString();
}

TEST(FinestraCodici, BothHalvesOfACharacterAreTheCharacter) {
  Finestra finestra;
  finestra.Scegli(1);
  QPlainTextEdit& testata = finestra.Sezione(0);
  ImpostaTesto(testata, "ab«V9;1L»cd");
  for (const double parte : {0.2, 0.8}) {
    const testing::ScopedTrace dove(__FILE__, __LINE__, parte);
    EXPECT_EQ(Descrizione(testata, 1, parte), "") << "in front of the code";
    EXPECT_TRUE(Descrizione(testata, 2, parte).startsWith("Variabile 9")) << "its opening delimiter";
    EXPECT_TRUE(Descrizione(testata, 8, parte).startsWith("Variabile 9")) << "its closing delimiter";
    EXPECT_EQ(Descrizione(testata, 9, parte), "") << "behind the code";
  }
}

TEST(FinestraCodici, AnotherTypesTooltipsAreItsOwn) {
  Finestra finestra;
  const auto descritta = [&finestra](int tipo) {
    finestra.Scegli(tipo);
    ImpostaTesto(finestra.Sezione(0), "«V1;5L»");
    return Descrizione(finestra.Sezione(0), 2);
  };
  const QString fattura = descritta(1);
  EXPECT_TRUE(fattura.startsWith("Variabile 1 · ")) << fattura.toStdString();
  finestra.Persona().Rispondera(Risposta::No);
  finestra.Azione("mnuNuovo").trigger();
  const QString listino = descritta(12);
  EXPECT_TRUE(listino.startsWith("Variabile 1 · ")) << listino.toStdString();
  EXPECT_NE(listino, fattura);
}

TEST(FinestraCodici, ASelectionThatCutsACodeGrowsBeforeADialogThatInsertsOne) {
  Finestra finestra;
  finestra.Scegli(1);
  QPlainTextEdit& testata = finestra.Sezione(0);
  for (const bool daMenu : {false, true}) {
    ImpostaTesto(testata, "xab«V1;2L»y");
    QTextCursor cursore(testata.document());
    cursore.setPosition(1);
    cursore.setPosition(6, QTextCursor::KeepAnchor);
    testata.setTextCursor(cursore);
    prova::NelProssimoDialogo([](QDialog& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Return); });
    if (daMenu) {
      finestra.Azione("mnuPagina").trigger();
      EXPECT_EQ(testata.toPlainText(), "x«P1»y");
    } else {
      QTest::keyClick(&testata, Qt::Key_F4);
      EXPECT_TRUE(testata.toPlainText().startsWith("x«V")) << testata.toPlainText().toStdString();
      EXPECT_TRUE(testata.toPlainText().endsWith("»y"));
      EXPECT_EQ(testata.toPlainText().count(u'»'), 1);
    }
    finestra.Attiva();
  }
}

}  // namespace
}  // namespace parvik
