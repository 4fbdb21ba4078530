#include "start/CartelleProgramma.h"

#include <system_error>

#include "start/CartelleInstallate.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

fs::path CartellaOppure(const fs::path& installata, const fs::path& altra) {
  std::error_code errore;
  return fs::is_directory(installata, errore) ? installata.lexically_normal() : altra;
}

}  // namespace

fs::path DirModuli(const fs::path& dirProgramma) {
  return CartellaOppure(dirProgramma / DaProgrammaAModuli, dirProgramma);
}

fs::path DirEsempio(const fs::path& dirProgramma) {
  return CartellaOppure(dirProgramma / DaProgrammaAEsempio, dirProgramma.parent_path());
}

fs::path DirManuale(const fs::path& dirProgramma) {
  return CartellaOppure(dirProgramma / DaProgrammaAManuale, dirProgramma / "manuale");
}

}  // namespace parvik
