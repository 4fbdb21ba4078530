#include "editor/VociInseribili.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/Lettere.h"
#include "common/ParoleComuni.h"
#include "common/Windows1252.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceStile.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/DescriviCodice.h"
#include "tokens/RiscriviCodice.h"

namespace parvik {
namespace {

constexpr std::size_t ParteImmediata =
    64UL * 1024UL;  // bytes: what takes no longer than a key does by itself
constexpr const char* VoceNuova = "nuova voce...";

/// What there is to know of a group, in the order of `GruppoVoci`.
struct TrattiGruppo {
  std::string_view Titolo;
  std::string_view Singolare;
  TipoCodice Genere;
  char Lettera;  // with which codes write the number
};
constexpr std::array<TrattiGruppo, NumGruppiVoci> Tratti = {
    TrattiGruppo{"Variabili", "variabile", TipoCodice::Variabile, 'V'},
    TrattiGruppo{"Flag", "flag", TipoCodice::Flag, 'F'},
    TrattiGruppo{"Stili", "stile", TipoCodice::Stile, 'S'},
    TrattiGruppo{"Lingua", "lingua", TipoCodice::Lingua, 'L'},
    TrattiGruppo{"Costanti", "costante", TipoCodice::Costante, 'V'},
    TrattiGruppo{"Numero pagina", "numero pagina", TipoCodice::Pagina, 'P'}};

const TrattiGruppo& Di(GruppoVoci gruppo) {
  return Tratti[static_cast<std::size_t>(gruppo)];
}

VoceCercabile PerCercarla(const VoceInseribile& voce) {
  return {
      .Descrizione = voce.Nuda, .Numero = voce.Numero, .Lettera = LetteraPiccola(Di(voce.Gruppo).Lettera)};
}

std::string CodiceIniziale(Variabile variabile) {
  if (variabile.Testo3 != "0") variabile.Testo3 = "1";  // the euro is a check box
  return CostruisciVariabile(variabile);
}

/// What a code of the template is called, of those kinds that the catalogue knows nothing of.
std::string NomeDi(const ChiaveVoce& chiave) {
  if (chiave.Gruppo == GruppoVoci::Costanti) return chiave.Testo;
  return (chiave.Gruppo == GruppoVoci::Lingua ? "Voce " : "Pagina ") + std::to_string(chiave.Numero);
}

std::string InVolte(std::size_t volte) {
  return volte == 0 ? "mai" : Quanti(volte, "volta", "volte");
}

std::string UsiDetti(const VoceInseribile& voce) {
  std::string dove;
  for (std::size_t i = 0; i < MaxSezioni; ++i) {
    if (voce.Usi[i] == 0) continue;
    dove += (dove.empty() ? "" : ", ") + std::string(TitoliSezioni[i]) + " " + std::to_string(voce.Usi[i]);
  }
  return "Nel modello: " + InVolte(voce.Volte()) + (dove.empty() ? "" : " (" + dove + ")");
}

}  // namespace

std::string_view TitoloGruppo(GruppoVoci gruppo) {
  return Di(gruppo).Titolo;
}

TipoCodice GenereDi(GruppoVoci gruppo) {
  return Di(gruppo).Genere;
}

std::string NumeroScritto(const VoceInseribile& voce) {
  return voce.Numero ? Di(voce.Gruppo).Lettera + std::to_string(*voce.Numero) : std::string();
}

std::string DettaInFrase(const VoceInseribile& voce) {
  std::string frase = Utf8SenzaControlli(voce.Descrizione) + ", " + std::string(Di(voce.Gruppo).Singolare);
  if (voce.Numero) frase += " " + std::to_string(*voce.Numero);
  if (voce.Volte() > 0) frase += ", " + InVolte(voce.Volte()) + " nel modello";
  return frase;
}

bool ConMaschera(const VoceInseribile& voce) {
  return voce.Gruppo >= GruppoVoci::Lingua;
}

std::vector<GruppoFiltrato> Filtra(std::span<const VoceInseribile> voci, std::string_view cercato) {
  const FiltroVoci filtro(cercato);
  struct Trovata {
    Merito Quanto;
    std::size_t Posto;
  };
  std::array<std::vector<Trovata>, NumGruppiVoci> trovate;
  for (std::size_t i = 0; i < voci.size(); ++i) {
    if (const auto merito = filtro.Di(PerCercarla(voci[i])))
      trovate[static_cast<std::size_t>(voci[i].Gruppo)].push_back({*merito, i});
  }
  std::vector<std::pair<Merito, GruppoFiltrato>> gruppi;
  for (std::size_t g = 0; g < NumGruppiVoci; ++g) {
    if (trovate[g].empty()) continue;
    std::ranges::stable_sort(trovate[g], {}, &Trovata::Quanto);
    GruppoFiltrato gruppo{.Quale = static_cast<GruppoVoci>(g), .Voci = {}};
    for (const Trovata& trovata : trovate[g]) gruppo.Voci.push_back(trovata.Posto);
    gruppi.emplace_back(trovate[g].front().Quanto, std::move(gruppo));
  }
  std::ranges::stable_sort(gruppi, {}, [](const auto& gruppo) { return gruppo.first; });
  std::vector<GruppoFiltrato> filtrati;
  filtrati.reserve(gruppi.size());
  for (auto& [merito, gruppo] : gruppi) filtrati.push_back(std::move(gruppo));
  return filtrati;
}

VociInseribili::VociInseribili(Documento& documento, const Catalogo& catalogo)
    : documento_(documento), catalogo_(catalogo), ascolto_(documento.Ascolta(*this)) {}

const std::vector<VoceInseribile>& VociInseribili::Di(const TipoDoc& tipo, Sezione sezione) {
  const bool stesso = offerte_ && offerte_->Tipo().Indice == tipo.Indice;
  if (stesso && sezione == sezione_ && !voci_.empty()) return voci_;
  if (!stesso) offerte_.emplace(catalogo_, tipo);
  sezione_ = sezione;
  voci_.clear();
  AggiungiCatalogo();
  AggiungiStili();
  for (const GruppoVoci gruppo : {GruppoVoci::Lingua, GruppoVoci::Costanti, GruppoVoci::Pagina})
    AggiungiUsate(gruppo);
  return voci_;
}

void VociInseribili::Aggiungi(VoceInseribile voce, int numero) {
  voce.Nuda = InLettereNude(voce.Descrizione);
  const auto usi = usi_.find({.Gruppo = voce.Gruppo, .Numero = numero});
  if (usi != usi_.end()) voce.Usi = usi->second.Volte;
  voci_.push_back(std::move(voce));
}

/// What the dialogs would insert: of variables without a first description nothing, of flags each that has
/// one.
void VociInseribili::AggiungiCatalogo() {
  const std::vector<Variabile>& variabili = offerte_->Di<Variabile>(sezione_).Voci();
  if (!variabili.empty() && !variabili.front().Descrizione.empty()) {
    for (const Variabile& variabile : variabili) {
      Aggiungi({.Gruppo = GruppoVoci::Variabili,
                .Numero = variabile.Intero1,
                .Descrizione = variabile.Descrizione,
                .Nuda = {},
                .Codice = CodiceIniziale(variabile)},
               variabile.Intero1);
    }
  }
  const auto aggiungi = [this](std::span<const Flag> flag) {
    for (const Flag& voce : flag) {
      if (voce.Descrizione.empty()) continue;
      Aggiungi(
          {.Gruppo = GruppoVoci::Flag,
           .Numero = voce.Codice,
           .Descrizione = voce.Descrizione,
           .Nuda = {},
           .Codice = CostruisciFlag({.Numero = std::to_string(voce.Codice), .Interruttore = voce.Valore})},
          voce.Codice);
    }
  };
  aggiungi(offerte_->Di<Flag>(sezione_).Voci());
  aggiungi(CondPagina());
}

void VociInseribili::AggiungiStili() {
  for (std::size_t i = 0; i < NomiStile.size(); ++i) {
    Aggiungi({.Gruppo = GruppoVoci::Stili,
              .Numero = {},
              .Descrizione = std::string(NomiStile[i]),
              .Nuda = {},
              .Codice = CostruisciStile(static_cast<Stile>(i))},
             static_cast<int>(i));
  }
}

/// Those that the template has, as their dialog opens on the first of them, and a new one.
void VociInseribili::AggiungiUsate(GruppoVoci gruppo) {
  for (auto usata = usi_.lower_bound({.Gruppo = gruppo, .Numero = INT16_MIN});
       usata != usi_.end() && usata->first.Gruppo == gruppo; ++usata) {
    const auto& [chiave, usi] = *usata;
    VoceInseribile voce{.Gruppo = gruppo,
                        .Numero = {},
                        .Descrizione = NomeDi(chiave),
                        .Nuda = {},
                        .Codice = Riscrivi(usi.Primo, {}, {}).value_or("")};
    if (voce.Codice.empty()) continue;
    if (gruppo != GruppoVoci::Costanti) voce.Numero = chiave.Numero;
    voce.Nuda = InLettereNude(voce.Descrizione);
    voce.Usi = usi.Volte;
    voci_.push_back(std::move(voce));
  }
  voci_.push_back(
      {.Gruppo = gruppo, .Numero = {}, .Descrizione = VoceNuova, .Nuda = VoceNuova, .Codice = {}});
}

std::string VociInseribili::SezioniDi(const VoceInseribile& voce) const {
  const auto numero = static_cast<std::int16_t>(voce.Numero.value_or(0));
  const bool diPagina = std::ranges::find(CondPagina(), numero, &Flag::Codice) != CondPagina().end();
  std::vector<Sezione> sezioni(offerte_->Sezioni().begin(), offerte_->Sezioni().end());
  if (voce.Gruppo == GruppoVoci::Variabili) sezioni = offerte_->ConNumero<Variabile>(numero);
  if (voce.Gruppo == GruppoVoci::Flag && !diPagina) sezioni = offerte_->ConNumero<Flag>(numero);
  std::string detti;
  for (const Sezione sezione : sezioni)
    detti += (detti.empty() ? "" : ", ") + std::string(TitoliSezioni[Indice(sezione)]);
  return detti;
}

std::string VociInseribili::Detta(const VoceInseribile& voce) const {
  if (voce.Nuova()) return std::string(parvik::Di(voce.Gruppo).Titolo) + ": " + VoceNuova;
  std::span<const Variabile> variabili;
  std::string genere;
  if (voce.Gruppo == GruppoVoci::Variabili) {
    const auto& tutte = offerte_->Di<Variabile>(sezione_).Voci();
    const auto questa = std::ranges::find(tutte, voce.Codice, CodiceIniziale);
    if (questa != tutte.end()) {
      variabili = std::span(&*questa, 1);
      genere = questa->Intero4 == 0 ? "Stringa\n" : "Numerica\n";
    }
  }
  return DescriviCodice(ContenutoDi(voce.Codice), variabili, offerte_->Di<Flag>(sezione_).Voci()) + "\n" +
         genere + "Codice: " + Utf8SenzaControlli(voce.Codice) + "\nSezioni: " + SezioniDi(voce) + "\n" +
         UsiDetti(voce);
}

bool VociInseribili::DaContare(const TipoDoc& tipo) const {
  return (inCorso_ ? inCorso_ : contata_) != Adesso(tipo);
}

std::optional<LavoroUsi> VociInseribili::Conta(const TipoDoc& tipo) {
  inCorso_ = Adesso(tipo);
  const LavoroUsi lavoro(++numero_, documento_, HaTreSezioni(tipo.NumSezioni));
  if (lavoro.Dimensione() > ParteImmediata) return lavoro;
  Consegna(lavoro.Esegui());
  return std::nullopt;
}

/// Without memory nothing counts as used, until something changes.
void VociInseribili::Consegna(LavoroUsi::Fatto fatto) {
  if (!inCorso_ || fatto.Numero != numero_) return;
  contata_ = std::exchange(inCorso_, std::nullopt);
  UsiModello usi = std::move(fatto.Usi).value_or(UsiModello());
  if (usi == usi_) return;
  usi_ = std::move(usi);
  voci_.clear();
}

}  // namespace parvik
