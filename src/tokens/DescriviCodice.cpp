#include "tokens/DescriviCodice.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "catalogue/Catalogo.h"
#include "common/NumeroLeniente.h"
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

constexpr std::string_view Separatore = " · ";
constexpr std::int16_t Acceso = 1;

/// As the style dialog calls them, in the order of `Stile`.
constexpr std::array<std::string_view, 5> NomiStile = {"Normale", "Grassetto", "Compresso",
                                                       "Corsivo o Italico", "Sottolineato"};

/// Words of the template or of the catalogue: UTF-8, on one line.
std::string Parole(std::string_view ansi) {
  const auto controllo = [](char c) {
    const char16_t unicode = UnicodeDiAnsi[static_cast<unsigned char>(c)];
    return unicode < 0x20 || (unicode >= 0x7F && unicode < 0xA0);
  };
  std::string pulito(ansi);
  std::ranges::replace_if(pulito, controllo, ' ');
  return Utf8DaAnsi(pulito);
}

/// The same without the spaces around them.
std::string ParoleRifilate(std::string_view ansi) {
  return std::string(Rifila(Parole(ansi)));
}

/// `parte` after `testo`; nothing when `parte` is empty.
void Aggiungi(std::string& testo, std::string_view separatore, std::string_view parte) {
  if (parte.empty()) return;
  testo += separatore;
  testo += parte;
}

std::string Quanti(std::size_t numero, std::string_view uno, std::string_view tanti) {
  return std::to_string(numero) + " " + std::string(numero == 1 ? uno : tanti);
}

std::string Caratteri(std::size_t numero) {
  return Quanti(numero, "carattere", "caratteri");
}

std::string Decimali(const std::string& decimali) {
  if (decimali == "0") return {};
  if (decimali == "*") return "decimali secondo il valore";
  if (decimali == "1") return "1 decimale";
  return Parole(decimali) + " decimali";
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
  aggiungi(!formato.Testo1.empty(), "riempimento \"" + Parole(formato.Testo1) + "\"");
  aggiungi(true, Decimali(formato.Testo2));
  aggiungi(formato.Intero8 == Acceso, "separatore migliaia");
  aggiungi(formato.Intero7 == Acceso, "zero visibile");
  aggiungi(formato.Intero6 == Acceso, "segno a destra");
  aggiungi(formato.Testo3 == "1", "euro");
  return testo;
}

std::string DescriviVariabile(std::string_view contenuto, std::span<const Variabile> variabili) {
  const VariabileLetta letta = LeggiVariabile(contenuto, variabili);
  // Number 0 is no variable: an empty slot of the table has it.
  const bool nota = letta.Voce && letta.Formato.Intero1 != 0;
  std::string testo = "Variabile " + std::to_string(letta.Formato.Intero1);
  Aggiungi(testo, Separatore, nota ? ParoleRifilate(letta.Formato.Descrizione) : "sconosciuta");
  Aggiungi(testo, Separatore, Formato(letta.Formato));
  return testo;
}

const Flag* TrovaFlag(std::span<const Flag> flag, double numero) {
  const auto voce = std::ranges::find_if(flag, [numero](const Flag& candidato) {
    const bool vuota = candidato.Codice == 0 && candidato.Descrizione.empty();
    return !vuota && candidato.Codice == numero;
  });
  return voce == flag.end() ? nullptr : &*voce;
}

std::string DescriviFlag(std::string_view contenuto, std::span<const Flag> flag) {
  const CodiceFlag letto = LeggiFlag(contenuto);
  const double numero = NumeroLeniente(letto.Numero);
  const Flag* voce = TrovaFlag(flag, numero);
  if (voce == nullptr) voce = TrovaFlag(CondPagina(), numero);
  std::string testo = "Flag";
  Aggiungi(testo, " ", voce == nullptr ? ParoleRifilate(letto.Numero) : std::to_string(voce->Codice));
  Aggiungi(testo, Separatore, voce == nullptr ? "sconosciuto" : ParoleRifilate(voce->Descrizione));
  if (letto.Interruttore != "N") Aggiungi(testo, Separatore, "variabili sostituite da spazi");
  return testo;
}

std::string DescriviStile(std::string_view contenuto) {
  const std::optional<Stile> stile = StileDi(LeggiStile(contenuto));
  std::string testo = "Stile";
  Aggiungi(testo, Separatore, stile ? NomiStile[static_cast<std::size_t>(*stile)] : "sconosciuto");
  return testo;
}

std::string DescriviLingua(std::string_view contenuto) {
  const CodiceLingua letto = LeggiLingua(contenuto);
  std::string testo = "Lingua";
  const std::string voce = ParoleRifilate(letto.IndiceTabella);
  if (!voce.empty()) Aggiungi(testo, Separatore, "voce " + voce);
  Aggiungi(testo, Separatore, Caratteri(LunghezzaLeniente(letto.Lunghezza)));
  return testo;
}

std::string DescriviTesto(std::string_view genere, const std::string& ansi) {
  std::string testo(genere);
  Aggiungi(testo, Separatore, Parole(ansi));
  return testo;
}

}  // namespace

std::string DescriviCodice(std::string_view contenuto, std::span<const Variabile> variabili,
                           std::span<const Flag> flag) {
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
  return "Codice sconosciuto";
}

}  // namespace parvik
