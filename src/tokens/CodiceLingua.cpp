#include "tokens/CodiceLingua.h"

#include "tokens/Codice.h"

namespace parvik {

std::string CostruisciLingua(const CodiceLingua& lingua) {
  if (lingua.IndiceTabella.empty()) return {};
  std::string contenuto = "L" + lingua.IndiceTabella;
  if (!lingua.Lunghezza.empty()) contenuto += ";" + lingua.Lunghezza;
  return ConDelimitatori(contenuto);
}

CodiceLingua LeggiLingua(std::string_view contenuto) {
  CodiceLingua lingua;
  if (contenuto.empty()) return lingua;
  contenuto.remove_prefix(1);
  const std::size_t separatore = contenuto.find(';');
  lingua.IndiceTabella = contenuto.substr(0, separatore);
  if (separatore != std::string_view::npos) lingua.Lunghezza = contenuto.substr(separatore + 1);
  return lingua;
}

}  // namespace parvik
