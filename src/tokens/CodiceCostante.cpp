#include "tokens/CodiceCostante.h"

#include "common/Delimitatori.h"
#include "tokens/Codice.h"

namespace parvik {
namespace {

constexpr std::string_view Prefisso = "V0;";
constexpr std::size_t LunghezzaContorno = 5;  // the prefix and the two quotes

}  // namespace

std::string CostruisciCostante(std::string_view testo) {
  if (testo.find_first_not_of(' ') == std::string_view::npos) return {};
  std::string contenuto(Prefisso);
  contenuto += DelimTesto;
  contenuto += testo;
  contenuto += DelimTesto;
  return ConDelimitatori(contenuto);
}

std::string LeggiCostante(std::string_view contenuto) {
  if (contenuto.size() <= LunghezzaContorno) return {};
  const std::size_t apice = contenuto.find(DelimTesto);
  const std::size_t inizio = apice == std::string_view::npos ? 0 : apice + 1;
  return std::string(contenuto.substr(inizio, contenuto.size() - LunghezzaContorno));
}

}  // namespace parvik
