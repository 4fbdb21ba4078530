#include "tokens/frmFlag.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "Finestra.h"
#include "tokens/Codice.h"

namespace parvik {
namespace {

using prova::Trova;
using Codici = std::vector<std::string>;

const std::vector<Flag> SeiFlag = {
    {"Sconto presente", 3, "S"},    {"Cliente estero", 7, "S"},         {"Omaggio", 14, "N"},
    {"Solo prima pagina", 97, "N"}, {"Escluso ultima pagina", 98, "N"}, {"Su tutte le pagine", 99, "N"}};

class FrmFlag : public testing::Test {
 protected:
  /// Asked of a dialog: entry, check, code.
  struct Vista {
    int Voce;
    bool ConSpazi;
    QString Codice;
    bool operator==(const Vista&) const = default;
    friend void PrintTo(const Vista& vista, std::ostream* uscita) {
      *uscita << vista.Voce << (vista.ConSpazi ? " [x] " : " [ ] ") << vista.Codice.toStdString();
    }
  };

  explicit FrmFlag(std::vector<Flag> flag = SeiFlag) : dialogo_(std::move(flag), nullptr) { dialogo_.show(); }

  QListWidget* Lista() { return Trova<QListWidget>(dialogo_, "lstFlag"); }
  QCheckBox* Sost() { return Trova<QCheckBox>(dialogo_, "chkSost"); }
  QLineEdit* Codice() { return Trova<QLineEdit>(dialogo_, "txtFlag"); }
  Vista Mostrato() { return {Lista()->currentRow(), Sost()->isChecked(), Codice()->text()}; }
  void Clicca(const char* pulsante) {
    QTest::mouseClick(Trova<QPushButton>(dialogo_, pulsante), Qt::LeftButton);
  }

  frmFlag dialogo_;
};

class FrmFlagDiSezioneSenzaFlag : public FrmFlag {
 protected:
  FrmFlagDiSezioneSenzaFlag() : FrmFlag({{"", 0, ""}, {"Solo prima pagina", 97, "N"}}) {}
};

class FrmFlagSenzaVoci : public FrmFlag {
 protected:
  FrmFlagSenzaVoci() : FrmFlag({}) {}
};

TEST_F(FrmFlag, OpensOnTheFirstEntryWithItsOwnSwitch) {
  ASSERT_EQ(Lista()->count(), 6);
  EXPECT_EQ(Lista()->item(5)->text(), "Su tutte le pagine");
  EXPECT_EQ(Mostrato(), (Vista{0, true, "«F3S»"}));
}

TEST_F(FrmFlag, NamesEverything) {
  EXPECT_EQ(dialogo_.windowTitle(), "Assegnazione Flag");
  EXPECT_EQ(Trova<QLabel>(dialogo_, "lblFlag")->text(), "Flags di controllo");
  EXPECT_EQ(Trova<QLabel>(dialogo_, "lblFlag")->buddy(), Lista());
  EXPECT_EQ(Lista()->accessibleName(), "Flags di controllo");
  EXPECT_EQ(Sost()->text(), "Sostituzione variabili con spazi");
  EXPECT_EQ(Codice()->accessibleName(), "Codice del flag");
  EXPECT_EQ(Trova<QPushButton>(dialogo_, "cmdOk")->text(), "OK");
  EXPECT_EQ(Trova<QPushButton>(dialogo_, "cmdCanc")->text(), "CANCEL");
}

TEST_F(FrmFlag, SelectingAnEntryShowsItsSwitchAndItsCode) {
  QTest::keyClick(Lista(), Qt::Key_Down);
  EXPECT_EQ(Mostrato(), (Vista{1, true, "«F7S»"}));
  QTest::keyClick(Lista(), Qt::Key_Down);
  EXPECT_EQ(Mostrato(), (Vista{2, false, "«F14N»"}));
}

TEST_F(FrmFlag, TheCheckSetsTheSwitchOfTheSelectedEntryAlone) {
  QTest::mouseClick(Sost(), Qt::LeftButton, {}, QPoint(8, Sost()->height() / 2));
  EXPECT_EQ(Mostrato(), (Vista{0, false, "«F3N»"}));
  QTest::keyClick(Lista(), Qt::Key_Down);
  EXPECT_EQ(Mostrato(), (Vista{1, true, "«F7S»"}));
  QTest::keyClick(Lista(), Qt::Key_Up);
  EXPECT_EQ(Mostrato(), (Vista{0, false, "«F3N»"}));
  QTest::keyClick(Sost(), Qt::Key_Space);
  EXPECT_EQ(Mostrato(), (Vista{0, true, "«F3S»"}));
}

TEST_F(FrmFlag, OpeningOnACodeWithoutASwitchUnchecksTheSubstitution) {
  dialogo_.Mostra("F7");
  EXPECT_EQ(Mostrato(), (Vista{1, false, "«F7N»"}));
  Clicca("cmdOk");
  EXPECT_EQ(dialogo_.Codici(), Codici{ConDelimitatori("F7N")});
}

TEST_F(FrmFlag, OpeningOnACodeTakesItsSwitch) {
  dialogo_.Mostra("F14S");
  EXPECT_EQ(Mostrato(), (Vista{2, true, "«F14S»"}));
}

TEST_F(FrmFlag, OpeningOnACodeOfTheFirstEntryTakesItsSwitch) {
  dialogo_.Mostra("F3N");
  EXPECT_EQ(Mostrato(), (Vista{0, false, "«F3N»"}));
}

TEST_F(FrmFlag, ASwitchOfAnotherLetterCountsAsOnAndStays) {
  dialogo_.Mostra("F14x");
  EXPECT_EQ(Mostrato(), (Vista{2, true, "«F14x»"}));
}

TEST_F(FrmFlag, APageConditionIsAFlagLikeTheOthers) {
  dialogo_.Mostra("F98S");
  EXPECT_EQ(Mostrato(), (Vista{4, true, "«F98S»"}));
}

TEST_F(FrmFlag, NumbersAreComparedAsNumbers) {
  dialogo_.Mostra("F007S");
  EXPECT_EQ(Mostrato(), (Vista{1, true, "«F7S»"}));
}

TEST_F(FrmFlag, ANumberThatNoEntryHasSetsTheSwitchOfTheFirstEntry) {
  dialogo_.Mostra("F55N");
  EXPECT_EQ(Mostrato(), (Vista{0, false, "«F3N»"}));
  dialogo_.Mostra("FxyzS");
  EXPECT_EQ(Mostrato(), (Vista{0, true, "«F3S»"}));
  dialogo_.Mostra("F99999999999999999999N");
  EXPECT_EQ(Mostrato(), (Vista{0, false, "«F3N»"}));
}

TEST_F(FrmFlag, EnterIsOkInTheListAndOnTheCheck) {
  QTest::keyClick(Lista(), Qt::Key_Down);
  QTest::keyClick(Lista(), Qt::Key_Return);
  EXPECT_FALSE(dialogo_.isVisible());
  EXPECT_EQ(dialogo_.Codici(), Codici{ConDelimitatori("F7S")});

  frmFlag altro(SeiFlag, nullptr);
  altro.show();
  QTest::keyClick(Trova<QCheckBox>(altro, "chkSost"), Qt::Key_Return);
  EXPECT_EQ(altro.Codici(), Codici{ConDelimitatori("F3S")});
}

TEST_F(FrmFlag, CancelGivesNoCode) {
  Clicca("cmdCanc");
  EXPECT_FALSE(dialogo_.isVisible());
  EXPECT_EQ(dialogo_.Codici(), Codici{});
}

TEST_F(FrmFlag, EscapeGivesNoCode) {
  QTest::keyClick(Lista(), Qt::Key_Escape);
  EXPECT_FALSE(dialogo_.isVisible());
  EXPECT_EQ(dialogo_.Codici(), Codici{});
}

TEST_F(FrmFlag, TheCloseBoxDoesNothing) {
  EXPECT_FALSE(dialogo_.close());
  EXPECT_TRUE(dialogo_.isVisible());
}

TEST_F(FrmFlag, TheCodeCanBeReadThoughItsBoxIsDisabled) {
  EXPECT_FALSE(Codice()->isEnabled());
  const QFontMetrics misure = Codice()->fontMetrics();
  EXPECT_EQ(misure.horizontalAdvance("iiii"), misure.horizontalAdvance("MMMM"));
  QPalette scura = dialogo_.palette();
  scura.setColor(QPalette::WindowText, Qt::white);
  scura.setColor(QPalette::Disabled, QPalette::WindowText, Qt::gray);
  dialogo_.setPalette(scura);
  EXPECT_EQ(Codice()->palette().color(QPalette::Disabled, QPalette::Text), QColor(Qt::white));
}

TEST_F(FrmFlagDiSezioneSenzaFlag, TheEntryWithoutATextGivesNoCodeOnOk) {
  EXPECT_EQ(Mostrato(), (Vista{0, true, "«F0»"}));
  Clicca("cmdOk");
  EXPECT_FALSE(dialogo_.isVisible());
  EXPECT_EQ(dialogo_.Codici(), Codici{});
}

TEST_F(FrmFlagDiSezioneSenzaFlag, ThePageConditionsCanBeChosenWithTheMouse) {
  const QRect voce = Lista()->visualItemRect(Lista()->item(1));
  EXPECT_GT(Lista()->visualItemRect(Lista()->item(0)).height(), 0);
  QTest::mouseClick(Lista()->viewport(), Qt::LeftButton, {}, voce.center());
  Clicca("cmdOk");
  EXPECT_EQ(dialogo_.Codici(), Codici{ConDelimitatori("F97N")});
}

TEST_F(FrmFlagSenzaVoci, ThereIsNothingToChoose) {
  dialogo_.Mostra("F7S");
  QTest::keyClick(Sost(), Qt::Key_Space);
  EXPECT_EQ(Codice()->text(), "");
  Clicca("cmdOk");
  EXPECT_EQ(dialogo_.Codici(), Codici{});
}

}  // namespace
}  // namespace parvik
