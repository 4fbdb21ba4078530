#include "editor/UsciteStampa.h"

#include <system_error>

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr const char* NomeLavoroSenzaFile = "Ordavia";

}  // namespace

fs::path CartellaUscite(const Installazione& installazione) {
  fs::path cartella = installazione.DirStm();
  std::error_code errore;
  return fs::is_directory(cartella, errore) ? cartella : installazione.DirVelkor;
}

std::string NomeUscita(const StatoModello& stato, const char* estensione) {
  return stato.NomeFile.empty() ? std::string() : stato.NomeFile.stem().string() + estensione;
}

std::string NomeLavoro(const StatoModello& stato) {
  return stato.NomeFile.empty() ? NomeLavoroSenzaFile : stato.NomeFile.filename().string();
}

}  // namespace parvik
