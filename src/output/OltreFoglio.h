// What of a preview stands outside the page that it is looked at on (docs/foglio.md).
#pragma once

#include <cstddef>

#include "output/Foglio.h"
#include "output/TestoAnteprima.h"

namespace parvik {

/// How many characters of a line stand wholly on the page: its length when all do. Compressed ones take eight
/// tenths of a column, as on paper.
std::size_t ColonneDentro(const TestoAnteprima& testo, std::size_t riga, const PaginaFoglio& pagina);

/// How many lines go over the page's right edge. Linear in lines and runs.
std::size_t RigheOltre(const TestoAnteprima& testo, const PaginaFoglio& pagina);

/// A page and what goes over it.
struct MisuraFoglio {
  PaginaFoglio Pagina;
  std::size_t Oltre = 0;  // lines

  bool operator==(const MisuraFoglio&) const = default;
};

}  // namespace parvik
