#include "tokens/Pezzi.h"

#include <algorithm>

namespace parvik {

std::optional<Pezzo> LettorePezzi::Prossimo() {
  if (qui_ == testo_.size()) return std::nullopt;
  CercaDaQui();
  const std::size_t inizio = qui_;
  const std::size_t delimitatore = std::min(codice_.Apertura, chiusura_);
  if (inizio < delimitatore) {
    qui_ = delimitatore;
    return Pezzo{.Genere = GenerePezzo::Testo, .Inizio = inizio, .Fine = qui_};
  }
  const bool codice = inizio == codice_.Apertura && codice_.Chiusura != testo_.size();
  qui_ = codice ? codice_.Chiusura + 1 : inizio + 1;
  return Pezzo{
      .Genere = codice ? GenerePezzo::Codice : GenerePezzo::Delimitatore, .Inizio = inizio, .Fine = qui_};
}

/// Where no » was left it is not looked for again: a text of nothing but « is walked over once, too.
void LettorePezzi::CercaDaQui() {
  if (codice_.Apertura < qui_ && codice_.Chiusura != testo_.size()) {
    codice_ = ProssimoCodice(testo_, qui_);
  } else if (codice_.Apertura < qui_) {
    codice_.Apertura = TrovaByte(testo_, DelimApertura, qui_);
  }
  if (chiusura_ >= qui_) return;
  chiusura_ = TrovaByte(testo_.substr(0, codice_.Apertura), DelimChiusura, qui_);
}

}  // namespace parvik
