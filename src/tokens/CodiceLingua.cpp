#include "tokens/CodiceLingua.h"

#include "tokens/Codice.h"
#include "tokens/Gruppi.h"

namespace parvik {

std::string CostruisciLingua(const CodiceLingua& lingua) {
  if (lingua.IndiceTabella.empty()) return {};
  std::string contenuto = "L" + lingua.IndiceTabella;
  if (!lingua.Lunghezza.empty()) contenuto += ";" + lingua.Lunghezza;
  return ConDelimitatori(contenuto);
}

CodiceLingua LeggiLingua(std::string_view contenuto) {
  const GruppiLingua gruppi = GruppiDiLingua(contenuto);
  CodiceLingua lingua;
  lingua.IndiceTabella = gruppi.Indice.Testo;
  if (gruppi.Larghezza) lingua.Lunghezza = gruppi.Larghezza->Testo;
  return lingua;
}

}  // namespace parvik
