// The sheets that the user has chosen, one for each document type (docs/foglio.md).
#pragma once

#include <map>

#include "output/Foglio.h"

namespace parvik {

class Fogli {
 public:
  /// Of a document type, by its number, from 1; `Carta::Nessuna` where none was chosen.
  Foglio Di(int tipo) const {
    const auto scelto = scelti_.find(tipo);
    return scelto == scelti_.end() ? Foglio() : scelto->second;
  }
  void Imposta(int tipo, const Foglio& foglio) {
    if (foglio.Quale == Carta::Nessuna) {
      scelti_.erase(tipo);
    } else {
      scelti_[tipo] = foglio;
    }
  }

  /// Those that were chosen, by the numbers of their types.
  const std::map<int, Foglio>& Scelti() const { return scelti_; }

  bool operator==(const Fogli&) const = default;

 private:
  std::map<int, Foglio> scelti_;
};

}  // namespace parvik
