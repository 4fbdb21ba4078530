#include "tokens/CodiceCostante.h"

#include "common/Delimitatori.h"
#include "common/Ritagli.h"
#include "tokens/Codice.h"
#include "tokens/Gruppi.h"

namespace parvik {
namespace {

constexpr std::string_view Prefisso = "V0;";

}  // namespace

std::string CostruisciCostante(std::string_view testo) {
  if (Rifila(testo).empty()) return {};
  std::string contenuto(Prefisso);
  contenuto += DelimTesto;
  contenuto += testo;
  contenuto += DelimTesto;
  return ConDelimitatori(contenuto);
}

std::string LeggiCostante(std::string_view contenuto) {
  return std::string(GruppiDiCostante(contenuto).Testo.Testo);
}

}  // namespace parvik
