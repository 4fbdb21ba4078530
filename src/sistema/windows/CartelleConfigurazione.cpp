#include "sistema/CartelleConfigurazione.h"

#include <windows.h>

#include <string>
#include <utility>

namespace parvik {
namespace {

namespace fs = std::filesystem;

/// What a call gives that writes into a buffer and tells how long the whole is.
template <class Chiamata>
std::wstring Intero(const Chiamata& chiamata) {
  std::wstring testo(MAX_PATH, L'\0');
  for (;;) {
    const std::size_t lungo = chiamata(testo.data(), static_cast<DWORD>(testo.size()));
    const bool basta = lungo < testo.size();
    testo.resize(lungo);
    if (basta) return testo;
  }
}

fs::path CartellaInVariabile(const wchar_t* nome) {
  fs::path cartella =
      Intero([nome](wchar_t* testo, DWORD spazio) { return ::GetEnvironmentVariableW(nome, testo, spazio); });
  return cartella.is_absolute() ? cartella : fs::path();
}

}  // namespace

fs::path CartellaConfigurazioneUtente() {
  return CartellaInVariabile(L"APPDATA");
}

/// Where the system's own reader looks for a profile that is named without a folder comes last.
std::vector<fs::path> CartelleConfigurazione() {
  std::vector<fs::path> cartelle;
  if (fs::path utente = CartellaConfigurazioneUtente(); !utente.empty())
    cartelle.push_back(std::move(utente));
  cartelle.emplace_back(
      Intero([](wchar_t* testo, DWORD spazio) { return ::GetWindowsDirectoryW(testo, spazio); }));
  return cartelle;
}

fs::path CartellaStatoUtente() {
  return CartellaInVariabile(L"LOCALAPPDATA");
}

fs::path CartellaEsecuzione() {
  return Intero([](wchar_t* testo, DWORD spazio) { return ::GetTempPathW(spazio, testo); });
}

fs::path NessunaCartella() {
  return L"NUL";
}

}  // namespace parvik
