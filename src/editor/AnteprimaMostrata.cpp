#include "editor/AnteprimaMostrata.h"

#include <utility>
#include <vector>

#include "common/SeBastaMemoria.h"
#include "template/TastiSezione.h"

namespace parvik {
namespace {

/// The character that a caret stands for: the one behind it, at the end of a line the one in front; the line
/// end of an empty line.
std::optional<std::size_t> CarattereA(const TestoSezione& testo, std::size_t posto) {
  const Selezione riga = testo.Riga(testo.RigaDi(posto));
  if (posto < riga.Fine()) return posto;
  if (riga.Lunghezza > 0) return posto - 1;
  return posto < testo.Dimensione() ? std::optional(posto) : std::nullopt;
}

std::optional<OrigineStampa> ParteA(const TestoSezione& testo, const CursoreSezione& cursore) {
  const std::vector<Selezione> codici = CodiciAlCursore(testo, cursore.Dentro.Posto);
  if (!codici.empty()) return OrigineStampa{.Dove = cursore.Dove, .Parte = codici.back(), .Codice = true};
  const auto carattere = CarattereA(testo, cursore.Dentro.Posto);
  if (!carattere) return std::nullopt;
  return OrigineStampa{.Dove = cursore.Dove, .Parte = {.Inizio = *carattere, .Lunghezza = 1}};
}

/// No caret stands between the two bytes of a line end.
std::size_t PostoPer(const TestoSezione& testo, std::size_t byte) {
  const bool inMezzo = byte > 0 && testo[byte] == '\n' && testo[byte - 1] == '\r';
  return inMezzo ? byte - 1 : byte;
}

}  // namespace

AnteprimaMostrata::AnteprimaMostrata(Documento& documento, const FlagPerStampe& flag)
    : documento_(documento), flag_(flag), ascolto_(documento.Ascolta(*this)) {}

AnteprimaMostrata::Versione AnteprimaMostrata::Adesso(const TipoDoc& tipo) const {
  const ImpostazioniCorpo& corpo = documento_.Stato().Corpo;
  return {.Testi = modifiche_,
          .Flag = flag_.Cambiamenti(),
          .NumSezioni = tipo.NumSezioni,
          .RigheCorpo = corpo.RigheCorpo,
          .LineeCorpo = corpo.LineeCorpo};
}

AnteprimaMostrata::Numero AnteprimaMostrata::Comincia(const TipoDoc& tipo) {
  nuova_ = Corsa{.Di = Adesso(tipo), .Da = {}, .Mappa = {}};
  for (const Sezione sezione : TutteLeSezioni)
    nuova_->Da[Indice(sezione)] = Spostamenti(documento_.Testo(sezione).Dimensione());
  return ++numero_;
}

void AnteprimaMostrata::MostratoInizio(Numero numero) {
  if (InCorso(numero)) mostrata_ = nuova_;
}

std::optional<Ricollocazione> AnteprimaMostrata::Finisci(Numero numero,
                                                         std::shared_ptr<const MappaAnteprima> mappa) {
  if (!InCorso(numero)) return std::nullopt;
  std::optional<Corsa> prima = std::exchange(mostrata_, std::move(nuova_));
  nuova_.reset();
  fallita_.reset();
  mostrata_->Mappa = std::move(mappa);
  if (!prima) return Ricollocazione(nullptr, mostrata_->Mappa, nullptr);
  // By way of the text as it is now, which both know.
  const auto porta = [da = std::move(prima->Da), a = mostrata_->Da](Sezione sezione, const Selezione& parte) {
    const std::optional<Selezione> adesso = da[Indice(sezione)].Dopo(parte);
    return adesso ? a[Indice(sezione)].Prima(*adesso) : std::nullopt;
  };
  return Ricollocazione(prima->Mappa, mostrata_->Mappa, porta);
}

void AnteprimaMostrata::Rinuncia(Numero numero) {
  if (InCorso(numero)) nuova_.reset();
}

void AnteprimaMostrata::Fallisci(Numero numero) {
  if (!InCorso(numero)) return;
  fallita_ = nuova_->Di;
  nuova_.reset();
}

bool AnteprimaMostrata::Aggiornata(const TipoDoc& tipo) const {
  return !mostrata_ || (mostrata_->Mappa && mostrata_->Di == Adesso(tipo));
}

bool AnteprimaMostrata::DaRifare(const TipoDoc& tipo) const {
  const Versione adesso = Adesso(tipo);
  if (mostrata_ && mostrata_->Mappa && mostrata_->Di == adesso) return false;
  return !(nuova_ && nuova_->Di == adesso) && fallita_ != adesso;
}

SegniAnteprima AnteprimaMostrata::Segni(const CursoreSezione& cursore) const {
  if (!mostrata_ || !mostrata_->Mappa) return {};
  std::optional<OrigineStampa> parte = ParteA(documento_.Testo(cursore.Dove), cursore);
  if (!parte) return {};
  const auto prima = mostrata_->Da[Indice(cursore.Dove)].Prima(parte->Parte);
  if (!prima) return {};
  parte->Parte = *prima;
  return {mostrata_->Mappa, *parte};
}

std::optional<CursoreSezione> AnteprimaMostrata::Origine(std::size_t byte) const {
  if (!mostrata_ || !mostrata_->Mappa) return std::nullopt;
  const std::optional<OrigineStampa> origine = mostrata_->Mappa->Traccia.OrigineDi(byte);
  if (!origine) return std::nullopt;
  const auto parte = mostrata_->Da[Indice(origine->Dove)].Dopo(origine->Parte);
  if (!parte) return std::nullopt;
  if (origine->Codice) return CursoreSezione{.Dove = origine->Dove, .Dentro = CursoreSu(*parte)};
  const std::size_t posto = PostoPer(documento_.Testo(origine->Dove), parte->Inizio);
  return CursoreSezione{.Dove = origine->Dove, .Dentro = {.Ancora = posto, .Posto = posto}};
}

template <class Azione>
void AnteprimaMostrata::PerOgniCorsa(Azione azione) {
  if (nuova_) azione(*nuova_);
  if (mostrata_) azione(*mostrata_);
}

void AnteprimaMostrata::Modificata(const CambiamentoTesto& cambiamento) {
  ++modifiche_;
  PerOgniCorsa([&](Corsa& corsa) {
    Spostamenti& da = corsa.Da[Indice(cambiamento.Dove)];
    const auto sposta = [&]() -> Esito<void> {
      da.Modificato(cambiamento.Fatta);
      return {};
    };
    if (!SeBastaMemoria(sposta)) da.Sostituito();  // the text has changed: nobody is to hear of a failure
  });
}

void AnteprimaMostrata::Sostituita(Sezione sezione) {
  ++modifiche_;
  PerOgniCorsa([sezione](Corsa& corsa) { corsa.Da[Indice(sezione)].Sostituito(); });
}

}  // namespace parvik
