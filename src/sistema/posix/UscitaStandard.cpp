#include "sistema/UscitaStandard.h"

#include <unistd.h>

#include "sistema/posix/Errno.h"
#include "sistema/posix/OperazioniFile.h"

namespace parvik {

Esito<void> ScriviUscita(std::string_view byte) {
  if (const auto passo = ScriviTutto(STDOUT_FILENO, byte); !passo) return DaErrno(passo.Errore());
  return {};
}

}  // namespace parvik
