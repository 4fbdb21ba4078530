#include "output/ricAnte.h"

#include <QEvent>
#include <QFocusEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <utility>

#include "output/ricAccessibile.h"
#include "output/ricInvito.h"
#include "output/ricLampeggio.h"
#include "output/ricTrascinamento.h"

namespace parvik {

ricAnte::ricAnte(QWidget* padre)
    : QAbstractScrollArea(padre),
      lampeggio_(new ricLampeggio(this)),
      trascinamento_(new ricTrascinamento([this] { return Veduta(); }, this)) {
  setObjectName("ricAnte");
  setAccessibleName("Anteprima");
  setAccessibleDescription(TestoInvito());
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setCursor(Qt::IBeamCursor);
  setFont(CarattereAnteprima());
  connect(lampeggio_, &ricLampeggio::Cambiato, this, [this] { viewport()->update(RettangoloDi(Cursore())); });
  connect(trascinamento_, &ricTrascinamento::DaSelezionare, this, &ricAnte::SelezionaFra);
  connect(trascinamento_, &ricTrascinamento::DaScorrere, this, &ricAnte::Scorri);
  Rimisura();
}

void ricAnte::Mostra(Anteprima anteprima) {
  luoghi_.Imposta({});
  const SelezioneAnteprima prima = std::exchange(scelta_, SelezioneAnteprima(std::move(anteprima)));
  trascinamento_->Finisci();
  verticalScrollBar()->setValue(0);
  horizontalScrollBar()->setValue(0);
  MisuraLarghezza();
  setAccessibleDescription(Contenuto().Testo().empty() ? TestoInvito() : QString());
  ricAccessibile::AnnunciaTesto(*this, prima.Testo());
  emit Mostrata();
}

void ricAnte::Completa(Anteprima anteprima) {
  luoghi_.Imposta({});
  const std::size_t prima = Contenuto().Testo().size();
  scelta_.Completa(std::move(anteprima));
  MisuraLarghezza();
  ricAccessibile::AnnunciaAggiunta(*this, prima);
  emit Mostrata();
}

void ricAnte::Seleziona(std::size_t ancora, std::size_t cursore) {
  const SelezioneAnteprima prima = scelta_;
  scelta_.Seleziona(ancora, cursore);
  MostraMossa(prima);
  Rivela(Cursore());
}

/// Anchor and caret were those of `prima`, in the same text.
void ricAnte::MostraMossa(const SelezioneAnteprima& prima) {
  if (scelta_.Estremi() == prima.Estremi()) return;
  if (hasFocus()) lampeggio_->Accendi();
  viewport()->update();
  ricAccessibile::AnnunciaCursore(*this, prima.Selezionato());
}

VedutaAnteprima ricAnte::Veduta() const {
  return {Contenuto(),
          *celle_,
          {.PrimaRiga = static_cast<std::size_t>(verticalScrollBar()->value()),
           .Scorrimento = horizontalScrollBar()->value(),
           .Dimensione = viewport()->size()}};
}

QRect ricAnte::RettangoloDi(std::size_t byte) const {
  return Veduta().RettangoloDi(byte).toAlignedRect();
}

std::size_t ricAnte::CarattereA(QPoint punto) const {
  return Veduta().CarattereA(punto);
}

bool ricAnte::event(QEvent* evento) {
  if (evento->type() == QEvent::ShortcutOverride && Riconosce(*static_cast<QKeyEvent*>(evento))) {
    evento->accept();
    return true;
  }
  const bool risposto = QAbstractScrollArea::event(evento);
  if (evento->type() == QEvent::ScreenChangeInternal) RimisuraSeDiverso();
  return risposto;
}

void ricAnte::changeEvent(QEvent* evento) {
  QAbstractScrollArea::changeEvent(evento);
  if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange) Rimisura();
  viewport()->update();  // colours, activation
}

void ricAnte::showEvent(QShowEvent* evento) {
  QAbstractScrollArea::showEvent(evento);
  RimisuraSeDiverso();
}

void ricAnte::resizeEvent(QResizeEvent* evento) {
  QAbstractScrollArea::resizeEvent(evento);
  AggiornaBarre();
}

void ricAnte::scrollContentsBy(int /*dx*/, int /*dy*/) {
  viewport()->update();  // heights differ: dy lines are no fixed number of pixels
}

void ricAnte::paintEvent(QPaintEvent* evento) {
  QPainter pittore(viewport());
  const VedutaAnteprima veduta = Veduta();
  const QPalette::ColorGroup gruppo = !isEnabled() ? QPalette::Disabled
                                      : hasFocus() ? QPalette::Active
                                                   : QPalette::Inactive;
  if (Contenuto().Testo().empty()) DisegnaInvito(pittore, viewport()->rect(), palette());
  foglio_.DisegnaOltre(pittore, veduta, palette());
  luoghi_.Disegna(pittore, veduta, palette(), gruppo);
  veduta.Disegna(pittore, evento->rect(), Selezionato(), palette(), gruppo);
  if (trovati_) DisegnaTrovati(pittore, veduta, trovati_, palette());
  foglio_.DisegnaBordi(pittore, veduta, palette());
  if (righello_ != nullptr && righello_->isVisible()) {
    righello_->DisegnaGuide(pittore);
    righello_->update();
  }
  if (!lampeggio_->Acceso()) return;
  QRectF cursore = veduta.RettangoloDi(Cursore());
  cursore.setWidth(style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this));
  pittore.fillRect(cursore, palette().brush(gruppo, QPalette::Text));
}

void ricAnte::focusInEvent(QFocusEvent* evento) {
  QAbstractScrollArea::focusInEvent(evento);
  lampeggio_->Accendi();
  viewport()->update();
}

void ricAnte::focusOutEvent(QFocusEvent* evento) {
  QAbstractScrollArea::focusOutEvent(evento);
  lampeggio_->Spegni();
  viewport()->update();
}

}  // namespace parvik
