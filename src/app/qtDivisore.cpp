#include "app/qtDivisore.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <cmath>
#include <functional>
#include <utility>

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

/// Sees the program's keys before their receivers do, and keeps Escape from them while the pointer sizes.
class FiltroFuga final : public QObject {
 public:
  explicit FiltroFuga(std::function<void()> rinuncia) : rinuncia_(std::move(rinuncia)) {
    QCoreApplication::instance()->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*oggetto*/, QEvent* evento) override {
    const bool premuto = evento->type() == QEvent::KeyPress;
    if (!premuto && evento->type() != QEvent::ShortcutOverride) return false;
    if (static_cast<const QKeyEvent*>(evento)->key() != Qt::Key_Escape || !PuntatoreDivide()) return false;
    evento->accept();
    if (premuto) rinuncia_();
    return true;
  }

 private:
  std::function<void()> rinuncia_;
};

void OsservaConVista(QAbstractScrollArea& area, QObject& osservatore) {
  for (QWidget* parte : {static_cast<QWidget*>(&area), area.viewport()}) {
    parte->setMouseTracking(true);
    parte->installEventFilter(&osservatore);
  }
}

}  // namespace

qtDivisore::qtDivisore(QAbstractScrollArea* pannello, QObject* padre) : QObject(padre), pannello_(pannello) {
  OsservaConVista(*pannello, *this);
}

void qtDivisore::Osserva(QAbstractScrollArea* sezione) {
  OsservaConVista(*sezione, *this);
}

void qtDivisore::Osserva(QLabel* etichetta) {
  etichetta->setMouseTracking(true);
  etichetta->installEventFilter(this);
}

bool qtDivisore::SulPannello(QObject* oggetto) const {
  return oggetto == pannello_ || oggetto == pannello_->viewport();
}

/// Events of a drag are eaten: they select no text.
bool qtDivisore::eventFilter(QObject* oggetto, QEvent* evento) {
  switch (evento->type()) {
    case QEvent::MouseMove:
      return Muovi(oggetto, static_cast<const QMouseEvent&>(*evento));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return Premi(oggetto, static_cast<const QMouseEvent&>(*evento));
    case QEvent::MouseButtonRelease:
      return Rilascia(static_cast<const QMouseEvent&>(*evento));
    case QEvent::Leave:
      if (oggetto == pannello_ && QApplication::mouseButtons() == Qt::NoButton) RipristinaPuntatore();
      return false;
    case QEvent::Hide:
      if (oggetto == pannello_) Finisci();
      return false;
    default:
      return false;
  }
}

/// On the edge also when the pointer does not size: after a drag it is the ordinary one until the mouse
/// moves.
bool qtDivisore::Premi(QObject* oggetto, const QMouseEvent& evento) {
  const bool inizia = evento.button() == Qt::LeftButton && evento.buttons() == Qt::LeftButton &&
                      (PuntatoreDivide() || (SulPannello(oggetto) && SulBordo(evento)));
  if (inizia) {
    MostraPuntatore();
    larghezza_ = pannello_->width();
    fuga_ = std::make_unique<FiltroFuga>([this] { Rinuncia(); });
  }
  return PuntatoreDivide();
}

bool qtDivisore::Muovi(QObject* oggetto, const QMouseEvent& evento) {
  const bool premuto = evento.buttons().testFlag(Qt::LeftButton);
  if (!premuto) fuga_.reset();
  if (PuntatoreDivide() && premuto && qobject_cast<QLabel*>(oggetto) == nullptr) {
    emit Spostato(Posizione(evento));
    return true;
  }
  if (SulPannello(oggetto) && evento.buttons() == Qt::NoButton && SulBordo(evento)) {
    MostraPuntatore();
  } else {
    RipristinaPuntatore();
  }
  return fuga_ != nullptr;
}

bool qtDivisore::Rilascia(const QMouseEvent& evento) {
  if (!PuntatoreDivide() && fuga_ == nullptr) return false;
  if (evento.button() == Qt::LeftButton) Finisci();
  return true;
}

/// The pane's right edge has stayed where it was.
void qtDivisore::Rinuncia() {
  RipristinaPuntatore();
  emit Spostato(pannello_->geometry().right() + 1 - larghezza_);
}

void qtDivisore::Finisci() {
  RipristinaPuntatore();
  fuga_.reset();
}

/// In the pane's parent.
int qtDivisore::Posizione(const QMouseEvent& evento) const {
  return pannello_->parentWidget()->mapFromGlobal(Pixel(evento.globalPosition())).x();
}

bool qtDivisore::SulBordo(const QMouseEvent& evento) const {
  const QPoint punto = pannello_->mapFromGlobal(Pixel(evento.globalPosition()));
  return punto.x() == 0 && punto.y() != 0;
}

}  // namespace parvik
