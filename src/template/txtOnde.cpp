#include "template/txtOnde.h"

#include <QPalette>
#include <QPolygonF>
#include <QTextBlock>
#include <algorithm>

#include "common/qtTinte.h"
#include "template/txtRigaDisposta.h"

namespace parvik {
namespace {

constexpr qreal Ampiezza = 2;         // pixels, from one turn to the next, both ways
constexpr qreal LarghezzaMinima = 8;  // of what takes no room itself

// Three to one at least on what they are drawn on.
constexpr QRgb RossoSuChiaro = 0xFFC8102E;
constexpr QRgb RossoSuScuro = 0xFFFF6B6B;
constexpr QRgb AmbraSuChiaro = 0xFF9A6400;
constexpr QRgb AmbraSuScuro = 0xFFFFB347;

QPen Penna(bool errore, const QPalette& tavolozza) {
  const bool chiaro = Estremo(tavolozza.color(QPalette::Base).rgb()) == Nero;
  if (errore) return {QColor(chiaro ? RossoSuChiaro : RossoSuScuro), 1};
  QPen penna(QColor(chiaro ? AmbraSuChiaro : AmbraSuScuro), 1);
  penna.setDashPattern({6, 3});
  return penna;
}

QPolygonF Onda(qreal sinistra, qreal destra, qreal basso) {
  QPolygonF onda;
  bool alto = false;
  for (qreal x = sinistra; x <= destra; x += Ampiezza, alto = !alto)
    onda += QPointF(x, alto ? basso - Ampiezza : basso);
  return onda;
}

}  // namespace

void DisegnaOnde(QPainter& pittore, const QTextBlock& riga, QPointF dove, const LettoreOnde& onde,
                 const txtSpecchio& specchio, const QPalette& tavolozza) {
  const auto disposta = txtRigaDisposta::Di(riga, dove, specchio);
  if (!disposta) return;
  const qreal basso = disposta->Basso() - 0.5;
  pittore.save();
  pittore.setBrush(Qt::NoBrush);
  pittore.setRenderHint(QPainter::Antialiasing);
  const Selezione& byte = disposta->Byte();
  for (const OndaTesto& onda : onde({.Inizio = byte.Inizio, .Lunghezza = byte.Lunghezza + 1})) {
    const qreal sinistra = disposta->X(onda.Parte.Inizio);
    const qreal destra = std::max(disposta->X(onda.Parte.Fine()), sinistra + LarghezzaMinima);
    pittore.setPen(Penna(onda.Errore, tavolozza));
    pittore.drawPolyline(Onda(sinistra, destra, basso));
  }
  pittore.restore();
}

}  // namespace parvik
