#include "output/Foglio.h"

#include <gtest/gtest.h>

namespace parvik {
namespace {

constexpr double Cella = 21.17;  // of ten points, in tenths of a millimetre

TEST(Foglio, HoldsTheLinesAndColumnsBetweenItsMargins) {
  EXPECT_EQ(PaginaDi(FoglioDi(Carta::Modulo11), Cella), (PaginaFoglio{.Colonne = 108, .Righe = 66}));
  EXPECT_EQ(PaginaDi(FoglioDi(Carta::Modulo12), Cella), (PaginaFoglio{.Colonne = 108, .Righe = 72}));
  EXPECT_EQ(PaginaDi(FoglioDi(Carta::A4), Cella), (PaginaFoglio{.Colonne = 94, .Righe = 67}));
  EXPECT_EQ(PaginaDi(FoglioDi(Carta::A5), Cella), (PaginaFoglio{.Colonne = 65, .Righe = 47}));
}

TEST(Foglio, HoldsMoreOfTighterLines) {
  Foglio foglio = FoglioDi(Carta::Modulo11);
  foglio.LineePerPollice = 8;
  EXPECT_EQ(PaginaDi(foglio, Cella).Righe, 88U);
}

TEST(Foglio, HoldsALineAndAColumnWhateverItsMargins) {
  Foglio foglio = FoglioDi(Carta::Personalizzata);
  foglio.MargineSinistro = 5000;
  foglio.MargineAlto = 5000;
  EXPECT_EQ(PaginaDi(foglio, Cella), (PaginaFoglio{.Colonne = 1, .Righe = 1}));
}

TEST(Pagine, AreAsManyAsAreBegun) {
  const PaginaFoglio pagina{.Colonne = 80, .Righe = 66};
  EXPECT_EQ(Pagine(0, pagina), 0U);
  EXPECT_EQ(Pagine(1, pagina), 1U);
  EXPECT_EQ(Pagine(66, pagina), 1U);
  EXPECT_EQ(Pagine(67, pagina), 2U);
}

TEST(RigheOltre, AreThoseWiderThanThePage) {
  const PaginaFoglio pagina{.Colonne = 3, .Righe = 66};
  Anteprima anteprima;
  anteprima.Testo = "abc\r\nabcd\r\n\r\nab\ncd\r\nfine";
  EXPECT_EQ(RigheOltre(TestoAnteprima(anteprima), pagina), 3U);
  EXPECT_EQ(RigheOltre(TestoAnteprima(), pagina), 0U);
}

}  // namespace
}  // namespace parvik
