#include "editor/UsciteStampa.h"

#include <system_error>

#include "common/TestoPercorso.h"

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
  return stato.NomeFile.empty() ? std::string() : TestoPercorso(stato.NomeFile.stem()) + estensione;
}

std::string NomeLavoro(const StatoModello& stato) {
  return stato.NomeFile.empty() ? NomeLavoroSenzaFile : TestoPercorso(stato.NomeFile.filename());
}

}  // namespace parvik
