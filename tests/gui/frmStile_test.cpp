#include "tokens/frmStile.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "Maschera.h"
#include "supporto/ConNome.h"

namespace parvik {
namespace {

using prova::Apri;
using prova::Codici;
using prova::Conferma;
using prova::Trova;

constexpr int NumeroStili = 5;

QRadioButton* Opzione(const frmStile& dialogo, int indice) {
  return Trova<QRadioButton>(dialogo, qPrintable(QStringLiteral("optStile_%1").arg(indice)));
}

/// The option that is selected; -1 when none is.
int Scelta(const frmStile& dialogo) {
  for (int i = 0; i < NumeroStili; ++i) {
    if (Opzione(dialogo, i)->isChecked()) return i;
  }
  return -1;
}

QString Codice(const frmStile& dialogo) {
  return Trova<QLineEdit>(dialogo, "txtStile")->text();
}

TEST(FrmStile, CaptionsAreThoseOfTheStyles) {
  const frmStile dialogo(nullptr);
  QStringList didascalie = {dialogo.windowTitle(), Trova<QGroupBox>(dialogo, "fraStili")->title()};
  for (int i = 0; i < NumeroStili; ++i) didascalie += Opzione(dialogo, i)->text();
  for (const char* nome : {"cmdOk", "cmdCanc"}) didascalie += Trova<QPushButton>(dialogo, nome)->text();
  EXPECT_EQ(didascalie, QStringList({"Stile carattere", "Stili", "Normale", "Grassetto", "Compresso",
                                     "Corsivo o Italico", "Sottolineato", "OK", "Cancel"}));
}

TEST(FrmStile, TheCodeBoxIsDisabledAndHasAName) {
  const frmStile dialogo(nullptr);
  auto* casella = Trova<QLineEdit>(dialogo, "txtStile");
  EXPECT_FALSE(casella->isEnabled());
  EXPECT_EQ(QAccessible::queryAccessibleInterface(casella)->text(QAccessible::Name), "Codice dello stile");
}

TEST(FrmStile, OpenedFromTheMenuNothingIsChosen) {
  frmStile dialogo(nullptr);
  Apri(dialogo);
  EXPECT_EQ(Scelta(dialogo), -1);
  EXPECT_EQ(Codice(dialogo), "");
  EXPECT_TRUE(Trova<QPushButton>(dialogo, "cmdOk")->hasFocus());
}

TEST(FrmStile, OkWithoutAChoiceInsertsTheEmptyText) {
  frmStile dialogo(nullptr);
  Apri(dialogo);
  QTest::keyClick(&dialogo, Qt::Key_Return);
  EXPECT_EQ(dialogo.Codici(), Codici({""}));
}

struct Caso {
  const char* Nome;
  int Opzione;
  const char* Contenuto;
};
using prova::PrintTo;

const Caso Casi[] = {{"Normale", 0, "S;NORMALE"},
                     {"Grassetto", 1, "S;GRASSETTO"},
                     {"Compresso", 2, "S;COMPRESSO"},
                     {"Italico", 3, "S;ITALICO"},
                     {"Sottolineato", 4, "S;SOTTOLINEATO"}};

class FrmStileTest : public testing::TestWithParam<Caso> {};

TEST_P(FrmStileTest, AClickOnAnOptionWritesItsCode) {
  frmStile dialogo(nullptr);
  Apri(dialogo);
  QTest::mouseClick(Opzione(dialogo, GetParam().Opzione), Qt::LeftButton, {}, {8, 8});
  EXPECT_EQ(Scelta(dialogo), GetParam().Opzione);
  Conferma(dialogo);
  EXPECT_EQ(dialogo.Codici(), Codici({ConDelimitatori(GetParam().Contenuto)}));
}

TEST_P(FrmStileTest, TheFocusSelectsAnOptionAndWritesItsCode) {
  frmStile dialogo(nullptr);
  Apri(dialogo);
  Opzione(dialogo, GetParam().Opzione)->setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(Scelta(dialogo), GetParam().Opzione);
  Conferma(dialogo);
  EXPECT_EQ(dialogo.Codici(), Codici({ConDelimitatori(GetParam().Contenuto)}));
}

TEST_P(FrmStileTest, ACodeComesBackUnchanged) {
  frmStile dialogo(nullptr);
  dialogo.Mostra(GetParam().Contenuto);
  Apri(dialogo);
  EXPECT_TRUE(Opzione(dialogo, GetParam().Opzione)->hasFocus());
  EXPECT_EQ(Scelta(dialogo), GetParam().Opzione);
  Conferma(dialogo);
  EXPECT_EQ(dialogo.Codici(), Codici({ConDelimitatori(GetParam().Contenuto)}));
}

INSTANTIATE_TEST_SUITE_P(Stili, FrmStileTest, testing::ValuesIn(Casi),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(FrmStile, ArrowKeysMoveTheChoice) {
  frmStile dialogo(nullptr);
  dialogo.Mostra("S;NORMALE");
  Apri(dialogo);
  QStringList codici;
  for (const auto tasto : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) {
    QTest::keyClick(QApplication::focusWidget(), tasto);
    codici += Codice(dialogo);
  }
  EXPECT_EQ(codici, QStringList({"«S;GRASSETTO»", "«S;COMPRESSO»", "«S;ITALICO»", "«S;SOTTOLINEATO»",
                                 "«S;ITALICO»"}));
}

TEST(FrmStile, TheKeyboardAloneChoosesFromTheMenu) {
  frmStile dialogo(nullptr);
  Apri(dialogo);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(Codice(dialogo), "");  // Cancel
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(Codice(dialogo), "«S;NORMALE»");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(dialogo.Codici(), Codici({ConDelimitatori("S;GRASSETTO")}));
}

TEST(FrmStile, TheWordIsKnownByTwoLettersInAnyCase) {
  frmStile dialogo(nullptr);
  dialogo.Mostra("S;Italico");
  Apri(dialogo);
  EXPECT_EQ(Opzione(dialogo, Scelta(dialogo))->text(), "Corsivo o Italico");
  EXPECT_EQ(Codice(dialogo), "«S;ITALICO»");
}

TEST(FrmStile, AnUnknownWordSelectsNormale) {
  for (const char* contenuto : {"S;XX", "S;", "S"}) {
    frmStile dialogo(nullptr);
    dialogo.Mostra(contenuto);
    Apri(dialogo);
    EXPECT_TRUE(Opzione(dialogo, 0)->hasFocus()) << contenuto;
    EXPECT_EQ(Scelta(dialogo), 0) << contenuto;
    EXPECT_EQ(Codice(dialogo), "«S;NORMALE»") << contenuto;
  }
}

}  // namespace
}  // namespace parvik
