#include "template/txtSegni.h"

#include <QPolygonF>
#include <algorithm>
#include <cstddef>
#include <utility>

namespace parvik {
namespace {

/// A flag hangs from the top of the line, a style stands on its bottom, anything else is in the middle: the
/// place tells the kind, not the colour alone.
QPolygonF Forma(TipoCodice quale, QPointF centro, qreal lato) {
  const qreal mezzo = lato / 2;
  switch (quale) {
    case TipoCodice::Flag:
      return QPolygonF(
          {centro + QPointF(-mezzo, -mezzo), centro + QPointF(mezzo, -mezzo), centro + QPointF(0, mezzo)});
    case TipoCodice::Stile:
      return QPolygonF(QRectF(centro - QPointF(mezzo, mezzo), QSizeF(lato, lato)));
    default:
      return QPolygonF({centro + QPointF(0, -mezzo), centro + QPointF(mezzo, 0), centro + QPointF(0, mezzo),
                        centro + QPointF(-mezzo, 0)});
  }
}

qreal Centro(TipoCodice quale, qreal alto, qreal altezza, qreal lato) {
  if (quale == TipoCodice::Flag) return alto + lato / 2 + 0.5;
  if (quale == TipoCodice::Stile) return alto + altezza - lato / 2 - 0.5;
  return alto + altezza / 2;
}

/// Around the mark and its line alone: what stands on both sides is to be read.
void DisegnaFondo(QPainter& pittore, QPointF centro, qreal lato, std::pair<qreal, qreal> riga,
                  const QColor& colore) {
  constexpr qreal Alone = 2;  // pixels
  const qreal largo = lato + 2 * Alone;
  pittore.fillRect(QRectF(centro.x() - Alone, riga.first, 2 * Alone, riga.second), colore);
  pittore.fillRect(QRectF(centro.x() - largo / 2, centro.y() - largo / 2, largo, largo), colore);
}

void Disegna(QPainter& pittore, const SegnoCodice& segno, qreal x, qreal alto, qreal altezza) {
  const qreal lato = std::max(5.0, altezza / 3);
  const QPointF centro(x, Centro(segno.Quale, alto, altezza, lato));
  if (segno.Fondo.isValid()) DisegnaFondo(pittore, centro, lato, {alto, altezza}, segno.Fondo);
  pittore.setPen(QPen(segno.Tinta, 1));
  pittore.drawLine(QPointF(x, alto), QPointF(x, alto + altezza - 1));
  pittore.setBrush(segno.Mostrato ? QBrush(segno.Tinta) : QBrush(pittore.background().color()));
  pittore.drawPolygon(Forma(segno.Quale, centro, lato));
}

}  // namespace

void DisegnaSegni(QPainter& pittore, const std::vector<SegnoCodice>& segni, qreal alto, qreal altezza) {
  pittore.save();
  pittore.setRenderHint(QPainter::Antialiasing);
  const qreal passo = std::max(5.0, altezza / 3) + 1;
  for (std::size_t i = 0; i < segni.size();) {
    std::size_t fine = i;
    while (fine < segni.size() && segni[fine].X == segni[i].X) ++fine;
    qreal inizio = segni[i].X - passo * static_cast<qreal>(fine - i - 1) / 2;
    if (segni[i].X >= 0) inizio = std::max(inizio, passo / 2);  // whole, at the left edge too
    for (std::size_t quale = i; quale < fine; ++quale)
      Disegna(pittore, segni[quale], inizio + passo * static_cast<qreal>(quale - i), alto, altezza);
    i = fine;
  }
  pittore.restore();
}

}  // namespace parvik
