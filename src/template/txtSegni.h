// The small marks of codes that take no cell: a flag, a style, what a false flag hides.
#pragma once

#include <QColor>
#include <QPainter>
#include <vector>

#include "tokens/Codice.h"

namespace parvik {

struct SegnoCodice {
  qreal X = 0;
  TipoCodice Quale = TipoCodice::Sconosciuto;
  bool Mostrato = true;  // of a flag: whether the code behind it is; drawn hollow where it is not
  QColor Tinta;
  QColor Fondo;  // none: nothing behind it
};

/// In a line that begins at that height. Those of one place stand side by side.
void DisegnaSegni(QPainter& pittore, const std::vector<SegnoCodice>& segni, qreal alto, qreal altezza);

}  // namespace parvik
