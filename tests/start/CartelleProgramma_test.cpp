#include "start/CartelleProgramma.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "start/CartelleInstallate.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

TEST(CartelleProgramma, OfABuiltProgramAreItsOwnAndTheOneAbove) {
  const CartellaTemporanea dir;
  fs::create_directories(dir / "PARVIK");
  EXPECT_EQ(DirModuli(dir / "PARVIK"), dir / "PARVIK");
  EXPECT_EQ(DirEsempio(dir / "PARVIK"), dir.Percorso());
  EXPECT_EQ(DirManuale(dir / "PARVIK"), dir / "PARVIK" / "manuale");
}

TEST(CartelleProgramma, OfAnInstalledProgramLieBesideIt) {
  const CartellaTemporanea dir;
  fs::create_directories(dir / "bin");
  fs::create_directories(dir / "bin" / DaProgrammaAModuli);
  fs::create_directories(dir / "bin" / DaProgrammaAEsempio);
  fs::create_directories(dir / "bin" / DaProgrammaAManuale);
  EXPECT_EQ(DirModuli(dir / "bin"), (dir / "bin" / DaProgrammaAModuli).lexically_normal());
  EXPECT_EQ(DirEsempio(dir / "bin"), (dir / "bin" / DaProgrammaAEsempio).lexically_normal());
  EXPECT_EQ(DirManuale(dir / "bin"), (dir / "bin" / DaProgrammaAManuale).lexically_normal());
}

}  // namespace
}  // namespace parvik::prova
