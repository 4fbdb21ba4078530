#include "common/qtPulsanti.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

namespace parvik {
namespace {

constexpr int MargineFuoco = 3;  // pixels, from a button's edge to the mark inside it

bool EInvio(const QKeyEvent& tasto) {
  return tasto.key() == Qt::Key_Return || tasto.key() == Qt::Key_Enter;
}

/// Held down it acts once, and with Control or the like it is another key, which nothing here knows.
bool Agisce(const QKeyEvent& invio) {
  return !invio.isAutoRepeat() && (invio.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

/// The style draws a default button the same with the focus and without.
void DisegnaFuoco(QPushButton& pulsante) {
  QPainter pennello(&pulsante);
  pennello.setPen(QPen(pulsante.palette().color(QPalette::ButtonText), 1, Qt::DotLine));
  pennello.drawRect(
      pulsante.rect().adjusted(MargineFuoco, MargineFuoco, -MargineFuoco - 1, -MargineFuoco - 1));
}

}  // namespace

qtPulsanti::qtPulsanti(QDialog& dialogo) : dialogo_(dialogo) {
  dialogo.installEventFilter(this);
}

void qtPulsanti::ImpostaOkPredefinito(bool predefinito) {
  okPredefinito_ = predefinito;
  SegnaPredefinito();
}

bool qtPulsanti::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::Polish && oggetto == &dialogo_) Prepara();
  if (evento->type() == QEvent::FocusIn) SegnaPredefinito();
  if (evento->type() == QEvent::KeyPress) return Premi(*oggetto, *static_cast<QKeyEvent*>(evento));
  auto* pulsante = qobject_cast<QPushButton*>(oggetto);
  if (evento->type() == QEvent::Paint && pulsante != nullptr && pulsante->hasFocus()) {
    oggetto->event(evento);
    DisegnaFuoco(*pulsante);
    return true;
  }
  return QObject::eventFilter(oggetto, evento);
}

/// The controls are filtered, not the dialog alone: on some desktops Enter would toggle a check.
void qtPulsanti::Prepara() {
  for (QWidget* controllo : dialogo_.findChildren<QWidget*>()) controllo->installEventFilter(this);
  SegnaPredefinito();
}

/// Without those of a dialog that stands in front of this one.
QList<QPushButton*> qtPulsanti::Pulsanti() const {
  auto pulsanti = dialogo_.findChildren<QPushButton*>();
  pulsanti.removeIf([this](const QPushButton* pulsante) { return pulsante->window() != &dialogo_; });
  return pulsanti;
}

QPushButton* qtPulsanti::Ok() {
  if (ok_ != nullptr) return ok_;
  const auto pulsanti = Pulsanti();
  const auto ok = std::ranges::find_if(pulsanti, &QPushButton::isDefault);
  if (ok != pulsanti.end()) ok_ = *ok;
  return ok_;
}

QPushButton* qtPulsanti::PulsanteDi(const QWidget* controllo) {
  for (QPushButton* pulsante : Pulsanti()) {
    if (pulsante == controllo) return pulsante;
  }
  QPushButton* ok = okPredefinito_ ? Ok() : nullptr;
  return propri_.value(controllo, ok);
}

/// The toolkit must not move the default on its own: it would give it back to OK when the focus leaves a
/// button.
void qtPulsanti::SegnaPredefinito() {
  static_cast<void>(Ok());  // before it loses the mark that it is known by
  const QPushButton* predefinito = PulsanteDi(dialogo_.focusWidget());
  for (QPushButton* pulsante : Pulsanti()) {
    pulsante->setAutoDefault(false);
    pulsante->setDefault(pulsante == predefinito);
  }
}

bool qtPulsanti::Premi(const QObject& oggetto, QKeyEvent& tasto) {
  if (!EInvio(tasto)) return false;
  tasto.accept();
  if (!Agisce(tasto)) return true;
  const auto* controllo = qobject_cast<const QWidget*>(&oggetto);
  QPushButton* pulsante = PulsanteDi(controllo == &dialogo_ ? dialogo_.focusWidget() : controllo);
  if (pulsante != nullptr) pulsante->click();
  return true;
}

}  // namespace parvik
