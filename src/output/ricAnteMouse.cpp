// The mouse in the preview pane.
#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>

#include "output/MovimentiAnteprima.h"
#include "output/ricAnte.h"

namespace parvik {
namespace {

constexpr int PausaScorrimento = 50;  // milliseconds

/// How far outside of [0, fine) a coordinate is: below 0 in front of it.
int FuoriDi(int coordinata, int fine) {
  return coordinata < 0 ? coordinata : std::max(0, coordinata - fine + 1);
}

/// One step, and one more for every so many pixels outside.
int Passi(int fuori, int pixel) {
  if (fuori == 0) return 0;
  return fuori / std::max(1, pixel) + (fuori < 0 ? -1 : 1);
}

}  // namespace

void ricAnte::mousePressEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return evento->ignore();
  const QPoint punto = evento->position().toPoint();
  const bool terzo = dopoDoppio_.isValid() && !dopoDoppio_.hasExpired(QApplication::doubleClickInterval()) &&
                     (punto - puntoDoppio_).manhattanLength() < QApplication::startDragDistance();
  dopoDoppio_.invalidate();
  if (terzo) {
    IniziaTrascinamento(punto, RigaA(Contenuto(), CarattereA(punto)), Grana::Riga);
  } else if (evento->modifiers().testFlag(Qt::ShiftModifier)) {
    IniziaTrascinamento(punto, {.Inizio = scelta_.Estremi().Ancora, .Lunghezza = 0}, Grana::Carattere);
  } else {
    const std::size_t posto = Veduta().PostoA(punto);
    IniziaTrascinamento(punto, {.Inizio = posto, .Lunghezza = 0}, Grana::Carattere);
  }
}

void ricAnte::mouseDoubleClickEvent(QMouseEvent* evento) {
  if (evento->button() != Qt::LeftButton) return evento->ignore();
  puntoDoppio_ = evento->position().toPoint();
  dopoDoppio_.start();
  IniziaTrascinamento(puntoDoppio_, ParolaA(Contenuto(), CarattereA(puntoDoppio_)), Grana::Parola);
}

void ricAnte::IniziaTrascinamento(QPoint punto, const Selezione& pezzo, Grana grana) {
  grana_ = grana;
  pezzoIniziale_ = pezzo;
  trascina_ = punto;
  EstendiSelezione(punto);
}

/// From the piece that the drag started with to the piece at `punto`, the caret on the side of the mouse.
void ricAnte::EstendiSelezione(QPoint punto) {
  const VedutaAnteprima veduta = Veduta();
  Selezione pezzo{.Inizio = veduta.PostoA(punto), .Lunghezza = 0};
  if (grana_ == Grana::Parola) pezzo = ParolaA(Contenuto(), veduta.CarattereA(punto));
  if (grana_ == Grana::Riga) pezzo = RigaA(Contenuto(), veduta.CarattereA(punto));
  const SelezioneAnteprima prima = scelta_;
  scelta_.SelezionaFra(pezzoIniziale_, pezzo);
  MostraMossa(prima);
}

void ricAnte::mouseMoveEvent(QMouseEvent* evento) {
  if (!trascina_ || !evento->buttons().testFlag(Qt::LeftButton)) return;
  trascina_ = evento->position().toPoint();
  EstendiSelezione(*trascina_);
  if (viewport()->rect().contains(*trascina_)) {
    scorrimento_.stop();
  } else if (!scorrimento_.isActive()) {
    scorrimento_.start(PausaScorrimento, this);
  }
}

/// The mouse is held outside: the further, the faster.
void ricAnte::ScorriTrascinando() {
  if (!trascina_) return scorrimento_.stop();
  const int altezzaRiga = static_cast<int>(celle_->Altezza({}));
  const int righe = Passi(FuoriDi(trascina_->y(), viewport()->height()), altezzaRiga);
  const int colonne = FuoriDi(trascina_->x(), viewport()->width());
  Scorri(righe, colonne);
  EstendiSelezione(*trascina_);
}

void ricAnte::mouseReleaseEvent(QMouseEvent* evento) {
  if (evento->button() == Qt::LeftButton && trascina_) {
    trascina_.reset();
    scorrimento_.stop();
    Rivela(Cursore());
    OffriSelezione();
  }
  emit CursoreMosso();
}

}  // namespace parvik
