// Marks of places that were found, drawn over text.
#pragma once

#include <QPainter>
#include <QPalette>
#include <QPointF>
#include <QRectF>
#include <functional>
#include <vector>

#include "template/Modifica.h"

class QTextBlock;

namespace parvik {

class txtSpecchio;

struct PostoSegnato {
  Selezione Parte;
  bool Attuale = false;  // the one that was gone to last
};

/// Those that share a byte with a part of a text, or lie in it without bytes, in their order. The text's own
/// bytes.
using LettoreTrovati = std::function<std::vector<PostoSegnato>(const Selezione& parte)>;

/// Those of a section's line, which is laid out at `dove` in the viewport.
void DisegnaTrovati(QPainter& pittore, const QTextBlock& riga, QPointF dove, const LettoreTrovati& trovati,
                    const txtSpecchio& specchio, const QPalette& tavolozza);

/// A frame with a thin ground, that text can be read through; the current one's is thicker. What is narrower
/// than a stroke is drawn as one.
void DisegnaTrovato(QPainter& pittore, const QRectF& dove, bool attuale, const QPalette& tavolozza);

}  // namespace parvik
