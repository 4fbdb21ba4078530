#include "sistema/DirProgramma.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace parvik::prova {
namespace {

TEST(DirProgramma, IsTheFolderOfTheRunningProgramWhateverItWasCalledBy) {
  const std::filesystem::path programma = std::filesystem::canonical(testing::internal::GetArgvs().front());
  EXPECT_EQ(programma.parent_path(), DirProgramma("altrove/nome"));
}

TEST(DirProgramma, HasNoTrailingSeparator) {
  EXPECT_TRUE(DirProgramma("x").has_filename());
}

}  // namespace
}  // namespace parvik::prova
