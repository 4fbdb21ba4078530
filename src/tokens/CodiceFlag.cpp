#include "tokens/CodiceFlag.h"

#include "tokens/Codice.h"
#include "tokens/Gruppi.h"

namespace parvik {

std::string CostruisciFlag(const CodiceFlag& flag) {
  return ConDelimitatori("F" + flag.Numero + flag.Interruttore);
}

CodiceFlag LeggiFlag(std::string_view contenuto) {
  const GruppiFlag gruppi = GruppiDiFlag(contenuto);
  CodiceFlag flag;
  flag.Numero = gruppi.Numero.Testo;
  if (gruppi.Interruttore) flag.Interruttore = gruppi.Interruttore->Testo;
  return flag;
}

}  // namespace parvik
