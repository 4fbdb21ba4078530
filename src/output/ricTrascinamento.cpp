#include "output/ricTrascinamento.h"

#include <QApplication>
#include <QTimerEvent>
#include <algorithm>
#include <utility>

#include "output/MovimentiAnteprima.h"

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

ricTrascinamento::ricTrascinamento(Sguardo veduta, QObject* padre)
    : QObject(padre), veduta_(std::move(veduta)) {}

void ricTrascinamento::Premi(QPoint punto, std::optional<std::size_t> ancora) {
  const bool terzo = TerzoDiFila(punto);
  dopoDoppio_.invalidate();
  if (terzo) {
    Inizia(punto, Grana::Riga, std::nullopt);
  } else {
    Inizia(punto, Grana::Carattere, ancora);
  }
}

void ricTrascinamento::PremiAncora(QPoint punto) {
  puntoDoppio_ = punto;
  dopoDoppio_.start();
  Inizia(punto, Grana::Parola, std::nullopt);
}

/// Where the second was, and soon after it.
bool ricTrascinamento::TerzoDiFila(QPoint punto) const {
  return dopoDoppio_.isValid() && !dopoDoppio_.hasExpired(QApplication::doubleClickInterval()) &&
         (punto - puntoDoppio_).manhattanLength() < QApplication::startDragDistance();
}

void ricTrascinamento::Inizia(QPoint punto, Grana grana, std::optional<std::size_t> ancora) {
  grana_ = grana;
  punto_ = punto;
  inizio_ = ancora ? Selezione{.Inizio = *ancora, .Lunghezza = 0} : PezzoA(punto);
  Estendi(punto);
}

Selezione ricTrascinamento::PezzoA(QPoint punto) const {
  const VedutaAnteprima veduta = veduta_();
  if (grana_ == Grana::Parola) return ParolaA(veduta.Testo(), veduta.CarattereA(punto));
  if (grana_ == Grana::Riga) return RigaA(veduta.Testo(), veduta.CarattereA(punto));
  return {.Inizio = veduta.PostoA(punto), .Lunghezza = 0};
}

void ricTrascinamento::Estendi(QPoint punto) {
  emit DaSelezionare(inizio_, PezzoA(punto));
}

void ricTrascinamento::Muovi(QPoint punto) {
  if (!punto_) return;
  punto_ = punto;
  Estendi(punto);
  if (QRect(QPoint(), veduta_().Dimensione()).contains(punto)) {
    scorrimento_.stop();
  } else if (!scorrimento_.isActive()) {
    scorrimento_.start(PausaScorrimento, this);
  }
}

bool ricTrascinamento::Finisci() {
  scorrimento_.stop();
  return std::exchange(punto_, std::nullopt).has_value();
}

void ricTrascinamento::timerEvent(QTimerEvent* evento) {
  if (evento->timerId() == scorrimento_.timerId()) ScorriOltre();
}

/// The mouse is held outside: the further, the faster.
void ricTrascinamento::ScorriOltre() {
  if (!punto_) return scorrimento_.stop();
  const QPoint punto = *punto_;
  const VedutaAnteprima veduta = veduta_();
  const QSize dimensione = veduta.Dimensione();
  const int righe = Passi(FuoriDi(punto.y(), dimensione.height()), static_cast<int>(veduta.AltezzaRiga()));
  emit DaScorrere(righe, FuoriDi(punto.x(), dimensione.width()));
  Estendi(punto);
}

}  // namespace parvik
