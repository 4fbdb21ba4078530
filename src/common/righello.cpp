#include "common/righello.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <utility>

namespace parvik {
namespace {

constexpr int OgniSegno = 5;
constexpr int OgniNumero = 10;
constexpr int Margine = 2;  // pixels above and below the numbers

/// "Guide alle colonne 5, 25", for those who do not see them.
QString Descritte(const std::vector<std::size_t>& guide) {
  QStringList numeri;
  for (const std::size_t colonna : guide) numeri += QString::number(colonna + 1);
  return numeri.isEmpty() ? QString()
                          : QStringLiteral("Guide alle colonne ") + numeri.join(QStringLiteral(", "));
}

}  // namespace

righello::righello(const QString& nome, const QString& nomeAccessibile, QAbstractScrollArea& scatola,
                   Griglia griglia)
    : QWidget(&scatola), scatola_(scatola), griglia_(std::move(griglia)) {
  setObjectName(nome);
  setAccessibleName(nomeAccessibile);
  setCursor(Qt::ArrowCursor);
  setToolTip(QStringLiteral("Un clic mette una guida a quella colonna, un altro la toglie"));
  scatola.viewport()->installEventFilter(this);
  connect(scatola.horizontalScrollBar(), &QScrollBar::valueChanged, this, qOverload<>(&QWidget::update));
}

int righello::Altezza() const {
  return fontMetrics().height() + 2 * Margine;
}

void righello::ImpostaGuide(std::vector<std::size_t> guide) {
  guide_ = std::move(guide);
  setAccessibleDescription(Descritte(guide_));
  update();
}

void righello::DisegnaGuide(QPainter& pittore) const {
  DisegnaGuide(pittore, palette().color(QPalette::Highlight), scatola_.viewport()->height());
}

void righello::DisegnaGuide(QPainter& pittore, const QColor& colore, int altezza) const {
  const GrigliaColonne griglia = griglia_();
  pittore.setPen(colore);
  for (const std::size_t colonna : guide_) {
    const qreal x = std::floor(griglia.Sinistra(colonna)) + 0.5;
    pittore.drawLine(QPointF(x, 0), QPointF(x, altezza));
  }
}

bool righello::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::Resize || evento->type() == QEvent::Move) Colloca();
  return QWidget::eventFilter(oggetto, evento);
}

/// Above the viewport, as wide as it.
void righello::Colloca() {
  const QRect vista = scatola_.viewport()->geometry();
  setGeometry(vista.x(), vista.y() - Altezza(), vista.width(), Altezza());
}

void righello::paintEvent(QPaintEvent* /*evento*/) {
  QPainter pittore(this);
  const GrigliaColonne griglia = griglia_();
  pittore.fillRect(rect(), palette().color(QPalette::Window));
  DisegnaColonne(pittore, griglia, palette().color(QPalette::WindowText));
  const qreal cursore = std::round((griglia.Cursore - griglia.Origine) / griglia.Cella);
  const QRectF qui(griglia.Origine + cursore * griglia.Cella, 0, std::max(griglia.Cella, 2.0), height());
  pittore.fillRect(qui, palette().color(QPalette::Highlight));
  pittore.setClipRect(qui);  // what stands there once more, to be read on the highlight
  DisegnaColonne(pittore, griglia, palette().color(QPalette::HighlightedText));
  pittore.setClipping(false);
  DisegnaGuide(pittore, palette().color(QPalette::WindowText), height());
  pittore.drawLine(0, height() - 1, width(), height() - 1);
}

/// Numbers and marks, each in the middle of its column.
void righello::DisegnaColonne(QPainter& pittore, const GrigliaColonne& griglia, const QColor& colore) const {
  pittore.setPen(colore);
  const auto prima =
      static_cast<int>(std::max(0.0, -griglia.Origine / griglia.Cella)) / OgniSegno * OgniSegno;
  for (int colonna = std::max(prima, OgniSegno);; colonna += OgniSegno) {
    const qreal centro = griglia.Origine + (colonna - 0.5) * griglia.Cella;
    if (centro > width() + OgniSegno * griglia.Cella) return;
    if (colonna % OgniNumero == 0) {
      const qreal meta = OgniSegno * griglia.Cella;
      pittore.drawText(QRectF(centro - meta, 0, 2 * meta, height()), Qt::AlignCenter,
                       QString::number(colonna));
    } else {
      const qreal x = std::floor(centro) + 0.5;
      pittore.drawLine(QPointF(x, height() / 2.0), QPointF(x, height() - 1));
    }
  }
}

void righello::mousePressEvent(QMouseEvent* evento) {
  const GrigliaColonne griglia = griglia_();
  const qreal colonna = std::floor((evento->position().x() - griglia.Origine) / griglia.Cella);
  if (evento->button() == Qt::LeftButton && colonna >= 0) emit Cliccata(static_cast<std::size_t>(colonna));
}

}  // namespace parvik
