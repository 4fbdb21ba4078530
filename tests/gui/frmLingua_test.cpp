#include "tokens/frmLingua.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "Maschera.h"

namespace parvik {
namespace {

using prova::Apri;
using prova::Casella;
using prova::Codici;
using prova::Conferma;
using prova::Trova;

/// Index, width and code, as the boxes show them.
QStringList Caselle(const frmLingua& dialogo) {
  QStringList testi;
  for (const char* nome : {"txtIndice", "txtLungh", "txtLingua"}) testi += Casella(dialogo, nome).text();
  return testi;
}

TEST(FrmLingua, Captions) {
  const frmLingua dialogo(nullptr);
  QStringList didascalie = {dialogo.windowTitle()};
  for (const char* nome : {"lblIndice", "lblLungh"}) didascalie += Trova<QLabel>(dialogo, nome)->text();
  for (const char* nome : {"cmdOk", "cmdCanc"}) didascalie += Trova<QPushButton>(dialogo, nome)->text();
  EXPECT_EQ(didascalie,
            QStringList({"Assegnazione Lingua", "Indice tabella lingue:", "Lunghezza:", "OK", "Cancel"}));
}

TEST(FrmLingua, EveryBoxHasANameForScreenReaders) {
  const frmLingua dialogo(nullptr);
  QStringList nomi;
  for (const char* nome : {"txtIndice", "txtLungh", "txtLingua"}) {
    nomi += QAccessible::queryAccessibleInterface(&Casella(dialogo, nome))->text(QAccessible::Name);
  }
  EXPECT_EQ(nomi, QStringList({"Indice tabella lingue:", "Lunghezza:", "Codice della lingua"}));
}

TEST(FrmLingua, OpenedFromTheMenuItStartsFromItsDefaults) {
  frmLingua dialogo(nullptr);
  Apri(dialogo);
  EXPECT_EQ(Caselle(dialogo), QStringList({"1", "10", "«L1;10»"}));
  EXPECT_FALSE(Casella(dialogo, "txtLingua").isEnabled());
  EXPECT_TRUE(Casella(dialogo, "txtIndice").hasFocus());
  EXPECT_EQ(Casella(dialogo, "txtIndice").selectedText(), "1");
}

TEST(FrmLingua, EveryKeyRebuildsTheCode) {
  frmLingua dialogo(nullptr);
  Apri(dialogo);
  QTest::keyClicks(QApplication::focusWidget(), "5");
  EXPECT_EQ(Caselle(dialogo), QStringList({"5", "10", "«L5;10»"}));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(Casella(dialogo, "txtLungh").selectedText(), "10");
  QTest::keyClicks(QApplication::focusWidget(), "2");
  EXPECT_EQ(Caselle(dialogo), QStringList({"5", "2", "«L5;2»"}));
  QTest::keyClicks(QApplication::focusWidget(), "0");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(dialogo.Codici(), Codici({ConDelimitatori("L5;20")}));
}

TEST(FrmLingua, LettersHaveNoEffectAndBackspaceWorks) {
  for (const char* nome : {"txtIndice", "txtLungh"}) {
    frmLingua dialogo(nullptr);
    Apri(dialogo);
    QLineEdit& casella = Casella(dialogo, nome);
    casella.setFocus();
    const QString prima = casella.text();
    QTest::keyClicks(&casella, "aL;- ");
    EXPECT_EQ(casella.text(), prima) << nome;
    QTest::keyClicks(&casella, "1234");
    EXPECT_EQ(casella.text(), "123") << nome;
    QTest::keyClick(&casella, Qt::Key_Backspace);
    EXPECT_EQ(casella.text(), "12") << nome;
  }
}

TEST(FrmLingua, WithoutAWidthTheCodeHasNoWidthGroup) {
  frmLingua dialogo(nullptr);
  dialogo.Mostra("L5;20");
  Apri(dialogo);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
  EXPECT_EQ(Caselle(dialogo), QStringList({"5", "", "«L5»"}));
  EXPECT_EQ(Conferma(dialogo), Codici({ConDelimitatori("L5")}));
}

TEST(FrmLingua, EmptyingTheIndexEmptiesTheCodeAndOkInsertsNothingVisible) {
  frmLingua dialogo(nullptr);
  Apri(dialogo);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
  EXPECT_EQ(Caselle(dialogo), QStringList({"", "10", ""}));
  EXPECT_EQ(Conferma(dialogo), Codici({""}));
}

TEST(FrmLingua, ACodeWithoutWidthOpensWithTen) {
  frmLingua dialogo(nullptr);
  dialogo.Mostra("L4");
  Apri(dialogo);
  EXPECT_EQ(Caselle(dialogo), QStringList({"4", "10", "«L4;10»"}));
  EXPECT_EQ(Conferma(dialogo), Codici({ConDelimitatori("L4;10")}));
}

TEST(FrmLingua, ACodeComesBackUnchangedWhateverItHolds) {
  const std::string lungo(40000, '7');
  for (const std::string& contenuto : std::vector<std::string>{
           "L5;20", "L1;10", "L-3;abc;9999", "L\xE0\r\n\x01;\x81", "L" + lungo + ";" + lungo}) {
    frmLingua dialogo(nullptr);
    const int larghezza = dialogo.sizeHint().width();
    dialogo.Mostra(contenuto);
    EXPECT_EQ(dialogo.sizeHint().width(), larghezza);
    Apri(dialogo);
    EXPECT_EQ(Conferma(dialogo), Codici({ConDelimitatori(contenuto)}));
  }
}

}  // namespace
}  // namespace parvik
