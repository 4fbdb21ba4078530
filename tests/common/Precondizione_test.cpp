#include "common/Precondizione.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace parvik {
namespace {

TEST(Precondizione, ThatHoldsDoesNothing) {
  PARVIK_ESIGE(true, "the sun shines");
}

TEST(Precondizione, ThatDoesNotHoldEndsTheProgramAndSaysWhatAndWhere) {
  EXPECT_EXIT(PARVIK_ESIGE(false, "the sun shines"), testing::ExitedWithCode(EXIT_FAILURE),
              "Precondizione_test.cpp:[0-9]+: .*TestBody: expected: the sun shines");
}

}  // namespace
}  // namespace parvik
