// The runs of one look, held against a look for each byte.
#pragma once

#include <string_view>
#include <vector>

#include "Bersaglio.h"
#include "output/MettiStili.h"

namespace parvik::fuzz {

inline void EsigiTrattiInteri(std::string_view testo, const std::vector<Tratto>& tratti) {
  std::size_t fine = 0;
  for (const Tratto& tratto : tratti) {
    Esigi(tratto.Inizio == fine && tratto.Lunghezza > 0, "the runs follow each other without gaps");
    fine += tratto.Lunghezza;
  }
  Esigi(fine == testo.size(), "the runs cover the text");
}

inline void EsigiAspetti(const std::vector<Tratto>& tratti, const std::vector<Aspetto>& attesi) {
  for (const Tratto& tratto : tratti) {
    for (std::size_t i = tratto.Inizio; i < tratto.Inizio + tratto.Lunghezza; ++i) {
      Esigi(tratto.Come == attesi[i], "every character looks as the rules say word for word");
    }
  }
}

}  // namespace parvik::fuzz
