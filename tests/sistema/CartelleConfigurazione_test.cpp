#include "sistema/CartelleConfigurazione.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace parvik {
namespace {

void Imposta(const char* nome, const char* valore) {
  if (valore == nullptr) {
    ::unsetenv(nome);
  } else {
    ::setenv(nome, valore, 1);
  }
}

/// What the variables were is theirs again afterwards.
class CartelleUtente : public testing::Test {
 protected:
  ~CartelleUtente() override {
    for (auto i = prima_.rbegin(); i != prima_.rend(); ++i)
      Imposta(i->first, i->second ? i->second->c_str() : nullptr);
  }
  void Variabile(const char* nome, const char* valore) {
    const char* prima = std::getenv(nome);
    prima_.emplace_back(nome, prima != nullptr ? std::optional<std::string>(prima) : std::nullopt);
    Imposta(nome, valore);
  }

  std::vector<std::pair<const char*, std::optional<std::string>>> prima_;
};

TEST_F(CartelleUtente, OfWhatIsKeptAreTheVariablesOrInTheHomeFolder) {
  Variabile("HOME", "/casa");
  Variabile("XDG_STATE_HOME", "/stato");
  EXPECT_EQ(CartellaStatoUtente(), "/stato");
  for (const char* nessuna : {"", "relativa"}) {
    Variabile("XDG_STATE_HOME", nessuna);
    EXPECT_EQ(CartellaStatoUtente(), "/casa/.local/state") << nessuna;
  }
  Variabile("XDG_STATE_HOME", nullptr);
  Variabile("HOME", nullptr);
  EXPECT_EQ(CartellaStatoUtente(), "");
}

TEST_F(CartelleUtente, OfWhatCountsWhileProgramsRunIsTheVariableOrNone) {
  Variabile("XDG_RUNTIME_DIR", "/run/user/7");
  EXPECT_EQ(CartellaEsecuzione(), "/run/user/7");
  Variabile("XDG_RUNTIME_DIR", "relativa");
  EXPECT_EQ(CartellaEsecuzione(), "");
  Variabile("XDG_RUNTIME_DIR", nullptr);
  EXPECT_EQ(CartellaEsecuzione(), "");
}

}  // namespace
}  // namespace parvik
