// The mouse in the preview pane.
#include <QMouseEvent>

#include "output/ricAnte.h"
#include "output/ricTrascinamento.h"

namespace parvik {

void ricAnte::mousePressEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return evento->ignore();
  const QPoint punto = evento->position().toPoint();
  if (evento->modifiers() == Qt::ControlModifier) return emit OrigineChiesta(CarattereA(punto));
  const bool estende = evento->modifiers().testFlag(Qt::ShiftModifier);
  trascinamento_->Premi(punto, estende ? std::optional(scelta_.Estremi().Ancora) : std::nullopt);
}

void ricAnte::mouseDoubleClickEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return evento->ignore();
  if (evento->modifiers() == Qt::ControlModifier) return;  // the first press has led to the text
  trascinamento_->PremiAncora(evento->position().toPoint());
}

void ricAnte::mouseMoveEvent(QMouseEvent* evento) {
  if (evento->buttons().testFlag(Qt::LeftButton)) trascinamento_->Muovi(evento->position().toPoint());
}

void ricAnte::mouseReleaseEvent(QMouseEvent* evento) {
  if (evento->button() == Qt::LeftButton && trascinamento_->Finisci()) {
    Rivela(Cursore());
    OffriSelezione();
  }
  emit CursoreMosso();
}

void ricAnte::SelezionaFra(const Selezione& dal, const Selezione& al) {
  const SelezioneAnteprima prima = scelta_;
  scelta_.SelezionaFra(dal, al);
  MostraMossa(prima);
}

}  // namespace parvik
