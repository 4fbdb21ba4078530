// The format of a variable: the controls write its code, and the code its sample.
#include <rapidcheck.h>

#include "BancoFrmVar.h"
#include "common/qtTesto.h"
#include "tokens/Codice.h"
#include "tokens/CodiceVariabile.h"

namespace parvik {
namespace {

using prova::Codici;
using prova::FrmVar;
using prova::NessunFlag;
using prova::Trova;

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
