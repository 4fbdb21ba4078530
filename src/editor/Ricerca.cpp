#include "editor/Ricerca.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "common/SeBastaMemoria.h"

namespace parvik {
namespace {

constexpr std::size_t ParteImmediata = 256UL * 1024UL;  // bytes
constexpr auto Pazienza = std::chrono::seconds(1);

}  // namespace

LavoroRicerca::LavoroRicerca(Numero numero, Criterio cosa, CompilaEspressione compila,
                             const Documento& documento, DoveSiCerca dove)
    : numero_(numero),
      cosa_(std::move(cosa)),
      compila_(std::move(compila)),
      testi_(documento.Testi()),
      dove_(std::move(dove)) {}

bool LavoroRicerca::Breve() const {
  if (cosa_.Espressione) return cosa_.Testo.empty();
  std::size_t byte = dove_.Anteprima ? dove_.Anteprima->Testo().Testo().size() : 0;
  for (const Sezione sezione : dove_.Sezioni) byte += testi_[Indice(sezione)].Dimensione();
  return byte <= ParteImmediata;
}

LavoroRicerca::Trovato LavoroRicerca::Cerca() const {
  Trovato trovato;
  std::unique_ptr<Espressione> espressione;
  if (cosa_.Espressione && !cosa_.Testo.empty()) {
    auto compilata = compila_(cosa_);
    if (!compilata) {
      trovato.Errore = compilata.Errore();
      return trovato;
    }
    espressione = std::move(*compilata);
  }
  const auto fine = std::chrono::steady_clock::now() + Pazienza;
  Cercatore cercatore(cosa_, std::move(espressione),
                      [fine] { return std::chrono::steady_clock::now() > fine; });
  const auto cerca = [&](LuogoRicerca luogo, std::string_view testo, const VociDiSezione& voci) {
    if (!trovato.Interrotta) trovato.Posti[Indice(luogo)] = cercatore.Cerca(testo, voci);
    trovato.Interrotta = trovato.Interrotta || cercatore.Interrotta();
  };
  for (const Sezione sezione : dove_.Sezioni) {
    const auto& tabelle = dove_.Tabelle[Indice(sezione)];
    cerca(LuogoDi(sezione), testi_[Indice(sezione)].Byte(), tabelle ? tabelle->Voci() : VociDiSezione());
  }
  if (dove_.Anteprima) cerca(LuogoRicerca::Anteprima, dove_.Anteprima->Testo().Testo(), {});
  return trovato;
}

LavoroRicerca::Fatto LavoroRicerca::Esegui() const {
  Esito<Trovato> trovato = SeBastaMemoria([this]() -> Esito<Trovato> { return Cerca(); });
  if (!trovato) return {.Numero = numero_, .Trovati = std::nullopt};
  return {.Numero = numero_, .Trovati = std::move(*trovato)};
}

Ricerca::Ricerca(Documento& documento) : documento_(documento), ascolto_(documento.Ascolta(*this)) {}

void Ricerca::Imposta(std::optional<RichiestaRicerca> richiesta, CompilaEspressione compila) {
  compila_ = std::move(compila);
  richiesta_ = std::move(richiesta);
  if (!InCorso()) Dimentica();
}

void Ricerca::CambiataAnteprima() {
  ++anteprime_;
  posti_[Indice(LuogoRicerca::Anteprima)].clear();
  if (attuale_ && attuale_->Dove == LuogoRicerca::Anteprima) attuale_.reset();
}

void Ricerca::Dimentica() {
  nuova_.reset();
  mostrata_.reset();
  attuale_.reset();
  posti_ = {};
  interrotta_ = false;
  errore_.clear();
}

Ricerca::Versione Ricerca::Adesso(std::vector<Sezione> sezioni) const {
  const bool inAnteprima = richiesta_->Dove == Ambito::Anteprima;
  return {.Cosa = *richiesta_,
          .Sezioni = std::move(sezioni),
          .Testi = inAnteprima ? 0 : modifiche_,
          .Anteprime = inAnteprima ? anteprime_ : 0};
}

bool Ricerca::DaRifare(const std::vector<Sezione>& sezioni) const {
  if (!InCorso()) return false;
  const Versione adesso = Adesso(sezioni);
  return nuova_ ? nuova_->Di != adesso : mostrata_ != adesso;
}

std::optional<LavoroRicerca> Ricerca::Rinnova(DoveSiCerca dove) {
  Corsa corsa{.Numero = ++numero_, .Di = Adesso(dove.Sezioni), .Da = {}};
  for (const Sezione sezione : TutteLeSezioni)
    corsa.Da[Indice(sezione)] = Spostamenti(documento_.Testo(sezione).Dimensione());
  nuova_ = std::move(corsa);
  LavoroRicerca lavoro(numero_, richiesta_->Cosa, compila_, documento_, std::move(dove));
  if (!lavoro.Breve()) return lavoro;
  Consegna(lavoro.Esegui());
  return std::nullopt;
}

void Ricerca::Consegna(LavoroRicerca::Fatto fatto) {
  if (!nuova_ || fatto.Numero != nuova_->Numero) return;
  mostrata_ = nuova_->Di;
  LavoroRicerca::Trovato trovato = std::move(fatto.Trovati).value_or(LavoroRicerca::Trovato());
  interrotta_ = trovato.Interrotta;
  errore_ = std::move(trovato.Errore);
  MettiPosti(std::move(trovato));
  nuova_.reset();
  if (attuale_ && !NumeroAttuale()) attuale_.reset();
}

/// Those that what has changed meanwhile has left alone. What has no bytes counts only where nothing has.
void Ricerca::MettiPosti(LavoroRicerca::Trovato trovato) {
  posti_ = std::move(trovato.Posti);
  if (nuova_->Di == Adesso(nuova_->Di.Sezioni)) return;
  posti_[Indice(LuogoRicerca::Anteprima)].clear();
  for (const Sezione sezione : TutteLeSezioni) {
    std::erase_if(posti_[Indice(LuogoDi(sezione))], [&](Selezione& posto) {
      const auto ora = posto.Lunghezza > 0 ? nuova_->Da[Indice(sezione)].Dopo(posto) : std::nullopt;
      if (ora) posto = *ora;
      return !ora;
    });
  }
}

void Ricerca::Modificata(const CambiamentoTesto& cambiamento) {
  ++modifiche_;
  if (!richiesta_) return;
  if (nuova_) nuova_->Da[Indice(cambiamento.Dove)].Modificato(cambiamento.Fatta);
  const LuogoRicerca luogo = LuogoDi(cambiamento.Dove);
  const auto sparito = [&](Selezione& posto) {
    const auto ora = Spostato(posto, cambiamento.Fatta);
    if (ora) posto = *ora;
    return !ora;
  };
  std::erase_if(posti_[Indice(luogo)], sparito);
  if (attuale_ && attuale_->Dove == luogo && sparito(attuale_->Posto)) attuale_.reset();
}

void Ricerca::Sostituita(Sezione sezione) {
  ++modifiche_;
  if (nuova_) nuova_->Da[Indice(sezione)].Sostituito();
  posti_[Indice(LuogoDi(sezione))].clear();
  if (attuale_ && attuale_->Dove == LuogoDi(sezione)) attuale_.reset();
}

std::vector<Selezione> Ricerca::In(LuogoRicerca luogo, const Selezione& parte) const {
  const std::vector<Selezione>& tutti = In(luogo);
  const auto primo = std::ranges::partition_point(tutti, [&](const Selezione& p) {
    return p.Fine() < parte.Inizio || (p.Fine() == parte.Inizio && p.Lunghezza > 0);
  });
  const auto ultimo = std::partition_point(primo, tutti.end(), [&](const Selezione& p) {
    return p.Inizio < parte.Fine() || (p.Inizio == parte.Fine() && p.Lunghezza == 0);
  });
  return {primo, ultimo};
}

std::size_t Ricerca::Quante() const {
  std::size_t quante = 0;
  for (const auto& posti : posti_) quante += posti.size();
  return quante;
}

std::optional<std::size_t> Ricerca::NumeroAttuale() const {
  if (!attuale_) return std::nullopt;
  std::size_t prima = 0;
  for (std::size_t luogo = 0; luogo < Indice(attuale_->Dove); ++luogo) prima += posti_[luogo].size();
  const std::vector<Selezione>& posti = In(attuale_->Dove);
  const auto qui = std::ranges::lower_bound(posti, attuale_->Posto.Inizio, {}, &Selezione::Inizio);
  if (qui == posti.end() || *qui != attuale_->Posto) return std::nullopt;
  return prima + static_cast<std::size_t>(qui - posti.begin()) + 1;
}

/// The first one that begins at a place or behind it; one without bytes that was gone to is left behind.
std::optional<Selezione> Ricerca::PrimaDa(LuogoRicerca luogo, std::size_t da) const {
  const std::vector<Selezione>& posti = In(luogo);
  auto qui = std::ranges::lower_bound(posti, da, {}, &Selezione::Inizio);
  if (qui != posti.end() && qui->Lunghezza == 0 && qui->Inizio == da && EAttuale(luogo, *qui)) ++qui;
  return qui == posti.end() ? std::nullopt : std::optional(*qui);
}

/// The last one that ends at a place or in front of it.
std::optional<Selezione> Ricerca::UltimaFinoA(LuogoRicerca luogo, std::size_t a) const {
  const std::vector<Selezione>& posti = In(luogo);
  auto dopo = std::ranges::upper_bound(posti, a, {}, &Selezione::Fine);
  if (dopo != posti.begin() && std::prev(dopo)->Lunghezza == 0 && std::prev(dopo)->Inizio == a &&
      EAttuale(luogo, *std::prev(dopo)))
    --dopo;
  return dopo == posti.begin() ? std::nullopt : std::optional(*std::prev(dopo));
}

std::optional<Ricerca::Prossimo> Ricerca::Dopo(const PostoTrovato& da) const {
  for (std::size_t passo = 0; passo <= NumLuoghi; ++passo) {
    const std::size_t luogo = (Indice(da.Dove) + passo) % NumLuoghi;
    const auto qui = static_cast<LuogoRicerca>(luogo);
    const auto posto = passo == 0        ? PrimaDa(qui, da.Posto.Fine())
                       : In(qui).empty() ? std::nullopt
                                         : std::optional(In(qui).front());
    const bool ripreso = passo > 0 && luogo <= Indice(da.Dove);
    if (posto) return Prossimo{.Quale = {.Dove = qui, .Posto = *posto}, .Ripreso = ripreso};
  }
  return std::nullopt;
}

std::optional<Ricerca::Prossimo> Ricerca::Prima(const PostoTrovato& da) const {
  for (std::size_t passo = 0; passo <= NumLuoghi; ++passo) {
    const std::size_t luogo = (Indice(da.Dove) + NumLuoghi - (passo % NumLuoghi)) % NumLuoghi;
    const auto qui = static_cast<LuogoRicerca>(luogo);
    const auto posto = passo == 0        ? UltimaFinoA(qui, da.Posto.Inizio)
                       : In(qui).empty() ? std::nullopt
                                         : std::optional(In(qui).back());
    const bool ripreso = passo > 0 && luogo >= Indice(da.Dove);
    if (posto) return Prossimo{.Quale = {.Dove = qui, .Posto = *posto}, .Ripreso = ripreso};
  }
  return std::nullopt;
}

}  // namespace parvik
