// Where the program itself lies.
#pragma once

#include <filesystem>

namespace parvik {

/// The folder of the running program, links resolved, without a trailing separator. `argv0` is asked only
/// where the system does not tell.
std::filesystem::path DirProgramma(const char* argv0);

}  // namespace parvik
