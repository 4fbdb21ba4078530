#include "common/Precondizione.h"

#include <cstdio>
#include <cstdlib>

namespace parvik {

void PrecondizioneMancata(const char* attesa, const char* file, int riga, const char* funzione) {
  static_cast<void>(std::fprintf(stderr, "%s:%d: %s: expected: %s\n", file, riga, funzione, attesa));
  static_cast<void>(std::fflush(nullptr));
  std::_Exit(EXIT_FAILURE);  // what would be cleaned up is in a state that should not be
}

}  // namespace parvik
