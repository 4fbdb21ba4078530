// What the window shows without a document type (docs/menus.md).
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::NelProssimoDialogo;
using prova::Trova;

class PnlInizio : public testing::Test {
 protected:
  PnlInizio() { Attendi(); }
  void Attendi() {
    EXPECT_TRUE(QTest::qWaitFor([&] { return finestra_->findChild<QWidget*>("pnlInizio") != nullptr; }));
  }
  QWidget& Pannello() { return *Trova<QWidget>(*finestra_, "pnlInizio"); }
  QListWidget& Recenti() { return *Trova<QListWidget>(*finestra_, "lstRecenti"); }
  void UnaSessioneCon(const char* modello, int tipo) {
    finestra_.Scegli(tipo);
    finestra_.Apri(modello);
    finestra_.Azione("mnuNuovo").trigger();
  }

  Finestra finestra_;
};

TEST_F(PnlInizio, ShowsOnlyWithoutADocumentType) {
  EXPECT_TRUE(Pannello().isVisible());
  EXPECT_EQ(Pannello().size(), finestra_->centralWidget()->size());
  finestra_.Scegli(1);
  EXPECT_FALSE(Pannello().isVisible());
  finestra_.Azione("mnuNuovo").trigger();
  EXPECT_TRUE(Pannello().isVisible());
  finestra_->resize(500, 400);
  EXPECT_EQ(Pannello().size(), finestra_->centralWidget()->size());
}

TEST_F(PnlInizio, TabReachesTheButtonAndEnterChoosesTheType) {
  EXPECT_EQ(finestra_->focusWidget(), &*finestra_);
  QTest::keyClick(&*finestra_, Qt::Key_Tab);
  auto& tasto = *Trova<QPushButton>(*finestra_, "cmdTipo");
  ASSERT_TRUE(tasto.hasFocus());
  std::string aperto;
  NelProssimoDialogo([&aperto](QDialog& dialogo) {
    aperto = dialogo.objectName().toStdString();
    QTest::keyClick(&dialogo, Qt::Key_Return);
  });
  QTest::keyClick(&tasto, Qt::Key_Return);
  EXPECT_EQ(aperto, "frmScelta");
  finestra_.Attiva();
  EXPECT_TRUE(finestra_.Sezione(0).hasFocus());
}

TEST_F(PnlInizio, ListsNoTemplatesThatAreNotKept) {
  UnaSessioneCon("FATT01.IMG", 1);
  EXPECT_FALSE(Recenti().isVisible());
  EXPECT_FALSE(Trova<QCheckBox>(*finestra_, "chkRicorda")->isChecked());
}

TEST_F(PnlInizio, OpensARecentTemplateWithItsTypeInTheNextSession) {
  QTest::mouseClick(Trova<QCheckBox>(*finestra_, "chkRicorda"), Qt::LeftButton, {}, QPoint(8, 8));
  EXPECT_TRUE(finestra_.Azione("mnuRicorda").isChecked());
  UnaSessioneCon("FATT01.IMG", 1);
  const QString titolo = [&] {
    finestra_.Riavvia();
    Attendi();
    return finestra_->windowTitle();
  }();
  EXPECT_EQ(titolo, "Ordavia");
  ASSERT_TRUE(Recenti().isVisible());
  ASSERT_EQ(Recenti().count(), 1);
  EXPECT_EQ(Recenti().accessibleName(), "Modelli recenti");
  EXPECT_TRUE(
      Recenti().item(0)->text().startsWith(QString::fromStdString(finestra_.Modello("FATT01.IMG").string())));
  Recenti().setFocus();
  QTest::keyClick(&Recenti(), Qt::Key_Return);
  EXPECT_TRUE(finestra_->windowTitle().endsWith("FATT01.IMG")) << finestra_->windowTitle().toStdString();
  EXPECT_FALSE(finestra_.Sezione(0).toPlainText().isEmpty());
  EXPECT_FALSE(Pannello().isVisible());
}

TEST_F(PnlInizio, LeavesOutTemplatesThatAreGone) {
  finestra_.Azione("mnuRicorda").trigger();
  UnaSessioneCon("FATT01.IMG", 1);
  EXPECT_EQ(Recenti().count(), 1);
  std::filesystem::remove(finestra_.Modello("FATT01.IMG"));
  finestra_.Riavvia();
  Attendi();
  EXPECT_FALSE(Recenti().isVisible());
}

}  // namespace
}  // namespace parvik
