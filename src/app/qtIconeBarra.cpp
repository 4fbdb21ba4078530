#include "app/qtIconeBarra.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <algorithm>
#include <array>

namespace parvik {
namespace {

constexpr qreal Lato = 24;  // of the drawings' own units

void Cartella(QPainter& penna) {
  QPainterPath cartella(QPointF(3, 19));
  for (const QPointF punto : {QPointF(3, 5), QPointF(9, 5), QPointF(11, 8), QPointF(20, 8), QPointF(20, 11)})
    cartella.lineTo(punto);
  penna.drawPath(cartella);
  penna.drawPolygon(QPolygonF({QPointF(3, 19), QPointF(6, 11), QPointF(22, 11), QPointF(19, 19)}));
}

void Dischetto(QPainter& penna) {
  penna.drawPolygon(
      QPolygonF({QPointF(4, 4), QPointF(17, 4), QPointF(20, 7), QPointF(20, 20), QPointF(4, 20)}));
  penna.drawRect(QRectF(8, 13, 8, 7));
  penna.drawRect(QRectF(8, 4, 7, 5));
}

void Stampante(QPainter& penna) {
  penna.drawRect(QRectF(7, 3, 10, 6));
  penna.drawRoundedRect(QRectF(3, 9, 18, 8), 1.5, 1.5);
  penna.drawRect(QRectF(7, 14, 10, 7));
}

void Freccia(QPainter& penna) {
  QPainterPath freccia(QPointF(5, 9));
  freccia.lineTo(14, 9);
  freccia.cubicTo(21, 9, 21, 19, 14, 19);
  freccia.lineTo(9, 19);
  penna.drawPath(freccia);
  penna.drawPolyline(QPolygonF({QPointF(9, 5), QPointF(5, 9), QPointF(9, 13)}));
}

void FrecciaIndietro(QPainter& penna) {
  penna.translate(Lato, 0);
  penna.scale(-1, 1);
  Freccia(penna);
}

void Lente(QPainter& penna) {
  penna.drawEllipse(QPointF(10, 10), 6, 6);
  penna.drawLine(QPointF(14.5, 14.5), QPointF(20, 20));
}

void Pagina(QPainter& penna) {
  penna.drawRect(QRectF(5, 3, 14, 18));
  for (const qreal y : {8, 12, 16}) penna.drawLine(QPointF(8, y), QPointF(16, y));
}

void Misura(QPainter& penna) {
  penna.drawRect(QRectF(2, 8, 20, 8));
  for (const qreal x : {6, 10, 14, 18}) penna.drawLine(QPointF(x, 8), QPointF(x, 12));
}

void Spunta(QPainter& penna) {
  penna.drawRect(QRectF(4, 4, 16, 16));
  penna.drawPolyline(QPolygonF({QPointF(8, 12), QPointF(11, 15), QPointF(16, 8)}));
}

struct Immagine {
  Comando Di;
  const char* Nome;  // the desktop's
  void (*Disegna)(QPainter& penna);
};

constexpr std::array Immagini = {
    Immagine{Comando::Apri, "document-open", Cartella},
    Immagine{Comando::Salva, "document-save", Dischetto},
    Immagine{Comando::Stampa, "document-print", Stampante},
    Immagine{Comando::Annulla, "edit-undo", Freccia},
    Immagine{Comando::Ripeti, "edit-redo", FrecciaIndietro},
    Immagine{Comando::Trova, "edit-find", Lente},
    Immagine{Comando::Anteprima, "document-print-preview", Pagina},
    Immagine{Comando::Misura, "", Misura},
    Immagine{Comando::Verifica, "tools-check-spelling", Spunta},
};

/// Draws in the palette's colour of text, in any size.
class MotoreDisegno final : public QIconEngine {
 public:
  explicit MotoreDisegno(void (*disegna)(QPainter& penna)) : disegna_(disegna) {}

  void paint(QPainter* penna, const QRect& dove, QIcon::Mode modo, QIcon::State /*stato*/) override {
    const auto gruppo = modo == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const qreal scala = std::min(dove.width(), dove.height()) / Lato;
    penna->save();
    penna->setRenderHint(QPainter::Antialiasing);
    penna->translate(dove.topLeft());
    penna->scale(scala, scala);
    constexpr qreal Tratto = 1.6;
    penna->setPen(QPen(QGuiApplication::palette().color(gruppo, QPalette::WindowText), Tratto, Qt::SolidLine,
                       Qt::RoundCap, Qt::RoundJoin));
    disegna_(*penna);
    penna->restore();
  }
  QPixmap pixmap(const QSize& grandezza, QIcon::Mode modo, QIcon::State stato) override {
    QPixmap immagine(grandezza);
    immagine.fill(Qt::transparent);
    QPainter penna(&immagine);
    paint(&penna, QRect(QPoint(), grandezza), modo, stato);
    return immagine;
  }
  QIconEngine* clone() const override { return new MotoreDisegno(*this); }

 private:
  void (*disegna_)(QPainter& penna);
};

}  // namespace

QIcon IconaDi(Comando comando) {
  const auto* const immagine = std::ranges::find(Immagini, comando, &Immagine::Di);
  if (immagine == Immagini.end()) return {};
  const QIcon disegnata(new MotoreDisegno(immagine->Disegna));
  return QIcon::fromTheme(immagine->Nome, disegnata);
}

}  // namespace parvik
