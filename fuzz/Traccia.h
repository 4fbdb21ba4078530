// The trace of a run, held against what the run read and wrote.
#pragma once

#include <algorithm>
#include <string_view>

#include "Bersaglio.h"
#include "output/GeneraStampa.h"
#include "output/TracciaStampa.h"

namespace parvik::fuzz {

/// Whether a place of that part of a section is that byte of the output.
inline bool Porta(const TracciaStampa& traccia, const OrigineStampa& origine, std::size_t uscito) {
  const auto luoghi = traccia.LuoghiDi(origine.Dove, origine.Parte.Inizio);
  return std::any_of(luoghi.begin(), luoghi.end(), [&](const LuogoStampa& luogo) {
    const std::size_t dopo = uscito - luogo.Inizio;
    return uscito >= luogo.Inizio && dopo / luogo.Passo < luogo.Volte && dopo % luogo.Passo < luogo.Lunghezza;
  });
}

/// Of a run without a style pass.
inline void EsigiTraccia(const TracciaStampa& traccia, const DatiStampa& dati, std::string_view reso) {
  Esigi(traccia.Scritti() == reso.size(), "the trace knows how much was written");
  Esigi(traccia.Giri().size() <= 3 * MaxSezioni, "repetitions are counted and not kept");
  for (std::size_t i = 0; i < reso.size(); ++i) {
    const auto origine = traccia.OrigineDi(i);
    Esigi(origine.has_value(), "every byte has an origin");
    Esigi(Porta(traccia, *origine, i), "and the origin leads back to it");
    const char primo = dati.Testi[Indice(origine->Dove)][origine->Parte.Inizio];
    Esigi(origine->Codice ? primo == '\xAB' : primo == reso[i] || (primo == '\r' && reso[i] == '\n'),
          "literal text maps byte by byte");
  }
  Esigi(!traccia.OrigineDi(reso.size()), "and nothing else has one");
}

}  // namespace parvik::fuzz
