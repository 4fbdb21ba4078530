// Where the characters of a printed preview should stand, and where they do.
#pragma once

#include <cstddef>

#include "PdfStampato.h"
#include "output/TestoAnteprima.h"

namespace parvik::prova {

/// The part of a sheet that is printed on, in points.
struct Foglio {
  double Sinistra = 18;
  double Larghezza = 595 - 2 * 18;
};

/// Fails the test where a word's first or last character does not stand in its column, the columns being
/// those of ten points in Liberation Mono, eight tenths of them under compressed text, and all of them as
/// much smaller as makes the widest line fit. Returns how many words there were.
std::size_t ConfrontaColonne(const PdfStampato& pdf, const TestoAnteprima& testo, const Foglio& foglio = {});

}  // namespace parvik::prova
