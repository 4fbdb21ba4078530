#include "sistema/UscitaStandard.h"

#include <unistd.h>

#include <cstdio>

#include "sistema/posix/Errno.h"
#include "sistema/posix/OperazioniFile.h"

namespace parvik {

Esito<void> ScriviUscita(std::string_view byte) {
  if (const auto passo = ScriviTutto(STDOUT_FILENO, byte); !passo) return DaErrno(passo.Errore());
  return {};
}

void ScriviErrori(std::string_view byte) {
  static_cast<void>(std::fwrite(byte.data(), 1, byte.size(), stderr));
}

}  // namespace parvik
