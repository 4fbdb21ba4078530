// Style markers of the preview turned into formatting (docs/rendering.md).
#pragma once

#include <cstddef>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include "tokens/CodiceStile.h"

namespace parvik {

/// Sizes of the preview's characters.
enum class CorpoCarattere { Disegno, Normale, Compresso };

/// In points: 9.75, 10 and 8.
double Punti(CorpoCarattere corpo);

/// How characters look. A default-made one is the pane's own look, before any style.
struct Aspetto {
  bool Grassetto = false;
  bool Italico = false;
  bool Sottolineato = false;
  CorpoCarattere Corpo = CorpoCarattere::Disegno;

  bool operator==(const Aspetto&) const = default;

  /// What the style makes of this look: bold, italic and underline exclude each other; only the normal and
  /// the compressed style set a size.
  Aspetto Con(Stile stile) const;
};

/// A run of characters of one look: 0-based byte and bytes.
struct Tratto {
  std::size_t Inizio = 0;
  std::size_t Lunghezza = 0;
  Aspetto Come;

  bool operator==(const Tratto&) const = default;
};

/// From that byte of the text without markers on, so many were taken out in front; up to the next of these.
struct Varco {
  std::size_t Dove = 0;
  std::size_t Tolti = 0;

  bool operator==(const Varco&) const = default;
};

/// Takes the style markers out of a rendered text ("S;" and two letters) and returns the looks that they ask
/// for, as runs that cover the whole text. A marker is whatever reads as one, literal text included; removing
/// one may make another of its neighbours. Linear in the text.
std::vector<Tratto> MettiStili(std::string& testo);
/// The same; nullopt when `smetti` was asked for before the end, and `testo` is then of no use. Looks at it
/// every 64 KB and every 1024 markers.
std::optional<std::vector<Tratto>> MettiStili(std::string& testo, const std::stop_token& smetti);
/// The same, which also says in their order what was taken out where.
std::optional<std::vector<Tratto>> MettiStili(std::string& testo, const std::stop_token& smetti,
                                              std::vector<Varco>& varchi);

}  // namespace parvik
