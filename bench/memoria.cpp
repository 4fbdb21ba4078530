// Renders the Corpo of the example invoice into a preview, as often as is asked for, and says how many bytes
// it has: bench_processi watches the memory.
#include <charconv>
#include <cstring>
#include <iostream>

#include "Dati.h"

int main(int argc, char** argv) {
  std::int16_t volte = 0;
  if (argc != 2 || std::from_chars(argv[1], argv[1] + std::strlen(argv[1]), volte).ec != std::errc()) {
    std::cerr << "bench_memoria ROWS\n";
    return 2;
  }
  const parvik::LavoroStampa lavoro = parvik::bench::LavoroCorpo(volte);
  std::cout << parvik::GeneraAnteprima(lavoro.Dati()).Testo.size() << '\n';
  return 0;
}
