#include "app/frmAbout.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Trova;

TEST(FrmAbout, TellsTitleAndVersion) {
  const frmAbout informazioni(nullptr);
  EXPECT_EQ(Trova<QLabel>(informazioni, "lblTitle")->text(), "Ordavia (Parvik32.exe)");
  EXPECT_EQ(Trova<QLabel>(informazioni, "lblVersion")->text(), "Version 7.0.2");
  EXPECT_FALSE(Trova<QLabel>(informazioni, "lblDescription")->text().isEmpty());
}

TEST(FrmAbout, OkEnterAndEscapeCloseIt) {
  for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space}) {
    frmAbout informazioni(nullptr);
    informazioni.show();
    Trova<QPushButton>(informazioni, "cmdOK")->setFocus();
    QTest::keyClick(Trova<QPushButton>(informazioni, "cmdOK"), tasto);
    EXPECT_FALSE(informazioni.isVisible()) << "key " << tasto;
  }
}

}  // namespace
}  // namespace parvik
