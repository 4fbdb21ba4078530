// The toolkit's start: where there is no display the user is told in a line, and nothing aborts.
#pragma once

#include <memory>

#include "app/qtProgramma.h"
#include "sistema/SegnaliFine.h"

namespace parvik {

/// The application on its display. Where there is none, or none that the toolkit can use, writes one line to
/// standard error and ends the process with status 1; a signal that comes while the display does not answer
/// ends it so, too, without a word. `argc` and `argv` must outlive the application.
std::unique_ptr<qtProgramma> ApriSchermo(int& argc, char** argv, const SegnaliFine& segnali);

}  // namespace parvik
