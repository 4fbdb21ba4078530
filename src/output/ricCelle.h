// Cells of a fixed-pitch font in the looks of a preview: their sizes on a screen or a page, and their
// drawing.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPointF>
#include <QRawFont>
#include <QString>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "output/TestoAnteprima.h"

namespace parvik {

/// The preview's family of fonts, in its design size.
QFont CarattereAnteprima();

inline constexpr int TwipPerPunto = 20;
inline constexpr int TwipPerPollice = 1440;

/// Every character takes one cell of its look, and stands at its left edge. The pane's own size and the
/// normal one have one width of cells: text in columns stays in them whatever its looks. Looks and characters
/// are measured when first asked for.
class Celle {
 public:
  // Of `base` only the size and the emphasis are replaced.

  /// Lengths are logical pixels. The screen is looked at while this object lives; make a new one when its
  /// resolution or its pixel ratio has changed.
  /// `scala`: how much larger than on paper.
  static Celle SuSchermo(const QFont& base, const QPaintDevice& schermo, double scala = 1) {
    Celle celle(base, &schermo);
    celle.scala_ = scala;
    return celle;
  }
  /// The same in the size of `base`, whatever size a look asks for: every cell is as wide as its characters.
  static Celle ComeSono(const QFont& base, const QPaintDevice& schermo) { return {base, &schermo, true}; }
  /// Lengths are twips, whatever the printer's resolution: in them every size of the preview is a whole
  /// number. Nothing is rounded, so compressed cells are eight tenths of the others.
  static Celle SuCarta(const QFont& base) { return {base, nullptr}; }

  /// The font of a look, made for screen or paper. Lines under text are drawn apart.
  const QFont& Carattere(const Aspetto& aspetto) const;
  qreal Avanzamento(const Aspetto& aspetto) const;  // the width of a cell
  qreal Ascesa(const Aspetto& aspetto) const;       // from the top of a cell to the baseline
  qreal Discesa(const Aspetto& aspetto) const;      // from the baseline to the bottom
  qreal Altezza(const Aspetto& aspetto) const { return Ascesa(aspetto) + Discesa(aspetto); }

  /// Draws `byte` (Windows-1252, no line ends in it) from the baseline point on, in the painter's pen.
  void Disegna(QPainter& pittore, QPointF base, std::string_view byte, const Aspetto& aspetto) const;

 private:
  enum class Larghezza : unsigned char { Ignota, Cella, Propria };
  struct Faccia {
    QFont Carattere;
    QRawFont Segni;
    qreal Avanzamento;  // of a cell
    qreal Propria;      // of the font's characters
    qreal Ascesa;
    qreal Discesa;
    std::array<Larghezza, 256> Larghezze;  // by byte
  };

  Celle(const QFont& base, const QPaintDevice* schermo, bool comeSono = false);

  Faccia& FacciaDi(const Aspetto& aspetto) const;
  QFont ConAspetto(const Aspetto& aspetto) const;
  QFontMetricsF Misure(const QFont& carattere) const;
  qreal Passo(CorpoCarattere corpo) const;
  bool StaNellaCella(Faccia& faccia, char byte, QChar segno) const;
  static void DisegnaNelleCelle(QPainter& pittore, QPointF base, const QString& segni, const Faccia& faccia);
  void Sottolinea(QPainter& pittore, QPointF base, std::size_t celle, const Faccia& faccia) const;
  void DisegnaStretto(QPainter& pittore, QPointF base, QChar segno, const Faccia& faccia) const;

  QFont base_;
  const QPaintDevice* schermo_;  // none: paper
  bool comeSono_;                // every look has the size of base_
  double scala_ = 1;
  mutable PerAspetto<std::optional<Faccia>> facce_;
};

/// The width of a character of the normal size on paper, in tenths of a millimetre.
double CellaSuCarta();

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
