// Undo and redo in the window, over all sections.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include "Finestra.h"
#include "template/txtTCP.h"

namespace parvik {
namespace {

using prova::Contenuto;
using prova::Finestra;
using prova::NelProssimoDialogo;
using prova::Trova;

QMenu* MenuAperto() {
  for (QWidget* finestra : QApplication::topLevelWidgets())
    if (auto* menu = qobject_cast<QMenu*>(finestra); menu != nullptr && menu->isVisible()) return menu;
  return nullptr;
}

class Annulla : public testing::Test {
 protected:
  Annulla() {
    finestra_.Scegli(1);
    finestra_.Attiva();
  }

  void Scrivi(int sezione, const char* testo) {
    finestra_.Sezione(sezione).setFocus();
    QTest::keyClicks(QApplication::focusWidget(), testo);
  }
  static void Premi(Qt::Key tasto, Qt::KeyboardModifiers con = Qt::ControlModifier) {
    QTest::keyClick(QApplication::focusWidget(), tasto, con);
  }
  std::string Testo(int sezione) { return finestra_.Sezione(sezione).toPlainText().toStdString(); }

  Finestra finestra_;
};

TEST_F(Annulla, CtrlZTakesTheLastChangeBackWhereverItWasAndGoesThere) {
  Scrivi(0, "uno");
  Scrivi(2, "due");
  finestra_.Sezione(1).setFocus();
  Premi(Qt::Key_Z);
  EXPECT_EQ(Testo(2), "\n");
  EXPECT_TRUE(finestra_.Sezione(2).hasFocus());
  Premi(Qt::Key_Z);
  EXPECT_EQ(Testo(0), "\n");
  EXPECT_TRUE(finestra_.Sezione(0).hasFocus());
  Premi(Qt::Key_Z);
  EXPECT_EQ(Testo(0) + Testo(1) + Testo(2), "\n\n\n");
}

TEST_F(Annulla, CtrlYAndCtrlShiftZDoItAgain) {
  Scrivi(0, "uno");
  Scrivi(2, "due");
  Premi(Qt::Key_Z);
  Premi(Qt::Key_Z);
  Premi(Qt::Key_Y);
  EXPECT_EQ(Testo(0), "uno\n");
  Premi(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Testo(2), "due\n");
  EXPECT_TRUE(finestra_.Sezione(2).hasFocus());
  EXPECT_EQ(finestra_.Sezione(2).textCursor().position(), 3);
}

TEST_F(Annulla, TheSelectionThatACodeReplacedComesBackWithIt) {
  Scrivi(0, "abcd");
  finestra_.Sezione(0).moveCursor(QTextCursor::Left, QTextCursor::KeepAnchor);
  finestra_.Sezione(0).moveCursor(QTextCursor::Left, QTextCursor::KeepAnchor);
  NelProssimoDialogo([](QDialog& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Return); });
  finestra_.Azione("mnuStile").trigger();
  finestra_.Attiva();
  EXPECT_NE(Testo(0), "abcd\n");
  Premi(Qt::Key_Z);
  EXPECT_EQ(Testo(0), "abcd\n");
  EXPECT_EQ(finestra_.Sezione(0).textCursor().selectedText(), "cd");
}

TEST_F(Annulla, AFlagAndItsVariableFromOneDialogAreOneStep) {
  finestra_.Sezione(0).setFocus();
  NelProssimoDialogo([](QDialog& dialogo) {
    NelProssimoDialogo([](QDialog& flag) { QTest::keyClick(&flag, Qt::Key_Return); });
    Trova<QPushButton>(dialogo, "cmdFlag")->click();
    QTest::keyClick(&dialogo, Qt::Key_Return);
  });
  finestra_.Azione("mnuVar").trigger();
  finestra_.Attiva();
  EXPECT_EQ(QString::fromStdString(Testo(0)).count(u'\u00AB'), 2);
  Premi(Qt::Key_Z);
  EXPECT_EQ(Testo(0), "\n");
}

TEST_F(Annulla, UndoMakesASavedTemplateModifiedAgain) {
  finestra_.Apri("FATT01.IMG");
  finestra_.Attiva();
  const std::string prima = Contenuto(finestra_.Modello("FATT01.IMG"));
  Scrivi(0, "x");
  finestra_.Azione("mnuSalva").trigger();
  EXPECT_NE(Contenuto(finestra_.Modello("FATT01.IMG")), prima);
  Premi(Qt::Key_Z);
  finestra_.Persona().Rispondera(Risposta::Si);
  EXPECT_TRUE(finestra_->close());
  EXPECT_EQ(Contenuto(finestra_.Modello("FATT01.IMG")), prima);
}

TEST_F(Annulla, NothingIsLeftToUndoAfterOpenNewAndAnotherType) {
  Scrivi(0, "x");
  finestra_.Persona().Rispondera(Risposta::No);
  finestra_.Apri("FATT01.IMG");
  finestra_.Attiva();
  const std::string aperto = Testo(0);
  finestra_.Sezione(0).setFocus();
  Premi(Qt::Key_Z);
  EXPECT_EQ(Testo(0), aperto);
  Scrivi(0, "y");
  finestra_.Persona().Rispondera(Risposta::No);
  finestra_.Azione("mnuNuovo").trigger();
  finestra_.Scegli(1);
  finestra_.Attiva();
  Premi(Qt::Key_Z);
  Premi(Qt::Key_Y);
  EXPECT_EQ(Testo(0), "\n");
}

TEST_F(Annulla, SaveAsKeepsTheHistoryAndItsReadingBackIsOneStep) {
  Scrivi(0, "a");
  finestra_.Sezione(1).setFocus();
  finestra_.Sezione(1).selectAll();
  Premi(Qt::Key_Delete, Qt::NoModifier);
  QTest::keyClicks(QApplication::focusWidget(), "corpo");
  finestra_.Persona().Scegliera(finestra_.Modello("NUOVO001.IMG"));
  finestra_.Azione("mnuSalvaNome").trigger();
  EXPECT_EQ(Testo(1), "corpo\n");
  Premi(Qt::Key_Z);
  EXPECT_EQ(Testo(1), "corpo");
  Premi(Qt::Key_Z);
  EXPECT_EQ(Testo(1), "");
}

TEST_F(Annulla, WhatIsTypedBeforeAndBehindAMoveOfTheCaretIsTwoSteps) {
  Scrivi(0, "ab");
  QTest::keyClick(&finestra_.Sezione(0), Qt::Key_Left);
  QTest::keyClick(&finestra_.Sezione(0), Qt::Key_Right);
  Scrivi(0, "c");
  EXPECT_EQ(Testo(0), "abc\n");
  Premi(Qt::Key_Z);
  EXPECT_EQ(Testo(0), "ab\n");
}

TEST_F(Annulla, WhatAnInputMethodCommitsOverASelectionIsOneStepWithIt) {
  Scrivi(0, "ab");
  finestra_.Sezione(0).selectAll();
  QInputMethodEvent composto;
  composto.setCommitString(QStringLiteral("è"));
  QApplication::sendEvent(&finestra_.Sezione(0), &composto);
  EXPECT_EQ(Testo(0), "è");
  Premi(Qt::Key_Z);
  EXPECT_EQ(Testo(0), "ab\n");
}

TEST_F(Annulla, UndoEndsAComposition) {
  Scrivi(0, "ab");
  QInputMethodEvent inCorso(QStringLiteral("´"), {});
  QApplication::sendEvent(&finestra_.Sezione(0), &inCorso);
  EXPECT_FALSE(finestra_.Sezione(0).textCursor().block().layout()->preeditAreaText().isEmpty());
  Premi(Qt::Key_Z);
  EXPECT_TRUE(finestra_.Sezione(0).textCursor().block().layout()->preeditAreaText().isEmpty());
  EXPECT_EQ(Testo(0), "\n");
}

TEST_F(Annulla, TheContextMenuUndoesInTheDocumentToo) {
  Scrivi(0, "uno");
  Scrivi(2, "due");
  QContextMenuEvent evento(QContextMenuEvent::Mouse, {5, 5}, finestra_.Sezione(0).mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(finestra_.Sezione(0).viewport(), &evento);
  QMenu* menu = MenuAperto();
  ASSERT_NE(menu, nullptr);
  EXPECT_FALSE(Trova<QAction>(*menu, "edit-redo")->isEnabled());
  Trova<QAction>(*menu, "edit-undo")->trigger();
  EXPECT_EQ(Testo(2), "\n");
  EXPECT_EQ(Testo(0), "uno\n");
}

TEST_F(Annulla, TellsWhatItWouldUndo) {
  const auto didascalia = [this](const char* nome) { return finestra_.Azione(nome).text(); };
  EXPECT_EQ(didascalia("mnuAnnulla"), "&Annulla");
  Scrivi(0, "uno");
  EXPECT_EQ(didascalia("mnuAnnulla"), "&Annulla battitura");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(didascalia("mnuAnnulla"), "&Annulla a capo");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
  EXPECT_EQ(didascalia("mnuAnnulla"), "&Annulla cancellazione");
  QApplication::clipboard()->setText("x");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(didascalia("mnuAnnulla"), "&Annulla incolla");
  NelProssimoDialogo([](QDialog& dialogo) { Trova<QPushButton>(dialogo, "cmdOk")->click(); });
  finestra_.Azione("mnuVar").trigger();
  finestra_.Attiva();
  EXPECT_EQ(didascalia("mnuAnnulla"), "&Annulla inserimento codice");
  EXPECT_EQ(didascalia("mnuRipeti"), "&Ripeti");
  finestra_.Sezione(0).setFocus();
  Premi(Qt::Key_Z);
  EXPECT_EQ(didascalia("mnuRipeti"), "&Ripeti inserimento codice");
  EXPECT_EQ(didascalia("mnuAnnulla"), "&Annulla incolla");
}

class MenuDellaSezione : public Annulla {
 protected:
  MenuDellaSezione() { finestra_.Sezione(0).setPlainText("ab «V4;30L»\n"); }

  QMenu& Apri(int posto) {
    QPlainTextEdit& sezione = finestra_.Sezione(0);
    QTextCursor cursore = sezione.textCursor();
    cursore.setPosition(posto);
    const QPoint punto = sezione.cursorRect(cursore).center() + QPoint(2, 0);
    QContextMenuEvent evento(QContextMenuEvent::Mouse, punto, sezione.viewport()->mapToGlobal(punto));
    QApplication::sendEvent(sezione.viewport(), &evento);
    QMenu* menu = MenuAperto();
    if (menu == nullptr) qFatal("no menu");
    return *menu;
  }
  static QStringList Voci(const QMenu& menu) {
    QStringList voci;
    for (const QAction* voce : menu.actions()) voci += voce->text().section('\t', 0, 0);
    return voci;
  }
};

TEST_F(MenuDellaSezione, SpeaksItalian) {
  QMenu& menu = Apri(0);
  EXPECT_EQ(Voci(menu), (QStringList{"&Annulla", "&Ripeti", "", "&Taglia", "&Copia", "&Incolla", "&Elimina",
                                     "", "&Seleziona tutto"}));
  EXPECT_FALSE(Trova<QAction>(menu, "edit-cut")->isEnabled());
  Trova<QAction>(menu, "select-all")->trigger();
  EXPECT_TRUE(finestra_.Sezione(0).textCursor().hasSelection());
}

TEST_F(MenuDellaSezione, SaysWhatACodeIsAndOpensIt) {
  QMenu& menu = Apri(5);
  const QStringList voci = Voci(menu);
  EXPECT_EQ(voci.mid(9, 4), (QStringList{"", "A&pri codice", "C&opia codice", "&Flag davanti..."}));
  EXPECT_TRUE(voci.last().startsWith("Variabile 4 ")) << voci.last().toStdString();
  EXPECT_FALSE(menu.actions().last()->isEnabled());
  Trova<QAction>(menu, "copiaCodice")->trigger();
  EXPECT_EQ(QApplication::clipboard()->text(), "«V4;30L»");
  std::string aperto;
  NelProssimoDialogo([&aperto](QDialog& dialogo) {
    aperto = dialogo.objectName().toStdString();
    QTest::keyClick(&dialogo, Qt::Key_Escape);
    dialogo.reject();
  });
  Trova<QAction>(menu, "apriCodice")->trigger();
  EXPECT_EQ(aperto, "frmVar");
}

TEST_F(MenuDellaSezione, PutsAFlagInFrontOfACode) {
  QMenu& menu = Apri(6);
  NelProssimoDialogo([](QDialog& dialogo) { Trova<QPushButton>(dialogo, "cmdOk")->click(); });
  Trova<QAction>(menu, "flagDavanti")->trigger();
  const QString testo = finestra_.Sezione(0).toPlainText();
  EXPECT_TRUE(testo.startsWith("ab «F") && testo.endsWith("»«V4;30L»\n")) << testo.toStdString();
}

TEST_F(Annulla, AnUndoDoesNotCountAsAKeyWhereThereIsNothingToUndo) {
  finestra_.Sezione(0).setFocus();
  Premi(Qt::Key_Z);
  Premi(Qt::Key_Y);
  EXPECT_TRUE(finestra_->close()) << "not modified";
}

}  // namespace
}  // namespace parvik
