#include "catalogue/frmScelta.h"

#include <gtest/gtest.h>

#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Trova;

const QStringList Tre = {"Fattura", "Ordine", "Listino"};

TEST(FrmScelta, ListsTheTypesAndSelectsTheFirst) {
  frmScelta scelta(Tre, nullptr);
  const auto* lista = Trova<QListWidget>(scelta, "lstScelta");
  ASSERT_EQ(lista->count(), 3);
  EXPECT_EQ(lista->item(2)->text(), "Listino");
  EXPECT_EQ(lista->currentRow(), 0);
  EXPECT_EQ(lista->accessibleName(), "Tipi di stampa");
}

TEST(FrmScelta, EnterIsOk) {
  frmScelta scelta(Tre, nullptr);
  scelta.show();
  QTest::keyClick(Trova<QListWidget>(scelta, "lstScelta"), Qt::Key_Down);
  QTest::keyClick(Trova<QListWidget>(scelta, "lstScelta"), Qt::Key_Return);
  EXPECT_FALSE(scelta.isVisible());
  EXPECT_EQ(scelta.Scelta(), 1U);
}

TEST(FrmScelta, ADoubleClickIsOk) {
  frmScelta scelta(Tre, nullptr);
  scelta.show();
  auto* lista = Trova<QListWidget>(scelta, "lstScelta");
  const QPoint punto = lista->visualItemRect(lista->item(2)).center();
  QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, punto);
  QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, punto);
  EXPECT_EQ(scelta.Scelta(), 2U);
}

TEST(FrmScelta, EscapeAndTheCancelButtonChooseNothing) {
  frmScelta conTasto(Tre, nullptr);
  conTasto.show();
  QTest::keyClick(&conTasto, Qt::Key_Escape);
  EXPECT_FALSE(conTasto.isVisible());
  EXPECT_EQ(conTasto.Scelta(), std::nullopt);

  frmScelta conPulsante(Tre, nullptr);
  conPulsante.show();
  QTest::mouseClick(Trova<QPushButton>(conPulsante, "cmdCanc"), Qt::LeftButton);
  EXPECT_FALSE(conPulsante.isVisible());
  EXPECT_EQ(conPulsante.Scelta(), std::nullopt);
}

TEST(FrmScelta, TheCloseBoxDoesNothing) {
  frmScelta scelta(Tre, nullptr);
  scelta.show();
  EXPECT_FALSE(scelta.close());
  EXPECT_TRUE(scelta.isVisible());
}

TEST(FrmScelta, WithoutTypesThereIsNothingToConfirm) {
  frmScelta scelta({}, nullptr);
  scelta.show();
  EXPECT_FALSE(Trova<QPushButton>(scelta, "cmdOk")->isEnabled());
  QTest::keyClick(&scelta, Qt::Key_Return);
  EXPECT_EQ(scelta.Scelta(), std::nullopt);
}

}  // namespace
}  // namespace parvik
