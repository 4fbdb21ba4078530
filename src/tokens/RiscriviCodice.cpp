#include "tokens/RiscriviCodice.h"

#include <algorithm>

#include "catalogue/Catalogo.h"
#include "common/NumeroLeniente.h"
#include "tokens/Codice.h"
#include "tokens/CodiceCostante.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceLingua.h"
#include "tokens/CodicePagina.h"
#include "tokens/CodiceStile.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/Gruppi.h"

namespace parvik {
namespace {

using Riscritto = std::optional<std::string>;

Riscritto RiscriviVariabile(std::string_view contenuto, std::span<const Variabile> variabili) {
  // A number beyond 16 bits reads as 0, and names no entry.
  if (!InteroLeniente(GruppiDiVariabile(contenuto).Numero.Testo)) return std::nullopt;
  VariabileLetta letta = LeggiVariabile(contenuto, variabili);
  if (!letta.Voce) return std::nullopt;
  if (letta.Formato.Testo3 != "0") letta.Formato.Testo3 = "1";  // the euro is a check box
  return CostruisciVariabile(letta.Formato);
}

Riscritto RiscriviFlag(std::string_view contenuto, std::span<const Flag> flag) {
  const CodiceFlag letto = LeggiFlag(contenuto);
  const double numero = NumeroLeniente(letto.Numero);
  const auto ha = [numero](const Flag& voce) { return voce.Codice == numero; };
  if (std::ranges::none_of(flag, ha) && std::ranges::none_of(CondPagina(), ha)) return std::nullopt;
  return CostruisciFlag(
      {.Numero = std::to_string(static_cast<int>(numero)), .Interruttore = letto.Interruttore});
}

}  // namespace

Riscritto Riscrivi(std::string_view contenuto, std::span<const Variabile> variabili,
                   std::span<const Flag> flag) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile:
      return RiscriviVariabile(contenuto, variabili);
    case TipoCodice::Costante:
      return CostruisciCostante(LeggiCostante(contenuto));
    case TipoCodice::Flag:
      return RiscriviFlag(contenuto, flag);
    case TipoCodice::Stile:
      return CostruisciStile(StileDi(LeggiStile(contenuto)).value_or(Stile::Normale));
    case TipoCodice::Lingua:
      return CostruisciLingua(LeggiLingua(contenuto));
    case TipoCodice::Pagina:
      return CostruisciPagina(LeggiPagina(contenuto));
    case TipoCodice::Sconosciuto:
      break;
  }
  return std::nullopt;
}

}  // namespace parvik
