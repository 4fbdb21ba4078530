// The content that a file had before it was replaced by something else.
#pragma once

#include <filesystem>
#include <string_view>

#include "common/EsitoScrittura.h"

namespace parvik {

/// Where it is kept: the file's name and "~", in the same folder.
std::filesystem::path NomePrecedente(const std::filesystem::path& file);

/// Keeps `contenuto` there, whole and on the disk, with the rights of `file` (links are followed: the copy
/// lies beside the file that they lead to). Only the newest is kept. On failure an older one stays.
EsitoPasso ConservaPrecedente(const std::filesystem::path& file, std::string_view contenuto);

}  // namespace parvik
