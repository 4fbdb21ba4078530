#include "app/qtIngrandimento.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QShortcut>
#include <QWheelEvent>
#include <array>

#include "editor/Ingrandimento.h"

namespace parvik {
namespace {

double BaseSezioni() {
  return QFontInfo(QFontDatabase::systemFont(QFontDatabase::FixedFont)).pointSizeF();
}

}  // namespace

qtIngrandimento::qtIngrandimento(qtArea& area, QWidget& finestra) : QObject(&finestra), area_(area) {
  struct Tasto {
    const char* Sequenza;
    int Passi;
  };
  for (const Tasto& tasto : {Tasto{"Ctrl++", 1}, Tasto{"Ctrl+=", 1}, Tasto{"Ctrl+-", -1}}) {
    auto* scorciatoia = new QShortcut(QKeySequence(tasto.Sequenza), &finestra);
    connect(scorciatoia, &QShortcut::activated, this, [this, tasto] { Imposta(passi_ + tasto.Passi); });
  }
  auto* azzera = new QShortcut(QKeySequence("Ctrl+0"), &finestra);
  connect(azzera, &QShortcut::activated, this, [this] { Imposta(0); });
  for (const Sezione sezione : TutteLeSezioni) area.Editor(sezione).viewport()->installEventFilter(this);
  area.Pannello().viewport()->installEventFilter(this);
}

void qtIngrandimento::Imposta(int passi) {
  const int ammessi = passi == 0 ? 0 : PassiAmmessi(BaseSezioni(), passi);
  if (ammessi == passi_) return;
  passi_ = ammessi;
  for (const Sezione sezione : TutteLeSezioni) area_.Editor(sezione).Ingrandisci(passi_);
  area_.Pannello().Ingrandisci(passi_);
  emit Cambiato(passi_);
}

/// With Ctrl nothing scrolls, however little the wheel turns.
bool qtIngrandimento::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::Wheel) return QObject::eventFilter(oggetto, evento);
  const auto& rotella = static_cast<const QWheelEvent&>(*evento);
  if (rotella.modifiers() != Qt::ControlModifier) return false;
  girato_ += rotella.angleDelta().y();
  const int scatti = girato_ / QWheelEvent::DefaultDeltasPerStep;
  girato_ -= scatti * QWheelEvent::DefaultDeltasPerStep;
  if (scatti != 0) Imposta(passi_ + scatti);
  evento->accept();
  return true;
}

}  // namespace parvik
