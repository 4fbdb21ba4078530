#include "template/frmComando.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <limits>
#include <ostream>

#include "Finestra.h"
#include "template/RigheSezione.h"

namespace parvik {

/// GoogleTest finds it here.
static void PrintTo(const ImpostazioniCorpo& corpo, std::ostream* uscita) {
  *uscita << corpo.RigheCorpo << " rows, " << corpo.LineeCorpo << " lines, \"" << corpo.FlagSbarra << "\" \""
          << corpo.FlagAccorpa << '"';
}

namespace {

using prova::Trova;

ImpostazioniCorpo Corpo(std::int16_t righe, std::int16_t linee = 0, const char* sbarra = "",
                        const char* accorpa = "") {
  return {.RigheCorpo = righe, .LineeCorpo = linee, .FlagSbarra = sbarra, .FlagAccorpa = accorpa};
}

QLineEdit& Righe(const frmComando& dialogo) {
  return *Trova<QLineEdit>(dialogo, "txtRighe");
}

QCheckBox& Spunta(const frmComando& dialogo, const char* nome) {
  return *Trova<QCheckBox>(dialogo, nome);
}

void Apri(frmComando& dialogo) {
  dialogo.show();
  dialogo.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialogo));
}

void Conferma(frmComando& dialogo) {
  QTest::mouseClick(Trova<QPushButton>(dialogo, "cmdOk"), Qt::LeftButton);
  EXPECT_FALSE(dialogo.isVisible());
  EXPECT_EQ(dialogo.result(), QDialog::Accepted);
}

void Clic(QCheckBox& spunta) {
  QTest::mouseClick(&spunta, Qt::LeftButton, {}, {8, spunta.height() / 2});
}

TEST(FrmComando, Captions) {
  const frmComando dialogo({}, 0, nullptr);
  QStringList didascalie = {dialogo.windowTitle()};
  for (const char* nome : {"lblRighe", "lblLinee"}) didascalie += Trova<QLabel>(dialogo, nome)->text();
  for (const char* nome : {"chkSbarra", "chkAccorpa"}) didascalie += Spunta(dialogo, nome).text();
  for (const char* nome : {"cmdOk", "cmdCanc"}) didascalie += Trova<QPushButton>(dialogo, nome)->text();
  EXPECT_EQ(didascalie,
            QStringList({"Comando corpo", "Righe corpo:", "Linee della riga di corpo:",
                         "Sbarramento righe rimanenti", "Accorpamento righe vuote", "OK", "Cancel"}));
}

TEST(FrmComando, EveryBoxHasANameForScreenReaders) {
  const frmComando dialogo({}, 0, nullptr);
  QStringList nomi;
  for (const char* nome : {"txtRighe", "txtLinee"}) {
    nomi += QAccessible::queryAccessibleInterface(Trova<QLineEdit>(dialogo, nome))->text(QAccessible::Name);
  }
  EXPECT_EQ(nomi, QStringList({"Righe corpo:", "Linee della riga di corpo:"}));
}

TEST(FrmComando, AfterTheChoiceOfATypeItShows23RowsAndNoTick) {
  frmComando dialogo(ImpostazioniPredefinite(), 0, nullptr);
  Apri(dialogo);
  EXPECT_EQ(Righe(dialogo).text(), "23");
  EXPECT_TRUE(Righe(dialogo).hasFocus());
  EXPECT_EQ(Righe(dialogo).selectedText(), "23");
  EXPECT_FALSE(Spunta(dialogo, "chkSbarra").isChecked());
  EXPECT_FALSE(Spunta(dialogo, "chkAccorpa").isChecked());
}

TEST(FrmComando, TheLinesAreThoseOfTheCorpoNowAndOkStoresThem) {
  ImpostazioniCorpo attuali = ImpostazioniPredefinite();
  attuali.LineeCorpo = 9;
  frmComando dialogo(attuali, ContaRigheSezione("a\r\nb\r\nc")->Righe, nullptr);
  Apri(dialogo);
  EXPECT_EQ(Trova<QLineEdit>(dialogo, "txtLinee")->text(), "3");
  EXPECT_FALSE(Trova<QLineEdit>(dialogo, "txtLinee")->isEnabled());
  Conferma(dialogo);
  EXPECT_EQ(dialogo.Scelte(), Corpo(23, 3));
}

TEST(FrmComando, OkGivesWhatTheControlsSay) {
  frmComando dialogo(ImpostazioniPredefinite(), 2, nullptr);
  Apri(dialogo);
  QTest::keyClicks(QApplication::focusWidget(), "40");
  Clic(Spunta(dialogo, "chkSbarra"));
  Clic(Spunta(dialogo, "chkAccorpa"));
  Conferma(dialogo);
  EXPECT_EQ(dialogo.Scelte(), Corpo(40, 2, "C", "S"));
}

TEST(FrmComando, TheKeyboardAloneSetsEverything) {
  frmComando dialogo(ImpostazioniPredefinite(), 2, nullptr);
  Apri(dialogo);
  QTest::keyClicks(QApplication::focusWidget(), "7");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(dialogo.result(), QDialog::Accepted);
  EXPECT_EQ(dialogo.Scelte(), Corpo(7, 2, "", "S"));
}

TEST(FrmComando, ATickIsSetWhereTheFlagIsNotEmptyAndCanBeTakenAway) {
  const ImpostazioniCorpo attuali = Corpo(5, 1, "C", "x");
  frmComando dialogo(attuali, 1, nullptr);
  Apri(dialogo);
  EXPECT_EQ(dialogo.Scelte(), Corpo(5, 1, "C", "S"));
  Clic(Spunta(dialogo, "chkSbarra"));
  Clic(Spunta(dialogo, "chkAccorpa"));
  Conferma(dialogo);
  EXPECT_EQ(dialogo.Scelte(), Corpo(5, 1));
}

TEST(FrmComando, AnEmptyBoxKeepsTheRowsBefore) {
  frmComando dialogo(ImpostazioniPredefinite(), 0, nullptr);
  Apri(dialogo);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
  EXPECT_EQ(Righe(dialogo).text(), "");
  Conferma(dialogo);
  EXPECT_EQ(dialogo.Scelte(), Corpo(23));
}

TEST(FrmComando, RowsOfAFileAreShownAsTheyStandAndComeBack) {
  using Limiti = std::numeric_limits<std::int16_t>;
  for (const std::int16_t righe :
       {Limiti::min(), std::int16_t{-5}, std::int16_t{0}, std::int16_t{100}, Limiti::max()}) {
    frmComando dialogo(Corpo(righe), 0, nullptr);
    Apri(dialogo);
    EXPECT_EQ(Righe(dialogo).text(), QString::number(righe));
    Conferma(dialogo);
    EXPECT_EQ(dialogo.Scelte(), Corpo(righe));
  }
}

TEST(FrmComando, ALoneSignIsNoNumberAndKeepsTheRowsBefore) {
  frmComando dialogo(Corpo(-5), 0, nullptr);
  Apri(dialogo);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
  EXPECT_EQ(Righe(dialogo).text(), "-");
  Conferma(dialogo);
  EXPECT_EQ(dialogo.Scelte(), Corpo(-5));
}

TEST(FrmComando, LettersHaveNoEffectTwoDigitsFitAndBackspaceWorks) {
  frmComando dialogo(ImpostazioniPredefinite(), 0, nullptr);
  Apri(dialogo);
  QTest::keyClicks(&Righe(dialogo), "a-. ");
  EXPECT_EQ(Righe(dialogo).text(), "23");
  QTest::keyClicks(&Righe(dialogo), "456");
  EXPECT_EQ(Righe(dialogo).text(), "45");
  QTest::keyClick(&Righe(dialogo), Qt::Key_Backspace);
  EXPECT_EQ(Righe(dialogo).text(), "4");
}

TEST(FrmComando, CancelAndEscapeReject) {
  frmComando conPulsante({}, 0, nullptr);
  Apri(conPulsante);
  QTest::mouseClick(Trova<QPushButton>(conPulsante, "cmdCanc"), Qt::LeftButton);
  EXPECT_FALSE(conPulsante.isVisible());
  EXPECT_EQ(conPulsante.result(), QDialog::Rejected);

  frmComando conTasto({}, 0, nullptr);
  Apri(conTasto);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(conTasto.isVisible());
  EXPECT_EQ(conTasto.result(), QDialog::Rejected);
}

TEST(FrmComando, TheCloseBoxDoesNothing) {
  frmComando dialogo({}, 0, nullptr);
  Apri(dialogo);
  EXPECT_FALSE(dialogo.close());
  EXPECT_TRUE(dialogo.isVisible());
}

}  // namespace
}  // namespace parvik
