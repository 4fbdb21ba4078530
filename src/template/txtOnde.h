// Wavy lines under what is wrong in a section.
#pragma once

#include <QPainter>
#include <QString>
#include <functional>
#include <vector>

#include "template/Modifica.h"

class QPlainTextEdit;
class QTextBlock;

namespace parvik {

class txtSpecchio;

/// A part of a section that something is wrong with, in bytes.
struct OndaTesto {
  Selezione Parte;
  bool Errore = false;  // or else a warning
  QString Detto;        // what is wrong
};

/// Those that share a byte with a part of the section, in their order.
using LettoreOnde = std::function<std::vector<OndaTesto>(const Selezione& parte)>;

/// Draws those of a line, which is laid out at `dove` in the viewport. An error is one line, a warning a
/// broken one: the colour is not all that tells them apart.
void DisegnaOnde(QPainter& pittore, const QTextBlock& riga, QPointF dove, const LettoreOnde& onde,
                 const txtSpecchio& specchio, const QPalette& tavolozza);

}  // namespace parvik
