// A section is told by its name: in lists of tests and in failures.
#pragma once

#include <ostream>

#include "common/Sezione.h"

namespace parvik {

/// To be seen wherever a test program tells one: told in two ways, any of them may be what is linked.
inline void PrintTo(Sezione sezione, std::ostream* uscita) {
  *uscita << NomiSezioni[Indice(sezione)];
}

}  // namespace parvik
