#include "output/ricCelle.h"

#include <gtest/gtest.h>

#include <QImage>

#include "PannelloDiProva.h"
#include "common/qtTesto.h"

namespace parvik {
namespace {

using prova::DiProva;

constexpr Aspetto Normale{.Corpo = CorpoCarattere::Normale};
constexpr Aspetto Compresso{.Corpo = CorpoCarattere::Compresso};
constexpr Aspetto Sottolineato{.Sottolineato = true};

class CelleTest : public testing::Test {
 protected:
  QImage foglio_{400, 60, QImage::Format_RGB32};
  Celle celle_ = Celle::SuSchermo(CarattereAnteprima(), foglio_);

  QImage Disegnato(std::string_view byte, const Aspetto& aspetto) {
    QImage foglio = foglio_;
    foglio.fill(Qt::white);
    QPainter pittore(&foglio);
    celle_.Disegna(pittore, QPointF(10, 40), byte, aspetto);
    return foglio;
  }
};

/// The first and the last column of pixels that are not white, of those in [da, a).
std::pair<int, int> Estremi(const QImage& foglio, int da, int a) {
  std::pair<int, int> estremi(a, da - 1);
  for (int x = da; x < a; ++x) {
    for (int y = 0; y < foglio.height(); ++y) {
      if (foglio.pixelColor(x, y) == Qt::white) continue;
      estremi = {std::min(estremi.first, x), std::max(estremi.second, x)};
    }
  }
  return estremi;
}

TEST_F(CelleTest, EachLookHasItsFont) {
  const QFont carattere = celle_.Carattere({.Grassetto = true, .Corpo = CorpoCarattere::Compresso});
  EXPECT_TRUE(carattere.bold());
  EXPECT_FALSE(carattere.italic());
  EXPECT_EQ(carattere.pointSizeF(), 8);
  EXPECT_TRUE(celle_.Carattere({.Italico = true}).italic());
  EXPECT_EQ(celle_.Carattere({}).pointSizeF(), 9.75);
  EXPECT_EQ(celle_.Carattere(Normale).pointSizeF(), 10);
}

TEST_F(CelleTest, SmallerCharactersHaveSmallerCells) {
  EXPECT_LT(celle_.Avanzamento(Compresso), celle_.Avanzamento({}));
  EXPECT_LT(celle_.Altezza(Compresso), celle_.Altezza({}));
  EXPECT_EQ(celle_.Altezza(Normale), celle_.Ascesa(Normale) + celle_.Discesa(Normale));
}

TEST_F(CelleTest, OnAnyScreenThePanesOwnSizeAndTheNormalOneHaveOneWidth) {
  constexpr double PolliciPerMetro = 1 / 0.0254;
  for (const int puntiPerPollice : {96, 120, 144, 192}) {
    foglio_.setDotsPerMeterX(qRound(puntiPerPollice * PolliciPerMetro));
    foglio_.setDotsPerMeterY(qRound(puntiPerPollice * PolliciPerMetro));
    const Celle celle = Celle::SuSchermo(CarattereAnteprima(), foglio_);
    for (const bool grassetto : {false, true}) {
      EXPECT_EQ(celle.Avanzamento({.Grassetto = grassetto}), celle.Avanzamento(Normale)) << puntiPerPollice;
    }
  }
}

TEST_F(CelleTest, OnPaperSizesAreExactAndCellsAreThoseOfTenPointsOrEightTenthsOfThem) {
  const Celle celle = Celle::SuCarta(CarattereAnteprima());
  const qreal cella = celle.Avanzamento(Normale);
  EXPECT_NEAR(cella, 6 * TwipPerPunto, 0.05);
  for (std::size_t i = 0; i < NumAspetti; ++i) {
    const Aspetto aspetto = AspettoDiIndice(i);
    const bool compresso = aspetto.Corpo == CorpoCarattere::Compresso;
    EXPECT_NEAR(celle.Avanzamento(aspetto), compresso ? 0.8 * cella : cella, 1e-9) << i;
    EXPECT_EQ(celle.Carattere(aspetto).pixelSize(), Punti(aspetto.Corpo) * TwipPerPunto) << i;
  }
}

TEST_F(CelleTest, ManyCharactersAreAsWideAsTheirCells) {
  const QImage foglio = Disegnato(std::string(30, '|'), {});
  const qreal cella = celle_.Avanzamento({});
  const auto [primo, ultimo] = Estremi(foglio, 0, foglio.width());
  EXPECT_NEAR(ultimo - primo, 29 * cella, 2);
}

TEST_F(CelleTest, EveryByteIsDrawnInItsOwnCell) {
  const qreal cella = celle_.Avanzamento({});
  for (int valore = 0; valore < 256; ++valore) {
    const char byte = static_cast<char>(static_cast<unsigned char>(valore));
    const QImage foglio = Disegnato(std::string({'|', byte, '|'}), {});
    const auto sbarra = Estremi(Disegnato("|", {}), 0, foglio.width());
    const auto tutto = Estremi(foglio, 0, foglio.width());
    EXPECT_NEAR(tutto.second - sbarra.second, 2 * cella, 1) << valore << ": the bar behind it has moved";
    const int da = static_cast<int>(10 + cella);
    const bool bianco = valore == ' ' || valore == 0xA0;
    const auto [primo, ultimo] = Estremi(foglio, da, static_cast<int>(10 + 2 * cella));
    EXPECT_EQ(ultimo < primo, bianco) << valore;
  }
}

TEST_F(CelleTest, AnUnderlineHasNoHolesUnderStandIns) {
  const QImage foglio = Disegnato(
      "a\x01\x81 \x9D"
      "b",
      Sottolineato);
  const int fine = static_cast<int>(10 + 6 * celle_.Avanzamento(Sottolineato));
  int intere = 0;
  for (int y = 41; y < foglio.height(); ++y) {
    bool intera = true;
    for (int x = 11; x < fine - 1; ++x) intera = intera && foglio.pixelColor(x, y) != Qt::white;
    intere += intera ? 1 : 0;
  }
  EXPECT_GE(intere, 1);
}

TEST_F(CelleTest, ALineIsAsHighAsItsHighestRun) {
  const TestoAnteprima testo(DiProva("normaleS;COpiccolo\r\npiccolo\r\n\r\nS;NOx"));
  EXPECT_EQ(AltezzeDi(testo, 0, celle_).Altezza(), celle_.Altezza(Normale));
  EXPECT_EQ(AltezzeDi(testo, 1, celle_).Altezza(), celle_.Altezza(Compresso));
  EXPECT_EQ(AltezzeDi(testo, 2, celle_).Altezza(), celle_.Altezza(Compresso)) << "an empty line";
  EXPECT_EQ(AltezzeDi(testo, 3, celle_).Altezza(), celle_.Altezza(Normale));
  EXPECT_EQ(AltezzeDi(TestoAnteprima(), 0, celle_).Altezza(), celle_.Altezza({}));
}

TEST_F(CelleTest, ColumnsStandBehindTheCellsInFrontOfThem) {
  const TestoAnteprima testo(DiProva("x\r\nabS;COcd"));
  const qreal normale = celle_.Avanzamento(Normale);
  const qreal compresso = celle_.Avanzamento(Compresso);
  EXPECT_EQ(XDi(testo, 1, 0, celle_), 0);
  EXPECT_EQ(XDi(testo, 1, 2, celle_), 2 * normale);
  EXPECT_EQ(XDi(testo, 1, 4, celle_), 2 * normale + 2 * compresso);
  EXPECT_EQ(XDi(testo, 1, 9, celle_), 2 * normale + 2 * compresso);
}

TEST_F(CelleTest, AnXLiesInAColumnAndIsNearToAnEdge) {
  const TestoAnteprima testo(DiProva("abS;COcd"));
  for (std::size_t colonna = 0; colonna < 4; ++colonna) {
    const qreal sinistra = XDi(testo, 0, colonna, celle_);
    const qreal cella = XDi(testo, 0, colonna + 1, celle_) - sinistra;
    EXPECT_EQ(ColonnaA(testo, 0, sinistra, celle_), colonna);
    EXPECT_EQ(ColonnaA(testo, 0, sinistra + 0.9 * cella, celle_), colonna);
    EXPECT_EQ(ColonnaVicina(testo, 0, sinistra + 0.4 * cella, celle_), colonna);
    EXPECT_EQ(ColonnaVicina(testo, 0, sinistra + 0.6 * cella, celle_), colonna + 1);
  }
  EXPECT_EQ(ColonnaA(testo, 0, -5, celle_), 0U);
  EXPECT_EQ(ColonnaA(testo, 0, 1000, celle_), 4U);
  EXPECT_EQ(ColonnaVicina(testo, 0, 1000, celle_), 4U);
}

TEST_F(CelleTest, OnlyTheAskedColumnsAreDrawnAndAtTheirPlace) {
  const TestoAnteprima testo(DiProva("|||S;GR|||"));
  QImage foglio = foglio_;
  foglio.fill(Qt::white);
  QPainter pittore(&foglio);
  EXPECT_EQ(DisegnaRiga(pittore, QPointF(10, 40), testo, 0, 2, 4, celle_), 2U);
  EXPECT_EQ(DisegnaRiga(pittore, QPointF(10, 40), testo, 0, 6, 9, celle_), 0U);
  const auto [primo, ultimo] = Estremi(foglio, 0, foglio.width());
  EXPECT_GE(primo, static_cast<int>(10 + XDi(testo, 0, 2, celle_)));
  EXPECT_LE(ultimo, static_cast<int>(10 + XDi(testo, 0, 4, celle_)));
  EXPECT_GT(ultimo, primo + 3) << "two bars";
}

}  // namespace
}  // namespace parvik
