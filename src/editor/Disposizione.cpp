#include "editor/Disposizione.h"

#include <algorithm>
#include <cmath>

namespace parvik {
namespace {

constexpr int LarghezzaMinima = 120 * TwipPerPixel;
constexpr int TraSezioni = 1;  // one twip between the boxes

/// Half to even, as the program rounds everywhere.
int Dividi(int valore, int divisore) {
  return static_cast<int>(std::nearbyint(static_cast<double>(valore) / divisore));
}

/// Of one column when both are as wide as each other, or of the only one.
int LarghezzaColonna(const Finestra& finestra) {
  const int tutta = finestra.Larghezza == 0 ? 0 : std::max(0, finestra.Larghezza - finestra.SinistraSezioni);
  return finestra.Anteprima ? Dividi(tutta, 2) : tutta;
}

/// The right edge of the preview, wherever the boundary is.
int DestraAnteprima(const Finestra& finestra) {
  return finestra.SinistraSezioni + 2 * LarghezzaColonna(finestra);
}

}  // namespace

std::optional<int> DivisoreAmmesso(const Finestra& finestra, int divisore) {
  const int minima = std::min(LarghezzaMinima, finestra.Larghezza / 4);
  const int primo = finestra.SinistraSezioni + minima + LarghezzaPresa;
  const int ultimo = finestra.Larghezza - minima;
  if (primo > ultimo) return std::nullopt;
  return std::clamp(divisore, primo, ultimo);
}

Disposizione Disponi(const Finestra& finestra) {
  Disposizione disposizione;
  const int sinistra = finestra.SinistraSezioni;
  int larghezza = LarghezzaColonna(finestra);
  if (finestra.Anteprima && finestra.Divisore)
    larghezza = std::max(0, *finestra.Divisore - LarghezzaPresa - sinistra);
  if (finestra.TreSezioni) {
    const int altezza = Dividi(finestra.Altezza, static_cast<int>(MaxSezioni));
    for (std::size_t i = 0; i < MaxSezioni; ++i) {
      const int alto = static_cast<int>(i) * (altezza + TraSezioni);
      disposizione.Sezioni[i] = Rettangolo{sinistra, alto, larghezza, altezza};
      disposizione.Etichette[i] = Rettangolo{finestra.SinistraEtichette, alto, 0, 0};
    }
  } else {
    disposizione.Sezioni[0] = Rettangolo{sinistra, 0, larghezza, finestra.Altezza};
  }
  if (finestra.Anteprima) {
    const int confine = sinistra + larghezza;
    const int resto = DestraAnteprima(finestra) - confine;
    const int presa = std::min(LarghezzaPresa, resto);
    const int altezza = std::max(0, finestra.Altezza - finestra.AltezzaStato);
    disposizione.StatoAnteprima = Rettangolo{confine, 0, resto, finestra.AltezzaStato};
    disposizione.Presa = Rettangolo{confine, finestra.AltezzaStato, presa, altezza};
    disposizione.Anteprima = Rettangolo{confine + presa, finestra.AltezzaStato, resto - presa, altezza};
  }
  return disposizione;
}

}  // namespace parvik
