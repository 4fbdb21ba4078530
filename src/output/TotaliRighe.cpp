#include "output/TotaliRighe.h"

#include <limits>

namespace parvik {

Esito<std::int16_t> TotaliRighe::Pagina() const {
  const int somma = UnaSezione ? Testata : Testata + Corpo + Piede;
  constexpr auto Massimo = std::numeric_limits<std::int16_t>::max();
  if (somma > Massimo || somma < std::numeric_limits<std::int16_t>::min()) return NumeroErrore::Overflow;
  return static_cast<std::int16_t>(somma);
}

}  // namespace parvik
