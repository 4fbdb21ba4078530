#include "tokens/ConLarghezza.h"

#include "tokens/Codice.h"
#include "tokens/CodiceLingua.h"
#include "tokens/CodiceVariabile.h"

namespace parvik {

std::optional<std::string> ConLarghezza(std::string_view contenuto, std::int16_t larghezza,
                                        std::span<const Variabile> variabili) {
  const TipoCodice tipo = Riconosci(contenuto);
  if (tipo == TipoCodice::Lingua) {
    CodiceLingua lingua = LeggiLingua(contenuto);
    lingua.Lunghezza = std::to_string(larghezza);
    std::string codice = CostruisciLingua(lingua);
    if (codice.empty()) return std::nullopt;
    return codice;
  }
  if (tipo != TipoCodice::Variabile) return std::nullopt;
  VariabileLetta letta = LeggiVariabile(contenuto, variabili);
  if (!letta.Voce || letta.Formato.Intero1 == 0) return std::nullopt;
  letta.Formato.Intero2 = larghezza;
  return CostruisciVariabile(letta.Formato);
}

}  // namespace parvik
