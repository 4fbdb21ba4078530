// What the program was called with.
#pragma once

#include <string>
#include <vector>

namespace parvik {

/// The words of the command line, the program's name first: those of main's, or, where main's have lost
/// characters, the system's own, as texts of paths (common/TestoPercorso.h).
std::vector<std::string> ArgomentiProcesso(int argc, char** argv);

}  // namespace parvik
