// docs/foglio.md
#include "output/OltreFoglio.h"

#include <gtest/gtest.h>

#include <string>

#include "output/MettiStili.h"

namespace parvik {
namespace {

constexpr PaginaFoglio Stretta{.Colonne = 4, .Righe = 66};

/// With style markers in it.
TestoAnteprima Con(std::string testo) {
  Anteprima anteprima{.Testo = std::move(testo), .Tratti = {}};
  anteprima.Tratti = MettiStili(anteprima.Testo);
  return TestoAnteprima(std::move(anteprima));
}

TEST(OltreFoglio, AreTheLinesWiderThanThePage) {
  const TestoAnteprima testo = Con("abcd\r\nabcde\r\n\r\nab\ncd\r\nfine");
  EXPECT_EQ(RigheOltre(testo, Stretta), 2U);  // a lone line feed is a character
  EXPECT_EQ(ColonneDentro(testo, 0, Stretta), 4U);
  EXPECT_EQ(ColonneDentro(testo, 1, Stretta), 4U);
  EXPECT_EQ(ColonneDentro(testo, 2, Stretta), 0U);
  EXPECT_EQ(ColonneDentro(testo, 4, Stretta), 4U);
  EXPECT_EQ(RigheOltre(TestoAnteprima(), Stretta), 0U);
}

TEST(OltreFoglio, CountsCompressedCharactersAsTheyArePrinted) {
  const TestoAnteprima cinque = Con("S;COabcde\r\nabcde\r\n");
  ASSERT_EQ(cinque.Riga(0).substr(cinque.Riga(0).size() - 5), "abcde");
  EXPECT_EQ(RigheOltre(Con("S;COabcde\r\n"), Stretta), 0U);
  EXPECT_EQ(RigheOltre(Con("S;COabcdef\r\n"), Stretta), 1U);
  EXPECT_EQ(ColonneDentro(Con("S;COabcdefgh\r\n"), 0, Stretta), 5U);
}

TEST(OltreFoglio, AgreesOnLinesAndColumnsWhateverTheirLooks) {
  const TestoAnteprima testo = Con("aaS;CObbbS;NOc\r\nS;COabcS;NOd\r\nS;GRabcd\r\nS;GRabcde\r\nxyz");
  for (std::size_t colonne = 1; colonne < 8; ++colonne) {
    const PaginaFoglio pagina{.Colonne = colonne, .Righe = 66};
    std::size_t oltre = 0;
    for (std::size_t riga = 0; riga < testo.NumRighe(); ++riga)
      oltre += ColonneDentro(testo, riga, pagina) < testo.Riga(riga).size() ? 1U : 0U;
    EXPECT_EQ(RigheOltre(testo, pagina), oltre) << colonne;
  }
}

}  // namespace
}  // namespace parvik
