// A folder that is the user's alone.
#pragma once

#include <filesystem>

#include "sistema/posix/Errno.h"

namespace parvik {

/// Makes it when it is missing; its parent must be there. EACCES when others could put something into it, or
/// see what is there.
EsitoSistema<void> PreparaCartellaPropria(const std::filesystem::path& cartella);

/// Unless something is in it.
void TogliCartella(const std::filesystem::path& cartella);

}  // namespace parvik
