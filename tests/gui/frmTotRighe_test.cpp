#include "output/frmTotRighe.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::Trova;

frmTotRighe& Totali(Finestra& finestra) {
  return *Trova<frmTotRighe>(*finestra, "frmTotRighe");
}

QString Testo(Finestra& finestra, const char* nome) {
  return Trova<QLabel>(Totali(finestra), nome)->text();
}

TEST(FrmTotRighe, ThreeSectionsShowTheBodysRowsAndTheSum) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Sezione(0).setPlainText("a\nb\n");
  finestra.Sezione(1).setPlainText("");
  finestra.Sezione(2).setPlainText("c\n");
  finestra.Azione("mnuRighe").trigger();
  EXPECT_EQ(Totali(finestra).windowTitle(), "Totali righe");
  EXPECT_FALSE(Totali(finestra).isModal());
  EXPECT_EQ(Testo(finestra, "lblRigheTCP_0"), "Righe testata:");
  EXPECT_EQ(Testo(finestra, "lblRigheTCP_1"), "Righe corpo:");
  EXPECT_EQ(Testo(finestra, "lblRigheTCP_2"), "Righe piede:");
  EXPECT_EQ(Testo(finestra, "lblRighePag"), "RIGHE PAGINA:");
  EXPECT_EQ(Testo(finestra, "lblNumTCP_0"), "2");
  EXPECT_EQ(Testo(finestra, "lblNumTCP_1"), "23") << "even when the Corpo is empty";
  EXPECT_EQ(Testo(finestra, "lblNumTCP_2"), "1");
  EXPECT_EQ(Testo(finestra, "lblNumPag"), "26");
}

TEST(FrmTotRighe, OneSectionShowsOneRowAndTheSameTotal) {
  Finestra finestra;
  finestra.Scegli(12);
  finestra.Sezione(0).setPlainText("a\nb\nc\n");
  finestra.Azione("mnuRighe").trigger();
  EXPECT_EQ(Testo(finestra, "lblRigheTCP_0"), "Righe testo:");
  EXPECT_EQ(Testo(finestra, "lblNumTCP_0"), "3");
  EXPECT_EQ(Testo(finestra, "lblNumPag"), "3");
  for (const char* nome : {"lblRigheTCP_1", "lblNumTCP_1", "lblRigheTCP_2", "lblNumTCP_2"}) {
    EXPECT_FALSE(Trova<QLabel>(Totali(finestra), nome)->isVisible()) << nome;
  }
}

TEST(FrmTotRighe, AnUnfinishedLastLineIsCountedAndCompleted) {
  Finestra finestra;
  finestra.Scegli(12);
  finestra.Sezione(0).setPlainText("a\nb");
  finestra.Azione("mnuRighe").trigger();
  EXPECT_EQ(Testo(finestra, "lblNumTCP_0"), "2");
  EXPECT_EQ(finestra.Sezione(0).toPlainText(), "a\nb\n");
}

TEST(FrmTotRighe, EditingDoesNotChangeTheNumbersUntilTheWindowIsShownAgain) {
  Finestra finestra;
  finestra.Scegli(12);
  finestra.Azione("mnuRighe").trigger();
  EXPECT_EQ(Testo(finestra, "lblNumPag"), "1");
  finestra.Sezione(0).setPlainText("a\nb\nc\n");
  EXPECT_EQ(Testo(finestra, "lblNumPag"), "1");
  finestra.Azione("mnuRighe").trigger();
  finestra.Azione("mnuRighe").trigger();
  EXPECT_EQ(Testo(finestra, "lblNumPag"), "3");
}

TEST(FrmTotRighe, OnlyTheMenuClosesIt) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuRighe").trigger();
  EXPECT_TRUE(finestra.Azione("mnuRighe").isChecked());
  EXPECT_FALSE(Totali(finestra).close());
  QTest::keyClick(&Totali(finestra), Qt::Key_Escape);
  EXPECT_TRUE(Totali(finestra).isVisible());
  finestra.Azione("mnuRighe").trigger();
  EXPECT_EQ(finestra->findChild<frmTotRighe*>("frmTotRighe"), nullptr);
  EXPECT_FALSE(finestra.Azione("mnuRighe").isChecked());
}

TEST(FrmTotRighe, NewTurnsItOff) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuRighe").trigger();
  finestra.Azione("mnuNuovo").trigger();
  EXPECT_EQ(finestra->findChild<frmTotRighe*>("frmTotRighe"), nullptr);
  EXPECT_FALSE(finestra.Azione("mnuRighe").isChecked());
}

}  // namespace
}  // namespace parvik
