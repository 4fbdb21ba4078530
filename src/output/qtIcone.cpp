#include "output/qtIcone.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace parvik {
namespace {

constexpr int Lato = 48;
constexpr qreal SpessoreTratto = 2;
const QColor Carta(0xFF, 0xFF, 0xFF);
const QColor Scrittura(0x5A, 0x6B, 0x8C);
const QColor Macchina(0xC8, 0xD0, 0xDE);
const QColor Accento(0xC2, 0x40, 0x2E);

/// Lines of writing, in units of the picture.
void Scrivi(QPainter& penna, qreal sinistra, qreal alto, std::initializer_list<qreal> lunghezze) {
  constexpr qreal Interlinea = 5;
  for (const qreal lunghezza : lunghezze) {
    penna.drawLine(QPointF(sinistra, alto), QPointF(sinistra + lunghezza, alto));
    alto += Interlinea;
  }
}

void DisegnaStampante(QPainter& penna) {
  penna.setBrush(Carta);
  penna.drawRect(QRectF(14, 5, 20, 15));
  penna.setBrush(Macchina);
  penna.drawRoundedRect(QRectF(5, 18, 38, 17), 3, 3);
  penna.setBrush(Carta);
  penna.drawRect(QRectF(12, 28, 24, 15));
  Scrivi(penna, 16, 33, {16, 11});
  penna.setPen(Qt::NoPen);
  penna.setBrush(Accento);
  penna.drawEllipse(QPointF(37, 23), 2, 2);
}

void DisegnaFile(QPainter& penna) {
  QPainterPath foglio(QPointF(11, 4));
  foglio.lineTo(29, 4);
  foglio.lineTo(38, 13);
  foglio.lineTo(38, 44);
  foglio.lineTo(11, 44);
  foglio.closeSubpath();
  penna.setBrush(Carta);
  penna.drawPath(foglio);
  penna.setBrush(Macchina);
  penna.drawPolygon(QPolygonF({QPointF(29, 4), QPointF(29, 13), QPointF(38, 13)}));
  Scrivi(penna, 16, 20, {17, 12, 17, 9});
}

void DisegnaAnteprima(QPainter& penna) {
  penna.setBrush(Carta);
  penna.drawRect(QRectF(6, 4, 26, 36));
  Scrivi(penna, 11, 11, {16, 11, 16});
  penna.setBrush(Macchina);
  penna.setPen(QPen(Accento, 3, Qt::SolidLine, Qt::RoundCap));
  penna.drawLine(QPointF(35, 37), QPointF(42, 44));
  penna.drawEllipse(QPointF(29, 31), 8.5, 8.5);
}

}  // namespace

QPixmap IconaDestinazione(Destinazione destinazione, const QPalette& colori, qreal rapporto) {
  const int pixel = static_cast<int>(std::lround(Lato * rapporto));
  QPixmap immagine(pixel, pixel);
  immagine.setDevicePixelRatio(rapporto);
  immagine.fill(Qt::transparent);
  QPainter penna(&immagine);
  penna.setRenderHint(QPainter::Antialiasing);
  const bool scuro =
      colori.color(QPalette::Window).lightness() < colori.color(QPalette::WindowText).lightness();
  penna.setPen(QPen(scuro ? Scrittura.lighter() : Scrittura, SpessoreTratto, Qt::SolidLine, Qt::RoundCap,
                    Qt::RoundJoin));
  switch (destinazione) {
    case Destinazione::Stampante:
      DisegnaStampante(penna);
      break;
    case Destinazione::File:
      DisegnaFile(penna);
      break;
    case Destinazione::Anteprima:
      DisegnaAnteprima(penna);
      break;
  }
  return immagine;
}

}  // namespace parvik
