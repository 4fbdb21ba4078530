#include "sistema/LetturaProfilo.h"

#include "common/ProfiloHost.h"
#include "sistema/LetturaFile.h"

namespace parvik {

std::string LeggiDaProfilo(const std::filesystem::path& file, std::string_view sezione,
                           std::string_view chiave) {
  const Esito<std::string> contenuto = LeggiFile(file);
  return contenuto ? LeggiProfilo(*contenuto, sezione, chiave) : std::string();
}

}  // namespace parvik
