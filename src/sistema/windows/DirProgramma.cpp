#include "sistema/DirProgramma.h"

#include <system_error>

#include "sistema/windows/OperazioniFile.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

fs::path Programma() {
  std::wstring nome(MAX_PATH, L'\0');
  for (;;) {
    const DWORD lungo = ::GetModuleFileNameW(nullptr, nome.data(), static_cast<DWORD>(nome.size()));
    if (lungo < nome.size()) {
      nome.resize(lungo);
      return nome;
    }
    nome.resize(nome.size() * 2);
  }
}

}  // namespace

fs::path DirProgramma(const fs::path& chiamato) {
  fs::path programma = Programma();
  std::error_code errore;
  if (programma.empty()) programma = fs::absolute(chiamato, errore);
  if (const EsitoSistema<Maniglia> aperto = ApriFile(programma, FILE_READ_ATTRIBUTES, Tutti, OPEN_EXISTING)) {
    if (const EsitoSistema<fs::path> vero = NomeVero(*aperto)) programma = *vero;
  }
  return programma.parent_path();
}

}  // namespace parvik
