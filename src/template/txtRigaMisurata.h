// Draws a line of a section that is shown to measure: literal text in its look, codes as fields, marks where
// they take no cell.
#pragma once

#include <QPainter>
#include <QPointF>
#include <cstddef>
#include <functional>
#include <string>

#include "output/CampiAMisura.h"
#include "template/Modifica.h"

class QPlainTextEdit;
class QTextBlock;

namespace parvik {

class Celle;
class qtColori;
struct LettoreCampi;

struct RigaDaDisegnare {
  RigaMisurata Misurata;
  std::string Byte;
  std::size_t Inizio = 0;   // of the line, in its section
  parvik::Cursore Cursore;  // in the section
};

/// What it is drawn with.
struct PennaRiga {
  const QPlainTextEdit& Editor;
  const qtColori& Colori;
  const Celle& Caratteri;
};

/// `dove` is the line's upper left corner. `aspetto` tells the look at a byte of the section.
void DisegnaRigaMisurata(QPainter& pittore, const QTextBlock& blocco, QPointF dove,
                         const RigaDaDisegnare& riga, const PennaRiga& penna,
                         const std::function<Aspetto(std::size_t)>& aspetto, const LettoreCampi& lettore);

}  // namespace parvik
