#include "tokens/DescriviCodice.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "catalogue/Catalogo.h"
#include "common/NumeroLeniente.h"
#include "common/ParoleComuni.h"
#include "common/Ritagli.h"
#include "common/Windows1252.h"
#include "tokens/Codice.h"
#include "tokens/CodiceCostante.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceLingua.h"
#include "tokens/CodicePagina.h"
#include "tokens/CodiceStile.h"
#include "tokens/CodiceVariabile.h"

namespace parvik {
namespace {

constexpr std::int16_t Acceso = 1;

/// Words of the template or of the catalogue, without the spaces around them.
std::string ParoleRifilate(std::string_view ansi) {
  return std::string(Rifila(Utf8SenzaControlli(ansi)));
}

/// `parte` after `testo`; nothing when `parte` is empty.
void Aggiungi(std::string& testo, std::string_view separatore, std::string_view parte) {
  if (parte.empty()) return;
  testo += separatore;
  testo += parte;
}

std::string Caratteri(std::size_t numero) {
  return Quanti(numero, "carattere", "caratteri");
}

std::string Decimali(const std::string& decimali) {
  if (decimali == "0") return {};
  if (decimali == "*") return "decimali secondo il valore";
  if (decimali == "1") return "1 decimale";
  return Utf8SenzaControlli(decimali) + " decimali";
}

std::string Formato(const Variabile& formato) {
  std::string testo = Caratteri(static_cast<std::size_t>(formato.Intero2));
  testo += formato.Intero3 == 1 ? " a sinistra" : " a destra";
  if (formato.Intero5 != 0) {
    testo += " su " + Quanti(static_cast<std::size_t>(formato.Intero5), "riga", "righe");
  }
  const auto aggiungi = [&testo](bool vale, std::string_view parte) {
    if (vale) Aggiungi(testo, ", ", parte);
  };
  aggiungi(!formato.Testo1.empty(), "riempimento \"" + Utf8SenzaControlli(formato.Testo1) + "\"");
  aggiungi(true, Decimali(formato.Testo2));
  aggiungi(formato.Intero8 == Acceso, "separatore migliaia");
  aggiungi(formato.Intero7 == Acceso, "zero visibile");
  aggiungi(formato.Intero6 == Acceso, "segno a destra");
  aggiungi(formato.Testo3 == "1", "euro");
  return testo;
}

/// What there is to say of a code; parts may be empty.
struct Detto {
  std::string Genere;  // with its number
  std::string Nome = {};
  std::string Resto = {};
};

Detto DescriviVariabile(std::string_view contenuto, std::span<const Variabile> variabili) {
  const VariabileLetta letta = LeggiVariabile(contenuto, variabili);
  // Number 0 is no variable: an empty slot of the table has it.
  const bool nota = letta.Voce && letta.Formato.Intero1 != 0;
  return {.Genere = "Variabile " + std::to_string(letta.Formato.Intero1),
          .Nome = nota ? ParoleRifilate(letta.Formato.Descrizione) : "sconosciuta",
          .Resto = Formato(letta.Formato)};
}

const Flag* TrovaFlag(std::span<const Flag> flag, double numero) {
  const auto voce = std::ranges::find_if(flag, [numero](const Flag& candidato) {
    const bool vuota = candidato.Codice == 0 && candidato.Descrizione.empty();
    return !vuota && candidato.Codice == numero;
  });
  return voce == flag.end() ? nullptr : &*voce;
}

Detto DescriviFlag(std::string_view contenuto, std::span<const Flag> flag) {
  const CodiceFlag letto = LeggiFlag(contenuto);
  const double numero = NumeroLeniente(letto.Numero);
  const Flag* voce = TrovaFlag(flag, numero);
  if (voce == nullptr) voce = TrovaFlag(CondPagina(), numero);
  Detto detto{.Genere = "Flag"};
  Aggiungi(detto.Genere, " ", voce == nullptr ? ParoleRifilate(letto.Numero) : std::to_string(voce->Codice));
  detto.Nome = voce == nullptr ? "sconosciuto" : ParoleRifilate(voce->Descrizione);
  if (letto.Interruttore != "N") detto.Resto = "variabili sostituite da spazi";
  return detto;
}

Detto DescriviStile(std::string_view contenuto) {
  const std::optional<Stile> stile = StileDi(LeggiStile(contenuto));
  return {.Genere = "Stile",
          .Nome = std::string(stile ? NomiStile[static_cast<std::size_t>(*stile)] : "sconosciuto")};
}

Detto DescriviLingua(std::string_view contenuto) {
  const CodiceLingua letto = LeggiLingua(contenuto);
  const std::string voce = ParoleRifilate(letto.IndiceTabella);
  return {.Genere = "Lingua",
          .Nome = voce.empty() ? std::string() : "voce " + voce,
          .Resto = Caratteri(LunghezzaLeniente(letto.Lunghezza))};
}

Detto DescriviTesto(const char* genere, const std::string& ansi) {
  return {.Genere = genere, .Nome = Utf8SenzaControlli(ansi)};
}

Detto Descrivi(std::string_view contenuto, std::span<const Variabile> variabili, std::span<const Flag> flag) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile:
      return DescriviVariabile(contenuto, variabili);
    case TipoCodice::Costante:
      return DescriviTesto("Costante", LeggiCostante(contenuto));
    case TipoCodice::Flag:
      return DescriviFlag(contenuto, flag);
    case TipoCodice::Stile:
      return DescriviStile(contenuto);
    case TipoCodice::Lingua:
      return DescriviLingua(contenuto);
    case TipoCodice::Pagina:
      return DescriviTesto("Numero pagina", LeggiPagina(contenuto));
    case TipoCodice::Sconosciuto:
      break;
  }
  return {.Genere = "Codice sconosciuto"};
}

}  // namespace

std::string DescriviCodice(std::string_view contenuto, std::span<const Variabile> variabili,
                           std::span<const Flag> flag) {
  constexpr std::string_view Separatore = " · ";
  Detto detto = Descrivi(contenuto, variabili, flag);
  Aggiungi(detto.Genere, Separatore, detto.Nome);
  Aggiungi(detto.Genere, Separatore, detto.Resto);
  return detto.Genere;
}

std::string DescriviInFrase(std::string_view contenuto, std::span<const Variabile> variabili,
                            std::span<const Flag> flag) {
  Detto detto = Descrivi(contenuto, variabili, flag);
  Aggiungi(detto.Genere, " ", detto.Nome);
  Aggiungi(detto.Genere, ", ", detto.Resto);
  return detto.Genere;
}

}  // namespace parvik
