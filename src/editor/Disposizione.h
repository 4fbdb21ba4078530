// Where the controls of the main window stand, in twips: 1440 to the inch, 15 to the pixel of an ordinary
// screen.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "common/Sezione.h"

namespace parvik {

inline constexpr int TwipPerPixel = 15;
inline constexpr int AltezzaStatoUsuale = 255;

struct Rettangolo {
  int Sinistra = 0;
  int Alto = 0;
  int Larghezza = 0;
  int Altezza = 0;

  bool operator==(const Rettangolo&) const = default;
};

struct Finestra {
  int Larghezza = 0;  // inner width and height
  int Altezza = 0;
  int SinistraSezioni = 0;    // left edge of the sections, as designed
  int SinistraEtichette = 0;  // left edge of the labels, as designed
  bool TreSezioni = false;
  bool Anteprima = false;
  /// Of the line above the pane.
  int AltezzaStato = AltezzaStatoUsuale;
  /// Where the user has put the pane's left edge; by itself the sections have half of the window.
  std::optional<int> Divisore = std::nullopt;
};

inline constexpr int LarghezzaPresa = 5 * TwipPerPixel;

/// The nearest place where the pane's left edge may stand: both columns keep 120 pixels, or a quarter of the
/// window's width where that is less. nullopt in a window too narrow even for that.
std::optional<int> DivisoreAmmesso(const Finestra& finestra, int divisore);

/// What the window has to show.
struct StatoArea {
  std::optional<std::int16_t> NumSezioni;  // of the document type; nullopt while none is chosen
  bool Anteprima = false;

  bool InUso(Sezione sezione) const { return NumSezioni && HaSezione(*NumSezioni, sezione); }
};

/// Only what is laid out has a place; the rest is hidden.
struct Disposizione {
  std::array<std::optional<Rettangolo>, MaxSezioni> Sezioni;
  /// Left and top; the labels keep the size that they were designed with.
  std::array<std::optional<Rettangolo>, MaxSezioni> Etichette;
  std::optional<Rettangolo> StatoAnteprima;  // lblRighe
  std::optional<Rettangolo> Presa;           // presaAnte, left of the pane
  std::optional<Rettangolo> Anteprima;       // ricAnte

  bool operator==(const Disposizione&) const = default;
};

Disposizione Disponi(const Finestra& finestra);

}  // namespace parvik
