// Reading files whole.
#pragma once

#include <filesystem>
#include <string>

#include "common/Esito.h"

namespace parvik {

/// All bytes of a regular file (links are followed). A folder, a pipe or a device gives AccessoPercorsoFile
/// at once: none of them can make the program wait.
Esito<std::string> LeggiFile(const std::filesystem::path& percorso);

}  // namespace parvik
