#include "template/RigheSezione.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>

#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

struct Caso {
  const char* Nome;
  std::string Testo;
  int Righe;
  bool DaCompletare;
};
using prova::PrintTo;

class RigheSezioneTest : public testing::TestWithParam<Caso> {};

TEST_P(RigheSezioneTest, CountsCarriageReturnsAndAnUnfinishedLastLine) {
  const Esito<ConteggioRighe> conteggio = ContaRigheSezione(GetParam().Testo);
  ASSERT_TRUE(conteggio);
  EXPECT_EQ(GetParam().Righe, conteggio->Righe);
  EXPECT_EQ(GetParam().DaCompletare, conteggio->DaCompletare);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Casi, RigheSezioneTest, testing::Values(
    Caso{"empty", "", 0, false},
    Caso{"one_empty_line", "\r\n", 1, false},
    Caso{"one_line", "a\r\n", 1, false},
    Caso{"unfinished_line", "a", 1, true},
    Caso{"unfinished_second_line", "a\r\nb", 2, true},
    Caso{"only_spaces", "   ", 0, false},
    Caso{"spaces_after_the_last_line", "a\r\n   ", 1, false},
    Caso{"spaces_then_text", "a\r\n  b ", 2, true},
    Caso{"a_tab_is_text", "\t", 1, true},
    Caso{"a_line_feed_is_none", "a\r\n\n \n", 1, false},
    Caso{"a_nul_is_text", std::string(1, '\0'), 1, true},
    Caso{"lone_carriage_returns", "a\rb\r", 2, false},
    Caso{"lines_of_spaces_count", "  \r\n  \r\n", 2, false}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

TEST(ContaRigheSezione, CountsAsFarAs16BitsGo) {
  const Esito<ConteggioRighe> massimo = ContaRigheSezione(std::string(32766, '\r') + "x");
  ASSERT_TRUE(massimo);
  EXPECT_EQ(32767, massimo->Righe);
  EXPECT_EQ(32767, ContaRigheSezione(std::string(32767, '\r'))->Righe);
  for (const std::string& troppe : {std::string(32768, '\r'), std::string(32767, '\r') + "x"}) {
    const Esito<ConteggioRighe> conteggio = ContaRigheSezione(troppe);
    ASSERT_FALSE(conteggio);
    EXPECT_EQ(NumeroErrore::Overflow, conteggio.Errore());
  }
}

TEST(HaTesto, IsFalseForSpacesAndLineEndsOnly) {
  EXPECT_FALSE(HaTesto(""));
  EXPECT_FALSE(HaTesto("  \r\n \n"));
  EXPECT_TRUE(HaTesto(" x "));
  EXPECT_TRUE(HaTesto("\t"));
  EXPECT_TRUE(HaTesto("\xA0"));
}

TEST(ContaRigheSezione, IsTheSameOnceTheSectionIsCompletedWhichThenNeedsNothingMore) {
  EXPECT_TRUE(rc::check("completed by CR LF", [](const std::string& testo) {
    const Esito<ConteggioRighe> prima = ContaRigheSezione(testo);
    RC_ASSERT(static_cast<bool>(prima));
    const Esito<ConteggioRighe> dopo = ContaRigheSezione(prima->DaCompletare ? testo + "\r\n" : testo);
    RC_ASSERT(static_cast<bool>(dopo));
    RC_ASSERT(dopo->Righe == prima->Righe);
    RC_ASSERT(!dopo->DaCompletare);
  }));
}

}  // namespace
}  // namespace parvik::prova
