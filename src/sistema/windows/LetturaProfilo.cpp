#include "sistema/LetturaProfilo.h"

#include <windows.h>

#include <array>
#include <system_error>

#include "common/Windows1252.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

std::wstring Larga(std::string_view ascii) {
  return {ascii.begin(), ascii.end()};
}

}  // namespace

/// A name that is not whole would be looked for in the system's own folder.
std::string LeggiDaProfilo(const fs::path& file, std::string_view sezione, std::string_view chiave) {
  std::error_code errore;
  const fs::path intero = fs::absolute(file, errore).make_preferred();
  if (errore) return {};
  std::array<wchar_t, 200> valore = {};
  const DWORD lungo =
      ::GetPrivateProfileStringW(Larga(sezione).c_str(), Larga(chiave).c_str(), L"", valore.data(),
                                 static_cast<DWORD>(valore.size()), intero.c_str());
  std::string utf16;
  for (DWORD i = 0; i < lungo; ++i) {
    const auto unita = static_cast<unsigned int>(valore[i]);
    utf16 += static_cast<char>(unita & 0xFFU);
    utf16 += static_cast<char>(unita >> 8U);
  }
  return AnsiDaUtf16(utf16);
}

}  // namespace parvik
