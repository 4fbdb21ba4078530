// What the dialog of variables shows, how it opens on a code, and how it is closed.
#include <QAccessible>
#include <QGroupBox>
#include <QLabel>

#include "BancoFrmVar.h"
#include "common/qtTesto.h"
#include "tokens/Codice.h"

namespace parvik {
namespace {

using prova::Codici;
using prova::FrmVar;
using prova::NessunFlag;
using prova::QuattroVariabili;
using prova::Trova;

TEST_F(FrmVar, OpensOnTheFirstEntryWithItsCatalogueFormat) {
  ASSERT_EQ(Lista()->count(), 4);
  EXPECT_EQ(Lista()->item(3)->text(), "Totale imponibile");
  EXPECT_EQ(Lista()->currentRow(), 0);
  EXPECT_EQ(Codice(), "«V12;30L»");
  EXPECT_EQ(Testo("txtFlag"), "");
}

TEST_F(FrmVar, HasItsCaptions) {
  EXPECT_EQ(dialogo_.windowTitle(), "Assegnazione variabile");
  const std::vector<std::pair<const char*, QString>> pulsanti = {{"cmdTrova", "Trova"},
                                                                 {"cmdFlag", "Flags ..."},
                                                                 {"optAll_0", "a sinistra"},
                                                                 {"optAll_1", "a destra"},
                                                                 {"optTipoVar_0", "Stringa"},
                                                                 {"optTipoVar_1", "Numerico"},
                                                                 {"chkMulti", "Multiline:"},
                                                                 {"chkDecimali", "Decimali:"},
                                                                 {"chkZero", "Zero visibile"},
                                                                 {"chkSegno", "Segno a destra"},
                                                                 {"chkSep", "Separ. migliaia"},
                                                                 {"chkEuro", "EURO/Lit."},
                                                                 {"cmdOk", "OK"},
                                                                 {"cmdCanc", "CANCEL"}};
  for (const auto& [nome, testo] : pulsanti) EXPECT_EQ(Tasto(nome)->text(), testo);
  const std::vector<std::pair<const char*, QString>> riquadri = {{"fraVarDisp", "Variabili disponibili"},
                                                                 {"fraFormatoVar", "Formato variabile"},
                                                                 {"fraAllinea", "Allineamento"},
                                                                 {"fraTipoVar", "Tipo variabile"}};
  for (const auto& [nome, testo] : riquadri) EXPECT_EQ(Trova<QGroupBox>(dialogo_, nome)->title(), testo);
}

TEST_F(FrmVar, NamesItsBoxes) {
  struct Etichetta {
    const char* Nome;
    const char* Testo;
    const char* Casella;
  };
  for (const Etichetta& attesa : {Etichetta{"lblDef", "Definizione della variabile:", "txtVar"},
                                  {"lblValCampo", "Valore campo:", "txtValCampo"},
                                  {"lblLungh", "Lunghezza:", "txtLungh"},
                                  {"lblCar", "Carattere di riempimento:", "txtCar"}}) {
    EXPECT_EQ(Trova<QLabel>(dialogo_, attesa.Nome)->text(), attesa.Testo);
    EXPECT_EQ(Trova<QLabel>(dialogo_, attesa.Nome)->buddy(), Casella(attesa.Casella));
  }
  EXPECT_EQ(Lista()->accessibleName(), "Variabili disponibili");
  EXPECT_EQ(Casella("txtTrova")->accessibleName(), "Testo da cercare");
  EXPECT_EQ(Casella("txtVar")->accessibleName(), "Codice della variabile");
  EXPECT_EQ(Casella("txtFlag")->accessibleName(), "Codice del flag");
  EXPECT_EQ(Casella("txtMulti")->accessibleName(), "Numero di linee");
  EXPECT_EQ(Casella("txtDecimali")->accessibleName(), "Numero di decimali");
}

/// Inside another frame the toolkit reads out that one's title.
TEST_F(FrmVar, EachFrameIsReadByItsOwnTitle) {
  for (const char* nome : {"fraVarDisp", "fraFormatoVar", "fraAllinea", "fraTipoVar"}) {
    auto* riquadro = Trova<QGroupBox>(dialogo_, nome);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(riquadro)->text(QAccessible::Name), riquadro->title());
  }
}

TEST_F(FrmVar, OpeningOnANumericCodeShowsAllOfItsFormat) {
  dialogo_.Mostra("V25;12R\"*\";.0,2-;1");
  EXPECT_EQ(Lista()->currentRow(), 1);
  EXPECT_EQ(Testo("txtLungh"), "12");
  EXPECT_TRUE(Spuntato("optAll_1"));
  EXPECT_TRUE(Spuntato("optTipoVar_1"));
  EXPECT_EQ(Testo("txtCar"), "*");
  for (const char* nome : {"chkSep", "chkZero", "chkSegno", "chkDecimali", "chkEuro"}) {
    EXPECT_TRUE(Spuntato(nome)) << nome;
  }
  EXPECT_FALSE(Spuntato("chkMulti"));
  EXPECT_EQ(Testo("txtDecimali"), "2");
  EXPECT_EQ(Testo("txtValCampo"), "        0,00");
  EXPECT_EQ(Codice(), "«V25;12R\"*\";.0,2-;1»");
}

TEST_F(FrmVar, OpeningOnAStringCodeShowsItsLines) {
  dialogo_.Mostra("V40,5;20R\"-\"");
  EXPECT_EQ(Lista()->currentRow(), 2);
  EXPECT_TRUE(Spuntato("optTipoVar_0"));
  EXPECT_TRUE(Spuntato("chkMulti"));
  EXPECT_EQ(Testo("txtMulti"), "5");
  EXPECT_EQ(Testo("txtValCampo"), QString(20, '-'));
  EXPECT_EQ(Codice(), "«V40,5;20R\"-\"»");
}

TEST_F(FrmVar, OpeningOnANumericCodeWithALineCountDropsIt) {
  dialogo_.Mostra("V25,2;12R;#;0");
  EXPECT_EQ(Testo("txtMulti"), "0");
  EXPECT_FALSE(Spuntato("chkMulti"));
  EXPECT_EQ(Codice(), "«V25;12R;#;0»");
}

TEST_F(FrmVar, OpeningOnACodeOfTheSelectedEntryShowsTheCodesFormat) {
  dialogo_.Mostra("V12;7R");
  EXPECT_EQ(Testo("txtLungh"), "7");
  EXPECT_EQ(Codice(), "«V12;7R»");
}

TEST_F(FrmVar, ANumberThatNoEntryHasShowsTheFirstEntryWithItsOwnSettings) {
  dialogo_.Mostra("V77;5R\"*\"");
  EXPECT_EQ(Lista()->currentRow(), 0);
  EXPECT_EQ(Testo("txtLungh"), "30");
  EXPECT_EQ(Codice(), "«V12;30L»");
}

TEST_F(FrmVar, OkInsertsTheChosenFlagBeforeTheVariable) {
  QWidget* chiesto = nullptr;
  flagScelto_ = [&chiesto](QWidget* padre) {
    chiesto = padre;
    return ConDelimitatori("F7N");
  };
  Clicca("cmdFlag");
  EXPECT_EQ(chiesto, &dialogo_);
  EXPECT_EQ(Testo("txtFlag"), "«F7N»");
  Clicca("cmdOk");
  EXPECT_EQ(dialogo_.Codici(), (Codici{ConDelimitatori("F7N"), ConDelimitatori("V12;30L")}));
}

TEST_F(FrmVar, AFlagThatWasNotChosenLeavesTheOneBefore) {
  flagScelto_ = [](QWidget*) { return ConDelimitatori("F3S"); };
  Clicca("cmdFlag");
  flagScelto_ = NessunFlag;
  Clicca("cmdFlag");
  EXPECT_EQ(Testo("txtFlag"), "«F3S»");
}

TEST_F(FrmVar, EnterIsOkInTheListAndInEveryBox) {
  for (const char* nome : {"lstVar", "txtLungh", "txtCar", "optAll_0", "chkMulti"}) {
    frmVar altro(QuattroVariabili(), NessunFlag, nullptr);
    altro.show();
    auto* controllo = Trova<QWidget>(altro, nome);
    controllo->setFocus();
    QTest::keyClick(controllo, Qt::Key_Return);
    EXPECT_FALSE(altro.isVisible()) << nome;
    EXPECT_EQ(altro.Codici(), Codici{ConDelimitatori("V12;30L")}) << nome;
  }
}

TEST_F(FrmVar, TabGoesThroughTheControlsAsTheyAreRead) {
  Lista()->setCurrentRow(1);
  Lista()->setFocus();
  QStringList percorsi;
  do {
    percorsi += dialogo_.focusWidget()->objectName();
    QTest::keyClick(dialogo_.focusWidget(), Qt::Key_Tab);
  } while (dialogo_.focusWidget() != Lista() && percorsi.size() < 30);
  EXPECT_EQ(percorsi, QStringList({"lstVar", "txtTrova", "cmdTrova", "cmdFlag", "txtValCampo", "txtLungh",
                                   "txtCar", "optAll_0", "optAll_1", "chkDecimali", "txtDecimali", "chkZero",
                                   "chkSegno", "chkSep", "chkEuro", "cmdOk", "cmdCanc"}))
      << percorsi.join(' ').toStdString();
}

TEST_F(FrmVar, CancelAndEscapeInsertNothing) {
  Clicca("cmdCanc");
  EXPECT_FALSE(dialogo_.isVisible());
  EXPECT_EQ(dialogo_.Codici(), Codici{});

  frmVar altro(QuattroVariabili(), NessunFlag, nullptr);
  altro.show();
  QTest::keyClick(Trova<QLineEdit>(altro, "txtLungh"), Qt::Key_Escape);
  EXPECT_FALSE(altro.isVisible());
  EXPECT_EQ(altro.Codici(), Codici{});
}

TEST_F(FrmVar, TheCloseBoxDoesNothing) {
  EXPECT_FALSE(dialogo_.close());
  EXPECT_TRUE(dialogo_.isVisible());
}

TEST_F(FrmVar, TheCodesCanBeReadThoughTheirBoxesAreDisabled) {
  QPalette scura = dialogo_.palette();
  scura.setColor(QPalette::WindowText, Qt::white);
  scura.setColor(QPalette::Disabled, QPalette::WindowText, Qt::gray);
  dialogo_.setPalette(scura);
  for (const char* nome : {"txtVar", "txtFlag"}) {
    EXPECT_EQ(Casella(nome)->palette().color(QPalette::Disabled, QPalette::Text), QColor(Qt::white));
    const QFontMetrics misure = Casella(nome)->fontMetrics();
    EXPECT_EQ(misure.horizontalAdvance("iiii"), misure.horizontalAdvance("MMMM"));
  }
}

class FrmVarDiSezioneSenzaVariabili : public FrmVar {
 protected:
  FrmVarDiSezioneSenzaVariabili() : FrmVar({Variabile()}) {}
};

TEST_F(FrmVarDiSezioneSenzaVariabili, OkInsertsNothing) {
  flagScelto_ = [](QWidget*) { return ConDelimitatori("F3S"); };
  EXPECT_EQ(Codice(), "«V0;1L\"$\"»");
  Clicca("cmdFlag");
  Clicca("cmdOk");
  EXPECT_FALSE(dialogo_.isVisible());
  EXPECT_EQ(dialogo_.Codici(), Codici{});
}

class FrmVarSenzaVoci : public FrmVar {
 protected:
  FrmVarSenzaVoci() : FrmVar({}) {}
};

TEST_F(FrmVarSenzaVoci, ThereIsNothingToChoose) {
  dialogo_.Mostra("V12;30L");
  Scrivi("txtLungh", "5");
  EXPECT_EQ(Codice(), "");
  Clicca("cmdOk");
  EXPECT_EQ(dialogo_.Codici(), Codici{});
}

}  // namespace
}  // namespace parvik
