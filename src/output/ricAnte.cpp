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

ricAnte::ricAnte(QWidget* padre)
    : QAbstractScrollArea(padre), testo_(std::make_shared<const TestoAnteprima>()) {
  setObjectName("ricAnte");
  setAccessibleName("Anteprima");
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setCursor(Qt::IBeamCursor);
  setFont(CarattereAnteprima());
  Rimisura();
}

void ricAnte::Mostra(Anteprima anteprima) {
  const std::shared_ptr<const TestoAnteprima> prima =
      std::exchange(testo_, std::make_shared<const TestoAnteprima>(std::move(anteprima)));
  cursore_ = ancora_ = 0;
  xVoluta_.reset();
  trascina_.reset();
  verticalScrollBar()->setValue(0);
  horizontalScrollBar()->setValue(0);
  MisuraLarghezza();
  ricAccessibile::AnnunciaTesto(*this, *prima);
  emit Mostrata();
}

void ricAnte::Completa(Anteprima anteprima) {
  const std::shared_ptr<const TestoAnteprima> prima =
      std::exchange(testo_, std::make_shared<const TestoAnteprima>(std::move(anteprima)));
  cursore_ = Aggancia(*testo_, cursore_);
  ancora_ = Aggancia(*testo_, ancora_);
  MisuraLarghezza();
  ricAccessibile::AnnunciaAggiunta(*this, prima->Testo().size());
  emit Mostrata();
}

Selezione ricAnte::Selezionato() const {
  const auto [da, a] = std::minmax(cursore_, ancora_);
  return {.Inizio = da, .Lunghezza = a - da};
}

ricAnte::Coordinate ricAnte::RigaColonna() const {
  const std::size_t inizio = Selezionato().Inizio;
  const std::size_t riga = testo_->RigaDi(inizio);
  return {.Riga = riga + 1, .Colonna = inizio - testo_->InizioRiga(riga) + 1};
}

void ricAnte::Seleziona(std::size_t ancora, std::size_t cursore) {
  xVoluta_.reset();
  Imposta(Aggancia(*testo_, ancora), Aggancia(*testo_, cursore));
  Rivela(cursore_);
}

void ricAnte::Imposta(std::size_t ancora, std::size_t cursore) {
  if (ancora == ancora_ && cursore == cursore_) return;
  const Selezione prima = Selezionato();
  ancora_ = ancora;
  cursore_ = cursore;
  if (hasFocus()) AccendiCursore();
  viewport()->update();
  ricAccessibile::AnnunciaCursore(*this, prima);
}

VedutaAnteprima ricAnte::Veduta() const {
  return {*testo_,
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
  const std::size_t riga = testo_->RigaDi(byte);
  if (riga < static_cast<std::size_t>(verticalScrollBar()->value())) {
    verticalScrollBar()->setValue(InBarra(static_cast<double>(riga)));
  } else if (riga > Veduta().UltimaRigaIntera()) {
    const std::size_t prima = VedutaAnteprima::PrimaRigaPer(*testo_, *celle_, riga, viewport()->height());
    verticalScrollBar()->setValue(InBarra(static_cast<double>(prima)));
  }
  const QRect rettangolo = RettangoloDi(byte);
  const int oltreDestra = rettangolo.right() + VedutaAnteprima::Margine - viewport()->width();
  const int oltreSinistra = rettangolo.left() - VedutaAnteprima::Margine;
  const int passo =
      oltreSinistra < 0 ? oltreSinistra : std::clamp(oltreDestra, 0, std::max(0, oltreSinistra));
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + passo);
}

/// The device or the font has changed.
void ricAnte::Rimisura() {
  rapporto_ = viewport()->devicePixelRatioF();
  risoluzione_ = viewport()->logicalDpiY();
  celle_ = Celle::SuSchermo(font(), *viewport());
  MisuraLarghezza();
}

void ricAnte::MisuraLarghezza() {
  const auto conteggio = testo_->Conta(testo_->Testo().size());
  PerAspetto<double> larghezze = {};
  for (std::size_t i = 0; i < NumAspetti; ++i) {
    if (conteggio[i] > 0) larghezze[i] = celle_->Avanzamento(AspettoDiIndice(i));
  }
  larghezza_ = InBarra(testo_->LarghezzaMassima(larghezze));
  AggiornaBarre();
  viewport()->update();
}

void ricAnte::AggiornaBarre() {
  if (testo_->Testo().empty()) {  // the hidden pane of a program that has just started looks no font up
    verticalScrollBar()->setRange(0, 0);
    horizontalScrollBar()->setRange(0, 0);
    return;
  }
  const QSize finestra = viewport()->size();
  const std::size_t ultima = testo_->NumRighe() - 1;
  const std::size_t prima = VedutaAnteprima::PrimaRigaPer(*testo_, *celle_, ultima, finestra.height());
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
  QRectF cursore = veduta.RettangoloDi(cursore_);
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
    viewport()->update(RettangoloDi(cursore_));
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
