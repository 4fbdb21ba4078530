// Signals while a print is chosen or made; for all other states see tests/gui/fineSessione_test.cpp.
#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>
#include <csignal>
#include <filesystem>
#include <string>

#include "CartaStampata.h"
#include "Scena.h"

namespace parvik {
namespace {

using prova::CartaStampata;
using prova::InPrimoPiano;
using prova::PremiTasto;
using prova::Scena;

constexpr const char* DialogoStampa = "Stampa";  // the titles
constexpr const char* StampaInCorso = "frmStampa";

constexpr int Righe = 60'000;
constexpr std::size_t TutteLePagine = Righe / 100;  // at least

void Stampa() {
  auto* pulsanti = InPrimoPiano()->findChild<QDialogButtonBox*>();
  QTest::mouseClick(pulsanti->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

class CartaConSegnale : public testing::TestWithParam<int> {
 protected:
  void FinoAlDialogo() {
    scena_.Comando("mnuStampa");
    scena_.Quando("frmDestStampa", [] { PremiTasto(Qt::Key_Return); });
  }
  /// A text that takes a while to render, and on paper.
  void ApriLungo() {
    std::string testo;
    for (int riga = 0; riga < Righe; ++riga) testo += "una riga di testo\r\n";
    prova::Crea(scena_.Editor().Modello("LUNGO.IMG"), testo);
    scena_.ScegliTipo(12);
    scena_.Apri("LUNGO.IMG");
  }

  Scena scena_{GetParam()};
};

TEST_P(CartaConSegnale, InFrontOfThePrintDialogEndsTheProgramWhenNothingIsModified) {
  scena_.ScegliTipo();
  scena_.Apri("FATT01.IMG");
  FinoAlDialogo();
  scena_.Segnale(DialogoStampa);
  EXPECT_EQ(scena_.Esegui(), EXIT_SUCCESS);
}

TEST_P(CartaConSegnale, InFrontOfThePrintDialogAsksAndAnnullaKeepsItAndNoEndsTheProgram) {
  scena_.ScegliTipo();
  scena_.Apri("FATT01.IMG");
  scena_.Modifica();
  FinoAlDialogo();
  scena_.Segnale(DialogoStampa);
  scena_.Chiesto(QMessageBox::Cancel);
  scena_.Tornata();
  scena_.Segnale(DialogoStampa);
  scena_.Chiesto(QMessageBox::No);
  EXPECT_EQ(scena_.Esegui(), EXIT_SUCCESS);
}

TEST_P(CartaConSegnale, WhilePrintingEndsTheProgramAndGivesThePrintUpWhenNothingIsModified) {
  ApriLungo();
  FinoAlDialogo();
  scena_.Quando(DialogoStampa, Stampa);
  scena_.Segnale(StampaInCorso);
  EXPECT_EQ(scena_.Esegui(), EXIT_SUCCESS);
  EXPECT_LT(CartaStampata::Prossima().Pagine().size(), TutteLePagine);
}

TEST_P(CartaConSegnale, WhilePrintingAsksAndAnnullaLetsThePrintGoOnAndNoGivesItUp) {
  ApriLungo();
  scena_.Modifica();
  FinoAlDialogo();
  scena_.Quando(DialogoStampa, Stampa);
  scena_.Segnale(StampaInCorso);
  scena_.Chiesto(QMessageBox::Cancel);
  scena_.Tornata();
  scena_.Segnale(StampaInCorso);
  scena_.Chiesto(QMessageBox::No);
  EXPECT_EQ(scena_.Esegui(), EXIT_SUCCESS);
  EXPECT_LT(CartaStampata::Prossima().Pagine().size(), TutteLePagine);
}

/// The threads of this process.
std::ptrdiff_t Fili() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

TEST_P(CartaConSegnale, ATextThatIsRenderedWhileTheQuestionIsOpenIsNotPrintedAfterNo) {
  ApriLungo();
  scena_.Modifica();
  FinoAlDialogo();
  std::ptrdiff_t fili = 0;
  scena_.Segnale(DialogoStampa, [&fili] {
    fili = Fili();  // and one more renders
    Stampa();
  });
  scena_.Chiesto(QMessageBox::No, [&fili] { return Fili() <= fili; });
  EXPECT_EQ(scena_.Esegui(), EXIT_SUCCESS);
  EXPECT_TRUE(CartaStampata::Nessuna());
}

INSTANTIATE_TEST_SUITE_P(Segnali, CartaConSegnale, testing::Values(SIGTERM, SIGHUP, SIGINT),
                         [](const auto& segnale) { return "signal_" + std::to_string(segnale.param); });

}  // namespace
}  // namespace parvik
