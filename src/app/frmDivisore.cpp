#include "app/frmDivisore.h"

#include <QApplication>
#include <QMouseEvent>
#include <cmath>

namespace parvik {
namespace {

bool PuntatoreDivide() {
  const QCursor* puntatore = QApplication::overrideCursor();
  return puntatore != nullptr && puntatore->shape() == Qt::SizeHorCursor;
}

void MostraPuntatore() {
  if (!PuntatoreDivide()) QApplication::setOverrideCursor(Qt::SizeHorCursor);
}

void RipristinaPuntatore() {
  if (PuntatoreDivide()) QApplication::restoreOverrideCursor();
}

/// The pixel that a point lies in.
QPoint Pixel(const QPointF& punto) {
  return {static_cast<int>(std::floor(punto.x())), static_cast<int>(std::floor(punto.y()))};
}

void OsservaConVista(QAbstractScrollArea& area, QObject& osservatore) {
  for (QWidget* parte : {static_cast<QWidget*>(&area), area.viewport()}) {
    parte->setMouseTracking(true);
    parte->installEventFilter(&osservatore);
  }
}

}  // namespace

frmDivisore::frmDivisore(QAbstractScrollArea* pannello, QObject* padre)
    : QObject(padre), pannello_(pannello) {
  OsservaConVista(*pannello, *this);
}

void frmDivisore::Osserva(QAbstractScrollArea* sezione) {
  OsservaConVista(*sezione, *this);
}

void frmDivisore::Osserva(QLabel* etichetta) {
  etichetta->setMouseTracking(true);
  etichetta->installEventFilter(this);
}

bool frmDivisore::SulPannello(QObject* oggetto) const {
  return oggetto == pannello_ || oggetto == pannello_->viewport();
}

/// Events of a drag are eaten: they select no text.
bool frmDivisore::eventFilter(QObject* oggetto, QEvent* evento) {
  switch (evento->type()) {
    case QEvent::MouseMove:
      return Muovi(oggetto, static_cast<const QMouseEvent&>(*evento));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return PuntatoreDivide();
    case QEvent::MouseButtonRelease: {
      if (!PuntatoreDivide()) return false;
      if (static_cast<const QMouseEvent*>(evento)->button() == Qt::LeftButton) RipristinaPuntatore();
      return true;
    }
    case QEvent::Leave:
      if (oggetto == pannello_ && QApplication::mouseButtons() == Qt::NoButton) RipristinaPuntatore();
      return false;
    default:
      return false;
  }
}

bool frmDivisore::Muovi(QObject* oggetto, const QMouseEvent& evento) {
  const bool premuto = evento.buttons().testFlag(Qt::LeftButton);
  if (PuntatoreDivide() && premuto && qobject_cast<QLabel*>(oggetto) == nullptr) {
    emit Spostato(pannello_->parentWidget()->mapFromGlobal(Pixel(evento.globalPosition())).x());
    return true;
  }
  if (SulPannello(oggetto) && evento.buttons() == Qt::NoButton && SulBordo(evento)) {
    MostraPuntatore();
  } else {
    RipristinaPuntatore();
  }
  return false;
}

bool frmDivisore::SulBordo(const QMouseEvent& evento) const {
  const QPoint punto = pannello_->mapFromGlobal(Pixel(evento.globalPosition()));
  return punto.x() == 0 && punto.y() != 0;
}

}  // namespace parvik
