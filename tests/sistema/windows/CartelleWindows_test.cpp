#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "common/FileDiProva.h"
#include "sistema/Argomenti.h"
#include "sistema/CartelleConfigurazione.h"
#include "sistema/DirProgramma.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

TEST(CartelleConfigurazione, AreTheUsersOwnAndThenTheSystemsForProfilesWithoutAFolder) {
  const VariabileAmbiente mia("APPDATA", "C:\\casa");
  const std::vector<fs::path> cartelle = CartelleConfigurazione();
  ASSERT_EQ(cartelle.size(), 2U);
  EXPECT_EQ(cartelle[0], "C:\\casa");
  EXPECT_EQ(CartellaConfigurazioneUtente(), "C:\\casa");
  EXPECT_TRUE(fs::exists(cartelle[1] / "system32")) << cartelle[1];
}

TEST(CartelleConfigurazione, IsTheSystemsAloneForAUserWhoHasNone) {
  for (const char* nessuna : {static_cast<const char*>(nullptr), "relativa"}) {
    const VariabileAmbiente mia("APPDATA", nessuna);
    EXPECT_EQ(CartelleConfigurazione().size(), 1U);
    EXPECT_EQ(CartellaConfigurazioneUtente(), "");
  }
}

TEST(CartelleConfigurazione, OfWhatIsKeptIsTheVariableOrNone) {
  const VariabileAmbiente mia("LOCALAPPDATA", "C:\\stato");
  EXPECT_EQ(CartellaStatoUtente(), "C:\\stato");
  EXPECT_TRUE(CartellaEsecuzione().is_absolute());
}

TEST(CartelleConfigurazione, InNoFolderNothingCanBeMade) {
  std::error_code errore;
  EXPECT_FALSE(fs::create_directory(NessunaCartella() / "x", errore));
}

TEST(DirProgramma, IsWrittenAsTheSystemsOtherProgramsDo) {
  EXPECT_FALSE(DirProgramma("x").native().starts_with(L"\\\\?\\"));
  EXPECT_EQ(DirProgramma("x").native().find(L'/'), std::wstring::npos);
}

TEST(Argomenti, AreThoseOfTheSystemWhateverMainWasGiven) {
  char altro[] = "altro";
  char* argv[] = {altro, nullptr};
  const std::vector<std::string> parole = ArgomentiProcesso(1, argv);
  ASSERT_FALSE(parole.empty());
  EXPECT_NE(parole.front().find("parvik_sistema_tests"), std::string::npos);
}

}  // namespace
}  // namespace parvik::prova
