#include "tokens/frmVar.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "Finestra.h"
#include "common/qtTesto.h"
#include "tokens/Codice.h"
#include "tokens/CodiceVariabile.h"

namespace parvik {
namespace {

using prova::Trova;
using Codici = std::vector<std::string>;

/// Two strings, two numbers.
std::vector<Variabile> QuattroVariabili() {
  return {{"Cliente", 12, 30, "", 1, 0, 0, 0, 0, 0, "0", "0"},
          {"Imponibile", 25, 9, "", 0, 1, 0, 0, 0, 0, "0", "0"},
          {"Note", 40, 35, ".", 1, 0, 3, 0, 0, 0, "0", "0"},
          {"Totale imponibile", 8, 10, "", 0, 1, 0, 1, 0, 1, "2", "x"}};
}

std::string NessunFlag(QWidget*) {
  return {};
}

class FrmVar : public testing::Test {
 protected:
  explicit FrmVar(std::vector<Variabile> variabili = QuattroVariabili())
      : dialogo_(
            std::move(variabili), [this](QWidget* padre) { return flagScelto_(padre); }, nullptr) {
    dialogo_.show();
  }

  QListWidget* Lista() { return Trova<QListWidget>(dialogo_, "lstVar"); }
  QLineEdit* Casella(const char* nome) { return Trova<QLineEdit>(dialogo_, nome); }
  QAbstractButton* Tasto(const char* nome) { return Trova<QAbstractButton>(dialogo_, nome); }
  QString Testo(const char* nome) { return Casella(nome)->text(); }
  bool Spuntato(const char* nome) { return Tasto(nome)->isChecked(); }
  bool Attivo(const char* nome) { return Trova<QWidget>(dialogo_, nome)->isEnabled(); }
  void Clicca(const char* nome) {
    QTest::mouseClick(Tasto(nome), Qt::LeftButton, {}, QPoint(10, Tasto(nome)->height() / 2));
  }
  /// What a user does who fills a box anew.
  void Scrivi(const char* nome, const char* testo) {
    Casella(nome)->setFocus();
    Casella(nome)->selectAll();
    QTest::keyClick(Casella(nome), Qt::Key_Delete);
    for (const QChar c : QString::fromUtf8(testo)) {
      QTest::sendKeyEvent(QTest::Click, Casella(nome), Qt::Key_unknown, c, Qt::NoModifier);
    }
  }
  QString Codice() { return Testo("txtVar"); }

  frmVar dialogo_;
  ChiediFlag flagScelto_ = NessunFlag;
};

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

TEST_F(FrmVar, EveryControlWritesTheRecordOfANumber) {
  Lista()->setCurrentRow(1);
  EXPECT_EQ(Codice(), "«V25;9R;#;0»");
  Scrivi("txtLungh", "12");
  EXPECT_EQ(Codice(), "«V25;12R;#;0»");
  Scrivi("txtCar", "*");
  EXPECT_EQ(Codice(), "«V25;12R\"*\";#;0»");
  Clicca("optAll_0");
  EXPECT_EQ(Codice(), "«V25;12L\"*\";#;0»");
  Clicca("optAll_1");
  Clicca("chkSep");
  EXPECT_EQ(Codice(), "«V25;12R\"*\";.#;0»");
  Clicca("chkZero");
  EXPECT_EQ(Codice(), "«V25;12R\"*\";.0;0»");
  Clicca("chkDecimali");
  Scrivi("txtDecimali", "2");
  EXPECT_EQ(Codice(), "«V25;12R\"*\";.0,2;0»");
  Clicca("chkSegno");
  EXPECT_EQ(Codice(), "«V25;12R\"*\";.0,2-;0»");
  Clicca("chkEuro");
  EXPECT_EQ(Codice(), "«V25;12R\"*\";.0,2-;1»");
  Clicca("cmdOk");
  EXPECT_EQ(dialogo_.Codici(), Codici{ConDelimitatori("V25;12R\"*\";.0,2-;1")});
}

TEST_F(FrmVar, EveryControlTakesBackWhatItGave) {
  dialogo_.Mostra("V25;12R\"*\";.0,2-;1");
  for (const char* nome : {"chkSep", "chkZero", "chkSegno", "chkEuro", "chkDecimali"}) Clicca(nome);
  Scrivi("txtCar", "");
  Scrivi("txtLungh", "");
  EXPECT_EQ(Codice(), "«V25;0R;#;0»");
}

TEST_F(FrmVar, LinesAreWrittenAsTheyAreTyped) {
  Clicca("chkMulti");
  EXPECT_EQ(Codice(), "«V12;30L»");
  Scrivi("txtMulti", "4");
  EXPECT_EQ(Codice(), "«V12,4;30L»");
  Scrivi("txtMulti", "");
  EXPECT_EQ(Codice(), "«V12;30L»");
}

TEST_F(FrmVar, UncheckingDecimaliPutsZeroInItsBox) {
  dialogo_.Mostra("V8;10R;#,*;0");
  EXPECT_EQ(Testo("txtDecimali"), "*");
  Clicca("chkDecimali");
  EXPECT_EQ(Testo("txtDecimali"), "0");
  EXPECT_FALSE(Attivo("txtDecimali"));
  EXPECT_EQ(Codice(), "«V8;10R;#;0»");
  Clicca("chkDecimali");
  EXPECT_TRUE(Attivo("txtDecimali"));
  EXPECT_EQ(Codice(), "«V8;10R;#;0»");
}

TEST_F(FrmVar, UncheckingMultilinePutsZeroInItsBox) {
  Lista()->setCurrentRow(2);
  EXPECT_EQ(Codice(), "«V40,3;35L\".\"»");
  Clicca("chkMulti");
  EXPECT_EQ(Testo("txtMulti"), "0");
  EXPECT_FALSE(Attivo("txtMulti"));
  EXPECT_EQ(Codice(), "«V40;35L\".\"»");
  Clicca("chkMulti");
  EXPECT_TRUE(Attivo("txtMulti"));
}

TEST_F(FrmVar, TheTypeSaysWhichControlsCanBeUsed) {
  const auto numerici = {"chkDecimali", "txtDecimali", "chkSegno", "chkSep", "chkZero", "chkEuro"};
  for (const int voce : {0, 1, 2, 3}) {
    Lista()->setCurrentRow(voce);
    const bool numerica = voce % 2 == 1;
    EXPECT_EQ(Spuntato("optTipoVar_1"), numerica);
    EXPECT_EQ(Attivo("chkMulti"), !numerica);
    EXPECT_EQ(Attivo("txtMulti"), !numerica);
    for (const char* nome : numerici) EXPECT_EQ(Attivo(nome), numerica) << nome;
    for (const char* nome : {"optTipoVar_0", "optTipoVar_1", "txtVar", "txtFlag"}) EXPECT_FALSE(Attivo(nome));
  }
}

TEST_F(FrmVar, AnEuroTextOtherThanZeroIsCheckedAndStoredAsOne) {
  Lista()->setCurrentRow(3);
  EXPECT_TRUE(Spuntato("chkEuro"));
  EXPECT_EQ(Codice(), "«V8;10R;.#,2-;1»");
  Clicca("chkEuro");
  EXPECT_EQ(Codice(), "«V8;10R;.#,2-;0»");
}

TEST_F(FrmVar, AnEntryKeepsItsFormatWhileOthersAreSelected) {
  Scrivi("txtLungh", "5");
  QTest::keyClick(Lista(), Qt::Key_Down);
  EXPECT_EQ(Codice(), "«V25;9R;#;0»");
  QTest::keyClick(Lista(), Qt::Key_Up);
  EXPECT_EQ(Testo("txtLungh"), "5");
  EXPECT_EQ(Codice(), "«V12;5L»");
}

TEST_F(FrmVar, TheSampleFollowsTheControls) {
  Lista()->setCurrentRow(1);
  EXPECT_EQ(Testo("txtValCampo"), "");
  Scrivi("txtCar", "*");
  EXPECT_EQ(Testo("txtValCampo"), "*********");
  Clicca("chkZero");
  EXPECT_EQ(Testo("txtValCampo"), "        0");
  Scrivi("txtLungh", "4");
  EXPECT_EQ(Testo("txtValCampo"), "   0");
  Clicca("chkDecimali");
  EXPECT_EQ(Testo("txtValCampo"), "****");
  Scrivi("txtDecimali", "2");
  EXPECT_EQ(Testo("txtValCampo"), "0,00");
  Scrivi("txtLungh", "3");
  EXPECT_EQ(Testo("txtValCampo"), "");
  Clicca("chkDecimali");
  EXPECT_EQ(Testo("txtValCampo"), "  0");
}

TEST_F(FrmVar, NumberBoxesTakeDigitsOnlyAndNoMoreThanTheyShould) {
  Lista()->setCurrentRow(1);
  Scrivi("txtLungh", "-1a2,345");
  EXPECT_EQ(Testo("txtLungh"), "123");
  Scrivi("txtDecimali", "x*3");
  EXPECT_EQ(Testo("txtDecimali"), "*");
  Lista()->setCurrentRow(2);
  Scrivi("txtMulti", "*75");
  EXPECT_EQ(Testo("txtMulti"), "7");
}

TEST_F(FrmVar, TheFillIsAnyOneCharacter) {
  for (const char* carattere : {" ", "\"", ";", "€", "à", "."}) {
    Scrivi("txtCar", carattere);
    EXPECT_EQ(Testo("txtCar"), QString::fromUtf8(carattere));
    EXPECT_EQ(Codice(), QString::fromUtf8("«V12;30L\"%1\"»").arg(QString::fromUtf8(carattere)));
    EXPECT_EQ(Testo("txtValCampo"), QString::fromUtf8(carattere).repeated(30));
  }
  Scrivi("txtCar", "ab");
  EXPECT_EQ(Codice(), "«V12;30L\"a\"»");
  Scrivi("txtCar", "Ω");
  EXPECT_EQ(Codice(), "«V12;30L\"?\"»");
}

TEST_F(FrmVar, TheFillIsNothingThatWouldBreakTheCode) {
  Scrivi("txtCar", "«»");
  EXPECT_EQ(Codice(), "«V12;30L»");
  Casella("txtCar")->insert("\n");
  EXPECT_EQ(Codice(), "«V12;30L\" \"»");
}

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

class FrmVarDiCatalogoStrano : public FrmVar {
 protected:
  FrmVarDiCatalogoStrano() : FrmVar({{"Strana", 3, -12345, "abc", 7, -1, -2, 3, 3, 3, "12", ""}}) {}
};

TEST_F(FrmVarDiCatalogoStrano, WhatDoesNotFitABoxIsShownAsItStands) {
  EXPECT_EQ(Testo("txtLungh"), "-12345");
  EXPECT_EQ(Testo("txtCar"), "abc");
  EXPECT_EQ(Testo("txtMulti"), "-2");
  EXPECT_EQ(Testo("txtDecimali"), "12");
  EXPECT_EQ(Testo("txtValCampo"), "");
  EXPECT_EQ(Codice(), "«V3,-2;-12345R\"abc\";#,12;1»");
}

TEST_F(FrmVarDiCatalogoStrano, ALongFillGetsShorterByHand) {
  for (const char* atteso : {"ab", "a", ""}) {
    Casella("txtCar")->setCursorPosition(3);
    QTest::keyClick(Casella("txtCar"), Qt::Key_Backspace);
    EXPECT_EQ(Testo("txtCar"), atteso);
  }
}

std::int16_t Piccolo(int da, int a) {
  return static_cast<std::int16_t>(*rc::gen::inRange(da, a));
}

Variabile QualunqueVariabile(std::int16_t numero) {
  const auto testo = rc::gen::element<std::string>("", "0", "1", "2", "*", "x", "ab", "\"", "\xE0", "\x81");
  return {*testo,         numero,          Piccolo(-32768, 32767), *testo,         Piccolo(-1, 3),
          Piccolo(-1, 3), Piccolo(-1, 12), Piccolo(-1, 3),         Piccolo(-1, 3), Piccolo(-1, 3),
          *testo,         *testo};
}

TEST(FrmVarProprieta, SelectingAnEntryLeavesItsRecordAsItIs) {
  EXPECT_TRUE(rc::check([] {
    std::vector<Variabile> variabili;
    for (std::int16_t numero = 1; numero <= 4; ++numero) variabili.push_back(QualunqueVariabile(numero));
    frmVar dialogo(variabili, NessunFlag, nullptr);
    for (const int voce : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 4))) {
      Trova<QListWidget>(dialogo, "lstVar")->setCurrentRow(voce);
      Variabile attesa = variabili[static_cast<std::size_t>(voce)];
      if (attesa.Testo3 != "0") attesa.Testo3 = "1";
      const QString codice = Trova<QLineEdit>(dialogo, "txtVar")->text();
      RC_ASSERT(codice.toStdString() == PerSchermo(CostruisciVariabile(attesa)).toStdString());
    }
  }));
}

}  // namespace
}  // namespace parvik
