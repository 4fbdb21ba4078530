// What is selected in the preview, for whoever pastes with the middle button.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include "PannelloDiProva.h"

namespace parvik {
namespace {

using prova::Pannello;

class SelezionePrimaria : public testing::Test {
 protected:
  SelezionePrimaria() {
    Appunti().setText("di prima", QClipboard::Selection);
    Appunti().setText("copiato", QClipboard::Clipboard);
  }

  static QClipboard& Appunti() { return *QGuiApplication::clipboard(); }
  static std::string Offerto() { return Appunti().text(QClipboard::Selection).toStdString(); }
  static std::string Copiato() { return Appunti().text(QClipboard::Clipboard).toStdString(); }

  Pannello pannello_{"uno due\r\ntre"};
};

TEST_F(SelezionePrimaria, IsWhatTheKeyboardSelectsAndNothingIsCopied) {
  ASSERT_TRUE(Appunti().supportsSelection());
  pannello_.Premi(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Offerto(), "uno ");
  pannello_.Premi(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Offerto(), "uno due\ntre");
  EXPECT_EQ(Copiato(), "copiato");
}

TEST_F(SelezionePrimaria, IsAllOfTheTextAfterSelectAll) {
  pannello_.Premi(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Offerto(), "uno due\ntre");
  EXPECT_EQ(Copiato(), "copiato");
}

TEST_F(SelezionePrimaria, IsWhatTheMouseSelects) {
  QTest::mouseDClick(pannello_->viewport(), Qt::LeftButton, {}, pannello_.Su(5));
  QTest::mouseRelease(pannello_->viewport(), Qt::LeftButton, {}, pannello_.Su(5));
  EXPECT_EQ(Offerto(), "due");
}

TEST_F(SelezionePrimaria, StaysWhatItWasWhenTheCaretMovesOrNothingIsSelected) {
  pannello_.Premi(Qt::Key_Right);
  EXPECT_EQ(Offerto(), "di prima");
  pannello_.Premi(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Offerto(), "n");
  pannello_.Premi(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(Offerto(), "n") << "the selection is empty again: the last one stays";
  pannello_.Premi(Qt::Key_End);
  EXPECT_EQ(Offerto(), "n");
}

TEST_F(SelezionePrimaria, OfAnEmptyPreviewLeavesTheOldOneAlone) {
  pannello_->Mostra({});
  pannello_.Premi(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Offerto(), "di prima");
}

TEST_F(SelezionePrimaria, IsThatOfTheTextItWasMadeIn) {
  pannello_.Premi(Qt::Key_A, Qt::ControlModifier);
  pannello_->Mostra(prova::DiProva("altro"));
  EXPECT_EQ(Offerto(), "uno due\ntre");
}

}  // namespace
}  // namespace parvik
