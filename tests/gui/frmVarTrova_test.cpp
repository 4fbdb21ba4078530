// The search of the dialog of variables.
#include <QApplication>
#include <QMessageBox>

#include "BancoFrmVar.h"
#include "Maschera.h"

namespace parvik {
namespace {

using prova::FrmVar;

TEST_F(FrmVar, BoxesOfNumbersAndTheSearchAreSelectedWholeWhenTheyGetTheFocus) {
  Lista()->setCurrentRow(3);
  dialogo_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialogo_));
  Casella("txtTrova")->setText("abc");
  for (const char* nome : {"txtTrova", "txtLungh", "txtDecimali"}) {
    Casella(nome)->deselect();
    Casella(nome)->setFocus();
    EXPECT_EQ(Casella(nome)->selectedText(), Testo(nome)) << nome;
  }
  Lista()->setCurrentRow(2);
  Casella("txtMulti")->setFocus();
  EXPECT_EQ(Casella("txtMulti")->selectedText(), "3");
}

TEST_F(FrmVar, TheSearchSelectsTheNextEntryWithTheText) {
  Scrivi("txtTrova", "IMPONIBILE");
  Clicca("cmdTrova");
  EXPECT_EQ(Lista()->currentRow(), 1);
  EXPECT_EQ(Codice(), "«V25;9R;#;0»");
  Clicca("cmdTrova");
  EXPECT_EQ(Lista()->currentRow(), 3);
  Clicca("cmdTrova");
  EXPECT_EQ(Lista()->currentRow(), 1);
}

TEST_F(FrmVar, ATextFoundOnlyInTheSelectedEntrySelectsItAgainWithoutAMessage) {
  for (const int voce : {2, 3}) {
    Lista()->setCurrentRow(voce);
    Scrivi("txtTrova", voce == 2 ? "note" : "totale");
    Clicca("cmdTrova");
    EXPECT_EQ(Lista()->currentRow(), voce);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  }
}

TEST_F(FrmVar, ATextThatNoEntryHasIsReportedAndCanBeTypedAnew) {
  for (const char* testo : {"sconto", "Ω"}) {
    int messaggi = 0;
    prova::NelProssimoDialogo([&messaggi](QDialog& dialogo) {
      const auto& scatola = dynamic_cast<QMessageBox&>(dialogo);
      EXPECT_EQ(scatola.windowTitle(), "Assegnazione variabile");
      EXPECT_EQ(scatola.text(), "Testo non trovato!");
      EXPECT_EQ(scatola.standardButtons(), QMessageBox::Ok);
      ++messaggi;
      QTest::keyClick(&dialogo, Qt::Key_Return);
    });
    Scrivi("txtTrova", testo);
    Clicca("cmdTrova");
    EXPECT_EQ(messaggi, 1);
    EXPECT_EQ(dialogo_.focusWidget(), Casella("txtTrova"));
    EXPECT_EQ(Lista()->currentRow(), 0);
  }
}

TEST_F(FrmVar, AnEmptySearchDoesNothing) {
  Clicca("cmdTrova");
  EXPECT_EQ(Lista()->currentRow(), 0);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

/// What the list shows.
QStringList Mostrate(const QListWidget& lista) {
  QStringList mostrate;
  for (int i = 0; i < lista.count(); ++i)
    if (!lista.isRowHidden(i)) mostrate += lista.item(i)->text();
  return mostrate;
}

TEST_F(FrmVar, TheListNarrowsToWhatASearchCouldComeToAsOneTypes) {
  const QStringList tutte = {"Cliente", "Imponibile", "Note", "Totale imponibile"};
  EXPECT_EQ(Mostrate(*Lista()), tutte);
  Scrivi("txtTrova", "IMP");
  EXPECT_EQ(Mostrate(*Lista()), QStringList({"Imponibile", "Totale imponibile"}));
  Scrivi("txtTrova", "25");
  EXPECT_EQ(Mostrate(*Lista()), QStringList({"Imponibile"})) << "numbers count too";
  Scrivi("txtTrova", "v12");
  EXPECT_EQ(Mostrate(*Lista()), QStringList({"Cliente"}));
  for (const char* niente : {"sconto", "Ω"}) {
    Scrivi("txtTrova", niente);
    EXPECT_EQ(Mostrate(*Lista()), QStringList());
  }
  Scrivi("txtTrova", "");
  EXPECT_EQ(Mostrate(*Lista()), tutte);
}

TEST_F(FrmVar, NarrowingChoosesAndChangesNothing) {
  Lista()->setCurrentRow(2);
  Scrivi("txtLungh", "20");
  Scrivi("txtTrova", "impon");
  EXPECT_EQ(Lista()->currentRow(), 2) << "hidden, and still the selected one";
  EXPECT_EQ(Codice(), "«V40,3;20L\".\"»");
  Scrivi("txtTrova", "");
  EXPECT_EQ(Lista()->currentRow(), 2);
  EXPECT_EQ(prova::Conferma(dialogo_), prova::Codici{"\xAB"
                                                     "V40,3;20L\".\""
                                                     "\xBB"});
}

TEST_F(FrmVar, FromAHiddenEntryTheArrowsGoToAShownOne) {
  Lista()->setCurrentRow(2);
  Scrivi("txtTrova", "impon");
  Lista()->setFocus();
  QTest::keyClick(Lista(), Qt::Key_Down);
  EXPECT_FALSE(Lista()->isRowHidden(Lista()->currentRow()));
}

TEST_F(FrmVar, WhatOnlyANumberAnswersIsFoundByIt) {
  Scrivi("txtTrova", "8");
  Clicca("cmdTrova");
  EXPECT_EQ(Lista()->currentRow(), 3);
  Scrivi("txtTrova", "V25");
  Clicca("cmdTrova");
  EXPECT_EQ(Lista()->currentRow(), 1);
  Clicca("cmdTrova");
  EXPECT_EQ(Lista()->currentRow(), 1) << "found again, without a message";
}

TEST_F(FrmVar, ADoubleClickOnAnEntryIsOk) {
  const QPoint punto = Lista()->visualItemRect(Lista()->item(1)).center();
  QTest::mouseClick(Lista()->viewport(), Qt::LeftButton, {}, punto);
  EXPECT_TRUE(dialogo_.isVisible());
  QTest::mouseDClick(Lista()->viewport(), Qt::LeftButton, {}, punto);
  EXPECT_FALSE(dialogo_.isVisible());
  EXPECT_EQ(dialogo_.Codici(), prova::Codici{"\xAB"
                                             "V25;9R;#;0"
                                             "\xBB"});
}

}  // namespace
}  // namespace parvik
