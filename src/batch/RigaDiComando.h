// The command line of parvik32-batch.
#pragma once

#include "batch/Comandi.h"

namespace parvik::batch {

/// Reads the arguments and runs the command that they name. Help and version end with Fatto, arguments that
/// are not understood with NonFatto.
Uscita Esegui(int argc, char** argv);

}  // namespace parvik::batch
