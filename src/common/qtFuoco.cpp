#include "common/qtFuoco.h"

#include <QEvent>
#include <QPalette>

namespace parvik {
namespace {

class Cornice final : public QObject {
 public:
  explicit Cornice(QAbstractScrollArea& vista) : QObject(&vista), vista_(vista), usuale_(vista.frameStyle()) {
    vista.installEventFilter(this);
  }

  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() == QEvent::FocusIn) Mostra();
    if (evento->type() == QEvent::FocusOut) Togli();
    return QObject::eventFilter(oggetto, evento);
  }

 private:
  void Mostra() {
    QPalette colori = vista_.palette();
    colori.setColor(QPalette::WindowText, colori.color(QPalette::Highlight));
    vista_.setPalette(colori);
    vista_.setFrameStyle(QFrame::Box | QFrame::Plain);  // as wide as the usual one
  }
  void Togli() {
    vista_.setFrameStyle(usuale_);
    vista_.setPalette(QPalette());
  }

  QAbstractScrollArea& vista_;
  int usuale_;
};

}  // namespace

void MostraFuoco(QAbstractScrollArea& vista) {
  new Cornice(vista);  // the view owns it
}

}  // namespace parvik
