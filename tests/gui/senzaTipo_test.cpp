// The main window without a document type: nothing of a section works, at the start and after New.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QDropEvent>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QToolTip>

#include "Finestra.h"
#include "common/qtTesto.h"
#include "output/frmSettaFlag.h"
#include "template/txtTCP.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::Trova;

enum class Quando { AllAvvio, DopoNuovo };

void PrintTo(Quando quando, std::ostream* uscita) {
  *uscita << (quando == Quando::AllAvvio ? "at the start" : "after New");
}

/// Each test tries something out; what must not have come of it is looked at in the end.
class SenzaTipo : public testing::TestWithParam<Quando> {
 protected:
  SenzaTipo() {
    if (GetParam() == Quando::DopoNuovo) {
      finestra_.Scegli(1);
      finestra_.Apri("FATT01.IMG");
      finestra_.Sezione(0).setFocus();
      QTextCursor cursore(finestra_.Sezione(0).document());
      cursore.setPosition(static_cast<int>(finestra_.Sezione(0).toPlainText().indexOf(QChar(0xAB))) + 2);
      finestra_.Sezione(0).setTextCursor(cursore);
      QTest::keyClick(&*finestra_, Qt::Key_N, Qt::ControlModifier);
    }
    for (const QPlainTextEdit* sezione : Sezioni()) testi_ += sezione->toPlainText();
    QApplication::clipboard()->setText("incollato");
  }

  void TearDown() override {
    EXPECT_EQ(finestra_->windowTitle(), "Ordavia");
    QStringList testi;
    for (const QPlainTextEdit* sezione : Sezioni()) {
      testi += sezione->toPlainText();
      EXPECT_FALSE(sezione->hasFocus());
    }
    EXPECT_EQ(testi, testi_);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(finestra_.Azione("mnuScelta").isEnabled());
    EXPECT_TRUE(finestra_->close()) << "not modified: nothing is asked";
  }

  std::array<txtTCP*, 3> Sezioni() {
    std::array<txtTCP*, 3> sezioni = {};
    for (int i = 0; i < 3; ++i)
      sezioni[static_cast<std::size_t>(i)] = &static_cast<txtTCP&>(finestra_.Sezione(i));
    return sezioni;
  }

  Finestra finestra_;
  QStringList testi_;
};

INSTANTIATE_TEST_SUITE_P(Stati, SenzaTipo, testing::Values(Quando::AllAvvio, Quando::DopoNuovo),
                         [](const auto& caso) {
                           return caso.param == Quando::AllAvvio ? "AllAvvio" : "DopoNuovo";
                         });

TEST_P(SenzaTipo, NoCommandThatNeedsATypeRunsHoweverItIsCalled) {
  for (const VoceMenu& voce : VociMenu()) {
    if (voce.Quando == Uso::Sempre || voce.Quando == Uso::SenzaTipo) continue;
    const testing::ScopedTrace dove(__FILE__, __LINE__, voce.Nome);
    QAction& azione = finestra_.Azione(voce.Nome);
    EXPECT_FALSE(azione.isEnabled());
    azione.trigger();
    azione.activate(QAction::Trigger);
    emit azione.triggered();
    emit azione.triggered(true);
  }
  for (const char* nome : {"frmTotRighe", "frmSettaFlag"}) {
    const auto* finestrella = finestra_->findChild<QWidget*>(nome);
    EXPECT_TRUE(finestrella == nullptr || !finestrella->isVisible()) << nome;
  }
  EXPECT_FALSE(finestra_.Anteprima().isVisible());
}

TEST_P(SenzaTipo, NoKeyDoesAnythingInAHiddenSection) {
  const std::vector<Qt::Key> tasti = {Qt::Key_F4,     Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Space,
                                      Qt::Key_Return, Qt::Key_A,         Qt::Key_V,      Qt::Key_X,
                                      Qt::Key_Z,      Qt::Key_K,         Qt::Key_D,      Qt::Key_Left,
                                      Qt::Key_Home,   Qt::Key_Tab,       Qt::Key_Insert, Qt::Key_Escape};
  const std::vector<Qt::KeyboardModifiers> modificatori = {Qt::NoModifier, Qt::ShiftModifier,
                                                           Qt::ControlModifier, Qt::AltModifier};
  for (txtTCP* sezione : Sezioni()) {
    for (const Qt::Key tasto : tasti) {
      for (const Qt::KeyboardModifiers con : modificatori) {
        QKeyEvent premuto(QEvent::KeyPress, tasto, con, tasto < 0x100 ? QString(QChar(tasto)) : QString());
        QApplication::sendEvent(sezione, &premuto);
        QTest::keyClick(sezione, tasto, con);
        // An access key of the window opens its menu, here as anywhere.
        if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
      }
    }
  }
}

TEST_P(SenzaTipo, WhatIsTypedGoesToTheWindowAndItsMenus) {
  for (const Qt::Key tasto : {Qt::Key_X, Qt::Key_Y, Qt::Key_F4, Qt::Key_Backspace}) {
    QTest::keyClick(QApplication::focusWidget() == nullptr ? &*finestra_ : QApplication::focusWidget(),
                    tasto);
  }
  EXPECT_EQ(finestra_->focusWidget(), &*finestra_);
  QTest::keyClick(&*finestra_, Qt::Key_F, Qt::AltModifier);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(QApplication::activePopupWidget()->objectName(), "mnuFile");
  QApplication::activePopupWidget()->close();
}

TEST_P(SenzaTipo, NothingIsPastedComposedOrDroppedIntoAHiddenSection) {
  for (txtTCP* sezione : Sezioni()) {
    sezione->selectAll();
    sezione->paste();
    sezione->cut();
    QInputMethodEvent comincia("e", {});
    QApplication::sendEvent(sezione, &comincia);
    QInputMethodEvent finisce;
    finisce.setCommitString("è");
    QApplication::sendEvent(sezione, &finisce);
    QMimeData dati;
    dati.setText("lasciato");
    QDragEnterEvent entra(QPoint(3, 3), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(sezione->viewport(), &entra);
    QDropEvent lasciato(QPointF(3, 3), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(sezione->viewport(), &lasciato);
    EXPECT_TRUE(sezione->document()->begin().layout()->preeditAreaText().isEmpty());
  }
}

TEST_P(SenzaTipo, TheMouseOnAHiddenSectionOpensAndTellsNothing) {
  for (txtTCP* sezione : Sezioni()) {
    for (int x = 1; x < 60; x += 7) {
      const QPoint punto(x, 8);
      QTest::mouseClick(sezione->viewport(), Qt::LeftButton, {}, punto);
      QTest::mouseDClick(sezione->viewport(), Qt::LeftButton, {}, punto);
      QTest::mouseClick(sezione->viewport(), Qt::MiddleButton, {}, punto);
      QContextMenuEvent menu(QContextMenuEvent::Mouse, punto, sezione->viewport()->mapToGlobal(punto));
      QApplication::sendEvent(sezione->viewport(), &menu);
      QHelpEvent aiuto(QEvent::ToolTip, punto, sezione->viewport()->mapToGlobal(punto));
      QApplication::sendEvent(sezione->viewport(), &aiuto);
      EXPECT_EQ(QToolTip::text(), "");
    }
  }
}

TEST_P(SenzaTipo, AssistiveTechnologiesEditNoHiddenSection) {
  for (txtTCP* sezione : Sezioni()) {
    QAccessibleInterface* interfaccia = QAccessible::queryAccessibleInterface(sezione);
    ASSERT_NE(interfaccia, nullptr);
    EXPECT_FALSE(interfaccia->state().editable);
    QAccessibleEditableTextInterface* testo = interfaccia->editableTextInterface();
    testo->insertText(0, "a b");
    testo->insertText(0, "\n");
    testo->deleteText(0, 1);
    testo->replaceText(0, interfaccia->textInterface()->characterCount(), "altro");
    interfaccia->setText(QAccessible::Value, "altro");
    if (QAccessibleActionInterface* azioni = interfaccia->actionInterface())
      azioni->doAction(QAccessibleActionInterface::setFocusAction());
    sezione->setFocus();
  }
}

TEST_P(SenzaTipo, NoSignalThatTheWindowListensToDoesAnything) {
  for (txtTCP* sezione : Sezioni()) {
    emit sezione->Attivata(Sezione::Piede);
    emit sezione->CodiceDaAprire("V1;2L");
    emit sezione->CodiceDaAprire("S;NORMALE");
    emit sezione->VariabileDaInserire();
    emit sezione->TastoPremuto();
    emit sezione->DaAnnullare();
    emit sezione->DaRipetere();
    QFocusEvent focus(QEvent::FocusIn);
    QApplication::sendEvent(sezione, &focus);
  }
  if (auto* flag = finestra_->findChild<frmSettaFlag*>()) emit flag->Nascosta();
  emit finestra_.Anteprima().CursoreMosso();
}

TEST(SenzaTipoFlag, ThePrintFlagsWindowThatNewHidTellsNothing) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuSettaFlag").trigger();
  finestra.Azione("mnuNuovo").trigger();
  emit Trova<frmSettaFlag>(*finestra, "frmSettaFlag")->Nascosta();
  EXPECT_FALSE(finestra.Azione("mnuSettaFlag").isChecked());
}

TEST(SenzaTipoUnaSezione, TheSectionsThatATypeDoesNotHaveTakeNothingEither) {
  Finestra finestra;
  finestra.Scegli(12);
  const QString corpo = finestra.Sezione(1).toPlainText();
  QTest::keyClick(&finestra.Sezione(1), Qt::Key_A);
  emit static_cast<txtTCP&>(finestra.Sezione(1)).TastoPremuto();
  emit static_cast<txtTCP&>(finestra.Sezione(1)).Attivata(Sezione::Corpo);
  EXPECT_EQ(finestra.Sezione(1).toPlainText(), corpo);
  EXPECT_TRUE(finestra->close()) << "not modified";
}

TEST(SenzaTipoUnaSezione, TheTestataWorksAgainWithTheNextType) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuNuovo").trigger();
  finestra.Scegli(12);
  EXPECT_TRUE(finestra.Sezione(0).hasFocus());
  QTest::keyClicks(QApplication::focusWidget(), "ab");
  EXPECT_EQ(finestra.Sezione(0).toPlainText(), "ab\n");
}

}  // namespace
}  // namespace parvik
