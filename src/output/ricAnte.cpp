#include "output/ricAnte.h"

#include <QEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleHints>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "output/ricAccessibile.h"

namespace parvik {
namespace {

constexpr int MassimaBarra = std::numeric_limits<int>::max() / 2;

int InBarra(double valore) {
  return static_cast<int>(std::min(std::ceil(valore), double{MassimaBarra}));
}

}  // namespace

ricAnte::ricAnte(QWidget* padre) : QAbstractScrollArea(padre) {
  setObjectName("ricAnte");
  setAccessibleName("Anteprima");
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setCursor(Qt::IBeamCursor);
  setFont(CarattereAnteprima());
  Rimisura();
}

void ricAnte::Mostra(Anteprima anteprima) {
  const SelezioneAnteprima prima = std::exchange(scelta_, SelezioneAnteprima(std::move(anteprima)));
  trascina_.reset();
  verticalScrollBar()->setValue(0);
  horizontalScrollBar()->setValue(0);
  MisuraLarghezza();
  ricAccessibile::AnnunciaTesto(*this, prima.Testo());
  emit Mostrata();
}

void ricAnte::Completa(Anteprima anteprima) {
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
  if (hasFocus()) AccendiCursore();
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

void ricAnte::Rivela(std::size_t byte) {
  const std::size_t riga = Contenuto().RigaDi(byte);
  if (riga < static_cast<std::size_t>(verticalScrollBar()->value())) {
    verticalScrollBar()->setValue(InBarra(static_cast<double>(riga)));
  } else if (riga > Veduta().UltimaRigaIntera()) {
    const std::size_t prima = VedutaAnteprima::PrimaRigaPer(Contenuto(), *celle_, riga, viewport()->height());
    verticalScrollBar()->setValue(InBarra(static_cast<double>(prima)));
  }
  const QRect rettangolo = RettangoloDi(byte);
  const int oltreDestra = rettangolo.right() + VedutaAnteprima::Margine - viewport()->width();
  const int oltreSinistra = rettangolo.left() - VedutaAnteprima::Margine;
  const int passo =
      oltreSinistra < 0 ? oltreSinistra : std::clamp(oltreDestra, 0, std::max(0, oltreSinistra));
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + passo);
}

/// On by so many lines and pixels, back where they are negative.
void ricAnte::Scorri(int righe, int pixel) {
  verticalScrollBar()->setValue(verticalScrollBar()->value() + righe);
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + pixel);
}

/// The device or the font has changed.
void ricAnte::Rimisura() {
  rapporto_ = viewport()->devicePixelRatioF();
  risoluzione_ = viewport()->logicalDpiY();
  celle_ = Celle::SuSchermo(font(), *viewport());
  MisuraLarghezza();
}

void ricAnte::MisuraLarghezza() {
  const auto conteggio = Contenuto().Conta(Contenuto().Testo().size());
  PerAspetto<double> larghezze = {};
  for (std::size_t i = 0; i < NumAspetti; ++i) {
    if (conteggio[i] > 0) larghezze[i] = celle_->Avanzamento(AspettoDiIndice(i));
  }
  larghezza_ = InBarra(Contenuto().LarghezzaMassima(larghezze));
  AggiornaBarre();
  viewport()->update();
}

void ricAnte::AggiornaBarre() {
  if (Contenuto().Testo().empty()) {  // the hidden pane of a program that has just started looks no font up
    verticalScrollBar()->setRange(0, 0);
    horizontalScrollBar()->setRange(0, 0);
    return;
  }
  const QSize finestra = viewport()->size();
  const std::size_t ultima = Contenuto().NumRighe() - 1;
  const std::size_t prima = VedutaAnteprima::PrimaRigaPer(Contenuto(), *celle_, ultima, finestra.height());
  verticalScrollBar()->setRange(0, InBarra(static_cast<double>(prima)));
  verticalScrollBar()->setPageStep(std::max(1, static_cast<int>(finestra.height() / celle_->Altezza({}))));
  verticalScrollBar()->setSingleStep(1);
  const int spessore = style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this);
  const int intera = larghezza_ + 2 * VedutaAnteprima::Margine + spessore;
  horizontalScrollBar()->setRange(0, std::max(0, intera - finestra.width()));
  horizontalScrollBar()->setPageStep(finestra.width());
  horizontalScrollBar()->setSingleStep(InBarra(celle_->Avanzamento({})));
}

void ricAnte::RimisuraSeDiverso() {
  if (viewport()->devicePixelRatioF() != rapporto_ || viewport()->logicalDpiY() != risoluzione_) Rimisura();
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
  veduta.Disegna(pittore, evento->rect(), Selezionato(), palette(), gruppo);
  if (!cursoreAcceso_) return;
  QRectF cursore = veduta.RettangoloDi(Cursore());
  cursore.setWidth(style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this));
  pittore.fillRect(cursore, palette().brush(gruppo, QPalette::Text));
}

/// Lit, and not dark again before half a period is over.
void ricAnte::AccendiCursore() {
  cursoreAcceso_ = true;
  const int periodo = QGuiApplication::styleHints()->cursorFlashTime();
  if (periodo > 1) lampeggio_.start(periodo / 2, this);
}

void ricAnte::timerEvent(QTimerEvent* evento) {
  if (evento->timerId() == lampeggio_.timerId()) {
    cursoreAcceso_ = !cursoreAcceso_;
    viewport()->update(RettangoloDi(Cursore()));
  } else if (evento->timerId() == scorrimento_.timerId()) {
    ScorriTrascinando();
  } else {
    QAbstractScrollArea::timerEvent(evento);
  }
}

void ricAnte::focusInEvent(QFocusEvent* evento) {
  QAbstractScrollArea::focusInEvent(evento);
  AccendiCursore();
  viewport()->update();
}

void ricAnte::focusOutEvent(QFocusEvent* evento) {
  QAbstractScrollArea::focusOutEvent(evento);
  lampeggio_.stop();
  cursoreAcceso_ = false;
  viewport()->update();
}

}  // namespace parvik
