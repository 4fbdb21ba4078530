#include "tokens/CodiceFlag.h"

#include "tokens/Codice.h"

namespace parvik {

std::string CostruisciFlag(const CodiceFlag& flag) {
  return ConDelimitatori("F" + flag.Numero + flag.Interruttore);
}

CodiceFlag LeggiFlag(std::string_view contenuto) {
  CodiceFlag flag;
  if (contenuto.size() < 2) return flag;
  const char ultimo = contenuto.back();
  std::string_view numero = contenuto.substr(1);
  if (ultimo < '0' || ultimo > '9') {
    flag.Interruttore = std::string(1, ultimo);
    numero.remove_suffix(1);
  }
  flag.Numero = numero;
  return flag;
}

}  // namespace parvik
