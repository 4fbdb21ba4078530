// docs/foglio.md
#include <gtest/gtest.h>

#include <algorithm>

#include "docs/Pagine.h"
#include "output/Foglio.h"

namespace parvik::prova {
namespace {

TEST(FoglioPage, ListsThePapersAndWhatAPageOfThemHolds) {
  constexpr double Cella = 21.17;
  const auto righe = TabellaEsempi("foglio.md", "papers", 9);
  ASSERT_EQ(righe.size() + 2, NomiCarte.size()) << "all but none and one's own";
  for (const RigaEsempio& riga : righe) {
    const auto nome = std::ranges::find(NomiCarte, riga.Testo(0));
    ASSERT_NE(nome, NomiCarte.end()) << riga.Posto();
    const Foglio foglio = FoglioDi(static_cast<Carta>(nome - NomiCarte.begin()));
    EXPECT_EQ(InMillimetri(foglio.Larghezza), riga.Testo(1)) << riga.Posto();
    EXPECT_EQ(InMillimetri(foglio.Altezza), riga.Testo(2)) << riga.Posto();
    for (std::size_t m = 0; m < NumMargini; ++m)
      EXPECT_EQ(InMillimetri(foglio.Margini[m]), riga.Testo(3 + m)) << riga.Posto();
    const PaginaFoglio pagina = PaginaDi(foglio, Cella);
    EXPECT_EQ(pagina.Colonne, static_cast<std::size_t>(riga.Numero(7))) << riga.Posto();
    EXPECT_EQ(pagina.Righe, static_cast<std::size_t>(riga.Numero(8))) << riga.Posto();
  }
}

}  // namespace
}  // namespace parvik::prova
