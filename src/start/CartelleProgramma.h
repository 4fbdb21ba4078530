// What lies around the program: as installed, or as built (docs/installare.md).
#pragma once

#include <filesystem>

namespace parvik {

/// The folder of the modules that the program loads: beside an installed program's folder, or, when there is
/// none, that folder itself.
std::filesystem::path DirModuli(const std::filesystem::path& dirProgramma);

/// The example installation of the host that comes with the program: among the documents of an installed
/// program, or, when there is none, what lies around it.
std::filesystem::path DirEsempio(const std::filesystem::path& dirProgramma);

/// The manual's pages: where an installed program has them, or, when they are not there, beside the program.
std::filesystem::path DirManuale(const std::filesystem::path& dirProgramma);

}  // namespace parvik
