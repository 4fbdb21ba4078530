// A preview on paper (docs/printing.md).
#pragma once

#include <cstddef>
#include <functional>

#include "output/TestoAnteprima.h"
#include "output/qtStampante.h"
#include "template/TastiSezione.h"

namespace parvik {

/// Prints a part of a preview, given in bytes, as one job, in its looks and in black. Pages break between
/// lines; a line that is wider than the page goes on below, on the same page where one holds it. `avanza` is
/// told after each page where in the text the next one begins; false gives the job up, which withdraws it.
/// Returns whether the job was handed to the printer whole.
bool StampaSuCarta(Stampante& stampante, const TestoAnteprima& testo, const Selezione& parte,
                   const std::function<bool(std::size_t)>& avanza);

}  // namespace parvik
