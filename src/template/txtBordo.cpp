#include "template/txtBordo.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "tokens/ConLarghezza.h"

namespace parvik {
namespace {

std::int16_t Ammessa(qreal larghezza) {
  return static_cast<std::int16_t>(std::clamp(std::lround(larghezza), 1L, long{LarghezzaMassima}));
}

}  // namespace

txtBordo::txtBordo(const CampoMostrato& campo, std::string codice, int x)
    : campo_(campo), codice_(std::move(codice)), x_(x), larghezza_(Prima()) {}

std::int16_t txtBordo::Prima() const {
  return Ammessa(static_cast<qreal>(campo_.Larghezza));
}

void txtBordo::Muovi(int x, qreal cella) {
  larghezza_ = Ammessa(static_cast<qreal>(campo_.Larghezza) + (x - x_) / cella);
}

qreal txtBordo::X(qreal cella) const {
  return campo_.Sinistra + larghezza_ * cella;
}

}  // namespace parvik
