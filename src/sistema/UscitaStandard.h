// Standard output and error, byte by byte as a program wants them. Where a console is at their end that takes
// characters, it gets those of UTF-8.
#pragma once

#include <string_view>

#include "common/Esito.h"

namespace parvik {

/// Writes all of it, at once: nothing is kept back in a buffer whose failure nobody would hear of.
Esito<void> ScriviUscita(std::string_view byte);

/// The same to standard error. Nobody is left to tell when that fails.
void ScriviErrori(std::string_view byte);

}  // namespace parvik
