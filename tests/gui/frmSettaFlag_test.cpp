#include "output/frmSettaFlag.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include "BancoSettaFlag.h"

namespace parvik {
namespace {

using prova::SeiFlag;
using prova::Trova;
using FrmSettaFlag = prova::BancoSettaFlag;

TEST_F(FrmSettaFlag, ShowsTheRowsAsTheyAre) {
  QStringList righe;
  for (int i = 0; i < Lista().count(); ++i) righe.append(Lista().item(i)->text());
  EXPECT_EQ(righe, (QStringList{
                       "F3   Cliente estero                                                 F",
                       "F14  Città capoluogo                                                F",
                       "F27  Sconto presente                                                F",
                       "F97  Solo prima pagina                                              F",
                       "F98  Escluso ultima pagina                                          F",
                       "F99  Su tutte le pagine                                             F",
                   }));
}

TEST_F(FrmSettaFlag, HasTheCaptionsOfItsControls) {
  EXPECT_EQ(finestra_.windowTitle(), "Setta Flag per Stampe");
  EXPECT_EQ(Trova<QGroupBox>(finestra_, "fraValore")->title(), "Setta valore");
  EXPECT_EQ(Vero().text(), "Vero");
  EXPECT_EQ(Falso().text(), "Falso");
  EXPECT_EQ(Trova<QPushButton>(finestra_, "cmdFlag")->text(), "Flag");
  EXPECT_EQ(Trova<QPushButton>(finestra_, "cmdDescrizione")->text(), "Descrizione");
  EXPECT_EQ(Trova<QPushButton>(finestra_, "cmdStato")->text(), "Stato");
  EXPECT_EQ(Lista().accessibleName(), "Flag per stampe");
}

TEST_F(FrmSettaFlag, IsNotModal) {
  Apri();
  EXPECT_FALSE(finestra_.isModal());
}

TEST_F(FrmSettaFlag, OpensWithTheFocusInTheListAndSetsNothing) {
  Lista().selectAll();
  Apri();
  EXPECT_EQ(finestra_.focusWidget(), &Lista());
  EXPECT_EQ(Stati(), "FFFFFF");
}

TEST_F(FrmSettaFlag, OpenedAgainItSetsNothingEvenIfAnOptionHadTheFocus) {
  Apri();
  CliccaRiga(0);
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  EXPECT_EQ(Stati(), "VFFFFF");
  finestra_.hide();
  Lista().selectAll();
  Apri();
  EXPECT_EQ(finestra_.focusWidget(), &Lista());
  EXPECT_EQ(Stati(), "VFFFFF");
}

TEST_F(FrmSettaFlag, ComingToTheFrontSetsNothing) {
  Apri();
  CliccaRiga(0);
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  QWidget altra;
  altra.show();
  altra.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&altra));
  Lista().selectAll();
  finestra_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra_));
  EXPECT_TRUE(Vero().hasFocus());
  EXPECT_EQ(Stati(), "VFFFFF");
}

TEST_F(FrmSettaFlag, AMenuThatClosesOverAnOptionSetsNothing) {
  Apri();
  CliccaRiga(0);
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  EXPECT_EQ(Stati(), "VFFFFF");
  Lista().selectAll();
  for (const Qt::FocusReason motivo : {Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
    Lista().setFocus();
    Vero().setFocus(motivo);
    Falso().setFocus(motivo);
    EXPECT_EQ(Stati(), "VFFFFF") << motivo;
  }
  Lista().setFocus();
  Falso().setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Stati(), "FFFFFF");
}

TEST_F(FrmSettaFlag, SeveralSelectedRowsAreAllSetByOneClick) {
  Apri();
  CliccaRiga(0);
  CliccaRiga(2, Qt::ControlModifier);
  CliccaRiga(4, Qt::ControlModifier | Qt::ShiftModifier);
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  EXPECT_EQ(Stati(), "VFVVVF");
  CliccaRiga(3);
  CliccaRiga(5, Qt::ShiftModifier);
  QTest::mouseClick(&Falso(), Qt::LeftButton);
  EXPECT_EQ(Stati(), "VFVFFF");
}

TEST_F(FrmSettaFlag, TheOptionThatIsSetAlreadyActsAgainWhenItIsClicked) {
  Apri();
  CliccaRiga(1);
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  CliccaRiga(2);
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  EXPECT_EQ(Stati(), "FVVFFF");
}

TEST_F(FrmSettaFlag, WithoutASelectionNothingIsSet) {
  Apri();
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  EXPECT_EQ(Stati(), "FFFFFF");
}

TEST_F(FrmSettaFlag, TabbingIntoTheOptionsActsLikeAClickOnTheOneThatGetsTheFocus) {
  Apri();
  CliccaRiga(1);
  QTest::keyClick(&Lista(), Qt::Key_Tab);
  EXPECT_TRUE(Vero().hasFocus());
  EXPECT_EQ(Stati(), "FVFFFF");
  QTest::keyClick(&Vero(), Qt::Key_Right);
  EXPECT_TRUE(Falso().hasFocus());
  EXPECT_TRUE(Falso().isChecked());
  EXPECT_EQ(Stati(), "FFFFFF");
}

TEST_F(FrmSettaFlag, TheKeyboardAloneSelectsAndSetsRows) {
  Apri();
  QTest::keyClick(&Lista(), Qt::Key_Space);
  QTest::keyClick(&Lista(), Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(&Lista(), Qt::Key_Tab);
  EXPECT_EQ(Stati(), "VVFFFF");
  QTest::keyClick(&Vero(), Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_TRUE(Lista().hasFocus());
}

TEST_F(FrmSettaFlag, AnOptionThatGetsTheFocusIsSet) {
  Apri();
  CliccaRiga(0);
  Falso().setFocus(Qt::OtherFocusReason);
  EXPECT_TRUE(Falso().isChecked());
  Vero().setFocus(Qt::ShortcutFocusReason);
  EXPECT_TRUE(Vero().isChecked());
  EXPECT_EQ(Stati(), "VFFFFF");
}

TEST_F(FrmSettaFlag, ShownAnewNothingIsSelectedAndTheFirstRowIsCurrent) {
  Apri();
  Lista().selectAll();
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  QTest::mouseClick(&Falso(), Qt::LeftButton);
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  QTest::mouseClick(&Falso(), Qt::LeftButton);
  CliccaRiga(4);
  flag_.SettaFlag(5, true);
  finestra_.Ricarica();
  EXPECT_EQ(Stati(), "FFFFFV") << "what is shown anew is what the rows hold";
  EXPECT_TRUE(Lista().selectedItems().isEmpty());
  EXPECT_EQ(Lista().currentRow(), 0);
  EXPECT_TRUE(Vero().isChecked());
}

TEST_F(FrmSettaFlag, AfterAFileWasOpenedEveryRowIsFalse) {
  Apri();
  Lista().selectAll();
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  EXPECT_EQ(Stati(), "VVVVVV");
  flag_.AzzeraTutti();
  finestra_.Ricarica();
  EXPECT_EQ(Stati(), "FFFFFF");
  EXPECT_TRUE(Lista().selectedItems().isEmpty());
}

TEST_F(FrmSettaFlag, ShowingOtherRowsKeepsTheWindowUsable) {
  flag_.Svuota();
  finestra_.Ricarica();
  EXPECT_EQ(Lista().count(), 0);
  Apri();
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  flag_ = SeiFlag();
  finestra_.Ricarica();
  CliccaRiga(5);
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  EXPECT_EQ(Stati(), "FFFFFV");
}

TEST_F(FrmSettaFlag, RowsThatAreGoneAreLeftAlone) {
  Apri();
  Lista().selectAll();
  flag_.Svuota();
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  EXPECT_TRUE(flag_.Righe().empty());
}

TEST_F(FrmSettaFlag, TheCloseBoxAndEscapeHideItAndTellSo) {
  const QSignalSpy spia(&finestra_, &frmSettaFlag::Nascosta);
  Apri();
  finestra_.close();
  EXPECT_FALSE(finestra_.isVisible());
  EXPECT_EQ(spia.count(), 1);
  Apri();
  QTest::keyClick(&Lista(), Qt::Key_Escape);
  EXPECT_FALSE(finestra_.isVisible());
  EXPECT_EQ(spia.count(), 2);
}

TEST_F(FrmSettaFlag, HiddenByTheProgramItTellsNothingAndKeepsTheStates) {
  const QSignalSpy spia(&finestra_, &frmSettaFlag::Nascosta);
  Apri();
  CliccaRiga(3);
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  finestra_.hide();
  Apri();
  EXPECT_EQ(spia.count(), 0);
  EXPECT_EQ(Stati(), "FFFVFF");
}

TEST_F(FrmSettaFlag, EnterLeavesTheWindowOpen) {
  Apri();
  QTest::keyClick(&Lista(), Qt::Key_Return);
  EXPECT_TRUE(finestra_.isVisible());
  EXPECT_EQ(Stati(), "FFFFFF");
}

TEST_F(FrmSettaFlag, TheHeadingsSortNothingAndTakeNoFocus) {
  Apri();
  CliccaRiga(2);
  QTest::mouseClick(&Vero(), Qt::LeftButton);
  CliccaRiga(2);
  for (const char* nome : {"cmdFlag", "cmdDescrizione", "cmdStato"}) {
    QTest::mouseClick(Trova<QPushButton>(finestra_, nome), Qt::LeftButton);
    EXPECT_TRUE(Lista().hasFocus()) << nome;
    EXPECT_EQ(Trova<QPushButton>(finestra_, nome)->focusPolicy(), Qt::NoFocus) << nome;
  }
  EXPECT_EQ(Stati(), "FFVFFF");
  EXPECT_EQ(Lista().item(0)->text().left(4), "F3  ");
}

}  // namespace
}  // namespace parvik
