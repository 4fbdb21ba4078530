// Where configuration files are looked for on a POSIX system.
#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "common/FileDiProva.h"
#include "start/Installazione.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Cartelle = std::vector<fs::path>;

TEST(AmbienteDelProcesso, LooksForTheConfigurationFileWhereTheVariablesSay) {
  const VariabileAmbiente mia("XDG_CONFIG_HOME", "/casa/conf");
  const VariabileAmbiente altre("XDG_CONFIG_DIRS", "/a::/b:");
  const Ambiente ambiente = AmbienteDelProcesso("x");
  EXPECT_EQ((Cartelle{"/casa/conf", "/a", "/b", "/etc"}), ambiente.CartelleConfigurazione);
  EXPECT_EQ(fs::canonical("/proc/self/exe").parent_path(), ambiente.DirProgramma);
}

TEST(AmbienteDelProcesso, LooksInTheUsualFoldersWhenTheVariablesAreNotSetOrEmpty) {
  const VariabileAmbiente casa("HOME", "/casa/io");
  for (const char* valore : {static_cast<const char*>(nullptr), ""}) {
    const VariabileAmbiente mia("XDG_CONFIG_HOME", valore);
    const VariabileAmbiente altre("XDG_CONFIG_DIRS", valore);
    EXPECT_EQ((Cartelle{"/casa/io/.config", "/etc/xdg", "/etc"}),
              AmbienteDelProcesso("x").CartelleConfigurazione);
  }
}

}  // namespace
}  // namespace parvik::prova
