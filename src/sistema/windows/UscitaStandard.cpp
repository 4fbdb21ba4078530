#include "sistema/UscitaStandard.h"

#include <windows.h>

#include "common/Utf16.h"
#include "sistema/windows/OperazioniFile.h"

namespace parvik {
namespace {

bool Console(HANDLE uscita) {
  DWORD modo = 0;
  return ::GetConsoleMode(uscita, &modo) != FALSE;
}

/// A console takes characters, whatever its code page is.
EsitoSistema<void> ScriviInConsole(HANDLE uscita, std::string_view utf8) {
  const std::u16string testo = Utf16DaUtf8(utf8);
  const std::wstring unita(testo.begin(), testo.end());
  std::wstring_view resto = unita;
  constexpr std::size_t Pezzo = 8192;
  while (!resto.empty()) {
    DWORD scritte = 0;
    const auto quante = static_cast<DWORD>(resto.size() < Pezzo ? resto.size() : Pezzo);
    if (::WriteConsoleW(uscita, resto.data(), quante, &scritte, nullptr) == FALSE) return ::GetLastError();
    if (scritte == 0) return DWORD{ERROR_WRITE_FAULT};
    resto.remove_prefix(scritte);
  }
  return {};
}

EsitoSistema<void> ScriviSu(DWORD quale, std::string_view byte) {
  HANDLE const uscita = ::GetStdHandle(quale);
  if (uscita == nullptr || uscita == INVALID_HANDLE_VALUE) return DWORD{ERROR_INVALID_HANDLE};
  return Console(uscita) ? ScriviInConsole(uscita, byte) : ScriviTutto(uscita, byte);
}

}  // namespace

Esito<void> ScriviUscita(std::string_view byte) {
  if (const auto passo = ScriviSu(STD_OUTPUT_HANDLE, byte); !passo) return DaErroreWin(passo.Errore());
  return {};
}

void ScriviErrori(std::string_view byte) {
  static_cast<void>(ScriviSu(STD_ERROR_HANDLE, byte));
}

}  // namespace parvik
