#include "tokens/CodicePagina.h"

#include "tokens/Codice.h"

namespace parvik {

std::string CostruisciPagina(std::string_view numero) {
  if (numero.find_first_not_of(' ') == std::string_view::npos) return {};
  return ConDelimitatori("P" + std::string(numero));
}

std::string LeggiPagina(std::string_view contenuto) {
  return contenuto.empty() ? std::string() : std::string(contenuto.substr(1));
}

}  // namespace parvik
