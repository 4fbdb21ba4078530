// The command line of parvik32-batch.
#pragma once

#include <string>
#include <vector>

#include "batch/Comandi.h"

namespace parvik::batch {

/// Reads the words, the program's own name first, and runs the command that they name. Help and version end
/// with Fatto, arguments that are not understood with NonFatto.
Uscita Esegui(const std::vector<std::string>& riga);

}  // namespace parvik::batch
