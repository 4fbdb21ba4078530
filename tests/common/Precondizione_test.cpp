#include "common/Precondizione.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

namespace parvik {
namespace {

TEST(Precondizione, ThatHoldsDoesNothing) {
  PARVIK_ESIGE(true, "the sun shines");
}

TEST(PrecondizioneDeathTest, ThatDoesNotHoldEndsTheProgramAndSaysWhatAndWhere) {
  EXPECT_EXIT(PARVIK_ESIGE(false, "the sun shines"), testing::ExitedWithCode(EXIT_FAILURE),
              "Precondizione_test.cpp:\\w+: .*TestBody: expected: the sun shines");
}

void Sfuggi() noexcept {
  static_cast<void>(std::string().at(1));
}

TEST(PrecondizioneDeathTest, ThatIsAnExceptionNobodyCaughtSaysWhich) {
  EXPECT_EXIT(
      {
        std::set_terminate(EccezioneSfuggita);
        Sfuggi();
      },
      testing::ExitedWithCode(EXIT_FAILURE), "uncaught exception: basic_string::at");
}

void Uno() {
  static_cast<void>(std::fputs("one\n", stderr));
}
void Due() {
  static_cast<void>(std::fputs("two\n", stderr));
}
void Ancora() {
  static_cast<void>(std::fputs("three\n", stderr));
  PARVIK_ESIGE(false, "the moon shines");
}

TEST(PrecondizioneDeathTest, IsFollowedByWhatWasRegisteredTheLastFirstAndEachOnce) {
  EXPECT_EXIT(
      {
        PrimaDiFinire(Uno);
        PrimaDiFinire(Due);
        PrimaDiFinire(Uno);
        PARVIK_ESIGE(false, "the sun shines");
      },
      testing::ExitedWithCode(EXIT_FAILURE), "sun shines\ntwo\none\n$");
}

TEST(PrecondizioneDeathTest, ThatIsNotMetWhileTheProgramEndsEndsItThere) {
  EXPECT_EXIT(
      {
        PrimaDiFinire(Ancora);
        PARVIK_ESIGE(false, "the sun shines");
      },
      testing::ExitedWithCode(EXIT_FAILURE), "sun shines\nthree\n.*moon shines\n$");
}

}  // namespace
}  // namespace parvik
