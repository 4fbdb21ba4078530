#include "tokens/frmCostante.h"

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

/// Text and code, as the boxes show them.
QStringList Caselle(const frmCostante& dialogo) {
  return {Casella(dialogo, "txtDescri").text(), Casella(dialogo, "txtCost").text()};
}

TEST(FrmCostante, Captions) {
  const frmCostante dialogo(nullptr);
  QStringList didascalie = {dialogo.windowTitle(), Trova<QLabel>(dialogo, "lblDescri")->text()};
  for (const char* nome : {"cmdOk", "cmdCanc"}) didascalie += Trova<QPushButton>(dialogo, nome)->text();
  EXPECT_EQ(didascalie, QStringList({"Assegnazione costante", "Descrizione costante:", "OK", "Cancel"}));
}

TEST(FrmCostante, EveryBoxHasANameForScreenReaders) {
  const frmCostante dialogo(nullptr);
  QStringList nomi;
  for (const char* nome : {"txtDescri", "txtCost"}) {
    nomi += QAccessible::queryAccessibleInterface(&Casella(dialogo, nome))->text(QAccessible::Name);
  }
  EXPECT_EQ(nomi, QStringList({"Descrizione costante:", "Codice della costante"}));
}

TEST(FrmCostante, OpenedFromTheMenuItIsEmptyAndOkInsertsTheEmptyText) {
  frmCostante dialogo(nullptr);
  Apri(dialogo);
  EXPECT_EQ(Caselle(dialogo), QStringList({"", ""}));
  EXPECT_TRUE(Casella(dialogo, "txtDescri").hasFocus());
  EXPECT_FALSE(Casella(dialogo, "txtCost").isEnabled());
  EXPECT_EQ(Conferma(dialogo), Codici({""}));
}

TEST(FrmCostante, SpacesAloneLeaveTheCodeEmpty) {
  frmCostante dialogo(nullptr);
  Apri(dialogo);
  QTest::keyClicks(QApplication::focusWidget(), "   ");
  EXPECT_EQ(Caselle(dialogo), QStringList({"   ", ""}));
  EXPECT_EQ(Conferma(dialogo), Codici({""}));
}

TEST(FrmCostante, SpacesAroundATextAreKept) {
  frmCostante dialogo(nullptr);
  Apri(dialogo);
  QTest::keyClicks(QApplication::focusWidget(), "  a ");
  EXPECT_EQ(Caselle(dialogo), QStringList({"  a ", "«V0;\"  a \"»"}));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(dialogo.Codici(), Codici({ConDelimitatori("V0;\"  a \"")}));
}

TEST(FrmCostante, ACodeShowsTheTextBetweenTheQuotesSelected) {
  frmCostante dialogo(nullptr);
  dialogo.Mostra("V0;\"Totale\"");
  Apri(dialogo);
  EXPECT_EQ(Caselle(dialogo), QStringList({"Totale", "«V0;\"Totale\"»"}));
  EXPECT_EQ(Casella(dialogo, "txtDescri").selectedText(), "Totale");
  QTest::keyClicks(QApplication::focusWidget(), "Sconto");
  EXPECT_EQ(Conferma(dialogo), Codici({ConDelimitatori("V0;\"Sconto\"")}));
}

TEST(FrmCostante, WhatTheHostCannotPrintIsSeenInTheBoxAndInTheCode) {
  frmCostante dialogo(nullptr);
  Apri(dialogo);
  Casella(dialogo, "txtDescri").insert("10 € – Ω");
  EXPECT_EQ(Caselle(dialogo), QStringList({"10 € – ?", "«V0;\"10 € – ?\"»"}));
  EXPECT_EQ(Conferma(dialogo), Codici({ConDelimitatori("V0;\"10 \x80 \x96 ?\"")}));
}

TEST(FrmCostante, ACodeComesBackUnchangedWhateverItsText) {
  std::string tuttiIByte;
  for (int i = 0; i < 256; ++i) tuttiIByte += static_cast<char>(static_cast<unsigned char>(i));
  for (const std::string& testo :
       std::vector<std::string>{"Totale documento", "detto \"qui\" e l\xE0", "\"", "Dott. Rossi", "a\r\nb",
                                tuttiIByte, std::string(40000, 'x')}) {
    frmCostante dialogo(nullptr);
    const int larghezza = dialogo.sizeHint().width();
    dialogo.Mostra("V0;\"" + testo + "\"");
    EXPECT_EQ(dialogo.sizeHint().width(), larghezza);
    Apri(dialogo);
    EXPECT_EQ(Conferma(dialogo), Codici({ConDelimitatori("V0;\"" + testo + "\"")}));
  }
}

TEST(FrmCostante, ACodeOfAnotherShapeOpensEmpty) {
  for (const char* contenuto : {"C1", "C", "V0;"}) {
    frmCostante dialogo(nullptr);
    dialogo.Mostra(contenuto);
    EXPECT_EQ(Caselle(dialogo), QStringList({"", ""})) << contenuto;
  }
}

}  // namespace
}  // namespace parvik
