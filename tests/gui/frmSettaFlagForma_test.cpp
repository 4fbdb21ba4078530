// The looks of the print-flags window: rows in columns, headings over them.
#include <gtest/gtest.h>

#include <QProxyStyle>
#include <QPushButton>
#include <QScrollBar>

#include "BancoSettaFlag.h"
#include "supporto/ConNome.h"

namespace parvik {
namespace {

using prova::Trova;
using FrmSettaFlag = prova::BancoSettaFlag;

TEST_F(FrmSettaFlag, TheRowsHaveAFontOfOneWidth) {
  const QFontMetrics misure = Lista().fontMetrics();
  EXPECT_EQ(Lista().font().families().first(), "Courier New");
  EXPECT_TRUE(Lista().font().fixedPitch()) << "where there is no such family";
  EXPECT_EQ(Lista().font().styleHint(), QFont::TypeWriter);
  EXPECT_EQ(misure.horizontalAdvance("iiii"), misure.horizontalAdvance("MMMM"));
}

struct Intestazione {
  const char* Nome;
  int Da;  // characters before the column
  int A;   // characters up to its end
};
using prova::PrintTo;

class IntestazioniTest : public FrmSettaFlag, public testing::WithParamInterface<Intestazione> {
 protected:
  /// Where a character begins, in the window.
  int Ascissa(int carattere) {
    const int margine = Lista().style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &Lista()) + 1;
    const int larghezza = Lista().fontMetrics().horizontalAdvance(Lista().item(0)->text().left(carattere));
    const QPoint punto(Lista().visualItemRect(Lista().item(0)).left() + margine + larghezza, 0);
    return Lista().viewport()->mapTo(&finestra_, punto).x();
  }

  void AttendiSopraLaColonna();
};

void IntestazioniTest::AttendiSopraLaColonna() {
  QCoreApplication::processEvents();
  finestra_.resize(finestra_.minimumSizeHint());
  const auto& pulsante = *Trova<QPushButton>(finestra_, GetParam().Nome);
  const QRect rettangolo(pulsante.mapTo(&finestra_, QPoint(0, 0)), pulsante.size());
  if (GetParam().Da > 0) {
    EXPECT_LE(std::abs(rettangolo.left() - Ascissa(GetParam().Da)), 1);
  } else {
    EXPECT_EQ(rettangolo.left(), Lista().geometry().left());
  }
  EXPECT_GE(rettangolo.right() + 2, Ascissa(GetParam().A));
  EXPECT_GE(pulsante.width(), pulsante.fontMetrics().horizontalAdvance(pulsante.text()) + 8);
  EXPECT_EQ(rettangolo.bottom() + 1, Lista().geometry().top());
}

TEST_P(IntestazioniTest, StandsOverItsColumnWithItsCaptionWhole) {
  Apri();
  AttendiSopraLaColonna();
}

TEST_P(IntestazioniTest, StandsThereInAnotherFontToo) {
  Apri();
  QFont grande = finestra_.font();
  grande.setPointSize(2 * grande.pointSize());
  finestra_.setFont(grande);
  AttendiSopraLaColonna();
}

/// Wide frames and scroll bars.
class StileLargo final : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric misura, const QStyleOption* opzione, const QWidget* controllo) const override {
    const int larghezza = QProxyStyle::pixelMetric(misura, opzione, controllo);
    return misura == PM_FocusFrameHMargin || misura == PM_DefaultFrameWidth ? larghezza + 9 : larghezza;
  }
};

TEST_P(IntestazioniTest, StandsThereInAnotherStyleToo) {
  Apri();
  StileLargo largo;
  for (QWidget* controllo : finestra_.findChildren<QWidget*>()) controllo->setStyle(&largo);
  finestra_.setStyle(&largo);
  AttendiSopraLaColonna();
}

INSTANTIATE_TEST_SUITE_P(Colonne, IntestazioniTest,
                         testing::Values(Intestazione{"cmdFlag", 0, 5}, Intestazione{"cmdDescrizione", 5, 68},
                                         Intestazione{"cmdStato", 68, 69}),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

TEST_F(FrmSettaFlag, NoRowIsCutAtTheSideEvenBesideAScrollBar) {
  std::string campi =
      "1,\"Prova;P*.IMG;1;90;90;90;90;90;90;1;40;90;90;90;90\"\r\n"
      "//fine documenti\r\n";
  for (int riga = 1; riga <= 40; ++riga) {
    campi += "00" + std::to_string(riga / 10) + std::to_string(riga % 10) + ",\"Flag;3;N\r\n";
  }
  const auto catalogo = Catalogo::CaricaCampi(campi);
  ASSERT_TRUE(catalogo);
  ASSERT_TRUE(flag_.Carica(*catalogo, catalogo->TipiDoc().front()).empty());
  finestra_.Ricarica();
  Apri();
  finestra_.resize(finestra_.minimumSizeHint());
  ASSERT_TRUE(Lista().verticalScrollBar()->isVisible());
  EXPECT_EQ(Lista().horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
  EXPECT_GE(Lista().viewport()->width(), Lista().sizeHintForColumn(0));
}

}  // namespace
}  // namespace parvik
