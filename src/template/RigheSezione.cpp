#include "template/RigheSezione.h"

#include <algorithm>
#include <limits>

namespace parvik {

bool HaTesto(std::string_view riga) {
  return riga.find_first_not_of(" \r\n") != std::string_view::npos;
}

Esito<ConteggioRighe> ContaRigheSezione(std::string_view testo) {
  const std::size_t ultimo = testo.rfind('\r');
  const bool pendente = HaTesto(ultimo == std::string_view::npos ? testo : testo.substr(ultimo + 1));
  const std::ptrdiff_t righe = std::ranges::count(testo, '\r') + (pendente ? 1 : 0);
  if (righe > std::numeric_limits<std::int16_t>::max()) return NumeroErrore::Overflow;
  return ConteggioRighe{.Righe = static_cast<std::int16_t>(righe), .DaCompletare = pendente};
}

}  // namespace parvik
