#include "template/Spostamenti.h"

#include <algorithm>
#include <utility>

namespace parvik {
namespace {

/// A text edited at more places than that has no part left that is worth the search.
constexpr std::size_t MassimoTratti = 4096;

}  // namespace

std::optional<Selezione> Spostato(const Selezione& posto, const Modifica& fatta) {
  if (posto.Fine() <= fatta.Dove) return posto;
  if (posto.Inizio < fatta.Dove + fatta.Tolti || posto.Inizio < fatta.Dove) return std::nullopt;
  return Selezione{.Inizio = posto.Inizio - fatta.Tolti + fatta.Messi.size(), .Lunghezza = posto.Lunghezza};
}

Spostamenti::Spostamenti(std::size_t dimensione) {
  if (dimensione > 0) tratti_.push_back({.Prima = 0, .Dopo = 0, .Lunghezza = dimensione});
}

void Spostamenti::Modificato(const Modifica& modifica) {
  const std::size_t fine = modifica.Dove + modifica.Tolti;
  const auto toccato = std::ranges::find_if(
      tratti_, [&](const Intatto& tratto) { return tratto.Dopo + tratto.Lunghezza > modifica.Dove; });
  std::vector<Intatto> dopo(tratti_.begin(), toccato);
  dopo.reserve(tratti_.size() + 1);
  const auto aggiungi = [&dopo](const Intatto& tratto) {
    if (!dopo.empty() && dopo.back().Continua(tratto)) {  // what came between them has gone again
      dopo.back().Lunghezza += tratto.Lunghezza;
    } else {
      dopo.push_back(tratto);
    }
  };
  for (auto tratto = toccato; tratto != tratti_.end(); ++tratto) {
    if (tratto->Dopo < modifica.Dove)
      aggiungi({.Prima = tratto->Prima, .Dopo = tratto->Dopo, .Lunghezza = modifica.Dove - tratto->Dopo});
    const std::size_t persi = tratto->Dopo < fine ? fine - tratto->Dopo : 0;
    if (persi >= tratto->Lunghezza) continue;
    aggiungi({.Prima = tratto->Prima + persi,
              .Dopo = tratto->Dopo + persi - modifica.Tolti + modifica.Messi.size(),
              .Lunghezza = tratto->Lunghezza - persi});
  }
  tratti_ = std::move(dopo);
  if (tratti_.size() > MassimoTratti) Sostituito();
}

std::optional<Selezione> Spostamenti::Porta(const std::vector<Intatto>& tratti, const Selezione& parte,
                                            std::size_t Intatto::*da, std::size_t Intatto::*a) {
  const auto dopo = std::ranges::upper_bound(tratti, parte.Inizio, {}, da);
  if (dopo == tratti.begin()) return std::nullopt;
  const Intatto& tratto = *(dopo - 1);
  if (parte.Fine() > tratto.*da + tratto.Lunghezza) return std::nullopt;
  return Selezione{.Inizio = parte.Inizio - tratto.*da + tratto.*a, .Lunghezza = parte.Lunghezza};
}

std::optional<Selezione> Spostamenti::Dopo(const Selezione& prima) const {
  return Porta(tratti_, prima, &Intatto::Prima, &Intatto::Dopo);
}

std::optional<Selezione> Spostamenti::Prima(const Selezione& dopo) const {
  return Porta(tratti_, dopo, &Intatto::Dopo, &Intatto::Prima);
}

}  // namespace parvik
