// The old content of a file while the file itself is written over, or is replaced.
#pragma once

#include <filesystem>
#include <string_view>

#include "sistema/windows/OperazioniFile.h"

namespace parvik {

/// Makes the copy of `contenuto`, which has its name (NomeVecchio) only when it is whole and on the disk,
/// with the rights of `file`. The caller has the sign of `posto`.
EsitoSistema<void> FaiCopia(const std::filesystem::path& posto, const std::filesystem::path& file,
                            std::string_view contenuto);

/// A copy that an interrupted save left may be the only whole content that there is: it becomes the previous
/// content (CopiaPrecedente.h) unless its bytes are those of the file. Gives where it went to, "" for no
/// copy.
EsitoSistema<std::filesystem::path> ConservaInterrotta(const std::filesystem::path& posto,
                                                       const std::filesystem::path& file);

}  // namespace parvik
