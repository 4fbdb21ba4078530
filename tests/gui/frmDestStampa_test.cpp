#include "output/frmDestStampa.h"

#include <gtest/gtest.h>

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Trova;

class FrmDestStampa : public testing::Test {
 protected:
  void SetUp() override {
    dialogo_.show();
    dialogo_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialogo_));
  }

  QRadioButton& Opzione(const char* nome) { return *Trova<QRadioButton>(dialogo_, nome); }
  QLabel& Immagine(int i) { return *Trova<QLabel>(dialogo_, qPrintable(QString("picDest_%1").arg(i))); }
  bool Incorniciata(int i) {
    const auto* cornice = Trova<QFrame>(dialogo_, qPrintable(QString("shaDest_%1").arg(i)));
    return cornice->palette().color(QPalette::Active, QPalette::WindowText) == Qt::black;
  }
  std::array<bool, 3> Cornici() { return {Incorniciata(0), Incorniciata(1), Incorniciata(2)}; }
  void Premi(Qt::Key tasto, Qt::KeyboardModifiers modificatori = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), tasto, modificatori);
  }

  frmDestStampa dialogo_{nullptr};
};

using Cornici3 = std::array<bool, 3>;

TEST_F(FrmDestStampa, ShowsItsCaptionsAndNamesItsPictures) {
  EXPECT_EQ(dialogo_.windowTitle(), "Destinazione stampa");
  EXPECT_EQ(Opzione("optStampa").text(), "Stampante");
  EXPECT_EQ(Opzione("optFile").text(), "File");
  EXPECT_EQ(Opzione("optAnte").text(), "Anteprima");
  EXPECT_EQ(Trova<QPushButton>(dialogo_, "cmdOk")->text(), "&OK");
  EXPECT_EQ(Trova<QPushButton>(dialogo_, "cmdCanc")->text(), "&Cancel");
  EXPECT_TRUE(Trova<QPushButton>(dialogo_, "cmdOk")->isDefault());
  const std::array<const char*, 3> nomi = {"Stampante", "File", "Anteprima"};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Immagine(i).accessibleName(), nomi[static_cast<std::size_t>(i)]);
    EXPECT_FALSE(Immagine(i).pixmap().isNull());
  }
}

TEST_F(FrmDestStampa, OpensOnThePrinterWhichIsChosenAndFramed) {
  EXPECT_TRUE(Opzione("optStampa").hasFocus());
  EXPECT_TRUE(Opzione("optStampa").isChecked());
  EXPECT_EQ(Cornici(), (Cornici3{true, false, false}));
  Premi(Qt::Key_Return);
  EXPECT_EQ(dialogo_.Scelta(), Destinazione::Stampante);
}

TEST_F(FrmDestStampa, TheArrowKeysMoveTheFocusTheChoiceAndTheFrame) {
  Premi(Qt::Key_Down);
  EXPECT_TRUE(Opzione("optFile").hasFocus());
  EXPECT_TRUE(Opzione("optFile").isChecked());
  EXPECT_EQ(Cornici(), (Cornici3{false, true, false}));
  Premi(Qt::Key_Right);
  EXPECT_EQ(Cornici(), (Cornici3{false, false, true}));
  Premi(Qt::Key_Down);
  EXPECT_EQ(Cornici(), (Cornici3{true, false, false})) << "round and round";
  Premi(Qt::Key_Left);
  Premi(Qt::Key_Up);
  EXPECT_EQ(Cornici(), (Cornici3{false, true, false}));
  Premi(Qt::Key_Right);
  Premi(Qt::Key_Return);
  EXPECT_EQ(dialogo_.Scelta(), Destinazione::Anteprima);
}

TEST_F(FrmDestStampa, AClickOnAPictureChoosesItsOption) {
  const std::array<const char*, 3> opzioni = {"optStampa", "optFile", "optAnte"};
  for (const int i : {2, 0, 1}) {
    QTest::mouseClick(&Immagine(i), Qt::LeftButton);
    QRadioButton& opzione = Opzione(opzioni[static_cast<std::size_t>(i)]);
    EXPECT_TRUE(opzione.hasFocus());
    EXPECT_TRUE(opzione.isChecked());
    Cornici3 attese = {};
    attese[static_cast<std::size_t>(i)] = true;
    EXPECT_EQ(Cornici(), attese);
  }
  QTest::mouseClick(Trova<QPushButton>(dialogo_, "cmdOk"), Qt::LeftButton);
  EXPECT_EQ(dialogo_.Scelta(), Destinazione::File);
}

TEST_F(FrmDestStampa, AnOptionThatLosesTheFocusLosesItsFrameAndStaysTheChoice) {
  Premi(Qt::Key_Down);
  Premi(Qt::Key_Tab);
  EXPECT_TRUE(Trova<QPushButton>(dialogo_, "cmdOk")->hasFocus());
  EXPECT_EQ(Cornici(), (Cornici3{false, false, false}));
  Premi(Qt::Key_O, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !dialogo_.isVisible(); })) << "a button is seen to go down";
  EXPECT_EQ(dialogo_.Scelta(), Destinazione::File);
}

TEST_F(FrmDestStampa, CancelEscapeAndTheCloseBoxChooseNothing) {
  Premi(Qt::Key_C, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !dialogo_.isVisible(); }));
  EXPECT_EQ(dialogo_.Scelta(), std::nullopt);
  for (const bool conEsc : {true, false}) {
    frmDestStampa altro(nullptr);
    altro.show();
    if (conEsc) QTest::keyClick(&altro, Qt::Key_Escape);
    if (!conEsc) altro.close();
    EXPECT_FALSE(altro.isVisible());
    EXPECT_EQ(altro.Scelta(), std::nullopt);
  }
}

}  // namespace
}  // namespace parvik
