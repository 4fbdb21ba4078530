#include "common/TrovaByte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace parvik {
namespace {

/// Texts in memory of their own size: what is read beyond their end is seen by the sanitizers.
TEST(TrovaByte, FindsTheFirstOneWhereverItIsAndFromEveryPlace) {
  constexpr std::size_t Massimo = 100;
  for (std::size_t lungo = 0; lungo <= Massimo; ++lungo) {
    for (std::size_t posto = 0; posto <= lungo; ++posto) {
      std::vector<char> byte(lungo, 'x');
      if (posto < lungo) byte[posto] = '\xAB';
      if (posto + 3 < lungo) byte[posto + 3] = '\xAB';
      const std::string_view testo(byte.data(), byte.size());
      for (std::size_t da = 0; da <= lungo; ++da) {
        const std::size_t atteso = std::min(testo.find('\xAB', da), lungo);
        ASSERT_EQ(TrovaByte(testo, '\xAB', da), atteso) << lungo << " " << posto << " " << da;
      }
    }
  }
}

TEST(TrovaByte, TellsEveryByteFromEveryOther) {
  std::vector<char> tutti;
  for (int valore = 0; valore < 256; ++valore)
    tutti.push_back(static_cast<char>(static_cast<unsigned char>(valore)));
  const std::string_view testo(tutti.data(), tutti.size());
  for (std::size_t valore = 0; valore < tutti.size(); ++valore)
    EXPECT_EQ(TrovaByte(testo, tutti[valore], 0), valore);
  EXPECT_EQ(TrovaByte(testo.substr(1), '\0', 0), 255U);
}

}  // namespace
}  // namespace parvik
