#include "sistema/CartelleConfigurazione.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>

namespace parvik {
namespace {

namespace fs = std::filesystem;

std::string Variabile(const char* nome) {
  const char* valore = std::getenv(nome);  // NOLINT(concurrency-mt-unsafe): nobody sets variables
  return valore == nullptr ? std::string() : std::string(valore);
}

}  // namespace

fs::path CartellaConfigurazioneUtente() {
  const std::string casa = Variabile("XDG_CONFIG_HOME");
  if (!casa.empty()) return casa;
  const std::string utente = Variabile("HOME");
  return utente.empty() ? fs::path() : fs::path(utente) / ".config";
}

std::vector<fs::path> CartelleConfigurazione() {
  std::vector<fs::path> cartelle;
  if (fs::path utente = CartellaConfigurazioneUtente(); !utente.empty())
    cartelle.push_back(std::move(utente));
  std::string altre = Variabile("XDG_CONFIG_DIRS");
  if (altre.empty()) altre = "/etc/xdg";
  for (std::size_t inizio = 0; inizio <= altre.size();) {
    const std::size_t fine = std::min(altre.find(':', inizio), altre.size());
    if (fine > inizio) cartelle.emplace_back(altre.substr(inizio, fine - inizio));
    inizio = fine + 1;
  }
  cartelle.emplace_back("/etc");
  return cartelle;
}

fs::path CartellaStatoUtente() {
  fs::path casa = Variabile("XDG_STATE_HOME");
  if (casa.is_absolute()) return casa;
  const fs::path utente = Variabile("HOME");
  return utente.is_absolute() ? utente / ".local" / "state" : fs::path();
}

fs::path CartellaEsecuzione() {
  fs::path cartella = Variabile("XDG_RUNTIME_DIR");
  return cartella.is_absolute() ? cartella : fs::path();
}

fs::path NessunaCartella() {
  return "/dev/null";
}

}  // namespace parvik
