#include "supporto/Cartelle.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
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

CartellaTemporanea::CartellaTemporanea() {
  std::string modello = (fs::temp_directory_path() / "parvik-test-XXXXXX").string();
  if (::mkdtemp(modello.data()) == nullptr) ADD_FAILURE() << "no temporary folder";
  percorso_ = modello;
}

CartellaTemporanea::~CartellaTemporanea() {
  std::error_code errore;
  fs::remove_all(percorso_, errore);
}

}  // namespace parvik::prova
