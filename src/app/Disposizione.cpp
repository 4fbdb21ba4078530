#include "app/Disposizione.h"

#include <algorithm>
#include <cmath>

namespace parvik {
namespace {

constexpr int AltezzaStato = 255;
constexpr int TraSezioni = 1;  // one twip between the boxes

/// Half to even, as the program rounds everywhere.
int Dividi(int valore, int divisore) {
  return static_cast<int>(std::nearbyint(static_cast<double>(valore) / divisore));
}

}  // namespace

Disposizione Disponi(const Finestra& finestra) {
  Disposizione disposizione;
  const int sinistra = finestra.SinistraSezioni;
  int larghezza = finestra.Larghezza == 0 ? 0 : std::max(0, finestra.Larghezza - sinistra);
  if (finestra.Anteprima) larghezza = Dividi(larghezza, 2);
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
    const int destra = sinistra + larghezza;
    disposizione.StatoAnteprima = Rettangolo{destra, 0, larghezza, AltezzaStato};
    disposizione.Anteprima =
        Rettangolo{destra, AltezzaStato, larghezza, std::max(0, finestra.Altezza - AltezzaStato)};
  }
  return disposizione;
}

}  // namespace parvik
