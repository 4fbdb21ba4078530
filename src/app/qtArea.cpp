#include "app/qtArea.h"

#include <QKeySequence>
#include <QShortcut>
#include <algorithm>
#include <cmath>

#include "app/qtDivisore.h"
#include "output/ricAccessibile.h"
#include "template/txtAccessibile.h"

namespace parvik {
namespace {

constexpr int SinistraEtichette = 4;  // pixels
constexpr int PassoDivisore = 16;     // pixels, of a key

int InTwip(int pixel) {
  return pixel * TwipPerPixel;
}

/// Both edges are rounded, not the width: neighbours stay neighbours.
QRect InPixel(const Rettangolo& twip) {
  const auto pixel = [](int valore) { return static_cast<int>(std::lround(valore / double{TwipPerPixel})); };
  const QPoint inizio(pixel(twip.Sinistra), pixel(twip.Alto));
  const QPoint fine(pixel(twip.Sinistra + twip.Larghezza), pixel(twip.Alto + twip.Altezza));
  return {inizio, QSize(fine.x() - inizio.x(), fine.y() - inizio.y())};
}

void Colloca(QWidget& controllo, const std::optional<Rettangolo>& posto) {
  controllo.setVisible(posto.has_value());
  if (posto) controllo.setGeometry(InPixel(*posto));
}

}  // namespace

qtArea::qtArea(Documento& documento, QWidget* padre) : QWidget(padre) {
  txtAccessibile::Registra();
  ricAccessibile::Registra();
  for (const Sezione sezione : TutteLeSezioni) {
    etichette_[Indice(sezione)] = new lblTCP(sezione, this);
    sezioni_[Indice(sezione)] = new txtTCP(documento, sezione, this);
  }
  pannello_ = new ricAnte(this);
  lblRighe_ = new lblRighe(*pannello_, this);
  lblRighe_->stackUnder(pannello_);  // it is read first
  presa_ = new presaAnte(this);
  presa_->stackUnder(lblRighe_);
  CreaDivisore();
}

void qtArea::CreaDivisore() {
  auto* divisore = new qtDivisore(pannello_, this);
  for (txtTCP* sezione : sezioni_) divisore->Osserva(sezione);
  for (lblTCP* etichetta : etichette_) divisore->Osserva(etichetta);
  connect(divisore, &qtDivisore::Spostato, this, &qtArea::SpostaDivisore);
  connect(presa_, &presaAnte::Spostata, this, &qtArea::SpostaDivisore);
  CreaTasto(Qt::Key_Left, -PassoDivisore);
  CreaTasto(Qt::Key_Right, PassoDivisore);
}

/// A key that moves the boundary, from anywhere in the window.
void qtArea::CreaTasto(Qt::Key tasto, int passo) {
  auto* scorciatoia = new QShortcut(QKeySequence(Qt::ALT | Qt::SHIFT | tasto), this);
  connect(scorciatoia, &QShortcut::activated, this, [this, passo] {
    if (stato_.NumSezioni && stato_.Anteprima) SpostaDivisore(pannello_->x() + passo);
  });
}

void qtArea::Mostra(const StatoArea& stato) {
  stato_ = stato;
  ResizeControls();
}

void qtArea::Attiva(Sezione attiva) {
  for (const Sezione sezione : TutteLeSezioni) etichette_[Indice(sezione)]->Attiva(sezione == attiva);
}

void qtArea::Rivela(const CursoreSezione& cursore) {
  Editor(cursore.Dove).Poni(cursore.Dentro);
  Editor(cursore.Dove).ensureCursorVisible();
}

void qtArea::Raggiungi(const CursoreSezione& cursore) {
  Editor(cursore.Dove).Poni(cursore.Dentro);
  Editor(cursore.Dove).setFocus(Qt::OtherFocusReason);
  Editor(cursore.Dove).ensureCursorVisible();
}

void qtArea::FinisciComposizione() {
  for (txtTCP* sezione : sezioni_) sezione->FinisciComposizione();
}

void qtArea::resizeEvent(QResizeEvent* evento) {
  if (window()->size() != finestra_) divisore_.reset();
  finestra_ = window()->size();
  ResizeControls();
  QWidget::resizeEvent(evento);
}

void qtArea::SpostaDivisore(int x) {
  const std::optional<int> ammesso = DivisoreAmmesso(Misure(), InTwip(x));
  if (!ammesso) return;
  divisore_ = ammesso;
  ResizeControls();
}

Finestra qtArea::Misure() const {
  return {.Larghezza = InTwip(width()),
          .Altezza = InTwip(height()),
          .SinistraSezioni = InTwip(2 * SinistraEtichette + etichette_[0]->width()),
          .SinistraEtichette = InTwip(SinistraEtichette),
          .TreSezioni = stato_.InUso(Sezione::Piede),
          .Anteprima = stato_.Anteprima,
          .AltezzaStato = std::max(AltezzaStatoUsuale, InTwip(lblRighe_->fontMetrics().height())),
          .Divisore = divisore_};
}

/// Nothing, and no label measured, before there is a document type.
Disposizione qtArea::Posti() {
  if (!stato_.NumSezioni) return {};
  MisuraEtichette();
  return Disponi(Misure());
}

void qtArea::MisuraEtichette() {
  if (etichetteMisurate_) return;
  etichetteMisurate_ = true;
  for (lblTCP* etichetta : etichette_) etichetta->Misura();
}

void qtArea::ResizeControls() {
  if (!stato_.Anteprima) divisore_.reset();
  const Disposizione posti = Posti();
  for (const Sezione sezione : TutteLeSezioni) {
    const std::size_t i = Indice(sezione);
    Colloca(*sezioni_[i], posti.Sezioni[i]);
    sezioni_[i]->ImpostaUso(stato_.InUso(sezione));
    etichette_[i]->setVisible(posti.Etichette[i].has_value());
    if (posti.Etichette[i]) etichette_[i]->move(InPixel(*posti.Etichette[i]).topLeft());
  }
  Colloca(*lblRighe_, posti.StatoAnteprima);
  Colloca(*presa_, posti.Presa);
  Colloca(*pannello_, posti.Anteprima);
}

}  // namespace parvik
