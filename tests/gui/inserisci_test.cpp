// The box at the caret in which a code is looked for and inserted (docs/pannello-campi.md).
#include <gtest/gtest.h>

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTreeView>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::NelProssimoDialogo;
using prova::Trova;

class InserisciCodice : public testing::Test {
 protected:
  InserisciCodice() {
    finestra_.Persona().RisponderaSeChiesto(Risposta::No);
    finestra_.Scegli(1);
    finestra_.Apri("FATT01.IMG");
    Testata().setFocus();
    QTextCursor cursore(Testata().document());
    cursore.movePosition(QTextCursor::EndOfBlock);
    Testata().setTextCursor(cursore);
    prima_ = Testata().toPlainText();
  }
  void CtrlSpazio() {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space, Qt::ControlModifier);
    Finestra::Calma();
  }
  QFrame& Riquadro() { return *Trova<QFrame>(*finestra_, "pnlInserisci"); }
  QLineEdit& Casella() { return *Trova<QLineEdit>(*finestra_, "txtCodice"); }
  QTreeView& Elenco() { return *Trova<QTreeView>(*finestra_, "lstCodici"); }
  QString Scelta() { return Elenco().currentIndex().data().toString(); }
  QPlainTextEdit& Testata() { return finestra_.Sezione(0); }
  static QWidget* Fuoco() { return QApplication::focusWidget(); }
  /// Whether the program would ask before it takes another template.
  bool Modificato() {
    const std::size_t domande = finestra_.Persona().Messaggi.size();
    finestra_.Persona().Scegliera({});
    finestra_.Azione("mnuApri").trigger();
    return finestra_.Persona().Messaggi.size() > domande;
  }

  Finestra finestra_;
  QString prima_;
};

TEST_F(InserisciCodice, OpensAtTheCaretInsideTheWindow) {
  CtrlSpazio();
  EXPECT_TRUE(Riquadro().isVisible());
  EXPECT_EQ(Fuoco(), &Casella());
  EXPECT_EQ(Riquadro().accessibleName(), "Inserisci codice");
  EXPECT_EQ(Casella().accessibleName(), "Codice da inserire");
  EXPECT_EQ(Elenco().accessibleName(), "Codici");
  const QPoint cursore = Testata().viewport()->mapTo(&*finestra_, Testata().cursorRect().bottomLeft());
  EXPECT_GT(Riquadro().y(), cursore.y());
  EXPECT_LT(Riquadro().y(), cursore.y() + 20);
  EXPECT_TRUE(finestra_->rect().contains(Riquadro().geometry()));
}

TEST_F(InserisciCodice, StaysInTheWindowWhereverTheCaretIsAndHoweverSmallTheWindow) {
  finestra_->resize(420, 300);
  for (const int sezione : {0, 1, 2}) {
    QPlainTextEdit& editor = finestra_.Sezione(sezione);
    editor.setFocus();
    for (const auto dove : {QTextCursor::Start, QTextCursor::End}) {
      editor.moveCursor(dove);
      CtrlSpazio();
      EXPECT_TRUE(Riquadro().isVisible());
      EXPECT_TRUE(finestra_->rect().contains(Riquadro().geometry()));
      QTest::keyClick(&Casella(), Qt::Key_Escape);
    }
  }
}

TEST_F(InserisciCodice, EnterInsertsTheBestAnswerAndTheFocusIsInTheSectionAgain) {
  const int qui = Testata().textCursor().position();
  CtrlSpazio();
  QTest::keyClicks(&Casella(), "nome agen");
  QTest::keyClick(&Casella(), Qt::Key_Return);
  EXPECT_FALSE(Riquadro().isVisible());
  EXPECT_EQ(Testata().toPlainText(), QString(prima_).insert(qui, "«V47;30L»"));
  EXPECT_EQ(Fuoco(), &Testata());
  EXPECT_EQ(Testata().textCursor().position(), qui + 9);
  finestra_.Azione("mnuAnnulla").trigger();
  EXPECT_EQ(Testata().toPlainText(), prima_);
}

TEST_F(InserisciCodice, TheArrowsMoveInTheListWhileTypingStaysInTheBox) {
  CtrlSpazio();
  EXPECT_EQ(Scelta(), "") << "nobody has asked for any";
  QTest::keyClick(&Casella(), Qt::Key_Return);
  EXPECT_EQ(Testata().toPlainText(), prima_);
  QTest::keyClicks(&Casella(), "cod");
  const QString primo = Scelta();
  QTest::keyClick(&Casella(), Qt::Key_Down);
  EXPECT_NE(Scelta(), primo);
  QTest::keyClick(&Casella(), Qt::Key_Up);
  QTest::keyClick(&Casella(), Qt::Key_Up);
  EXPECT_EQ(Scelta(), primo);
  Casella().clear();
  QTest::keyClick(&Casella(), Qt::Key_Down);
  EXPECT_EQ(Scelta(), "Ragione sociale ditta");
  QTest::keyClick(&Casella(), Qt::Key_PageDown);
  EXPECT_NE(Scelta(), "Ragione sociale ditta");
  QTest::keyClick(&Casella(), Qt::Key_PageUp);
  EXPECT_EQ(Scelta(), "Ragione sociale ditta");
  for (int i = 0; i < 50; ++i) QTest::keyClick(&Casella(), Qt::Key_Down);
  EXPECT_EQ(Scelta(), "Note di testata");
  QTest::keyClick(&Casella(), Qt::Key_Down);
  EXPECT_EQ(Scelta(), "Cliente estero") << "over the heading of the flags";
  EXPECT_EQ(Fuoco(), &Casella());
}

TEST_F(InserisciCodice, EscapeLeavesEverythingAsItWas) {
  QTextCursor scelta(Testata().document());
  scelta.setPosition(3);
  scelta.setPosition(1, QTextCursor::KeepAnchor);
  Testata().setTextCursor(scelta);
  CtrlSpazio();
  QTest::keyClicks(&Casella(), "cap");
  QTest::keyClick(&Casella(), Qt::Key_Down);
  QTest::keyClick(&Casella(), Qt::Key_Escape);
  EXPECT_FALSE(Riquadro().isVisible());
  EXPECT_EQ(Fuoco(), &Testata());
  EXPECT_EQ(Testata().toPlainText(), prima_);
  EXPECT_EQ(Testata().textCursor().anchor(), 3);
  EXPECT_EQ(Testata().textCursor().position(), 1);
  EXPECT_FALSE(Modificato());
}

TEST_F(InserisciCodice, ItGoesWithTheFocusAndLeavesEverythingAsItWas) {
  CtrlSpazio();
  QTest::keyClicks(&Casella(), "cap");
  QTest::mouseClick(finestra_.Sezione(2).viewport(), Qt::LeftButton);
  EXPECT_FALSE(Riquadro().isVisible());
  EXPECT_EQ(Fuoco(), &finestra_.Sezione(2));
  EXPECT_EQ(Testata().toPlainText(), prima_);
  CtrlSpazio();
  EXPECT_EQ(Casella().text(), "") << "each time anew";
  QTest::keyClick(&Casella(), Qt::Key_Escape);
  EXPECT_FALSE(Modificato());
}

TEST_F(InserisciCodice, IsOnceThereHoweverOftenItsKeyComes) {
  CtrlSpazio();
  QTest::keyClicks(&Casella(), "cap");
  CtrlSpazio();
  EXPECT_TRUE(Riquadro().isVisible());
  EXPECT_EQ(Casella().text(), "cap");
}

TEST_F(InserisciCodice, CtrlEnterOpensTheDialogOnIt) {
  CtrlSpazio();
  QTest::keyClicks(&Casella(), "cap ditta");
  QString codice;
  NelProssimoDialogo([&](QDialog& dialogo) {
    codice = Trova<QLineEdit>(dialogo, "txtVar")->text();
    QTest::keyClick(&dialogo, Qt::Key_Escape);
  });
  QTest::keyClick(&Casella(), Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(codice, "«V4;5L»");
  EXPECT_FALSE(Riquadro().isVisible());
  EXPECT_EQ(Testata().toPlainText(), prima_);
}

TEST_F(InserisciCodice, ADoubleClickInTheListInserts) {
  CtrlSpazio();
  QTest::keyClicks(&Casella(), "v18");
  const QPoint punto = Elenco().visualRect(Elenco().currentIndex()).center();
  QTest::mouseClick(Elenco().viewport(), Qt::LeftButton, {}, punto);
  EXPECT_EQ(Fuoco(), &Casella());
  QTest::mouseDClick(Elenco().viewport(), Qt::LeftButton, {}, punto);
  EXPECT_TRUE(Testata().toPlainText().contains("«V18;5L»"));
  EXPECT_EQ(Fuoco(), &Testata());
}

TEST_F(InserisciCodice, SaysThatNothingWasFound) {
  CtrlSpazio();
  QTest::keyClicks(&Casella(), "zzz");
  EXPECT_TRUE(Trova<QLabel>(Riquadro(), "lblNessunCodice")->isVisible());
  EXPECT_EQ(Trova<QLabel>(Riquadro(), "lblNessunCodice")->text(), "Nessun campo trovato");
}

TEST_F(InserisciCodice, CannotBeHadWithoutAType) {
  finestra_.Azione("mnuNuovo").trigger();
  QTest::keyClick(&*finestra_, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(finestra_->findChild<QFrame*>("pnlInserisci"), nullptr);
}

}  // namespace
}  // namespace parvik
