#include "tokens/TrovaVoce.h"

#include <algorithm>
#include <string>

namespace parvik {
namespace {

constexpr char Minuscola(char c) {
  constexpr unsigned char Distanza = 'a' - 'A';
  const auto byte = static_cast<unsigned char>(c);
  const bool accentata = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;  // D7 is the multiplication sign
  const bool diAltraLingua = byte == 0x8A || byte == 0x8C || byte == 0x8E;
  if ((c >= 'A' && c <= 'Z') || accentata) return static_cast<char>(byte + Distanza);
  if (diAltraLingua) return static_cast<char>(byte + 0x10);
  return c == '\x9F' ? '\xFF' : c;
}

std::string InMinuscolo(std::string_view testo) {
  std::string minuscolo(testo);
  std::ranges::transform(minuscolo, minuscolo.begin(), Minuscola);
  return minuscolo;
}

}  // namespace

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
