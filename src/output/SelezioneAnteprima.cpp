#include "output/SelezioneAnteprima.h"

#include <algorithm>
#include <utility>

#include "output/MovimentiAnteprima.h"

namespace parvik {

SelezioneAnteprima::SelezioneAnteprima(Anteprima anteprima)
    : testo_(std::make_shared<const TestoAnteprima>(std::move(anteprima))) {}

std::string_view SelezioneAnteprima::TestoSelezionato() const {
  const Selezione scelto = Selezionato();
  return testo_->Testo().substr(scelto.Inizio, scelto.Lunghezza);
}

SelezioneAnteprima::Coordinate SelezioneAnteprima::RigaColonna() const {
  const std::size_t inizio = Selezionato().Inizio;
  const std::size_t riga = testo_->RigaDi(inizio);
  return {.Riga = riga + 1, .Colonna = inizio - testo_->InizioRiga(riga) + 1};
}

void SelezioneAnteprima::Completa(Anteprima anteprima) {
  testo_ = std::make_shared<const TestoAnteprima>(std::move(anteprima));
  estremi_ = {.Ancora = Aggancia(*testo_, estremi_.Ancora), .Posto = Aggancia(*testo_, estremi_.Posto)};
}

void SelezioneAnteprima::Rinnova(std::shared_ptr<const TestoAnteprima> testo, const Ricollocazione& dove) {
  const std::shared_ptr<const TestoAnteprima> prima = std::exchange(testo_, std::move(testo));
  const std::size_t ancora = dove(*prima, *testo_, estremi_.Ancora);
  const std::size_t posto =
      estremi_.Posto == estremi_.Ancora ? ancora : dove(*prima, *testo_, estremi_.Posto);
  Seleziona(ancora, posto);
}

void SelezioneAnteprima::Seleziona(std::size_t ancora, std::size_t cursore) {
  xVoluta_.reset();
  estremi_ = {.Ancora = Aggancia(*testo_, ancora), .Posto = Aggancia(*testo_, cursore)};
}

void SelezioneAnteprima::SelezionaTutto() {
  Seleziona(0, testo_->Testo().size());
}

void SelezioneAnteprima::SelezionaFra(const Selezione& dal, const Selezione& al) {
  if (al.Inizio < dal.Inizio) {
    Seleziona(dal.Fine(), al.Inizio);
  } else {
    Seleziona(dal.Inizio, std::max(al.Fine(), dal.Fine()));
  }
}

void SelezioneAnteprima::Muovi(Movimento dove, ModoMovimento modo, const MisureRighe& misure) {
  const std::optional<std::size_t> riga = RigaMeta(dove, misure.PerPagina);
  const std::size_t posto = riga ? NellaRiga(*riga, misure) : LungoIlTesto(dove, modo);
  if (!riga) xVoluta_.reset();
  estremi_ = {.Ancora = modo == ModoMovimento::Seleziona ? estremi_.Ancora : posto, .Posto = posto};
}

/// The line that a movement from line to line leads to; nullopt for other movements.
std::optional<std::size_t> SelezioneAnteprima::RigaMeta(Movimento dove, std::size_t perPagina) const {
  const std::size_t riga = testo_->RigaDi(estremi_.Posto);
  const auto sopra = [riga](std::size_t righe) { return riga - std::min(riga, righe); };
  const auto sotto = [this, riga](std::size_t righe) {
    return std::min(riga + righe, testo_->NumRighe() - 1);
  };
  switch (dove) {
    case Movimento::RigaSopra:
      return sopra(1);
    case Movimento::RigaSotto:
      return sotto(1);
    case Movimento::PaginaSopra:
      return sopra(perPagina);
    case Movimento::PaginaSotto:
      return sotto(perPagina);
    default:
      return std::nullopt;
  }
}

/// The place in the line that is nearest to the wanted x.
std::size_t SelezioneAnteprima::NellaRiga(std::size_t riga, const MisureRighe& misure) {
  const std::size_t questa = testo_->RigaDi(estremi_.Posto);
  if (!xVoluta_) xVoluta_ = misure.XDi(questa, estremi_.Posto - testo_->InizioRiga(questa));
  return testo_->InizioRiga(riga) + misure.ColonnaVicina(riga, *xVoluta_);
}

std::size_t SelezioneAnteprima::LungoIlTesto(Movimento dove, ModoMovimento modo) const {
  const std::size_t posto = estremi_.Posto;
  const bool lascia = modo == ModoMovimento::Muove && estremi_.Ancora != posto;
  switch (dove) {
    case Movimento::CarattereDopo:
      return lascia ? Selezionato().Fine() : CarattereDopo(*testo_, posto);
    case Movimento::CarattereDavanti:
      return lascia ? Selezionato().Inizio : CarattereDavanti(*testo_, posto);
    case Movimento::ParolaDopo:
      return ParolaDopo(*testo_, posto);
    case Movimento::ParolaDavanti:
      return ParolaDavanti(*testo_, posto);
    case Movimento::InizioRiga:
      return testo_->InizioRiga(testo_->RigaDi(posto));
    case Movimento::TermineRiga:
      return testo_->TermineRiga(testo_->RigaDi(posto));
    case Movimento::FineTesto:
      return testo_->Testo().size();
    default:
      return 0;
  }
}

}  // namespace parvik
