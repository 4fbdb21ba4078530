#include "tokens/frmPagina.h"

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

/// Number and code, as the boxes show them.
QStringList Caselle(const frmPagina& dialogo) {
  return {Casella(dialogo, "txtNum").text(), Casella(dialogo, "txtPag").text()};
}

TEST(FrmPagina, Captions) {
  const frmPagina dialogo(nullptr);
  QStringList didascalie = {dialogo.windowTitle(), Trova<QLabel>(dialogo, "lblNum")->text()};
  for (const char* nome : {"cmdOk", "cmdCanc"}) didascalie += Trova<QPushButton>(dialogo, nome)->text();
  EXPECT_EQ(didascalie, QStringList({"Numerazione Pagina", "Numero pagina:", "OK", "Cancel"}));
}

TEST(FrmPagina, EveryBoxHasANameForScreenReaders) {
  const frmPagina dialogo(nullptr);
  QStringList nomi;
  for (const char* nome : {"txtNum", "txtPag"}) {
    nomi += QAccessible::queryAccessibleInterface(&Casella(dialogo, nome))->text(QAccessible::Name);
  }
  EXPECT_EQ(nomi, QStringList({"Numero pagina:", "Codice del numero pagina"}));
}

TEST(FrmPagina, OpenedFromTheMenuItStartsFromOne) {
  frmPagina dialogo(nullptr);
  Apri(dialogo);
  EXPECT_EQ(Caselle(dialogo), QStringList({"1", "«P1»"}));
  EXPECT_FALSE(Casella(dialogo, "txtPag").isEnabled());
  EXPECT_TRUE(Casella(dialogo, "txtNum").hasFocus());
  EXPECT_EQ(Casella(dialogo, "txtNum").selectedText(), "1");
}

TEST(FrmPagina, EveryKeyRebuildsTheCode) {
  frmPagina dialogo(nullptr);
  Apri(dialogo);
  QTest::keyClicks(QApplication::focusWidget(), "4");
  EXPECT_EQ(Caselle(dialogo), QStringList({"4", "«P4»"}));
  QTest::keyClicks(QApplication::focusWidget(), "27");
  EXPECT_EQ(Caselle(dialogo), QStringList({"427", "«P427»"}));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(dialogo.Codici(), Codici({ConDelimitatori("P427")}));
}

TEST(FrmPagina, LettersHaveNoEffectAndBackspaceWorks) {
  frmPagina dialogo(nullptr);
  Apri(dialogo);
  QLineEdit& casella = Casella(dialogo, "txtNum");
  QTest::keyClicks(&casella, "aP- ");
  EXPECT_EQ(Caselle(dialogo), QStringList({"1", "«P1»"}));
  QTest::keyClicks(&casella, "1234");
  EXPECT_EQ(Caselle(dialogo), QStringList({"123", "«P123»"}));
  QTest::keyClick(&casella, Qt::Key_Backspace);
  EXPECT_EQ(Caselle(dialogo), QStringList({"12", "«P12»"}));
}

TEST(FrmPagina, WithoutANumberOkInsertsTheEmptyText) {
  frmPagina dialogo(nullptr);
  Apri(dialogo);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
  EXPECT_EQ(Caselle(dialogo), QStringList({"", ""}));
  EXPECT_EQ(Conferma(dialogo), Codici({""}));
}

TEST(FrmPagina, ACodeWithoutANumberGivesNone) {
  for (const char* contenuto : {"P", "P  "}) {
    frmPagina dialogo(nullptr);
    dialogo.Mostra(contenuto);
    Apri(dialogo);
    EXPECT_EQ(Caselle(dialogo), QStringList({QString(contenuto).mid(1), ""}));
    EXPECT_EQ(Conferma(dialogo), Codici({""}));
  }
}

TEST(FrmPagina, ACodeComesBackUnchangedWhateverItHolds) {
  for (const std::string& contenuto : std::vector<std::string>{
           "P1", "P999", "P12345", "P-3", "Pabc;\xE0\r\n\x01", "P" + std::string(40000, '7')}) {
    frmPagina dialogo(nullptr);
    const int larghezza = dialogo.sizeHint().width();
    dialogo.Mostra(contenuto);
    EXPECT_EQ(dialogo.sizeHint().width(), larghezza);
    Apri(dialogo);
    EXPECT_EQ(Conferma(dialogo), Codici({ConDelimitatori(contenuto)}));
  }
}

}  // namespace
}  // namespace parvik
