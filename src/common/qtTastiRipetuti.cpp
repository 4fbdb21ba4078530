#include "common/qtTastiRipetuti.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace parvik {

qtTastiRipetuti::qtTastiRipetuti(QObject* padre) : QObject(padre) {
  qApp->installEventFilter(this);
}

bool qtTastiRipetuti::eventFilter(QObject* oggetto, QEvent* evento) {
  switch (evento->type()) {
    case QEvent::WindowActivate:
      if (!oggetto->isWidgetType() || !static_cast<QWidget*>(oggetto)->isWindow()) return false;
      // In front again: the toolkit's link to assistive technologies, which begins when it is asked for,
      // takes the keys away and brings them back without their time.
      QMetaObject::invokeMethod(
          this, [this] { qApp->installEventFilter(this); }, Qt::QueuedConnection);
      return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
      break;
    default:
      return false;
  }
  auto& tasto = static_cast<QKeyEvent&>(*evento);
  if (oggetto->isWindowType()) Osserva(tasto);
  return oggetto->isWidgetType() && Correggi(*oggetto, tasto);
}

void qtTastiRipetuti::Osserva(const QKeyEvent& tasto) {
  if (tasto.timestamp() == 0) return;
  if (tasto.type() == QEvent::KeyRelease) {
    rilascio_ = {.Tasto = tasto.key(), .Quando = tasto.timestamp()};
    return;
  }
  const bool subito = rilascio_.Tasto == tasto.key() && rilascio_.Quando == tasto.timestamp();
  ripetuto_ = tasto.isAutoRepeat() || subito ? tasto.key() : 0;
}

bool qtTastiRipetuti::Correggi(QObject& oggetto, QKeyEvent& tasto) const {
  if (tasto.type() == QEvent::KeyRelease || tasto.isAutoRepeat() || tasto.key() != ripetuto_) return false;
  QKeyEvent vero(tasto.type(), tasto.key(), tasto.modifiers(), tasto.nativeScanCode(),
                 tasto.nativeVirtualKey(), tasto.nativeModifiers(), tasto.text(), true);
  vero.setTimestamp(tasto.timestamp());
  vero.setAccepted(tasto.isAccepted());
  QCoreApplication::sendEvent(&oggetto, &vero);
  tasto.setAccepted(vero.isAccepted());
  return true;
}

}  // namespace parvik
