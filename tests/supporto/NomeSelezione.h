// A part of a text is told by its place and its length.
#pragma once

#include <ostream>

#include "template/Modifica.h"

namespace parvik {

/// To be seen wherever a test program tells one.
inline void PrintTo(const Selezione& selezione, std::ostream* uscita) {
  *uscita << selezione.Inizio << '+' << selezione.Lunghezza;
}

}  // namespace parvik
