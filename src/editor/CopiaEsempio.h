// A copy of the example installation of the host, to look around in.
#pragma once

#include <filesystem>
#include <string>

#include "common/Esito.h"

namespace parvik {

/// Copies the example installation `esempio` (VELKOR.INI, D_IMG, D_STM) to `dove`, which must not exist yet
/// or be an empty folder. The error is one line that says what is wrong, UTF-8; what was copied until then
/// stays.
Esito<void, std::string> CopiaEsempio(const std::filesystem::path& esempio,
                                      const std::filesystem::path& dove);

}  // namespace parvik
