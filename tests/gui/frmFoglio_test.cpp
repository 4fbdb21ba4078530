// docs/foglio.md
#include "output/frmFoglio.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Trova;

constexpr double Cella = 21.17;  // tenths of a millimetre
const std::vector<const char*> Caselle = {"txtLargh",     "txtAlt",       "txtLinee",    "txtMargine_0",
                                          "txtMargine_1", "txtMargine_2", "txtMargine_3"};

class FrmFoglio : public testing::Test {
 protected:
  void Apri(const Foglio& foglio = {}) {
    dialogo_ = std::make_unique<frmFoglio>(foglio, Cella, nullptr);
    dialogo_->show();
    dialogo_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialogo_.get()));
  }
  QComboBox& Carte() { return *Trova<QComboBox>(*dialogo_, "cmbCarta"); }
  QLineEdit& Casella(const char* nome) { return *Trova<QLineEdit>(*dialogo_, nome); }
  QString Avviso() { return Trova<QLabel>(*dialogo_, "lblPagina")->text(); }
  QPushButton& Ok() { return *Trova<QPushButton>(*dialogo_, "cmdOk"); }
  /// As the keyboard chooses it.
  void Scegli(Carta carta) {
    Carte().setFocus();
    QTest::keyClick(&Carte(), Qt::Key_Home);
    for (int i = 0; i < static_cast<int>(carta); ++i) QTest::keyClick(&Carte(), Qt::Key_Down);
  }
  void Scrivi(const char* casella, const char* testo) {
    Casella(casella).setFocus();
    Casella(casella).selectAll();
    QTest::keyClicks(&Casella(casella), testo);
  }
  QStringList Testi() {
    QStringList testi;
    for (const char* nome : Caselle) testi += Casella(nome).text();
    return testi;
  }

  std::unique_ptr<frmFoglio> dialogo_;
};

TEST_F(FrmFoglio, HasItsCaptionsAndEveryBoxAName) {
  Apri();
  EXPECT_EQ(dialogo_->windowTitle(), "Foglio");
  QStringList didascalie;
  for (const char* nome : {"lblCarta", "lblLargh", "lblAlt", "lblLinee", "lblMargine_0", "lblMargine_1",
                           "lblMargine_2", "lblMargine_3"})
    didascalie += Trova<QLabel>(*dialogo_, nome)->text();
  EXPECT_EQ(didascalie,
            QStringList({"&Carta", "&Larghezza", "&Altezza", "Linee per &pollice", "Margine &sinistro",
                         "Margine &destro", "Margine al&to", "Margine &basso"}));
  QStringList nomi;
  for (const char* nome : Caselle)
    nomi += QAccessible::queryAccessibleInterface(&Casella(nome))->text(QAccessible::Name);
  EXPECT_EQ(nomi, QStringList({"Larghezza", "Altezza", "Linee per pollice", "Margine sinistro",
                               "Margine destro", "Margine alto", "Margine basso"}));
  EXPECT_EQ(Ok().text(), "OK");
  EXPECT_EQ(Trova<QPushButton>(*dialogo_, "cmdCanc")->text(), "Annulla");
}

TEST_F(FrmFoglio, OffersThePapersAndBeginsWithNone) {
  Apri();
  QStringList carte;
  for (int i = 0; i < Carte().count(); ++i) carte += Carte().itemText(i);
  EXPECT_EQ(carte,
            QStringList({"Nessuno", "A4", "A5", "Modulo 11 pollici", "Modulo 12 pollici", "Personalizzato"}));
  EXPECT_EQ(Carte().currentText(), "Nessuno");
  for (const char* nome : Caselle) {
    EXPECT_FALSE(Casella(nome).isEnabled()) << nome;
    EXPECT_EQ(Casella(nome).text(), "") << nome;
  }
  EXPECT_TRUE(Ok().isEnabled());
  EXPECT_TRUE(dialogo_->Scelto() == Foglio());
}

TEST_F(FrmFoglio, ShowsTheMeasuresOfAPaperAndWhatAPageOfItHolds) {
  Apri();
  Scegli(Carta::A4);
  EXPECT_EQ(Testi(), QStringList({"210", "297", "6", "5", "5", "5", "5"}));
  EXPECT_EQ(Avviso(), "Pagina: 94 colonne, 67 righe");
  EXPECT_FALSE(Casella("txtLargh").isEnabled());
  EXPECT_FALSE(Casella("txtAlt").isEnabled());
  EXPECT_TRUE(Casella("txtLinee").isEnabled());
  EXPECT_TRUE(Casella("txtMargine_3").isEnabled());
  Scegli(Carta::Modulo11);
  EXPECT_EQ(Testi(), QStringList({"240", "279,4", "6", "12,7", "12,7", "0", "0"}));
  EXPECT_EQ(Avviso(), "Pagina: 101 colonne, 66 righe");
}

TEST_F(FrmFoglio, KeepsTheLinesFromOnePaperToTheNext) {
  Apri(FoglioDi(Carta::Modulo11));
  Scrivi("txtLinee", "8");
  Scegli(Carta::Modulo12);
  EXPECT_EQ(Casella("txtLinee").text(), "8");
  EXPECT_EQ(Avviso(), "Pagina: 101 colonne, 96 righe");
}

TEST_F(FrmFoglio, ASizeOfOnesOwnBeginsWithTheOneThatWasThere) {
  Apri(FoglioDi(Carta::A5));
  Scegli(Carta::A5);
  Carte().setFocus();
  QTest::keyClick(&Carte(), Qt::Key_End);
  EXPECT_EQ(Testi(), QStringList({"148", "210", "6", "5", "5", "5", "5"}));
  Scrivi("txtLargh", "150.5");
  Scrivi("txtMargine_1", "10,5");
  const Foglio scelto = dialogo_->Scelto();
  EXPECT_EQ(scelto.Quale, Carta::Personalizzata);
  EXPECT_EQ(scelto.Larghezza, 1505);
  EXPECT_EQ(scelto[LatoFoglio::Destro], 105);
}

TEST_F(FrmFoglio, ShowsASheetAsItIs) {
  Foglio suo = FoglioDi(Carta::Personalizzata);
  suo.Larghezza = 1234;
  suo.LineePerPollice = 7;
  suo.Margini = {1, 20, 30, 40};
  Apri(suo);
  EXPECT_EQ(Carte().currentText(), "Personalizzato");
  EXPECT_EQ(Testi(), QStringList({"123,4", "297", "7", "0,1", "2", "3", "4"}));
  EXPECT_TRUE(dialogo_->Scelto() == suo);
}

TEST_F(FrmFoglio, SaysWhatIsWrongAndCannotBeAcceptedThen) {
  Apri(FoglioDi(Carta::Personalizzata));
  Scrivi("txtLargh", "19,9");
  EXPECT_EQ(Avviso(), "La larghezza dev'essere tra 20 e 1000 mm.");
  EXPECT_FALSE(Ok().isEnabled());
  QTest::keyClick(&Casella("txtLargh"), Qt::Key_Return);
  EXPECT_TRUE(dialogo_->isVisible());
  Scrivi("txtLargh", "210");
  EXPECT_TRUE(Ok().isEnabled());
  for (const char* testo : {",", "1,25", "1,2,3"}) {
    Scrivi("txtMargine_2", testo);
    EXPECT_EQ(Avviso(), "I margini devono essere numeri.") << testo;
  }
  Scrivi("txtMargine_2", "295");
  EXPECT_EQ(Avviso(), "Tra i margini non resta spazio.");
  Scrivi("txtMargine_2", "0");
  Scrivi("txtLinee", "0");
  EXPECT_EQ(Avviso(), "Le linee per pollice devono essere tra 1 e 24.");
}

TEST_F(FrmFoglio, TakesDigitsACommaAndAPointAndNothingElse) {
  Apri(FoglioDi(Carta::Personalizzata));
  Scrivi("txtAlt", "a-2b8 0,5x9999");
  EXPECT_EQ(Casella("txtAlt").text(), "280,59");
  Scrivi("txtLinee", "a8,");
  EXPECT_EQ(Casella("txtLinee").text(), "8");
}

TEST_F(FrmFoglio, APapersSizeIsItsOwnWhateverIsWrittenIntoADisabledBox) {
  Apri(FoglioDi(Carta::A4));
  Casella("txtLargh").setText("500");  // as an assistive technology can
  EXPECT_EQ(dialogo_->Scelto().Larghezza, 2100);
}

TEST_F(FrmFoglio, EscapeAndTheCloseBoxGiveItUp) {
  Apri(FoglioDi(Carta::A4));
  QTest::keyClick(&Carte(), Qt::Key_Escape);
  EXPECT_FALSE(dialogo_->isVisible());
  EXPECT_EQ(dialogo_->result(), QDialog::Rejected);
  Apri(FoglioDi(Carta::A4));
  dialogo_->close();
  EXPECT_FALSE(dialogo_->isVisible());
  EXPECT_EQ(dialogo_->result(), QDialog::Rejected);
}

TEST_F(FrmFoglio, TabGoesThroughTheBoxesInReadingOrder) {
  Apri(FoglioDi(Carta::Personalizzata));
  Carte().setFocus();
  QStringList ordine;
  for (std::size_t i = 0; i <= Caselle.size() + 2; ++i) {
    ordine += QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(ordine, QStringList({"cmbCarta", "txtLargh", "txtAlt", "txtLinee", "txtMargine_0", "txtMargine_1",
                                 "txtMargine_2", "txtMargine_3", "cmdOk", "cmdCanc"}));
}

}  // namespace
}  // namespace parvik
