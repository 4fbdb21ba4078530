#include "sistema/Processo.h"

#include <fcntl.h>
#include <io.h>

#include <exception>
#include <initializer_list>

#include "common/Precondizione.h"

namespace parvik {

/// Standard streams are handles of their own: no file gets one of theirs. Texts go out as they are, with the
/// ends of lines that they have. What ends the program closes its files, and the system takes the provisional
/// ones away with that.
void PreparaProcesso() {
  std::set_terminate(EccezioneSfuggita);
  for (const int numero : {0, 1, 2}) static_cast<void>(::_setmode(numero, O_BINARY));
}

void PreparaProcessoSenzaFinestra() {
  PreparaProcesso();
}

}  // namespace parvik
