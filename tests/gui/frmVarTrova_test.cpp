// The search of the dialog of variables.
#include <QApplication>
#include <QMessageBox>

#include "BancoFrmVar.h"

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

}  // namespace
}  // namespace parvik
