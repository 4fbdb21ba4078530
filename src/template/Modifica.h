// A change of a section's text, and places in it. All positions are 0-based bytes (docs/document.md).
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>

namespace parvik {

/// Part of a text. Without bytes, `Inizio` is a place: that of a caret.
struct Selezione {
  std::size_t Inizio = 0;
  std::size_t Lunghezza = 0;

  std::size_t Fine() const { return Inizio + Lunghezza; }
  bool operator==(const Selezione&) const = default;
};

/// A selection as a hand has made it: it begins at the anchor and ends at the caret, in either order.
struct Cursore {
  std::size_t Ancora = 0;
  std::size_t Posto = 0;

  Selezione Selezionato() const {
    const auto [inizio, fine] = std::minmax(Ancora, Posto);
    return {.Inizio = inizio, .Lunghezza = fine - inizio};
  }
  bool operator==(const Cursore&) const = default;
};

constexpr Cursore CursoreSu(const Selezione& selezione) {
  return {.Ancora = selezione.Inizio, .Posto = selezione.Inizio + selezione.Lunghezza};
}

/// `Tolti` bytes at `Dove` go, and `Messi` come in their place.
struct Modifica {
  std::size_t Dove = 0;
  std::size_t Tolti = 0;
  std::string Messi;

  bool operator==(const Modifica&) const = default;
};

}  // namespace parvik
