#include "tokens/CodicePagina.h"

#include "common/Ritagli.h"
#include "tokens/Codice.h"
#include "tokens/Gruppi.h"

namespace parvik {

std::string CostruisciPagina(std::string_view numero) {
  if (Rifila(numero).empty()) return {};
  return ConDelimitatori("P" + std::string(numero));
}

std::string LeggiPagina(std::string_view contenuto) {
  return std::string(GruppiDiPagina(contenuto).Numero.Testo);
}

}  // namespace parvik
