// The right edge of a field, dragged with the mouse to give its code another width.
#pragma once

#include <QtGlobal>
#include <cstdint>
#include <string>

#include "template/txtMisura.h"

namespace parvik {

class txtBordo {
 public:
  /// The button went down at `x`. `codice` is the field's code with its delimiters.
  txtBordo(const CampoMostrato& campo, std::string codice, int x);

  /// The mouse is at `x`, where a cell is so wide.
  void Muovi(int x, qreal cella);

  const Selezione& Dove() const { return campo_.Codice; }
  const std::string& Codice() const { return codice_; }
  std::int16_t Prima() const;
  std::int16_t Larghezza() const { return larghezza_; }
  /// Where the edge would be.
  qreal X(qreal cella) const;

 private:
  CampoMostrato campo_;
  std::string codice_;
  int x_;
  std::int16_t larghezza_;
};

}  // namespace parvik
