#include "editor/CopiaEsempio.h"

#include <system_error>

#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"
#include "sistema/ErroreSistema.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

std::string Detto(const fs::path& file, const std::string& che) {
  return Mostrabile(TestoPercorso(file)) + ": " + che;
}

/// A folder that takes the copy: made, or there and empty.
Esito<void, std::string> PreparaCartella(const fs::path& dove) {
  std::error_code errore;
  if (fs::create_directories(dove, errore)) return {};
  if (errore) return Detto(dove, TestoErrore(DaErroreSistema(errore)));
  const bool vuota = fs::is_empty(dove, errore);
  if (errore) return Detto(dove, TestoErrore(DaErroreSistema(errore)));
  if (!vuota) return Detto(dove, "la cartella non è vuota");
  return {};
}

}  // namespace

Esito<void, std::string> CopiaEsempio(const fs::path& esempio, const fs::path& dove) {
  if (const auto pronta = PreparaCartella(dove); !pronta) return pronta.Errore();
  for (const char* parte : {"VELKOR.INI", "D_IMG", "D_STM"}) {
    std::error_code errore;
    fs::copy(esempio / parte, dove / parte, fs::copy_options::recursive, errore);
    if (errore) return Detto(esempio / parte, TestoErrore(DaErroreSistema(errore)));
  }
  return {};
}

}  // namespace parvik
