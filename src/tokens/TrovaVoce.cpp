#include "tokens/TrovaVoce.h"

#include <string>

#include "common/Lettere.h"

namespace parvik {
std::optional<std::size_t> TrovaVoce(std::span<const std::string_view> voci, std::size_t selezionata,
                                     std::string_view cercato) {
  const std::string minuscolo = InMinuscolo(cercato);
  for (std::size_t passo = 1; passo <= voci.size(); ++passo) {
    const std::size_t voce = (selezionata + passo) % voci.size();
    if (InMinuscolo(voci[voce]).find(minuscolo) != std::string::npos) return voce;
  }
  return std::nullopt;
}

}  // namespace parvik
