// What the program draws by itself stands out from what it is drawn on, in any palette.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <ostream>

#include "Tavolozze.h"
#include "common/qtTinte.h"
#include "output/ricInvito.h"
#include "supporto/ConNome.h"
#include "template/qtTrovati.h"

namespace parvik {
namespace {

using prova::Tavolozza;

struct Tinta {
  const char* Nome;
  QPalette Colori;
};
using prova::PrintTo;

std::string NomeDi(const testing::TestParamInfo<Tinta>& info) {
  return info.param.Nome;
}

/// A picture of what is drawn on the base, and the greatest contrast in it.
class Disegnato : public testing::TestWithParam<Tinta> {
 protected:
  Disegnato() { immagine_.fill(Base()); }

  QRgb Base() const { return GetParam().Colori.color(QPalette::Base).rgb(); }
  double ContrastoMassimo() const {
    double massimo = 1;
    for (int y = 0; y < immagine_.height(); ++y)
      for (int x = 0; x < immagine_.width(); ++x)
        massimo = std::max(massimo, Contrasto(immagine_.pixel(x, y), Base()));
    return massimo;
  }

  QImage immagine_{600, 200, QImage::Format_RGB32};
};

TEST_P(Disegnato, TheHintOfAnEmptyPaneCanBeRead) {
  {
    QPainter pittore(&immagine_);
    pittore.setRenderHint(QPainter::TextAntialiasing, false);
    DisegnaInvito(pittore, immagine_.rect(), GetParam().Colori);
  }
  EXPECT_GE(ContrastoMassimo(), ContrastoMinimo);
}

TEST_P(Disegnato, TheFramesOfWhatWasFoundAreSeen) {
  constexpr double PerSegni = 3;
  for (const bool attuale : {false, true}) {
    immagine_.fill(Base());
    {
      QPainter pittore(&immagine_);
      DisegnaTrovato(pittore, QRectF(10, 10, 50, 16), attuale, GetParam().Colori);
    }
    EXPECT_GE(ContrastoMassimo(), PerSegni) << attuale;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Tavolozze, Disegnato,
    testing::Values(Tinta{"the_default", QPalette()},
                    Tinta{"light", Tavolozza(Qt::white, Qt::black, QColor(0x30, 0x8C, 0xC6))},
                    Tinta{"paper", Tavolozza(QColor(0xFD, 0xF6, 0xE3), QColor(0x20, 0x20, 0x20), Qt::blue)},
                    Tinta{"dark", prova::Scura()},
                    Tinta{"slate", Tavolozza(QColor(0x31, 0x36, 0x3B), QColor(0xEF, 0xF0, 0xF1), Qt::blue)},
                    Tinta{"high_contrast", Tavolozza(Qt::black, Qt::white, Qt::yellow)}),
    NomeDi);

}  // namespace
}  // namespace parvik
