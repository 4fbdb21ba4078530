// Where the program itself lies.
#pragma once

#include <filesystem>

namespace parvik {

/// The folder of the running program, links resolved, without a trailing separator. `chiamato`, as the
/// program was called, is asked only where the system does not tell.
std::filesystem::path DirProgramma(const std::filesystem::path& chiamato);

}  // namespace parvik
