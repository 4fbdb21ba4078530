// Writes the files that whole processes are measured with into a folder.
#include "Dati.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

void Scrivi(const std::filesystem::path& file, const std::string& byte) {
  std::ofstream(file, std::ios::binary) << byte;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "bench_dati FOLDER\n";
    return 2;
  }
  using namespace parvik::bench;
  const std::filesystem::path cartella = argv[1];
  std::filesystem::create_directories(cartella);
  Scrivi(cartella / "60.img", Modello(60));
  Scrivi(cartella / "600000.img", Modello(600'000));
  Scrivi(cartella / "10mb.img", ModelloDiByte(10'000'000));
  Scrivi(cartella / "10mb-in-ordine.img", ModelloInOrdine(0, 10'000'000));
  const std::string sessanta = ModelloInOrdine(60, 0);
  std::filesystem::create_directories(cartella / "molti");
  for (int i = 0; i < 10'000; ++i) Scrivi(cartella / "molti" / (std::to_string(i) + ".img"), sessanta);
  Scrivi(cartella / "CAMPI.TXT", FileCatalogo(0));
  return 0;
}
