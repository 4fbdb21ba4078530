#include "common/LettoreRighe.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <vector>

#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

using namespace std::string_literals;
using Righe = std::vector<std::string>;

Righe Tutte(std::string_view testo) {
  LettoreRighe lettore(testo);
  Righe righe;
  while (const auto riga = lettore.Prossima()) righe.emplace_back(*riga);
  return righe;
}

struct Caso {
  const char* Nome;
  std::string Testo;
  Righe Attese;
};
using prova::PrintTo;

class LettoreRigheTest : public testing::TestWithParam<Caso> {};

TEST_P(LettoreRigheTest, HandsOutTheLines) {
  EXPECT_EQ(GetParam().Attese, Tutte(GetParam().Testo));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Casi, LettoreRigheTest, testing::Values(
    Caso{"empty", "", {}},
    Caso{"no_line_end", "a", {"a"}},
    Caso{"one_line", "a\r\n", {"a"}},
    Caso{"two_lines", "a\r\nb", {"a", "b"}},
    Caso{"only_a_line_end", "\r\n", {""}},
    Caso{"empty_lines", "\r\n\r\na\r\n\r\n", {"", "", "a", ""}},
    Caso{"lone_cr", "a\rb\r", {"a", "b"}},
    Caso{"cr_cr_lf", "a\r\r\nb", {"a", "", "b"}},
    Caso{"lone_lf_is_data", "a\nb\r\nc\n", {"a\nb", "c\n"}},
    Caso{"lf_cr", "a\n\rb", {"a\n", "b"}},
    Caso{"cr_lf_lf", "a\r\n\nb", {"a", "\nb"}},
    Caso{"nul_is_data", "a\0b\r\n\0"s, {"a\0b"s, "\0"s}},
    Caso{"end_of_file_byte_is_data", "a\x1A" "b\r\nc\x1A", {"a\x1A" "b", "c\x1A"}}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

TEST(LettoreRighe, CountsWhatItHandedOutAndKnowsWhatIsLeft) {
  LettoreRighe lettore("a\r\nb\r\nc");
  EXPECT_EQ(0U, lettore.Numero());
  EXPECT_EQ("a", lettore.Prossima());
  EXPECT_EQ(1U, lettore.Numero());
  EXPECT_EQ("b\r\nc", lettore.Resto());
  EXPECT_FALSE(lettore.Fine());
  EXPECT_EQ("b", lettore.Prossima());
  EXPECT_EQ("c", lettore.Prossima());
  EXPECT_TRUE(lettore.Fine());
  EXPECT_EQ(std::nullopt, lettore.Prossima());
  EXPECT_EQ(3U, lettore.Numero());
}

TEST(LettoreRighe, GivesBackTheLinesThatWereJoinedByCrLf) {
  const auto riga =
      rc::gen::container<std::string>(rc::gen::suchThat<char>([](char c) { return c != '\r'; }));
  EXPECT_TRUE(rc::check("joined, then read", [&riga] {
    const Righe righe = *rc::gen::container<Righe>(riga);
    std::string testo;
    for (const std::string& una : righe) testo += una + "\r\n";
    RC_ASSERT(Tutte(testo) == righe);
  }));
}

}  // namespace
}  // namespace parvik::prova
