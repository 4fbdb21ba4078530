// What the user has switched on, beside the document: how the window shows it (docs/menus.md).
#pragma once

#include <array>
#include <cstddef>

namespace parvik {

enum class Preferenza {
  AnteAuto,        // the preview follows the text
  Misura,          // codes are drawn as wide as what they print
  BarraStrumenti,  // the tool bar shows
  BarraStato,      // the status bar shows
  Righello,        // the rulers show
  FlagVeri,        // codes are measured as if all print flags were true
  Problemi,        // what is wrong with the template shows
  PannelloCampi,   // what can be inserted shows
  Ricorda,         // switches and places are kept from one session to the next
};
inline constexpr std::size_t NumPreferenze = 9;

class Preferenze {
 public:
  bool operator[](Preferenza quale) const { return accese_[static_cast<std::size_t>(quale)]; }
  void Imposta(Preferenza quale, bool accesa) { accese_[static_cast<std::size_t>(quale)] = accesa; }

  bool operator==(const Preferenze&) const = default;

 private:
  std::array<bool, NumPreferenze> accese_ = {false, false, true,  true, false,
                                             false, false, false, false};  // in their order
};

}  // namespace parvik
