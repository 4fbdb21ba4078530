#include "common/qtTastiInCoda.h"

#include <QApplication>
#include <QKeyEvent>

namespace parvik {
namespace {

constexpr quint64 UnMinuto = 60'000;  // milliseconds

/// What a key becomes on its way to a widget.
bool VieneDaUnTasto(const QEvent& evento) {
  switch (evento.type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
      return true;
    default:
      return false;
  }
}

/// The window that a widget belongs to. Menus and lists that drop down belong to the one below them, which
/// not all of them know: then it is the active one.
QWidget* FinestraDi(const QWidget& widget) {
  QWidget* finestra = widget.window();
  while (finestra->windowType() == Qt::Popup) {
    const QWidget* sotto = finestra->parentWidget();
    if (sotto == nullptr) sotto = QApplication::activeWindow();
    if (sotto == nullptr || sotto->window() == finestra) break;
    finestra = sotto->window();
  }
  return finestra;
}

/// Whether a window lies behind a modal one.
bool Bloccata(const QWidget* finestra) {
  const QWidget* modale = QApplication::activeModalWidget();
  while (finestra != nullptr && finestra != modale) finestra = finestra->parentWidget();
  return modale != nullptr && finestra == nullptr;
}

}  // namespace

qtTastiInCoda::qtTastiInCoda(QObject* padre) : QObject(padre) {
  qApp->installEventFilter(this);
}

bool qtTastiInCoda::eventFilter(QObject* oggetto, QEvent* evento) {
  if (!oggetto->isWidgetType()) return false;
  auto& widget = static_cast<QWidget&>(*oggetto);
  if (!VieneDaUnTasto(*evento)) {
    if (widget.isWindow()) Segui(widget, evento->type());
    return false;
  }
  if (!Scarta(widget, *evento)) return false;
  evento->accept();  // no shortcut is looked for either
  return true;
}

void qtTastiInCoda::Segui(QWidget& finestra, QEvent::Type evento) {
  if (evento == QEvent::Show && finestra.isModal()) apertura_ = {.Finestra = &finestra};
  if (&finestra != apertura_.Finestra || (apertura_.Attiva && apertura_.Dipinta)) return;
  if (evento == QEvent::WindowActivate) apertura_.Attiva = true;
  if (evento == QEvent::Paint) apertura_.Dipinta = true;
  if (apertura_.Attiva && apertura_.Dipinta) apertura_.Visibile = Adesso();
}

bool qtTastiInCoda::Scarta(const QWidget& destinazione, const QEvent& evento) {
  QWidget& finestra = *FinestraDi(destinazione);
  const bool tasto = evento.type() == QEvent::KeyPress || evento.type() == QEvent::ShortcutOverride;
  if (tasto) return ScartaTasto(finestra, static_cast<const QKeyEvent&>(evento));
  return InArrivo(finestra);
}

bool qtTastiInCoda::ScartaTasto(QWidget& finestra, const QKeyEvent& tasto) {
  const bool vecchio = Precede(tasto);
  if (tasto.isAutoRepeat()) return premuto_ != &finestra || InArrivo(finestra);
  const bool scartato = vecchio || InArrivo(finestra);
  premuto_ = scartato ? nullptr : &finestra;
  return scartato;
}

/// Whether what comes to a window was meant for another: the one in front of it, or the one that was in front
/// before it could be seen.
bool qtTastiInCoda::InArrivo(const QWidget& finestra) const {
  if (Bloccata(&finestra)) return true;
  const bool aperta = apertura_.Finestra != nullptr && apertura_.Finestra->isVisible();
  return aperta && !(apertura_.Attiva && apertura_.Dipinta);
}

/// A key press may come without its time, after the look for a shortcut that had it.
bool qtTastiInCoda::Precede(const QKeyEvent& tasto) {
  const quint64 quando = tasto.timestamp();
  if (quando == 0) return tasto.key() == ultimo_.Quale && ultimo_.Vecchio;
  // The clock may begin anew, after which times are far smaller.
  const bool vecchio = quando <= apertura_.Visibile && apertura_.Visibile - quando < UnMinuto;
  ultimo_ = {.Quale = tasto.key(), .Quando = quando, .Vecchio = vecchio};
  daUltimo_.start();
  return vecchio;
}

/// At the earliest: the last key may have waited before it came here. The clock of the key events need not be
/// this program's.
quint64 qtTastiInCoda::Adesso() const {
  return ultimo_.Quando == 0 ? 0 : ultimo_.Quando + static_cast<quint64>(daUltimo_.elapsed());
}

}  // namespace parvik
