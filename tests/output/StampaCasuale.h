// Runs over texts rich in what the rules of a run give a meaning to.
#pragma once

#include <rapidcheck.h>

#include <string>

#include "output/CatalogoDiProva.h"
#include "supporto/RiferimentoStampa.h"

namespace parvik::prova {

/// What a run reads, for it and for the literal one.
struct ProvaStampa {
  DatiRiferimento Riferimento;
  FlagPerStampe Flag;

  DatiStampa Dati() const {
    return {.Testi = {Riferimento.Testi[0], Riferimento.Testi[1], Riferimento.Testi[2]},
            .NumSezioni = static_cast<std::int16_t>(Riferimento.NumSezioni),
            .RigheCorpo = static_cast<std::int16_t>(Riferimento.RigheCorpo),
            .LineeCorpo = static_cast<std::int16_t>(Riferimento.LineeCorpo),
            .Flag = Flag};
  }
};

/// To be called in a property.
ProvaStampa ProvaCasuale();

/// The text of a section.
rc::Gen<std::string> TestoCasuale();

/// Lines of a variable code each, with groups that may or may not make sense.
rc::Gen<std::string> Variabili();

}  // namespace parvik::prova
