#include "sistema/Argomenti.h"

namespace parvik {

/// Who starts a program without even its name has called it nothing.
std::vector<std::string> ArgomentiProcesso(int argc, char** argv) {
  std::vector<std::string> parole(argv, argv + argc);
  if (parole.empty()) parole.emplace_back();
  return parole;
}

}  // namespace parvik
