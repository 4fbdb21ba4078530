#include "editor/Problemi.h"

#include <algorithm>
#include <utility>

#include "common/SeBastaMemoria.h"
#include "common/Windows1252.h"
#include "verifica/TipoSimile.h"

namespace parvik {
namespace {

constexpr std::size_t ParteImmediata =
    64UL * 1024UL;  // bytes: what takes no longer than a key does by itself

constexpr const char* SenzaCatalogo =
    "Il catalogo non si legge in una sezione di questo tipo: il modello non si può verificare.";

std::string Somiglia(const TipoDoc& tipo) {
  return "Sembra un modello di \u00AB" + Utf8DaAnsi(tipo.Descrizione) + "\u00BB";
}

}  // namespace

LavoroVerifica::LavoroVerifica(Numero numero, const Catalogo& catalogo, const TipoDoc& tipo,
                               const Documento& documento, const PaginaVerifica& pagina)
    : numero_(numero),
      catalogo_(catalogo),
      tipo_(tipo),
      testi_(documento.Testi()),
      corpo_(documento.Stato().Corpo),
      pagina_(pagina) {}

std::size_t LavoroVerifica::Dimensione() const {
  std::size_t byte = 0;
  for (const TestoSezione& testo : testi_) byte += testo.Dimensione();
  return byte;
}

LavoroVerifica::Fatto LavoroVerifica::Esegui() const {
  const auto esegui = [this]() -> Esito<Trovato> {
    std::array<std::string, MaxSezioni> byte;
    TestiDaVerificare testi{.Testi = {}, .Corpo = corpo_};
    for (std::size_t i = 0; i < MaxSezioni; ++i) {
      byte[i] = testi_[i].Byte();
      testi.Testi[i] = byte[i];
    }
    Verificatore verificatore(catalogo_, tipo_);
    if (!verificatore.Errori().empty()) return Trovato{.Rilievi = {}, .Avviso = SenzaCatalogo};
    EsitoVerifica trovati = verificatore.Testi(
        testi, {.Larghezza = pagina_.Larghezza, .Righe = pagina_.Righe, .Cornici = pagina_.Cornici});
    if (!trovati) return trovati.Errore();
    const TipoDoc* simile = TipoSimile(testi.Testi, verificatore.Voci(), catalogo_);
    return Trovato{.Rilievi = std::move(*trovati), .Avviso = simile == nullptr ? "" : Somiglia(*simile)};
  };
  Esito<Trovato> trovato = SeBastaMemoria(esegui);
  if (!trovato) return {.Numero = numero_, .Trovati = std::nullopt};
  return {.Numero = numero_, .Trovati = std::move(*trovato)};
}

Problemi::Problemi(Documento& documento, const Catalogo& catalogo)
    : documento_(documento), catalogo_(catalogo), ascolto_(documento.Ascolta(*this)) {}

Problemi::Versione Problemi::Adesso(const TipoDoc& tipo) const {
  return {.Testi = modifiche_, .Tipo = tipo.Indice, .Corpo = documento_.Stato().Corpo, .Pagina = pagina_};
}

bool Problemi::DaRifare(const TipoDoc& tipo) const {
  const Versione adesso = Adesso(tipo);
  return nuova_ ? nuova_->Di != adesso : mostrata_ != adesso;
}

std::optional<LavoroVerifica> Problemi::Rinnova(const TipoDoc& tipo) {
  Corsa corsa{.Numero = ++numero_, .Di = Adesso(tipo), .Da = {}};
  for (const Sezione sezione : TutteLeSezioni)
    corsa.Da[Indice(sezione)] = Spostamenti(documento_.Testo(sezione).Dimensione());
  nuova_ = std::move(corsa);
  LavoroVerifica lavoro(numero_, catalogo_, tipo, documento_, pagina_);
  if (lavoro.Dimensione() > ParteImmediata) return lavoro;
  Consegna(lavoro.Esegui());
  return std::nullopt;
}

/// Without memory nothing is told, until something changes.
void Problemi::Consegna(LavoroVerifica::Fatto fatto) {
  if (!nuova_ || fatto.Numero != nuova_->Numero) return;
  mostrata_ = nuova_->Di;
  trovati_ = std::move(fatto.Trovati).value_or(LavoroVerifica::Trovato());
  MettiSegni();
  nuova_.reset();
}

void Problemi::Dimentica() {
  nuova_.reset();
  mostrata_.reset();
  trovati_ = {};
  segni_ = {};
}

/// Those that what has changed meanwhile has left alone, and that have bytes. Findings come by place, and no
/// edit puts one in front of another: marks are in both orders.
void Problemi::MettiSegni() {
  segni_ = {};
  for (std::size_t quale = 0; quale < trovati_.Rilievi.size(); ++quale) {
    const Rilievo& rilievo = trovati_.Rilievi[quale];
    if (!rilievo.Dove || rilievo.Lunghezza == 0) continue;
    const auto posto =
        nuova_->Da[Indice(*rilievo.Dove)].Dopo({.Inizio = rilievo.Inizio, .Lunghezza = rilievo.Lunghezza});
    if (posto) segni_[Indice(*rilievo.Dove)].push_back({.Posto = *posto, .Quale = quale});
  }
}

void Problemi::Modificata(const CambiamentoTesto& cambiamento) {
  ++modifiche_;
  const std::size_t dove = Indice(cambiamento.Dove);
  if (nuova_) nuova_->Da[dove].Modificato(cambiamento.Fatta);
  std::vector<SegnoProblema>& segni = segni_[dove];
  std::erase_if(segni, [&](SegnoProblema& segno) {
    const auto ora = Spostato(segno.Posto, cambiamento.Fatta);
    if (ora) segno.Posto = *ora;
    return !ora;
  });
}

void Problemi::Sostituita(Sezione sezione) {
  ++modifiche_;
  if (nuova_) nuova_->Da[Indice(sezione)].Sostituito();
  segni_[Indice(sezione)].clear();
}

std::size_t Problemi::Quanti(Livello livello) const {
  return static_cast<std::size_t>(std::ranges::count(Trovati(), livello, &Rilievo::Grado));
}

std::optional<Selezione> Problemi::Posto(std::size_t quale) const {
  const std::optional<Sezione> dove = Trovati()[quale].Dove;
  if (!dove) return std::nullopt;
  const auto& segni = segni_[Indice(*dove)];
  const auto segno = std::ranges::lower_bound(segni, quale, {}, &SegnoProblema::Quale);
  if (segno == segni.end() || segno->Quale != quale) return std::nullopt;
  return segno->Posto;
}

/// Marks may lie one in another: those that begin in front are looked at too.
std::vector<SegnoProblema> Problemi::In(Sezione sezione, const Selezione& parte) const {
  std::vector<SegnoProblema> trovati;
  for (const SegnoProblema& segno : segni_[Indice(sezione)]) {
    if (segno.Posto.Inizio >= parte.Fine()) break;
    if (segno.Posto.Fine() > parte.Inizio) trovati.push_back(segno);
  }
  return trovati;
}

}  // namespace parvik
