// Boxes that only show something: legible although they are disabled.
#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QLineEdit>

#include "common/qtCampi.h"

namespace parvik {
namespace {

/// A box in a window.
class LeggibileTest : public testing::Test {
 protected:
  QWidget finestra_;
  QLineEdit& campo_ = *new QLineEdit(&finestra_);
};

TEST_F(LeggibileTest, ADisabledBoxHasTheTextColourOfTheWindowAndFollowsItsPalette) {
  MostraCodici(campo_);
  campo_.setEnabled(false);
  for (const QColor& fondo : {QColor(45, 45, 45), QColor(239, 239, 239), QColor(20, 20, 90)}) {
    QPalette colori(fondo);
    colori.setColor(QPalette::Text, Qt::green);  // another role's
    finestra_.setPalette(colori);
    EXPECT_EQ(campo_.palette().color(QPalette::Disabled, QPalette::Text),
              colori.color(QPalette::Active, QPalette::WindowText));
    for (const QPalette::ColorRole altro : {QPalette::Base, QPalette::Window}) {
      EXPECT_EQ(campo_.palette().color(QPalette::Disabled, altro), colori.color(QPalette::Disabled, altro));
    }
  }
}

TEST_F(LeggibileTest, TheColourIsThereBeforeAnyPaletteComes) {
  QPalette colori;
  colori.setColor(QPalette::Active, QPalette::WindowText, Qt::blue);
  finestra_.setPalette(colori);
  RendiLeggibile(campo_);
  EXPECT_EQ(campo_.palette().color(QPalette::Disabled, QPalette::Text), QColor(Qt::blue));
}

TEST_F(LeggibileTest, CodesAreShownInTheSystemsFixedPitchFont) {
  MostraCodici(campo_);
  EXPECT_EQ(campo_.font().family(), QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
}

}  // namespace
}  // namespace parvik
