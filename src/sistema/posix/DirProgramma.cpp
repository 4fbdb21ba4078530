#include "sistema/DirProgramma.h"

#include <system_error>

namespace parvik {

std::filesystem::path DirProgramma(const std::filesystem::path& chiamato) {
  std::error_code errore;
  std::filesystem::path programma = std::filesystem::read_symlink("/proc/self/exe", errore);
  if (errore)
    programma = std::filesystem::weakly_canonical(std::filesystem::absolute(chiamato, errore), errore);
  return programma.parent_path();
}

}  // namespace parvik
