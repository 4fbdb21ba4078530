#include "output/DiarioTraccia.h"

#include <limits>

namespace parvik {
namespace {

/// In bytes of the section.
constexpr std::size_t PassoTappe = 2048;

}  // namespace

void DiarioTraccia::Segna(std::size_t dove, const Memoria& memoria) {
  traccia_.tappe_.push_back({.Origine = dove, .Uscita = uscita_, .Ricordo = memoria});
  prossimaTappa_ = dove + PassoTappe;
}

void DiarioTraccia::IniziaGiro(const Memoria& memoria) {
  uscita_ = fineUltimaRiga_ = 0;
  ripete_ = inizio_ == memoria;
  if (ripete_) {
    prossimaTappa_ = std::numeric_limits<std::size_t>::max();
    return Replica(1);
  }
  inizio_ = memoria;
  const std::size_t finora = traccia_.Scritti();
  traccia_.giri_.push_back({.Dove = sezione_, .PrimaTappa = traccia_.tappe_.size(), .Uscita = finora});
  Segna(0, memoria);
}

void DiarioTraccia::FinisciGiro() {
  if (!ripete_) traccia_.giri_.back().Emessi = fineUltimaRiga_;
}

}  // namespace parvik
