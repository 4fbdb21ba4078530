// Standard output, byte by byte as a program wants it.
#pragma once

#include <string_view>

#include "common/Esito.h"

namespace parvik {

/// Writes all of it, at once: nothing is kept back in a buffer whose failure nobody would hear of.
Esito<void> ScriviUscita(std::string_view byte);

}  // namespace parvik
