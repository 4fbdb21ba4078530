#include "supporto/Cartelle.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>

namespace parvik::prova {

namespace fs = std::filesystem;

fs::path Esempio() {
  return PARVIK_ESEMPIO;
}
fs::path Dati() {
  return PARVIK_DATI;
}
fs::path Docs() {
  return PARVIK_DOCS;
}
fs::path Batch() {
  return PARVIK_BATCH;
}
fs::path ModuloStampa() {
  return PARVIK_MODULO_STAMPA;
}

std::string Contenuto(const fs::path& file) {
  std::ifstream flusso(file, std::ios::binary);
  if (!flusso) ADD_FAILURE() << "cannot read " << file;
  std::ostringstream contenuto;
  contenuto << flusso.rdbuf();
  return std::move(contenuto).str();
}

void Crea(const fs::path& file, std::string_view byte) {
  fs::create_directories(file.parent_path());
  std::ofstream flusso(file, std::ios::binary);
  flusso.write(byte.data(), static_cast<std::streamsize>(byte.size()));
  if (!flusso.flush()) ADD_FAILURE() << "cannot write " << file;
}

bool Collegamenti() {
  const CartellaTemporanea cartella;
  std::error_code errore;
  fs::create_symlink("meta", cartella / "collegamento", errore);
  return !errore;
}

bool DistingueCasi() {
  const CartellaTemporanea cartella;
  Crea(cartella / "nome", "");
  return !fs::exists(cartella / "NOME");
}

CartellaTemporanea::CartellaTemporanea() {
  constexpr int MaxTentativi = 100;
  std::random_device caso;
  std::error_code errore;
  for (int i = 0; i < MaxTentativi; ++i) {
    percorso_ = fs::temp_directory_path() / ("parvik-test-" + std::to_string(caso()));
    if (!fs::create_directory(percorso_, errore)) continue;  // there is one of that name
    fs::permissions(percorso_, fs::perms::owner_all, errore);
    return;
  }
  ADD_FAILURE() << "no temporary folder";
}

CartellaTemporanea::~CartellaTemporanea() {
  std::error_code errore;
  fs::remove_all(percorso_, errore);
}

}  // namespace parvik::prova
