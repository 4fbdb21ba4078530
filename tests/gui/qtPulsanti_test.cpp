// What Enter does in the dialogs, and how it can be seen before it is pressed.
#include "common/qtPulsanti.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QRadioButton>

#include "Maschera.h"
#include "app/frmAbout.h"
#include "catalogue/frmScelta.h"
#include "output/frmDestStampa.h"
#include "template/frmComando.h"
#include "tokens/frmCostante.h"
#include "tokens/frmFlag.h"
#include "tokens/frmLingua.h"
#include "tokens/frmPagina.h"
#include "tokens/frmStile.h"
#include "tokens/frmVar.h"

namespace parvik {
namespace {

using prova::Apri;
using prova::Codici;
using prova::NelProssimoDialogo;
using prova::Trova;

std::string NessunFlag(QWidget*) {
  return {};
}

std::unique_ptr<QDialog> NuovaVariabile() {
  const std::vector<Variabile> variabili = {{"Cliente", 12, 30, "", 1, 0, 0, 0, 0, 0, "0", "0"},
                                            {"Totale", 8, 10, "", 0, 1, 0, 1, 0, 1, "2", "1"}};
  return std::make_unique<frmVar>(variabili, NessunFlag, nullptr);
}

std::unique_ptr<QDialog> NuovoFlag() {
  return std::make_unique<frmFlag>(std::vector<Flag>{{"Estero", 7, "S"}}, nullptr);
}

std::unique_ptr<QDialog> NuovoComando() {
  return std::make_unique<frmComando>(ImpostazioniCorpo(), std::int16_t{3}, nullptr);
}

std::unique_ptr<QDialog> NuovaScelta() {
  return std::make_unique<frmScelta>(QStringList{"Fattura", "Ordine"}, nullptr);
}

template <class Dialogo>
std::unique_ptr<QDialog> Crea() {
  return std::make_unique<Dialogo>(nullptr);
}

struct Maschera {
  const char* Nome;
  std::unique_ptr<QDialog> (*Crea)();
  const char* Ok = "cmdOk";
  const char* Annulla = "cmdCanc";

  friend void PrintTo(const Maschera& maschera, std::ostream* uscita) { *uscita << maschera.Nome; }
};

class OgniMaschera : public testing::TestWithParam<Maschera> {
 protected:
  void SetUp() override {
    dialogo_ = GetParam().Crea();
    Apri(*dialogo_);
  }

  QPushButton& Ok() { return *Trova<QPushButton>(*dialogo_, GetParam().Ok); }
  /// The name of the default button, "" for none.
  QString Predefinito() {
    QString nome;
    for (const QPushButton* pulsante : dialogo_->findChildren<QPushButton*>()) {
      if (pulsante->isDefault()) nome += pulsante->objectName();
    }
    return nome;
  }
  /// The controls that the focus can go to, one dialog each.
  QStringList Controlli() {
    QStringList nomi;
    for (const QWidget* controllo : dialogo_->findChildren<QWidget*>()) {
      if (controllo->isEnabled() && controllo->focusPolicy() != Qt::NoFocus &&
          !controllo->objectName().startsWith("qt_")) {
        nomi += controllo->objectName();
      }
    }
    return nomi;
  }

  std::unique_ptr<QDialog> dialogo_;
};

using OgniMascheraConAnnulla = OgniMaschera;

TEST_P(OgniMascheraConAnnulla, EnterOnCancelIsCancel) {
  for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter}) {
    SetUp();
    auto* annulla = Trova<QPushButton>(*dialogo_, GetParam().Annulla);
    annulla->setFocus();
    EXPECT_EQ(Predefinito(), annulla->objectName());
    QTest::keyClick(annulla, tasto, tasto == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
    EXPECT_FALSE(dialogo_->isVisible());
    EXPECT_EQ(dialogo_->result(), QDialog::Rejected);
  }
}

TEST_P(OgniMaschera, EnterIsOkInEveryControlThatIsNoButton) {
  for (const QString& nome : Controlli()) {
    SetUp();
    auto* controllo = Trova<QWidget>(*dialogo_, qPrintable(nome));
    if (qobject_cast<QPushButton*>(controllo) != nullptr || nome == "txtTrova") continue;
    controllo->setFocus();
    EXPECT_EQ(Predefinito(), GetParam().Ok) << nome.toStdString();
    QTest::keyClick(controllo, Qt::Key_Return);
    EXPECT_EQ(dialogo_->result(), QDialog::Accepted) << nome.toStdString();
  }
}

TEST_P(OgniMaschera, EnterWithAModifierOrHeldDownDoesNothing) {
  for (QWidget* controllo : {dialogo_->focusWidget(), qobject_cast<QWidget*>(&Ok())}) {
    controllo->setFocus();
    QTest::keyClick(controllo, Qt::Key_Return, Qt::ControlModifier);
    QKeyEvent ripetuto(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(controllo, &ripetuto);
    EXPECT_TRUE(dialogo_->isVisible()) << controllo->objectName().toStdString();
  }
}

TEST_P(OgniMaschera, EscapeIsCancelWhateverHasTheFocus) {
  for (const QString& nome : Controlli()) {
    SetUp();
    auto* controllo = Trova<QWidget>(*dialogo_, qPrintable(nome));
    controllo->setFocus();
    QTest::keyClick(controllo, Qt::Key_Escape);
    EXPECT_FALSE(dialogo_->isVisible()) << nome.toStdString();
    EXPECT_EQ(dialogo_->result(), QDialog::Rejected) << nome.toStdString();
  }
}

/// The pixels that differ so much that everybody sees it.
int Diversi(const QImage& una, const QImage& altra) {
  int diversi = 0;
  for (int y = 0; y < una.height(); ++y) {
    for (int x = 0; x < una.width(); ++x) {
      const int contrasto = std::abs(qGray(una.pixel(x, y)) - qGray(altra.pixel(x, y)));
      if (contrasto > 96) ++diversi;
    }
  }
  return diversi;
}

TEST_P(OgniMaschera, OkLooksOtherwiseWhenItHasTheFocus) {
  for (const bool scura : {false, true}) {
    dialogo_->setPalette(QPalette(scura ? QColor(45, 45, 45) : QColor(239, 239, 239)));
    Ok().setFocus();
    ASSERT_TRUE(Ok().hasFocus());
    const QImage con = Ok().grab().toImage();
    Ok().clearFocus();
    EXPECT_TRUE(Ok().isDefault());
    const QImage senza = Ok().grab().toImage();
    const int diversi = Diversi(con, senza);
    EXPECT_GT(diversi, con.width() / 2) << (scura ? "dark" : "light");
  }
}

const auto ConAnnulla = testing::Values(
    Maschera{"frmVar", NuovaVariabile}, Maschera{"frmFlag", NuovoFlag}, Maschera{"frmStile", Crea<frmStile>},
    Maschera{"frmLingua", Crea<frmLingua>}, Maschera{"frmPagina", Crea<frmPagina>},
    Maschera{"frmCostante", Crea<frmCostante>}, Maschera{"frmComando", NuovoComando},
    Maschera{"frmScelta", NuovaScelta}, Maschera{"frmDestStampa", Crea<frmDestStampa>});
const auto SenzaAnnulla = testing::Values(Maschera{"frmAbout", Crea<frmAbout>, "cmdOK", nullptr});

const auto Nome = [](const auto& caso) { return std::string(caso.param.Nome); };

INSTANTIATE_TEST_SUITE_P(Maschere, OgniMascheraConAnnulla, ConAnnulla, Nome);
INSTANTIATE_TEST_SUITE_P(Maschere, OgniMaschera, ConAnnulla, Nome);
INSTANTIATE_TEST_SUITE_P(SoloOk, OgniMaschera, SenzaAnnulla, Nome);

class InvioVariabile : public testing::Test {
 protected:
  void SetUp() override { Apri(*dialogo_); }

  template <class Controllo>
  Controllo& Con(const char* nome) {
    auto* controllo = Trova<Controllo>(*dialogo_, nome);
    controllo->setFocus();
    return *controllo;
  }

  std::unique_ptr<QDialog> dialogo_ = NuovaVariabile();
};

TEST_F(InvioVariabile, InTheSearchTextItSearches) {
  auto& cercato = Con<QLineEdit>("txtTrova");
  EXPECT_TRUE(Trova<QPushButton>(*dialogo_, "cmdTrova")->isDefault());
  QTest::keyClicks(&cercato, "totale");
  QTest::keyClick(&cercato, Qt::Key_Return);
  EXPECT_TRUE(dialogo_->isVisible());
  EXPECT_EQ(Trova<QListWidget>(*dialogo_, "lstVar")->currentRow(), 1);
  EXPECT_TRUE(cercato.hasFocus());
}

TEST_F(InvioVariabile, AfterTextNotFoundItSearchesAgainAndTheMessagesOwnButtonWorks) {
  auto& cercato = Con<QLineEdit>("txtTrova");
  QTest::keyClicks(&cercato, "sconto");
  int messaggi = 0;
  for (int volta = 0; volta < 2; ++volta) {
    NelProssimoDialogo([&messaggi](QDialog& dialogo) {
      EXPECT_TRUE(dynamic_cast<QMessageBox&>(dialogo).button(QMessageBox::Ok)->hasFocus());
      QTest::keyClick(dialogo.focusWidget(), Qt::Key_Return);
      ++messaggi;
    });
    QTest::keyClick(&cercato, Qt::Key_Return);
    EXPECT_EQ(messaggi, volta + 1);
  }
}

TEST_F(InvioVariabile, OnTheOtherButtonsItClicksThem) {
  QTest::keyClicks(&Con<QLineEdit>("txtTrova"), "totale");
  QTest::keyClick(&Con<QPushButton>("cmdTrova"), Qt::Key_Return);
  EXPECT_EQ(Trova<QListWidget>(*dialogo_, "lstVar")->currentRow(), 1);
  int chiesti = 0;
  frmVar altro(
      {{"Cliente", 12, 30, "", 1, 0, 0, 0, 0, 0, "0", "0"}},
      [&chiesti](QWidget*) {
        ++chiesti;
        return std::string();
      },
      nullptr);
  Apri(altro);
  auto* flag = Trova<QPushButton>(altro, "cmdFlag");
  flag->setFocus();
  QTest::keyClick(flag, Qt::Key_Return);
  EXPECT_EQ(chiesti, 1);
  EXPECT_TRUE(altro.isVisible());
}

}  // namespace
}  // namespace parvik
