#include "verifica/EsameCodice.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/Delimitatori.h"
#include "common/NumeroLeniente.h"
#include "common/Percorsi.h"
#include "common/Windows1252.h"
#include "output/TrovaVar.h"
#include "tokens/CodiceCorsa.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceStile.h"
#include "tokens/Gruppi.h"
#include "tokens/RiscriviCodice.h"

namespace parvik {
namespace {

// What is kept of codes: enough for those that a catalogue makes, whatever a file holds.
constexpr std::size_t MassimiNoti = 8192;
constexpr std::size_t LunghezzaNota = 64;

constexpr std::size_t LunghezzaCitata = 60;

std::string NomeMostrato(const TipoDoc& tipo) {
  return "«" + Utf8SenzaControlli(tipo.Descrizione) + "»";
}

std::string Elenco(std::span<const Sezione> sezioni) {
  std::string elenco = sezioni.size() == 1 ? "della sezione " : "delle sezioni ";
  for (std::size_t i = 0; i < sezioni.size(); ++i) {
    if (i > 0) elenco += " e ";
    elenco += NomiSezioni[Indice(sezioni[i])];
  }
  return elenco;
}

// The rules and words of the two kinds of entries.
template <class Voce>
struct ParoleVoce;
template <>
struct ParoleVoce<Variabile> {
  static constexpr Regola Sconosciuta = Regola::VariabileSconosciuta;
  static constexpr Regola DiAltraSezione = Regola::VariabileDiAltraSezione;
  static constexpr const char* Nome = "la variabile ";
};
template <>
struct ParoleVoce<Flag> {
  static constexpr Regola Sconosciuta = Regola::FlagSconosciuto;
  static constexpr Regola DiAltraSezione = Regola::FlagDiAltraSezione;
  static constexpr const char* Nome = "il flag ";
};

/// The number of a flag's entry; nullopt of one that no entry can have.
std::optional<std::int16_t> NumeroIntero(double numero) {
  constexpr double Minimo = -32768;
  constexpr double Massimo = 32767;
  if (!(numero >= Minimo && numero <= Massimo)) return std::nullopt;
  const auto intero = static_cast<std::int16_t>(numero);
  if (intero != numero) return std::nullopt;
  return intero;
}

bool DiPagina(std::int16_t numero) {
  return std::ranges::any_of(CondPagina(), [numero](const Flag& f) { return f.Codice == numero; });
}

/// The first of the characters that a variable's width group is made of that is an L or an R, and not the one
/// that `nuovo` has there.
bool CambiaLettera(std::string_view vecchio, std::string_view nuovo) {
  const auto lettere = [](const GruppiVariabile& gruppi) {
    std::string tutte(gruppi.Larghezza.Testo);
    if (gruppi.Allineamento) tutte += gruppi.Allineamento->Testo;
    std::erase_if(tutte, [](char c) { return c != 'L' && c != 'R'; });
    return tutte;
  };
  const std::string scritte = lettere(GruppiDiVariabile(vecchio));
  const std::string nuova = lettere(GruppiDiVariabile(nuovo));
  return scritte.find_first_not_of(nuova) != std::string::npos;
}

bool AltroStile(std::string_view vecchio, std::string_view nuovo) {
  const std::string_view scritta = GruppiDiStile(vecchio).Parola.Testo;
  return !UgualiSenzaCaso(scritta, GruppiDiStile(nuovo).Parola.Testo.substr(0, scritta.size()));
}

Rimedio RimedioPer(std::string_view vecchio, std::string_view nuovo) {
  const TipoCodice tipo = Riconosci(vecchio);
  if (tipo == TipoCodice::Variabile && CambiaLettera(vecchio, nuovo)) return Rimedio::AltraLettera;
  if (tipo == TipoCodice::Stile && AltroStile(vecchio, nuovo)) return Rimedio::AltroStile;
  return Rimedio::Pronto;
}

}  // namespace

std::string CodiceCitato(std::string_view contenuto) {
  std::string citato = "«" + Utf8SenzaControlli(contenuto.substr(0, LunghezzaCitata));
  return citato + (contenuto.size() > LunghezzaCitata ? "…»" : "»");
}

EsameCodici::EsameCodici(VociTipo& voci, DoveCercarlo dove) : voci_(voci), dove_(dove) {}

const EsitoCodice& EsameCodici::operator()(std::string_view contenuto) {
  Esamina(contenuto);
  if (contenuto.size() <= LunghezzaNota && noti_.size() < MassimiNoti) noti_.emplace(contenuto, esito_);
  return esito_;
}

void EsameCodici::Esamina(std::string_view contenuto) {
  esito_ = {.Tipo = Riconosci(contenuto), .Giudizi = {}};
  if (esito_.Tipo == TipoCodice::Sconosciuto) {
    Aggiungi(Regola::CodiceSconosciuto,
             contenuto.empty() ? "codice vuoto" : "codice di genere sconosciuto: " + CodiceCitato(contenuto));
    return;
  }
  if (const std::string manca = Mancanza(contenuto); !manca.empty())
    Aggiungi(Regola::CodiceIncompleto, CodiceCitato(contenuto) + ": " + manca);
  switch (esito_.Tipo) {
    case TipoCodice::Variabile:
      EsaminaVariabile(contenuto);
      break;
    case TipoCodice::Flag:
      EsaminaFlag(contenuto);
      break;
    default:
      EsaminaFormato(contenuto, {}, {});
  }
  EsaminaTesti(contenuto);
}

void EsameCodici::EsaminaVariabile(std::string_view contenuto) {
  if (esito_.Incompleto()) return;
  const Esito<std::int16_t> letto = InteroLeniente(GruppiDiVariabile(contenuto).Numero.Testo);
  const std::optional<std::int16_t> numero = letto ? std::optional(*letto) : std::nullopt;
  const Variabile* voce = numero ? VoceQui<Variabile>(*numero) : nullptr;
  if (voce == nullptr) {
    NonQui<Variabile>(contenuto, numero);
  } else {
    EsaminaFormato(contenuto, {voce, 1}, {});
  }
  const CampoCorsa campo = VariabileCorsa(contenuto);
  if (NonCiSta(campo) && campo.Larghezza > 0) {
    Aggiungi(Regola::LarghezzaInsufficiente,
             CodiceCitato(contenuto) + ": il valore di esempio non sta in " +
                 std::to_string(campo.Larghezza) +
                 (campo.Larghezza == 1 ? " carattere, stampa \"#\"" : " caratteri, stampa \"#\""));
  }
}

/// The number of an incomplete flag, too, tells whether it governs anything.
void EsameCodici::EsaminaFlag(std::string_view contenuto) {
  const std::optional<std::int16_t> numero =
      NumeroIntero(NumeroLeniente(GruppiDiFlag(contenuto).Numero.Testo));
  const bool diPagina = numero && DiPagina(*numero);
  const Flag* voce = numero ? VoceQui<Flag>(*numero) : nullptr;
  esito_.FlagDelTipo = numero && (diPagina || voce != nullptr || !voci_.ConNumero<Flag>(*numero).empty());
  if (esito_.Incompleto()) return;
  if (!diPagina && voce == nullptr) return NonQui<Flag>(contenuto, numero);
  EsaminaFormato(contenuto, {}, {voce, static_cast<std::size_t>(voce != nullptr ? 1 : 0)});
}

void EsameCodici::EsaminaFormato(std::string_view contenuto, std::span<const Variabile> variabili,
                                 std::span<const Flag> flag) {
  if (esito_.Incompleto()) return;
  // A language code without a width is as good as one with it.
  if (esito_.Tipo == TipoCodice::Lingua) return;
  std::optional<std::string> riscritto = Riscrivi(contenuto, variabili, flag);
  if (!riscritto || riscritto->empty() || ContenutoDi(*riscritto) == contenuto) return;
  const std::string_view nuovo = ContenutoDi(*riscritto);
  const std::optional<Gruppo> righe = variabili.empty() ? std::nullopt : GruppiDiVariabile(contenuto).Righe;
  const bool multilinea = righe && QuantitaDi(*righe) != 0 && variabili.front().Intero4 != 0;
  Giudizio giudizio{.Quale = multilinea ? Regola::MultilineaPersa : Regola::FormatoDiverso,
                    .Testo = CodiceCitato(contenuto)};
  giudizio.Testo +=
      multilinea ? ": una variabile numerica non ha righe, la maschera scrive " : ": la maschera lo scrive ";
  giudizio.Testo += CodiceCitato(nuovo);
  giudizio.Cosa = RimedioPer(contenuto, nuovo);
  giudizio.Proposta = std::move(riscritto);
  esito_.Giudizi.push_back(std::move(giudizio));
}

/// What of its bytes is read otherwise elsewhere.
void EsameCodici::EsaminaTesti(std::string_view contenuto) {
  if (esito_.Incompleto()) return;
  if (esito_.Tipo == TipoCodice::Costante && CostanteCorsa(contenuto).find("S;") != std::string_view::npos) {
    Aggiungi(Regola::TestoStile,
             CodiceCitato(contenuto) + ": l'anteprima prende \"S;\" per un segno di stile");
  }
  constexpr std::array DiFile = {DelimFileApertura, DelimFileChiusura};
  if (contenuto.find_first_of(std::string_view(DiFile.data(), DiFile.size())) != std::string_view::npos) {
    Aggiungi(Regola::DelimitatoreDiFile,
             CodiceCitato(contenuto) + ": ha un carattere che salvando diventa un delimitatore");
  }
}

std::span<const Sezione> EsameCodici::SezioniQui() const {
  if (!dove_.Certa) return voci_.Sezioni();
  return std::span(TutteLeSezioni).subspan(Indice(dove_.Qui), 1);
}

template <class Voce>
const Voce* EsameCodici::VoceQui(std::int16_t numero) const {
  for (const Sezione sezione : SezioniQui())
    if (const Voce* voce = voci_.Di<Voce>(sezione).ConNumero(numero)) return voce;
  return nullptr;
}

template <class Voce>
void EsameCodici::NonQui(std::string_view contenuto, std::optional<std::int16_t> numero) {
  using Detto = ParoleVoce<Voce>;
  const std::vector<Sezione> altre = numero ? voci_.ConNumero<Voce>(*numero) : std::vector<Sezione>();
  if (!altre.empty()) {
    Aggiungi(Detto::DiAltraSezione, Detto::Nome + std::to_string(*numero) + " è " + Elenco(altre) +
                                        ", non della sezione " + std::string(NomiSezioni[Indice(dove_.Qui)]));
    return;
  }
  Giudizio giudizio{.Quale = Detto::Sconosciuta, .Testo = {}};
  giudizio.Testo = CodiceCitato(contenuto) + ": " + Detto::Nome +
                   (numero ? std::to_string(*numero) + " " : std::string()) + "non è del tipo " +
                   NomeMostrato(voci_.Tipo());
  const std::optional<NumeroProposto> proposto = numero ? Proposto<Voce>(*numero) : std::nullopt;
  if (proposto) {
    const std::string qui = std::to_string(proposto->Numero);
    giudizio.Testo += "; nel tipo " + NomeMostrato(*proposto->Altro) + " è \"" +
                      Utf8SenzaControlli(proposto->Descrizione) + "\", che qui ha il numero " + qui;
    giudizio.Proposta = qui;
  }
  esito_.Giudizi.push_back(std::move(giudizio));
}

template <class Voce>
const std::optional<NumeroProposto>& EsameCodici::Proposto(std::int16_t numero) {
  auto& proposti = std::is_same_v<Voce, Flag> ? flagProposti_ : variabiliProposte_;
  const auto [posto, nuovo] = proposti.try_emplace(numero);
  if (nuovo) posto->second = voci_.Proponi<Voce>(numero, SezioniQui());
  return posto->second;
}

}  // namespace parvik
