#include "output/LettoreVoci.h"

#include <algorithm>

#include "common/Delimitatori.h"
#include "tokens/Codice.h"

namespace parvik {

using Genere = VoceStampa::Genere;

VoceStampa LettoreVoci::Voce(Genere cosa, std::size_t a, std::size_t usciti) {
  const VoceStampa voce{.Cosa = cosa,
                        .Origine = {.Inizio = qui_, .Lunghezza = a - qui_},
                        .Uscita = {.Inizio = uscita_, .Lunghezza = usciti}};
  qui_ = a;
  uscita_ += usciti;
  return voce;
}

/// A line of the literal text from here to `fine`, or the CR alone that is in its way.
VoceStampa LettoreVoci::Letterale(std::size_t fine) {
  const std::size_t cr = std::min(testo_.substr(0, fine).find('\r', qui_), fine);
  if (cr < fine && testo_.substr(cr).starts_with(FineRiga)) {
    const std::size_t dopo = cr + FineRiga.size();
    return Voce(Genere::Testo, dopo, dopo - qui_);
  }
  if (cr == qui_) return Voce(Genere::CrSolo, cr + 1, FineRiga.size());
  return Voce(Genere::Testo, cr, cr - qui_);
}

std::optional<VoceStampa> LettoreVoci::Prossima() {
  if (!letto_ && !lettore_.Prossimo()) return std::nullopt;
  letto_ = true;
  const std::size_t fine = base_ + lettore_.FineTesto();
  if (qui_ < fine) return Letterale(fine);
  if (!lettore_.ConCodice()) return std::nullopt;
  letto_ = false;
  const std::string_view contenuto = lettore_.Contenuto();
  const bool mostra = trovaVar_.Ricordo().MostraProssimo;
  VoceStampa voce = Voce(Genere::Codice, fine + contenuto.size() + 2, trovaVar_(contenuto).Lunghezza());
  voce.Nascosto = !mostra && Riconosci(contenuto) != TipoCodice::Flag;
  return voce;
}

}  // namespace parvik
