// Window tests: real widgets on the offscreen platform.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "app/qtProgramma.h"
#include "common/qtItaliano.h"
#include "sistema/Locale.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  parvik::PreparaLocale();
  parvik::qtProgramma programma(argc, argv);
  if (!parvik::ParlaItaliano(programma)) {
    std::fputs("qtbase_it is not installed\n", stderr);
    return EXIT_FAILURE;
  }
  return RUN_ALL_TESTS();
}
