// A code whose variable or flag its section does not have: what the dialog says, and what Enter does not do.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>

#include "Maschera.h"
#include "tokens/frmFlag.h"
#include "tokens/frmVar.h"

namespace parvik {
namespace {

using prova::Apri;
using prova::Casella;
using prova::Codici;
using prova::Conferma;
using prova::Trova;

std::string UnFlag(QWidget*) {
  return ConDelimitatori("F7N");
}

/// Opens the dialog on a code and tells what can be seen of it.
template <class Maschera>
class CodiceSconosciuto : public testing::Test {
 protected:
  explicit CodiceSconosciuto(Maschera* maschera) : maschera_(maschera) {}

  void Mostra(const char* contenuto) {
    maschera_->Mostra(contenuto);
    Apri(*maschera_);
  }

  /// "" when there is no line.
  QString Avviso() {
    const auto* riga = Trova<QLabel>(*maschera_, "lblAvviso");
    return riga->isVisible() ? riga->text() : QString();
  }
  bool OkPredefinito() { return Trova<QPushButton>(*maschera_, "cmdOk")->isDefault(); }
  bool InvioChiude() {
    QTest::keyClick(maschera_->focusWidget(), Qt::Key_Return);
    return !maschera_->isVisible();
  }
  void AttendiAvviso(const QString& atteso) {
    EXPECT_EQ(Avviso(), atteso);
    EXPECT_FALSE(OkPredefinito());
    EXPECT_FALSE(InvioChiude());
    EXPECT_FALSE(OkPredefinito());
  }
  void AttendiNessunAvviso() {
    EXPECT_EQ(Avviso(), "");
    EXPECT_TRUE(OkPredefinito());
    EXPECT_TRUE(InvioChiude());
  }
  void CliccaVoce(const char* lista, int riga) {
    auto* voci = Trova<QListWidget>(*maschera_, lista);
    QTest::mouseClick(voci->viewport(), Qt::LeftButton, {}, voci->visualItemRect(voci->item(riga)).center());
  }

  std::unique_ptr<Maschera> maschera_;
};

class VariabileSconosciuta : public CodiceSconosciuto<frmVar> {
 protected:
  explicit VariabileSconosciuta(
      std::vector<Variabile> variabili = {{"Cliente", 12, 30, "", 1, 0, 0, 0, 0, 0, "0", "0"},
                                          {"Totale", 8, 10, "", 0, 1, 0, 1, 0, 1, "2", "1"}})
      : CodiceSconosciuto(new frmVar(std::move(variabili), UnFlag, nullptr)) {}
};

constexpr const char* Di102 =
    "La variabile 102 non è nel catalogo di questa sezione: con OK il codice diventa «V12;30L».";

TEST_F(VariabileSconosciuta, IsSaidAndEnterDoesNotTurnItIntoAnother) {
  Mostra("V102;16L");
  AttendiAvviso(Di102);
  EXPECT_EQ(Casella(*maschera_, "txtVar").text(), "«V12;30L»");
  EXPECT_EQ(Conferma(*maschera_), Codici{ConDelimitatori("V12;30L")}) << "OK itself can be used";
}

TEST_F(VariabileSconosciuta, EnterOnOkIsMeant) {
  Mostra("V102;16L");
  auto* ok = Trova<QPushButton>(*maschera_, "cmdOk");
  ok->setFocus();
  QTest::keyClick(ok, Qt::Key_Return);
  EXPECT_EQ(maschera_->Codici(), Codici{ConDelimitatori("V12;30L")});
}

TEST_F(VariabileSconosciuta, EnterElsewhereAndAVisitToTheButtonsChangeNothing) {
  Mostra("V102;16L");
  for (const char* nome : {"txtLungh", "cmdOk", "txtCar", "cmdCanc", "optAll_0", "cmdTrova", "lstVar"}) {
    auto* controllo = Trova<QWidget>(*maschera_, nome);
    controllo->setFocus();
    if (qobject_cast<QPushButton*>(controllo) != nullptr) continue;
    AttendiAvviso(Di102);
  }
}

TEST_F(VariabileSconosciuta, AnotherEntryIsAChoice) {
  Mostra("V102;16L");
  QTest::keyClick(maschera_->focusWidget(), Qt::Key_Down);
  AttendiNessunAvviso();
  EXPECT_EQ(maschera_->Codici(), Codici{ConDelimitatori("V8;10R;.#,2-;1")});
}

TEST_F(VariabileSconosciuta, AClickOnTheFirstEntryIsAChoice) {
  Mostra("V102;16L");
  CliccaVoce("lstVar", 0);
  AttendiNessunAvviso();
}

TEST_F(VariabileSconosciuta, WhatTheSearchFindsIsAChoice) {
  Mostra("V102;16L");
  auto& cercato = Casella(*maschera_, "txtTrova");
  cercato.setFocus();
  QTest::keyClicks(&cercato, "cliente");
  EXPECT_EQ(Avviso(), Di102);
  QTest::keyClick(&cercato, Qt::Key_Return);
  Trova<QListWidget>(*maschera_, "lstVar")->setFocus();
  AttendiNessunAvviso();
}

TEST_F(VariabileSconosciuta, EveryChangeOfTheFormatIsOne) {
  for (const char* nome : {"txtLungh", "txtCar"}) {
    Mostra("V102;16L");
    EXPECT_NE(Avviso(), "") << nome;
    Casella(*maschera_, nome).setFocus();
    QTest::keyClicks(&Casella(*maschera_, nome), "5");
    AttendiNessunAvviso();
  }
  for (const char* nome : {"optAll_1", "optAll_0", "chkMulti"}) {
    Mostra("V102;16L");
    EXPECT_NE(Avviso(), "") << nome;
    auto* tasto = Trova<QAbstractButton>(*maschera_, nome);
    QTest::mouseClick(tasto, Qt::LeftButton, {}, QPoint(10, tasto->height() / 2));
    AttendiNessunAvviso();
  }
}

TEST_F(VariabileSconosciuta, AFlagInFrontOfItIsNoChoiceOfAVariable) {
  Mostra("V102;16L");
  QTest::mouseClick(Trova<QPushButton>(*maschera_, "cmdFlag"), Qt::LeftButton);
  ASSERT_EQ(Casella(*maschera_, "txtFlag").text(), "«F7N»");
  Trova<QListWidget>(*maschera_, "lstVar")->setFocus();
  AttendiAvviso(Di102);
}

TEST_F(VariabileSconosciuta, ANumberThatIsNoneReadsAsZero) {
  Mostra("Vx;5");
  AttendiAvviso("La variabile 0 non è nel catalogo di questa sezione: con OK il codice diventa «V12;30L».");
}

TEST_F(VariabileSconosciuta, AKnownVariableAndANewOneSayNothing) {
  Mostra("V8;5R;#;0");
  AttendiNessunAvviso();
  Mostra("V102;16L");
  EXPECT_EQ(Avviso(), Di102);
  Mostra("V12;5L");
  AttendiNessunAvviso();
  frmVar nuova({{"Cliente", 12, 30, "", 1, 0, 0, 0, 0, 0, "0", "0"}}, UnFlag, nullptr);
  Apri(nuova);
  EXPECT_FALSE(Trova<QLabel>(nuova, "lblAvviso")->isVisible());
}

TEST_F(VariabileSconosciuta, TheLineIsReadByItsTextAndShownWhole) {
  Mostra("V102;16L");
  auto* riga = Trova<QLabel>(*maschera_, "lblAvviso");
  EXPECT_EQ(riga->accessibleName(), "");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(riga)->text(QAccessible::Name), Di102);
  EXPECT_GE(riga->height(), riga->heightForWidth(riga->width()));
}

TEST_F(VariabileSconosciuta, TheControlsAboveStayWhereTheyAreWhenTheLineGoes) {
  Mostra("V102;16L");
  const auto posti = [this] {
    QList<QPoint> punti;
    for (const char* nome : {"lstVar", "txtVar", "txtLungh", "chkEuro", "cmdOk"}) {
      punti += Trova<QWidget>(*maschera_, nome)->mapTo(&*maschera_, QPoint(0, 0));
    }
    return punti;
  };
  const QSize dimensione = maschera_->size();
  const QList<QPoint> prima = posti();
  CliccaVoce("lstVar", 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(maschera_->size(), dimensione);
  EXPECT_EQ(posti(), prima);
}

class VariabileSenzaVariabili : public VariabileSconosciuta {
 protected:
  VariabileSenzaVariabili() : VariabileSconosciuta({Variabile()}) {}
};

TEST_F(VariabileSenzaVariabili, OkWouldLeaveTheCodeAsItIs) {
  Mostra("V102;16L");
  AttendiAvviso("La variabile 102 non è nel catalogo di questa sezione: con OK il codice resta com'è.");
  EXPECT_EQ(Conferma(*maschera_), Codici{});
}

class FlagSconosciuto : public CodiceSconosciuto<frmFlag> {
 protected:
  explicit FlagSconosciuto(std::vector<Flag> flag = {{"Sconto", 3, "S"}, {"Estero", 7, "S"}})
      : CodiceSconosciuto(new frmFlag(std::move(flag), nullptr)) {}
};

TEST_F(FlagSconosciuto, IsSaidAndEnterDoesNotTurnItIntoAnother) {
  Mostra("F102N");
  AttendiAvviso("Il flag 102 non è nel catalogo di questa sezione: con OK il codice diventa «F3N».");
  EXPECT_EQ(Conferma(*maschera_), Codici{ConDelimitatori("F3N")});
}

TEST_F(FlagSconosciuto, AnotherEntryAClickAndTheCheckAreChoices) {
  for (int volta = 0; volta < 3; ++volta) {
    Mostra("F102N");
    EXPECT_NE(Avviso(), "") << volta;
    if (volta == 0) QTest::keyClick(maschera_->focusWidget(), Qt::Key_Down);
    if (volta == 1) CliccaVoce("lstFlag", 0);
    if (volta == 2) QTest::keyClick(Trova<QCheckBox>(*maschera_, "chkSost"), Qt::Key_Space);
    AttendiNessunAvviso();
  }
}

TEST_F(FlagSconosciuto, ANumberThatIsNoneReadsAsZeroAndAnEnormousOneIsWrittenAsItIs) {
  Mostra("FxyzS");
  EXPECT_EQ(Avviso(), "Il flag 0 non è nel catalogo di questa sezione: con OK il codice diventa «F3S».");
  Mostra("F99999999999999999999N");
  EXPECT_EQ(Avviso(),
            "Il flag 99999999999999999999 non è nel catalogo di questa sezione: con OK il codice diventa "
            "«F3N».");
}

TEST_F(FlagSconosciuto, AKnownFlagSaysNothing) {
  Mostra("F7");
  AttendiNessunAvviso();
}

class FlagSenzaFlag : public FlagSconosciuto {
 protected:
  FlagSenzaFlag() : FlagSconosciuto({{"", 0, ""}, {"Solo prima pagina", 97, "N"}}) {}
};

TEST_F(FlagSenzaFlag, OkWouldLeaveTheCodeAsItIsUntilAnEntryIsChosen) {
  Mostra("F102N");
  AttendiAvviso("Il flag 102 non è nel catalogo di questa sezione: con OK il codice resta com'è.");
  CliccaVoce("lstFlag", 1);
  AttendiNessunAvviso();
  EXPECT_EQ(maschera_->Codici(), Codici{ConDelimitatori("F97N")});
}

}  // namespace
}  // namespace parvik
