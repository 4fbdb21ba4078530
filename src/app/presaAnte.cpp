#include "app/presaAnte.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace parvik {
namespace {

constexpr int Punti = 9;  // of the grip's middle
constexpr int FraPunti = 5;

QAccessibleInterface* Crea(const QString& classe, QObject* oggetto) {
  if (classe != presaAnte::staticMetaObject.className()) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(oggetto), QAccessible::Splitter);  // the toolkit owns it
}

}  // namespace

presaAnte::presaAnte(QWidget* padre) : QWidget(padre) {
  QAccessible::installFactory(Crea);
  setObjectName("presaAnte");
  setAccessibleName("Divisore anteprima");
  setToolTip(QStringLiteral("Trascinare per dividere la finestra (Alt+Maiusc+freccia sinistra o destra)"));
  setCursor(Qt::SplitHCursor);
}

void presaAnte::paintEvent(QPaintEvent* /*evento*/) {
  QPainter pittore(this);
  pittore.fillRect(rect(), palette().color(QPalette::Window));
  pittore.setPen(palette().color(QPalette::Mid));
  pittore.drawLine(0, 0, 0, height());
  pittore.drawLine(width() - 1, 0, width() - 1, height());
  const int primo = height() / 2 - Punti / 2 * FraPunti;
  for (int i = 0; i < Punti; ++i)
    pittore.fillRect(width() / 2 - 1, primo + i * FraPunti, 2, 2, palette().color(QPalette::WindowText));
}

void presaAnte::mousePressEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return evento->ignore();
  presa_ = {.DalBordo = width() - evento->pos().x(), .Prima = x() + width()};
  grabKeyboard();  // for Escape
}

void presaAnte::mouseMoveEvent(QMouseEvent* evento) {
  if (presa_) emit Spostata(mapToParent(evento->pos()).x() + presa_->DalBordo);
}

void presaAnte::mouseReleaseEvent(QMouseEvent* evento) {
  if (evento->button() == Qt::LeftButton) Lascia();
}

/// Escape gives the drag up: the boundary goes back to where it was. No other key does anything meanwhile.
void presaAnte::keyPressEvent(QKeyEvent* evento) {
  if (!presa_ || evento->key() != Qt::Key_Escape) return;
  const int prima = presa_->Prima;
  Lascia();
  emit Spostata(prima);
}

void presaAnte::hideEvent(QHideEvent* evento) {
  Lascia();
  QWidget::hideEvent(evento);
}

void presaAnte::Lascia() {
  if (presa_) releaseKeyboard();
  presa_.reset();
}

}  // namespace parvik
