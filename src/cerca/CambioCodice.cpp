#include "cerca/CambioCodice.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <utility>

#include "catalogue/Catalogo.h"
#include "common/Lettere.h"
#include "common/Ritagli.h"
#include "common/Windows1252.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceLingua.h"
#include "tokens/CodicePagina.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/ConLarghezza.h"
#include "tokens/Gruppi.h"

namespace parvik {
namespace {

constexpr const char* ComeSiScrive =
    "Dei codici si cambia numero, larghezza, allineamento, riempimento o decimali: per esempio "
    "\u00ABlarghezza "
    "32\u00BB, \u00ABlarghezza 29 \u2192 32\u00BB, \u00ABa destra\u00BB";

// --- what was written

/// The digits of a number from `minimo` to `massimo`, without leading zeros.
std::optional<std::string> LeggiNumero(std::string_view scritto, int minimo, int massimo) {
  int numero = 0;
  const char* const fine = scritto.data() + scritto.size();
  const auto [qui, errore] = std::from_chars(scritto.data(), fine, numero);
  if (scritto.empty() || scritto.front() == '-' || qui != fine || errore != std::errc()) return std::nullopt;
  if (numero < minimo || numero > massimo) return std::nullopt;
  return std::to_string(numero);
}

std::optional<std::string> LeggiAllineamento(std::string_view scritto) {
  const std::string nudo = InLettereNude(scritto);
  for (const std::string_view parola : {"a sinistra", "sinistra", "l"})
    if (nudo == parola) return "L";
  for (const std::string_view parola : {"a destra", "destra", "r"})
    if (nudo == parola) return "R";
  return std::nullopt;
}

std::optional<std::string> LeggiRiempimento(std::string_view scritto) {
  if (InLettereNude(scritto) == "nessuno") return "";
  if (InLettereNude(scritto) == "spazio") return " ";
  constexpr std::size_t FraApici = 3;
  if (scritto.size() == FraApici && scritto.front() == '"' && scritto.back() == '"')
    scritto = scritto.substr(1, 1);
  if (scritto.size() != 1) return std::nullopt;
  return std::string(scritto);
}

std::optional<std::string> LeggiDecimali(std::string_view scritto) {
  if (InLettereNude(scritto) == "nessuno") return "0";
  if (scritto == "*") return "*";
  constexpr int UnaCifra = 9;
  return LeggiNumero(scritto, 0, UnaCifra);
}

std::optional<std::string> LeggiValore(CampoCodice campo, std::string_view scritto) {
  constexpr int NumeroMassimo = 32767;
  switch (campo) {
    case CampoCodice::Numero:
      return LeggiNumero(scritto, 1, NumeroMassimo);
    case CampoCodice::Larghezza:
      return LeggiNumero(scritto, 1, LarghezzaMassima);
    case CampoCodice::Allineamento:
      return LeggiAllineamento(scritto);
    case CampoCodice::Riempimento:
      return LeggiRiempimento(scritto);
    case CampoCodice::Decimali:
      return LeggiDecimali(scritto);
  }
  return std::nullopt;
}

std::optional<CampoCodice> LeggiCampo(std::string_view parola) {
  constexpr std::pair<std::string_view, CampoCodice> Campi[] = {{"numero", CampoCodice::Numero},
                                                                {"larghezza", CampoCodice::Larghezza},
                                                                {"allineamento", CampoCodice::Allineamento},
                                                                {"riempimento", CampoCodice::Riempimento},
                                                                {"decimali", CampoCodice::Decimali}};
  const std::string nuda = InLettereNude(parola);
  for (const auto& [nome, campo] : Campi)
    if (nome == nuda) return campo;
  return std::nullopt;
}

/// One change: a field's name and its value, or the two values around an arrow; an alignment by itself.
std::optional<CambioCodice> LeggiCambio(std::string_view scritto) {
  if (const auto lato = LeggiAllineamento(scritto))
    return CambioCodice{.Quale = CampoCodice::Allineamento, .Da = std::nullopt, .A = *lato};
  const std::size_t spazio = std::min(scritto.find(' '), scritto.size());
  const std::optional<CampoCodice> campo = LeggiCampo(scritto.substr(0, spazio));
  if (!campo) return std::nullopt;
  CambioCodice cambio{.Quale = *campo};
  std::string_view valore = Rifila(scritto.substr(spazio));
  constexpr std::string_view Freccia = " -> ";
  if (const std::size_t freccia = valore.find(Freccia); freccia != std::string_view::npos) {
    cambio.Da = LeggiValore(*campo, Rifila(valore.substr(0, freccia)));
    if (!cambio.Da) return std::nullopt;
    valore = Rifila(valore.substr(freccia + Freccia.size()));
  }
  const std::optional<std::string> nuovo = LeggiValore(*campo, valore);
  if (!nuovo) return std::nullopt;
  cambio.A = *nuovo;
  return cambio;
}

/// Commas separate changes, but not those between quotes.
std::vector<std::string_view> Divisi(std::string_view scritto) {
  std::vector<std::string_view> parti;
  std::size_t inizio = 0;
  bool fraApici = false;
  for (std::size_t qui = 0; qui < scritto.size(); ++qui) {
    if (scritto[qui] == '"') fraApici = !fraApici;
    if (scritto[qui] != ',' || fraApici) continue;
    parti.push_back(Rifila(scritto.substr(inizio, qui - inizio)));
    inizio = qui + 1;
  }
  parti.push_back(Rifila(scritto.substr(inizio)));
  return parti;
}

// --- what becomes of a code

/// Whether the field holds what is to be changed.
bool Vale(const CambioCodice& cambio, const std::string& prima) {
  return !cambio.Da || *cambio.Da == prima;
}

/// Any field of the record but its number. False where it cannot be.
bool Applica(Variabile& formato, const CambioCodice& cambio) {
  switch (cambio.Quale) {
    case CampoCodice::Numero:
      return true;
    case CampoCodice::Larghezza:
      if (!Vale(cambio, std::to_string(formato.Intero2))) return false;
      formato.Intero2 = static_cast<std::int16_t>(std::stoi(cambio.A));
      return true;
    case CampoCodice::Allineamento:
      if (!Vale(cambio, formato.Intero3 == 1 ? "L" : "R")) return false;
      formato.Intero3 = cambio.A == "L" ? 1 : 0;
      return true;
    case CampoCodice::Riempimento:
      if (!Vale(cambio, formato.Testo1)) return false;
      formato.Testo1 = cambio.A;
      return true;
    case CampoCodice::Decimali:
      if (formato.Intero4 == 0 || !Vale(cambio, formato.Testo2)) return false;
      formato.Testo2 = cambio.A;
      return true;
  }
  return false;
}

const CambioCodice* CambioDi(CampoCodice campo, const std::vector<CambioCodice>& cambi) {
  const auto cambio = std::ranges::find(cambi, campo, &CambioCodice::Quale);
  return cambio == cambi.end() ? nullptr : &*cambio;
}

/// Another number is another field, of its own type: the code is read anew with it.
std::optional<std::string> CambiaVariabile(std::string_view contenuto, const std::vector<CambioCodice>& cambi,
                                           const VociDiSezione& voci) {
  VariabileLetta letta = LeggiVariabile(contenuto, voci.Variabili);
  if (const CambioCodice* numero = CambioDi(CampoCodice::Numero, cambi)) {
    if (!Vale(*numero, std::to_string(letta.Formato.Intero1))) return std::nullopt;
    const Gruppo gruppo = GruppiDiVariabile(contenuto).Numero;
    std::string altro(contenuto);
    altro.replace(gruppo.Inizio, gruppo.Testo.size(), numero->A);
    letta = LeggiVariabile(altro, voci.Variabili);
  }
  if (!letta.Voce || letta.Formato.Intero1 == 0) return std::nullopt;
  for (const CambioCodice& cambio : cambi)
    if (!Applica(letta.Formato, cambio)) return std::nullopt;
  return CostruisciVariabile(letta.Formato);
}

/// The text of a field that is a number; nullopt where it holds another than the one to be changed.
std::optional<std::string> Cambiato(const std::string& prima, const CambioCodice* cambio) {
  if (cambio == nullptr) return prima;
  if (!Vale(*cambio, prima)) return std::nullopt;
  return cambio->A;
}

std::optional<std::string> SeScritto(std::string codice) {
  return codice.empty() ? std::nullopt : std::optional(std::move(codice));
}

bool SoloFra(const std::vector<CambioCodice>& cambi, std::initializer_list<CampoCodice> campi) {
  return std::ranges::all_of(
      cambi, [&](const CambioCodice& cambio) { return std::ranges::count(campi, cambio.Quale) > 0; });
}

std::optional<std::string> CambiaLingua(std::string_view contenuto, const std::vector<CambioCodice>& cambi) {
  if (!SoloFra(cambi, {CampoCodice::Numero, CampoCodice::Larghezza})) return std::nullopt;
  const CodiceLingua letto = LeggiLingua(contenuto);
  const auto indice = Cambiato(letto.IndiceTabella, CambioDi(CampoCodice::Numero, cambi));
  const auto larghezza = Cambiato(letto.Lunghezza, CambioDi(CampoCodice::Larghezza, cambi));
  if (!indice || !larghezza) return std::nullopt;
  return SeScritto(CostruisciLingua({.IndiceTabella = *indice, .Lunghezza = *larghezza}));
}

std::optional<std::string> CambiaFlag(std::string_view contenuto, const std::vector<CambioCodice>& cambi,
                                      const VociDiSezione& voci) {
  if (!SoloFra(cambi, {CampoCodice::Numero})) return std::nullopt;
  CodiceFlag letto = LeggiFlag(contenuto);
  const auto numero = Cambiato(letto.Numero, CambioDi(CampoCodice::Numero, cambi));
  if (!numero) return std::nullopt;
  const auto offerto = [&](const Flag& flag) { return std::to_string(flag.Codice) == *numero; };
  if (std::ranges::none_of(voci.Flag, offerto) && std::ranges::none_of(CondPagina(), offerto))
    return std::nullopt;
  letto.Numero = *numero;
  return CostruisciFlag(letto);
}

std::optional<std::string> CambiaPagina(std::string_view contenuto, const std::vector<CambioCodice>& cambi) {
  if (!SoloFra(cambi, {CampoCodice::Numero})) return std::nullopt;
  const auto numero = Cambiato(LeggiPagina(contenuto), CambioDi(CampoCodice::Numero, cambi));
  return numero ? SeScritto(CostruisciPagina(*numero)) : std::nullopt;
}

}  // namespace

Esito<std::vector<CambioCodice>, std::string> LeggiCambi(std::string_view scritto) {
  std::vector<CambioCodice> cambi;
  for (const std::string_view parte : Divisi(scritto)) {
    const std::optional<CambioCodice> cambio = LeggiCambio(parte);
    if (!cambio) return std::string(ComeSiScrive);
    if (CambioDi(cambio->Quale, cambi) != nullptr)
      return "\u00AB" + Utf8DaAnsi(parte) + "\u00BB: lo stesso campo cambia gi\u00E0";
    cambi.push_back(*cambio);
  }
  return cambi;
}

std::optional<std::string> Cambia(std::string_view contenuto, const std::vector<CambioCodice>& cambi,
                                  const VociDiSezione& voci) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile:
      return CambiaVariabile(contenuto, cambi, voci);
    case TipoCodice::Lingua:
      return CambiaLingua(contenuto, cambi);
    case TipoCodice::Flag:
      return CambiaFlag(contenuto, cambi, voci);
    case TipoCodice::Pagina:
      return CambiaPagina(contenuto, cambi);
    default:
      return std::nullopt;
  }
}

}  // namespace parvik
