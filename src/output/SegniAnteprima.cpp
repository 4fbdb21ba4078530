#include "output/SegniAnteprima.h"

#include <utility>

namespace parvik {

SegniAnteprima::SegniAnteprima(std::shared_ptr<const MappaAnteprima> mappa, const OrigineStampa& parte)
    : mappa_(std::move(mappa)), luoghi_(mappa_->Traccia.LuoghiDi(parte.Dove, parte.Parte.Inizio)) {
  if (luoghi_.empty()) return;
  const std::size_t primo = mappa_->Traccia.Mostrato(luoghi_.front(), 0).Inizio;
  if (mappa_->Traccia.OrigineDi(primo) != parte) luoghi_.clear();
}

/// The first time that ends behind that byte.
std::size_t SegniAnteprima::PrimaVolta(const LuogoStampa& luogo, std::size_t byte) const {
  std::size_t da = 0;
  std::size_t a = luogo.Volte;
  while (da < a) {
    const std::size_t meta = da + (a - da) / 2;
    if (mappa_->Traccia.Mostrato(luogo, meta).Fine() > byte) {
      a = meta;
    } else {
      da = meta + 1;
    }
  }
  return da;
}

std::vector<Selezione> SegniAnteprima::In(const Selezione& tratto) const {
  std::vector<Selezione> segni;
  for (const LuogoStampa& luogo : luoghi_) {
    for (std::size_t volta = PrimaVolta(luogo, tratto.Inizio); volta < luogo.Volte; ++volta) {
      const Selezione segno = mappa_->Traccia.Mostrato(luogo, volta);
      if (segno.Inizio >= tratto.Fine()) break;
      if (segno.Lunghezza > 0) segni.push_back(segno);
    }
  }
  return segni;
}

std::optional<Selezione> SegniAnteprima::Da(std::size_t byte) const {
  std::optional<Selezione> ultimo;
  for (const LuogoStampa& luogo : luoghi_) {
    const std::size_t volta = PrimaVolta(luogo, byte);
    if (volta < luogo.Volte) return mappa_->Traccia.Mostrato(luogo, volta);
    ultimo = mappa_->Traccia.Mostrato(luogo, luogo.Volte - 1);
  }
  return ultimo;
}

}  // namespace parvik
