#include "docs/Riletto.h"

#include <optional>

#include "catalogue/Catalogo.h"
#include "docs/Pagine.h"
#include "tokens/CodiceCostante.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceLingua.h"
#include "tokens/CodicePagina.h"
#include "tokens/CodiceStile.h"
#include "tokens/CodiceVariabile.h"

namespace parvik::prova {
namespace {

std::string Racconta(const VariabileLetta& letta) {
  const Variabile& v = letta.Formato;
  std::string testo = letta.Voce ? "entry " + std::to_string(*letta.Voce) : "no entry";
  testo += ": number " + std::to_string(v.Intero1);
  if (v.Intero5 != 0) testo += ", " + std::to_string(v.Intero5) + " lines";
  testo += ", width " + std::to_string(v.Intero2) + (v.Intero3 == 1 ? ", left" : ", right");
  if (!v.Testo1.empty()) testo += ", fill " + v.Testo1;
  if (v.Intero4 == 0) return testo;
  testo += ", numeric";
  if (v.Intero8 == 1) testo += ", thousands";
  if (v.Intero7 == 1) testo += ", zero";
  testo += ", decimals " + v.Testo2;
  if (v.Intero6 == 1) testo += ", sign";
  return testo + ", euro " + v.Testo3;
}

}  // namespace

std::string NomeTipo(TipoCodice tipo) {
  switch (tipo) {
    case TipoCodice::Variabile:
      return "variable";
    case TipoCodice::Costante:
      return "constant";
    case TipoCodice::Flag:
      return "flag";
    case TipoCodice::Stile:
      return "style";
    case TipoCodice::Lingua:
      return "language";
    case TipoCodice::Pagina:
      return "page number";
    default:
      return "unknown";
  }
}

std::vector<Variabile> VariabiliDellaPagina(std::string_view pagina) {
  const std::string testata = "1,\"Prova;P;1;1;4;0;0;0;0;0;0;0;0;0;0\"\r\n//fine documenti\r\n";
  const auto catalogo = Catalogo::CaricaCampi(testata + FileEsempio(pagina, "variables"));
  if (!catalogo) return {};
  return catalogo->LeggiVariabili(catalogo->TipiDoc()[0], Sezione::Testata).Voci;
}

Riletto Rileggi(std::string_view contenuto, std::span<const Variabile> variabili) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile: {
      const VariabileLetta letta = LeggiVariabile(contenuto, variabili);
      return {Racconta(letta), CostruisciVariabile(letta.Formato)};
    }
    case TipoCodice::Costante: {
      const std::string testo = LeggiCostante(contenuto);
      return {testo, CostruisciCostante(testo)};
    }
    case TipoCodice::Flag: {
      const CodiceFlag flag = LeggiFlag(contenuto);
      return {"number " + (flag.Numero.empty() ? "none" : flag.Numero) + ", switch " + flag.Interruttore,
              CostruisciFlag(flag)};
    }
    case TipoCodice::Stile: {
      const std::optional<Stile> stile = StileDi(LeggiStile(contenuto));
      if (!stile) return {};
      return {std::string(ParolaStile(*stile)), CostruisciStile(*stile)};
    }
    case TipoCodice::Lingua: {
      const CodiceLingua lingua = LeggiLingua(contenuto);
      std::string detto = "index " + lingua.IndiceTabella + ", width";
      if (!lingua.Lunghezza.empty()) detto += " " + lingua.Lunghezza;
      return {detto, CostruisciLingua(lingua)};
    }
    case TipoCodice::Pagina: {
      const std::string numero = LeggiPagina(contenuto);
      return {numero, CostruisciPagina(numero)};
    }
    default:
      return {};
  }
}

}  // namespace parvik::prova
