// A preview on paper (docs/printing.md).
#pragma once

#include <cstddef>
#include <functional>

#include "output/TestoAnteprima.h"
#include "output/qtStampante.h"
#include "template/TastiSezione.h"

namespace parvik {

/// What is printed.
struct LavoroCarta {
  const TestoAnteprima& Testo;
  Selezione Parte;              // in bytes
  double PassoRiga = 0;         // from one line to the next, in twips; 0: each line as high as its characters
  std::size_t RighePagina = 0;  // at that distance; 0: as many as the page holds, whose size is a rounded one
};

/// Prints a part of a preview as one job, in its looks and in black. Pages break between
/// lines; a line that is wider than the page goes on below, on the same page where one holds it. `avanza` is
/// told after each page where in the text the next one begins; false gives the job up, which withdraws it.
/// Returns whether the job was handed to the printer whole.
bool StampaSuCarta(Stampante& stampante, const LavoroCarta& lavoro,
                   const std::function<bool(std::size_t)>& avanza);

}  // namespace parvik
