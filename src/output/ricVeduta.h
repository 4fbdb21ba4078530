// What a window onto a preview shows: the lines in it, where characters are, and their drawing. A value made
// for one moment; only what is visible is ever looked at.
#pragma once

#include <QPainter>
#include <QPalette>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <cstddef>
#include <vector>

#include "output/TestoAnteprima.h"
#include "output/ricCelle.h"
#include "template/TastiSezione.h"

namespace parvik {

/// Where a window stands, in logical pixels.
struct Finestrella {
  std::size_t PrimaRiga = 0;
  int Scorrimento = 0;  // of what lies on the left of the window
  QSize Dimensione;
};

class VedutaAnteprima {
 public:
  static constexpr int Margine = 4;  // around the text, in pixels

  /// Text and cells must outlive it.
  VedutaAnteprima(const TestoAnteprima& testo, const Celle& celle, Finestrella finestrella);

  /// The first line to show in a window of that height so that `ultima` is the last one that fits whole.
  static std::size_t PrimaRigaPer(const TestoAnteprima& testo, const Celle& celle, std::size_t ultima,
                                  int altezza);

  const TestoAnteprima& Testo() const { return testo_; }
  QSize Dimensione() const { return finestrella_.Dimensione; }
  /// Of a line in the pane's own look.
  qreal AltezzaRiga() const { return celle_.Altezza({}); }
  /// The left edge of a column, from 0, as wide as a character of the normal size; in the window's
  /// coordinates.
  qreal XDellaColonna(std::size_t colonna) const {
    return XDelTesto() + static_cast<qreal>(colonna) * celle_.Avanzamento({});
  }

  /// Those of which something shows.
  std::vector<std::size_t> Righe() const;
  /// The last line that fits whole; the first one at least.
  std::size_t UltimaRigaIntera() const;

  /// Where the character at a place of the caret is, in the window's coordinates. Estimated for a line that
  /// does not show.
  QRectF RettangoloDi(std::size_t byte) const;
  /// The place of the caret nearest to a point, which may lie outside.
  std::size_t PostoA(QPointF punto) const;
  /// The place whose character covers the point; the line's end behind its last character.
  std::size_t CarattereA(QPointF punto) const;

  /// Draws what lies in `parte`. The background is there already.
  void Disegna(QPainter& pittore, const QRectF& parte, const Selezione& scelto, const QPalette& tavolozza,
               QPalette::ColorGroup gruppo) const;

 private:
  struct RigaVisibile {
    std::size_t Riga = 0;
    qreal Alto = 0;
    AltezzeRiga Altezze;
    qreal Basso() const { return Alto + Altezze.Altezza(); }
  };

  const RigaVisibile& RigaAllAltezza(qreal y) const;
  qreal AltoDi(std::size_t riga) const;
  qreal XDelTesto() const { return Margine - finestrella_.Scorrimento; }
  void DisegnaUnaRiga(QPainter& pittore, const RigaVisibile& riga, const QRectF& parte,
                      const Selezione& scelto, const QPalette& tavolozza, QPalette::ColorGroup gruppo) const;

  const TestoAnteprima& testo_;
  const Celle& celle_;
  Finestrella finestrella_;
  std::vector<RigaVisibile> righe_;  // never empty
};

}  // namespace parvik
