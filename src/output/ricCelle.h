// Cells of a fixed-pitch font in the looks of a preview: their sizes on a screen or a page, and their
// drawing.
#pragma once

#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QString>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "output/TestoAnteprima.h"

namespace parvik {

/// The preview's family of fonts, in its design size.
QFont CarattereAnteprima();

/// Lengths are in the painter's units on the device: logical pixels of a widget, dots of a printer. Every
/// character takes one cell of its look. Looks and characters are measured when first asked for.
class Celle {
 public:
  /// Of `base` only the size and the emphasis are replaced. The device is looked at while this object lives;
  /// make a new one when its resolution or its pixel ratio has changed.
  Celle(const QFont& base, const QPaintDevice* dispositivo);

  /// The font of a look, made for the device.
  const QFont& Carattere(const Aspetto& aspetto) const;
  qreal Avanzamento(const Aspetto& aspetto) const;  // the width of a cell
  qreal Ascesa(const Aspetto& aspetto) const;       // from the top of a cell to the baseline
  qreal Discesa(const Aspetto& aspetto) const;      // from the baseline to the bottom
  qreal Altezza(const Aspetto& aspetto) const { return Ascesa(aspetto) + Discesa(aspetto); }

  /// Draws `byte` (Windows-1252, no line ends in it) from the baseline point on, in the painter's pen.
  /// Leaves the look's font in the painter.
  void Disegna(QPainter& pittore, QPointF base, std::string_view byte, const Aspetto& aspetto) const;

 private:
  enum class Larghezza : unsigned char { Ignota, Cella, Propria };
  struct Faccia {
    QFont Carattere;
    qreal Avanzamento;
    qreal Ascesa;
    qreal Discesa;
    std::array<Larghezza, 256> Larghezze;  // by byte
  };

  Faccia& FacciaDi(const Aspetto& aspetto) const;
  bool StaNellaCella(Faccia& faccia, char byte, QChar segno) const;
  void DisegnaStretto(QPainter& pittore, QPointF base, QChar segno, const Faccia& faccia) const;

  QFont base_;
  const QPaintDevice* dispositivo_;
  mutable PerAspetto<std::optional<Faccia>> facce_;
};

/// From a line's top to its baseline, and to its bottom. An empty line is as high as its line end's look.
struct AltezzeRiga {
  qreal Ascesa = 0;
  qreal Discesa = 0;
  qreal Altezza() const { return Ascesa + Discesa; }
};
AltezzeRiga AltezzeDi(const TestoAnteprima& testo, std::size_t riga, const Celle& celle);

/// The left edge of a column, from 0 at the line's start. Columns count characters from 0; the one behind the
/// last character is the line's right end. Columns past it give that end too.
qreal XDi(const TestoAnteprima& testo, std::size_t riga, std::size_t colonna, const Celle& celle);

/// The column whose cell holds `x`; 0 on the left of the line, the one behind the last character on its
/// right.
std::size_t ColonnaA(const TestoAnteprima& testo, std::size_t riga, qreal x, const Celle& celle);

/// The column whose left edge is nearest to `x`.
std::size_t ColonnaVicina(const TestoAnteprima& testo, std::size_t riga, qreal x, const Celle& celle);

/// Draws the columns [da, a) of a line that starts (with its column 0) at `base`, on the baseline. Touches
/// nothing of the line but these. Returns how many characters it has drawn.
std::size_t DisegnaRiga(QPainter& pittore, QPointF base, const TestoAnteprima& testo, std::size_t riga,
                        std::size_t da, std::size_t a, const Celle& celle);

}  // namespace parvik
