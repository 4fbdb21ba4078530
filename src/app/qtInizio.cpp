#include "app/qtInizio.h"

#include <QEvent>
#include <QTimer>
#include <optional>

#include "catalogue/TrovaTipo.h"
#include "common/qtTesto.h"

namespace parvik {

qtInizio::qtInizio(Editore& editore, qtRicordi& ricordi, QWidget& area, QObject* padre)
    : QObject(padre), editore_(editore), ricordi_(ricordi), area_(area) {
  area.installEventFilter(this);
}

bool qtInizio::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::Paint) {
    area_.removeEventFilter(this);
    disegnata_ = true;
    QTimer::singleShot(0, this, &qtInizio::Aggiorna);
  }
  return QObject::eventFilter(oggetto, evento);
}

void qtInizio::Aggiorna() {
  const bool serve = !editore_.TipoScelto();
  if (pannello_ == nullptr && serve && disegnata_) Crea();
  if (pannello_ == nullptr) return;
  if (serve) Elenca();
  pannello_->setVisible(serve);
}

void qtInizio::Crea() {
  pannello_ = new pnlInizio(&area_);
  connect(pannello_, &pnlInizio::TipoDaScegliere, this, &qtInizio::TipoDaScegliere);
  connect(pannello_, &pnlInizio::RicordaCommutato, this, [this] { editore_.Commuta(Preferenza::Ricorda); });
  connect(pannello_, &pnlInizio::DaAprire, this, [this](int quale) {
    const ModelloRecente modello = modelli_.at(static_cast<std::size_t>(quale));
    if (const auto tipo = TipoPerNumero(editore_.Campi(), modello.Tipo)) emit DaAprire(*tipo, modello.File);
  });
}

/// Those of a type that the catalogue has.
void qtInizio::Elenca() {
  pannello_->Ricorda(editore_.Scelte()[Preferenza::Ricorda]);
  std::vector<ModelloRecente> modelli;
  QStringList voci;
  for (const ModelloRecente& modello : ricordi_.Modelli().Voci()) {
    const std::optional<std::size_t> tipo = TipoPerNumero(editore_.Campi(), modello.Tipo);
    if (!tipo) continue;
    modelli.push_back(modello);
    voci += QString::fromStdString(modello.File.string()) + QStringLiteral(" (") +
            PerSchermo(editore_.Campi().TipiDoc()[*tipo].Descrizione).trimmed() + u')';
  }
  if (modelli == modelli_) return;
  modelli_ = std::move(modelli);
  pannello_->Elenca(voci);
}

}  // namespace parvik
