#include "verifica/SpiegaCodice.h"

#include <algorithm>

#include "catalogue/Catalogo.h"
#include "common/NumeroLeniente.h"
#include "common/Windows1252.h"
#include "output/TrovaVar.h"
#include "tokens/Codice.h"
#include "tokens/CodiceCostante.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceLingua.h"
#include "tokens/CodicePagina.h"
#include "tokens/CodiceStile.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/RiscriviCodice.h"
#include "verifica/EsameCodice.h"

namespace parvik {
namespace {

constexpr std::int16_t Acceso = 1;

void Aggiungi(std::string_view nome, std::string_view ansi, CodiceSpiegato& spiegato) {
  spiegato.Campi.emplace_back(nome, Utf8SenzaControlli(ansi));
}

const char* SiNo(std::int16_t valore) {
  return valore == Acceso ? "s\xEC" : "no";
}

void SpiegaVariabile(std::string_view contenuto, std::span<const Variabile> variabili,
                     CodiceSpiegato& spiegato) {
  const VariabileLetta letta = LeggiVariabile(contenuto, variabili);
  const Variabile& formato = letta.Formato;
  Aggiungi("numero", std::to_string(formato.Intero1), spiegato);
  if (letta.Voce) Aggiungi("tipo", formato.Intero4 == 0 ? "stringa" : "numerico", spiegato);
  Aggiungi("larghezza", std::to_string(formato.Intero2), spiegato);
  Aggiungi("allineamento", formato.Intero3 == 1 ? "a sinistra" : "a destra", spiegato);
  Aggiungi("riempimento", formato.Testo1, spiegato);
  Aggiungi("righe", std::to_string(formato.Intero5), spiegato);
  if (letta.Voce) spiegato.Descrizione = Utf8SenzaControlli(formato.Descrizione);
  if (formato.Intero4 == 0) return;
  Aggiungi("decimali", formato.Testo2, spiegato);
  Aggiungi("zero visibile", SiNo(formato.Intero7), spiegato);
  Aggiungi("separatore migliaia", SiNo(formato.Intero8), spiegato);
  Aggiungi("segno a destra", SiNo(formato.Intero6), spiegato);
  Aggiungi("euro", formato.Testo3, spiegato);
}

void SpiegaFlag(std::string_view contenuto, std::span<const Flag> flag, CodiceSpiegato& spiegato) {
  const CodiceFlag letto = LeggiFlag(contenuto);
  Aggiungi("numero", letto.Numero, spiegato);
  Aggiungi("interruttore", letto.Interruttore, spiegato);
  const double numero = NumeroLeniente(letto.Numero);
  for (const std::span<const Flag> voci : {flag, std::span<const Flag>(CondPagina())}) {
    const auto voce = std::ranges::find_if(voci, [numero](const Flag& f) { return f.Codice == numero; });
    if (voce == voci.end()) continue;
    spiegato.Descrizione = Utf8SenzaControlli(voce->Descrizione);
    return;
  }
}

void SpiegaStile(std::string_view contenuto, CodiceSpiegato& spiegato) {
  const std::string_view parola = LeggiStile(contenuto);
  Aggiungi("parola", parola, spiegato);
  const std::optional<Stile> stile = StileDi(parola);
  if (stile) Aggiungi("stile", ParolaStile(*stile), spiegato);
}

void SpiegaLingua(std::string_view contenuto, CodiceSpiegato& spiegato) {
  const CodiceLingua letto = LeggiLingua(contenuto);
  Aggiungi("indice", letto.IndiceTabella, spiegato);
  Aggiungi("larghezza", letto.Lunghezza, spiegato);
}

void SpiegaCampi(std::string_view contenuto, std::span<const Variabile> variabili, std::span<const Flag> flag,
                 CodiceSpiegato& spiegato) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile:
      return SpiegaVariabile(contenuto, variabili, spiegato);
    case TipoCodice::Costante:
      return Aggiungi("testo", LeggiCostante(contenuto), spiegato);
    case TipoCodice::Flag:
      return SpiegaFlag(contenuto, flag, spiegato);
    case TipoCodice::Stile:
      return SpiegaStile(contenuto, spiegato);
    case TipoCodice::Lingua:
      return SpiegaLingua(contenuto, spiegato);
    case TipoCodice::Pagina:
      return Aggiungi("numero", LeggiPagina(contenuto), spiegato);
    case TipoCodice::Sconosciuto:
      break;
  }
}

}  // namespace

std::string_view NomeGenere(std::string_view contenuto) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile:
      return "variabile";
    case TipoCodice::Costante:
      return "costante";
    case TipoCodice::Flag:
      return "flag";
    case TipoCodice::Stile:
      return "stile";
    case TipoCodice::Lingua:
      return "lingua";
    case TipoCodice::Pagina:
      return "pagina";
    case TipoCodice::Sconosciuto:
      break;
  }
  return "sconosciuto";
}

CodiceSpiegato SpiegaCodice(std::string_view contenuto, std::span<const Variabile> variabili,
                            std::span<const Flag> flag) {
  CodiceSpiegato spiegato;
  spiegato.Codice = Utf8SenzaControlli(ConDelimitatori(contenuto));
  spiegato.Genere = NomeGenere(contenuto);
  SpiegaCampi(contenuto, variabili, flag, spiegato);
  if (std::string manca = Mancanza(contenuto); !manca.empty()) spiegato.Manca = std::move(manca);
  if (const auto riscritto = Riscrivi(contenuto, variabili, flag))
    spiegato.Maschera = Utf8SenzaControlli(*riscritto);
  TrovaVar trovaVar(TipoStampa::File, FlagPerStampe());
  spiegato.Stampa = Utf8SenzaControlli(TestoDi(trovaVar(contenuto)));
  return spiegato;
}

}  // namespace parvik
