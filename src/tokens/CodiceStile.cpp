#include "tokens/CodiceStile.h"

#include <array>

#include "common/Percorsi.h"
#include "tokens/Codice.h"
#include "tokens/Gruppi.h"

namespace parvik {
namespace {

constexpr std::array<std::string_view, 5> Parole = {"NORMALE", "GRASSETTO", "COMPRESSO", "ITALICO",
                                                    "SOTTOLINEATO"};
constexpr std::size_t LettereSignificative = 2;

}  // namespace

std::string_view ParolaStile(Stile stile) {
  return Parole[static_cast<std::size_t>(stile)];
}

std::optional<Stile> StileDi(std::string_view parola) {
  for (std::size_t i = 0; i < Parole.size(); ++i) {
    if (UgualiSenzaCaso(parola.substr(0, LettereSignificative), Parole[i].substr(0, LettereSignificative))) {
      return static_cast<Stile>(i);
    }
  }
  return std::nullopt;
}

std::string CostruisciStile(Stile stile) {
  return ConDelimitatori("S;" + std::string(ParolaStile(stile)));
}

std::string_view LeggiStile(std::string_view contenuto) {
  return GruppiDiStile(contenuto).Parola.Testo;
}

}  // namespace parvik
