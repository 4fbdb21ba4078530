// How many lines the sections of a template take on a page.
#pragma once

#include <cstdint>

#include "common/Esito.h"

namespace parvik {

struct TotaliRighe {
  /// A document type with exactly one section has only the first row.
  bool UnaSezione = false;
  std::int16_t Testata = 0;
  std::int16_t Corpo = 0;  // the rows that the body takes on a page, not the lines of its section
  std::int16_t Piede = 0;

  /// The sum; Overflow beyond 16 bits.
  Esito<std::int16_t> Pagina() const;
};

}  // namespace parvik
