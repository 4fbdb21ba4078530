// Printed lines that are too long.
#include <string>

#include "verifica/EsamePagina.h"
#include "verifica/RigheStampate.h"

namespace parvik {

void EsaminaLunghezze(const std::array<std::string_view, MaxSezioni>& testi, std::size_t larghezza,
                      std::vector<Rilievo>& rilievi) {
  RigheStampate righe(testi);
  for (RigaStampata riga; righe.Prossima(riga);) {
    const std::size_t lunghezza = riga.Lunghezza();
    if (lunghezza <= larghezza) continue;
    rilievi.push_back({.Quale = Regola::RigaLunga,
                       .Dove = riga.Dove,
                       .Inizio = riga.Inizio,
                       .Lunghezza = riga.Fine - riga.Inizio,
                       .Testo = "la riga stampata ha " + std::to_string(lunghezza) + " caratteri, più di " +
                                std::to_string(larghezza)});
  }
}

}  // namespace parvik
