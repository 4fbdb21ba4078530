#include "app/lblTCP.h"

#include <QFontDatabase>
#include <QPainter>
#include <array>

namespace parvik {
namespace {

constexpr std::array<const char*, MaxSezioni> Didascalie = {"T e s t a t a", "C o r p o", "P i e d e"};
constexpr int Margine = 3;  // pixels, on each side of the letters
constexpr int Barra = 2;    // pixels, in the left margin
const QColor RossoAttiva(255, 0, 0);

}  // namespace

lblTCP::lblTCP(Sezione sezione, QWidget* padre) : QLabel(Didascalie[Indice(sezione)], padre) {
  setObjectName(QStringLiteral("lblTCP_%1").arg(Indice(sezione)));
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setWordWrap(true);
  setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  hide();
}

/// A fixed-pitch font makes the spaced caption wrap after every letter.
void lblTCP::Misura() {
  const int larghezza = fontMetrics().horizontalAdvance('M') + 2 * Margine;
  resize(larghezza, heightForWidth(larghezza));
}

void lblTCP::Attiva(bool attiva) {
  attiva_ = attiva;
  QPalette colori;  // all else is the window's, whatever palette comes
  if (attiva) colori.setColor(QPalette::WindowText, RossoAttiva);
  setPalette(colori);
  update();
}

void lblTCP::paintEvent(QPaintEvent* evento) {
  QLabel::paintEvent(evento);
  if (!attiva_) return;
  QPainter pennello(this);
  pennello.fillRect(0, 0, Barra, height(), parentWidget()->palette().color(QPalette::WindowText));
}

}  // namespace parvik
