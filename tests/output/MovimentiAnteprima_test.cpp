#include "output/MovimentiAnteprima.h"

#include <gtest/gtest.h>

namespace parvik {
namespace {

TestoAnteprima Testo(std::string testo) {
  return TestoAnteprima({.Testo = std::move(testo), .Tratti = {}});
}

/// Where a movement leads, again and again, until it leads no further.
template <class Movimento>
std::vector<std::size_t> Passi(const TestoAnteprima& testo, std::size_t da, Movimento movimento) {
  std::vector<std::size_t> passi = {da};
  while (movimento(testo, passi.back()) != passi.back()) passi.push_back(movimento(testo, passi.back()));
  return passi;
}

using Posti = std::vector<std::size_t>;

TEST(MovimentiAnteprima, TheCaretStandsInFrontOfALineEndAndNotInIt) {
  const TestoAnteprima testo = Testo("a\r\nb\r");
  EXPECT_EQ(Aggancia(testo, 1), 1U);
  EXPECT_EQ(Aggancia(testo, 2), 1U);
  EXPECT_EQ(Aggancia(testo, 3), 3U);
  EXPECT_EQ(Aggancia(testo, 5), 5U);
  EXPECT_EQ(Aggancia(testo, 9), 5U);
}

TEST(MovimentiAnteprima, CharactersAreStepsAndALineEndIsOne) {
  const TestoAnteprima testo = Testo("a\r\n\r\rb\n");
  EXPECT_EQ(Passi(testo, 0, CarattereDopo), Posti({0, 1, 3, 4, 5, 6, 7}));
  EXPECT_EQ(Passi(testo, 7, CarattereDavanti), Posti({7, 6, 5, 4, 3, 1, 0}));
}

TEST(MovimentiAnteprima, WordsEndAtSpacesPunctuationAndLineEnds) {
  const TestoAnteprima testo = Testo("Tot: $$$  x\r\n\r\n per.");
  EXPECT_EQ(Passi(testo, 0, ParolaDopo), Posti({0, 3, 5, 10, 11, 13, 15, 16, 19, 20}));
  EXPECT_EQ(Passi(testo, 20, ParolaDavanti), Posti({20, 19, 16, 15, 13, 11, 10, 5, 3, 0}));
}

TEST(MovimentiAnteprima, AWordIsARunOfOneKind) {
  const TestoAnteprima testo = Testo("uno, \xE0\xE8\r\n\r\n");
  EXPECT_EQ(ParolaA(testo, 1), (Selezione{0, 3}));
  EXPECT_EQ(ParolaA(testo, 3), (Selezione{3, 1}));
  EXPECT_EQ(ParolaA(testo, 4), (Selezione{4, 1}));
  EXPECT_EQ(ParolaA(testo, 5), (Selezione{5, 2}));
  EXPECT_EQ(ParolaA(testo, 7), (Selezione{5, 2})) << "at the line's end the word in front";
  EXPECT_EQ(ParolaA(testo, 9), (Selezione{9, 0})) << "an empty line has none";
}

TEST(MovimentiAnteprima, ALineIsTakenWithItsEnd) {
  const TestoAnteprima testo = Testo("ab\r\ncd");
  EXPECT_EQ(RigaA(testo, 2), (Selezione{0, 4}));
  EXPECT_EQ(RigaA(testo, 5), (Selezione{4, 2}));
}

TEST(MovimentiAnteprima, CharactersAndBytesCountEachOtherBack) {
  const TestoAnteprima testo = Testo("ab\r\n\r\nc\rd\r\n");
  std::size_t carattere = 0;
  for (const std::size_t byte : Passi(testo, 0, CarattereDopo)) {
    EXPECT_EQ(CarattereDi(testo, byte), carattere);
    EXPECT_EQ(ByteDi(testo, carattere), byte);
    ++carattere;
  }
  EXPECT_EQ(carattere, 9U);
  EXPECT_EQ(ByteDi(testo, 100), 11U);
}

}  // namespace
}  // namespace parvik
