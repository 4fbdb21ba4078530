// The pictures of the three destinations, drawn in the colours of the palette.
#pragma once

#include <QPalette>
#include <QPixmap>

#include "output/Destinazione.h"

namespace parvik {

/// A picture of 48 by 48 pixels, drawn as finely as a screen of that device pixel ratio shows it.
QPixmap IconaDestinazione(Destinazione destinazione, const QPalette& colori, qreal rapporto);

}  // namespace parvik
