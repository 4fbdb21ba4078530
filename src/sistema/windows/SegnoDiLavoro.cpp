#include "sistema/windows/SegnoDiLavoro.h"

namespace parvik {

namespace fs = std::filesystem;

/// A sign that is just going away can be opened by nobody, and the system calls that a denied access, as it
/// does a folder that takes no file.
EsitoSistema<SegnoDiLavoro> SegnoDiLavoro::Prendi(const fs::path& posto) {
  constexpr int MaxTentativi = 10;
  constexpr DWORD Pausa = 2;  // milliseconds
  const fs::path nome = NomeDerivato(L".", posto, L".inuso~");
  for (int i = 1;; ++i) {
    EsitoSistema<Maniglia> file = ApriFile(nome, GENERIC_WRITE | DELETE, Nessuno, OPEN_ALWAYS,
                                           FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE);
    if (file) return SegnoDiLavoro(std::move(*file));
    if (file.Errore() != ERROR_ACCESS_DENIED || i == MaxTentativi) return file.Errore();
    ::Sleep(Pausa);
  }
}

fs::path NomeNuovo(const fs::path& posto) {
  return NomeDerivato(L".", posto, L".nuovo~");
}

fs::path NomeVecchio(const fs::path& posto) {
  return NomeDerivato(L".", posto, L".vecchio~");
}

}  // namespace parvik
