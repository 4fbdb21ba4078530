#include "output/ricLampeggio.h"

#include <QGuiApplication>
#include <QStyleHints>
#include <QTimerEvent>

namespace parvik {

void ricLampeggio::Accendi() {
  acceso_ = true;
  const int periodo = QGuiApplication::styleHints()->cursorFlashTime();
  if (periodo > 1) orologio_.start(periodo / 2, this);  // a shorter one: it does not blink
}

void ricLampeggio::Spegni() {
  orologio_.stop();
  acceso_ = false;
}

void ricLampeggio::timerEvent(QTimerEvent* evento) {
  if (evento->timerId() != orologio_.timerId()) return;
  acceso_ = !acceso_;
  emit Cambiato();
}

}  // namespace parvik
