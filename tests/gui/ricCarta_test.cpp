#include "output/ricCarta.h"

#include <gtest/gtest.h>

#include <QPageLayout>
#include <vector>

#include "PannelloDiProva.h"
#include "StampanteDiProva.h"

namespace parvik {
namespace {

using prova::DiProva;
using prova::StampanteDiProva;

std::string Righe(int quante) {
  std::string testo;
  for (int i = 0; i < quante; ++i) testo += "riga " + std::to_string(i) + "\r\n";
  return testo;
}

class CartaTest : public testing::Test {
 protected:
  StampanteDiProva stampante_;
  TestoAnteprima testo_{DiProva(Righe(300))};
  Selezione tutto_{.Inizio = 0, .Lunghezza = testo_.Testo().size()};
};

TEST_F(CartaTest, AfterEachPageItIsToldWhereTheNextOneBegins) {
  std::vector<std::size_t> inizi;
  EXPECT_TRUE(StampaSuCarta(stampante_, {.Testo = testo_, .Parte = tutto_}, [&](std::size_t inizio) {
    inizi.push_back(inizio);
    return true;
  }));
  EXPECT_EQ(stampante_.Ritirata, 0);
  ASSERT_GT(stampante_.Pagine(), 2);
  ASSERT_EQ(static_cast<qsizetype>(inizi.size()) + 1, stampante_.Pagine());
  const std::size_t righePerPagina = testo_.RigaDi(inizi[0]);
  for (std::size_t i = 0; i < inizi.size(); ++i) {
    EXPECT_EQ(inizi[i], testo_.InizioRiga((i + 1) * righePerPagina));
  }
}

TEST_F(CartaTest, LinesAtADistanceOfTheirOwnFillThePageWhateverTheirLooks) {
  const double altezza = stampante_.Foglio().pageLayout().paintRect(QPageLayout::Inch).height();
  for (const int perPollice : {4, 6, 8}) {
    StampanteDiProva stampante;
    std::size_t seconda = 0;
    const auto avanza = [&](std::size_t inizio) {
      if (seconda == 0) seconda = testo_.RigaDi(inizio);
      return true;
    };
    EXPECT_TRUE(StampaSuCarta(stampante, {.Testo = testo_, .Parte = tutto_, .PassoRiga = 1440.0 / perPollice},
                              avanza));
    EXPECT_EQ(seconda, static_cast<std::size_t>(altezza * perPollice)) << perPollice;
  }
}

TEST_F(CartaTest, TextThatIsMadeSmallerKeepsTheDistanceOfItsLines) {
  const TestoAnteprima larga{DiProva(std::string(130, 'x') + "\r\n" + Righe(300))};
  const double altezza = stampante_.Foglio().pageLayout().paintRect(QPageLayout::Inch).height();
  std::size_t seconda = 0;
  EXPECT_TRUE(StampaSuCarta(
      stampante_,
      {.Testo = larga, .Parte = {.Inizio = 0, .Lunghezza = larga.Testo().size()}, .PassoRiga = 240},
      [&](std::size_t inizio) {
        if (seconda == 0) seconda = larga.RigaDi(inizio);
        return true;
      }));
  EXPECT_EQ(seconda, static_cast<std::size_t>(altezza * 6));
}

TEST_F(CartaTest, AJobThatIsGivenUpIsWithdrawnOnceAndGoesNoFurther) {
  int volte = 0;
  EXPECT_FALSE(StampaSuCarta(stampante_, {.Testo = testo_, .Parte = tutto_},
                             [&volte](std::size_t) { return ++volte < 2; }));
  EXPECT_EQ(volte, 2);
  EXPECT_EQ(stampante_.Ritirata, 1);
}

}  // namespace
}  // namespace parvik
