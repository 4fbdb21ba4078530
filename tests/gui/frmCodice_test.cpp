// The ways that the small code dialogs share.
#include "tokens/frmCodice.h"

#include <gtest/gtest.h>

#include "Maschera.h"
#include "tokens/frmCostante.h"
#include "tokens/frmLingua.h"
#include "tokens/frmPagina.h"
#include "tokens/frmStile.h"

namespace parvik {
namespace {

using prova::Apri;
using prova::Codici;
using prova::Trova;

template <class Maschera>
class FrmCodice : public testing::Test {
 protected:
  void SetUp() override {
    maschera_.Mostra("S;GRASSETTO");  // lenient readers take any content
    Apri(maschera_);
  }

  Maschera maschera_{nullptr};
};

using Maschere = testing::Types<frmCostante, frmLingua, frmPagina, frmStile>;
TYPED_TEST_SUITE(FrmCodice, Maschere);

TYPED_TEST(FrmCodice, TheCancelButtonInsertsNothing) {
  QTest::mouseClick(Trova<QPushButton>(this->maschera_, "cmdCanc"), Qt::LeftButton);
  EXPECT_FALSE(this->maschera_.isVisible());
  EXPECT_EQ(this->maschera_.Codici(), Codici());
}

TYPED_TEST(FrmCodice, EscapeInsertsNothing) {
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(this->maschera_.isVisible());
  EXPECT_EQ(this->maschera_.Codici(), Codici());
}

TYPED_TEST(FrmCodice, TheCloseBoxDoesNothing) {
  EXPECT_FALSE(this->maschera_.close());
  EXPECT_TRUE(this->maschera_.isVisible());
}

}  // namespace
}  // namespace parvik
