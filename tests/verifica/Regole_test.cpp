#include "verifica/Regole.h"

#include <gtest/gtest.h>

#include "verifica/DiProva.h"

namespace parvik::prova {
namespace {

TEST(TabellaDelleRegole, HasEachRuleAtItsPlace) {
  ASSERT_EQ(Regole().size(), NumRegole);
  for (std::size_t i = 0; i < NumRegole; ++i) {
    const VoceRegola& voce = Regole()[i];
    EXPECT_EQ(static_cast<std::size_t>(voce.Quale), i) << voce.Nome;
    EXPECT_EQ(RegolaDi(voce.Nome), &voce);
    EXPECT_FALSE(voce.Trova.empty());
  }
  EXPECT_EQ(RegolaDi("regola"), nullptr);
  EXPECT_EQ(RegolaDi(""), nullptr);
}

TEST(InsiemeRegole, KeepsOthersFromBeingTold) {
  OpzioniVerifica opzioni;
  opzioni.Regole = {};
  EXPECT_EQ(Trova("<V99;1L><X>¶", 2, opzioni), "");
  opzioni.Regole.Metti(Regola::CodiceSconosciuto);
  EXPECT_EQ(Trova("<V99;1L><X>¶", 2, opzioni), "1:9 codice-sconosciuto");
  EXPECT_EQ(Trova("a\n", 2, opzioni), "");
}

}  // namespace
}  // namespace parvik::prova
