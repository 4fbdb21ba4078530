#include "sistema/Argomenti.h"

#include <windows.h>

#include <memory>

#include "common/TestoPercorso.h"

namespace parvik {

/// Those of main have been through a code page that does not have every character.
std::vector<std::string> ArgomentiProcesso(int argc, char** argv) {
  int quante = 0;
  const auto libera = [](wchar_t** parole) { ::LocalFree(parole); };
  const std::unique_ptr<wchar_t*, decltype(libera)> vere(::CommandLineToArgvW(::GetCommandLineW(), &quante),
                                                         libera);
  if (!vere) return {argv, argv + argc};
  std::vector<std::string> parole;
  for (int i = 0; i < quante; ++i) parole.push_back(TestoPercorso(vere.get()[i]));
  return parole;
}

}  // namespace parvik
