#include "app/pnlCampi.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

namespace parvik {

pnlCampi::pnlCampi(Editore& editore, QWidget* padre)
    : QDockWidget("Pannello campi", padre), txtFiltro_(new QLineEdit), lstCampi_(new QTreeView) {
  setObjectName("pnlCampi");
  setAccessibleName("Pannello campi");
  setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
  txtFiltro_->setObjectName("txtFiltro");
  txtFiltro_->setAccessibleName("Filtro");
  lstCampi_->setObjectName("lstCampi");
  lstCampi_->setAccessibleName("Campi");
  lstCampi_->setContextMenuPolicy(Qt::CustomContextMenu);
  auto* nessuno = new QLabel;
  nessuno->setObjectName("lblNessunCampo");
  auto* etichetta = new QLabel("Filtro");
  etichetta->setBuddy(txtFiltro_);
  auto* filtro = new QHBoxLayout;
  filtro->addWidget(etichetta);
  filtro->addWidget(txtFiltro_);
  auto* dentro = new QWidget;
  auto* colonna = new QVBoxLayout(dentro);
  colonna->setContentsMargins(4, 4, 4, 4);
  colonna->addLayout(filtro);
  colonna->addWidget(nessuno);
  colonna->addWidget(lstCampi_);
  setWidget(dentro);
  scelta_ = new qtSceltaCampi(editore, *txtFiltro_, *lstCampi_, *nessuno, qtSceltaCampi::Come::DueControlli);
  connect(scelta_, &qtSceltaCampi::Confermata, this, &pnlCampi::Confermata);
  connect(scelta_, &qtSceltaCampi::Lasciata, this, &pnlCampi::Lasciato);
  connect(lstCampi_, &QTreeView::customContextMenuRequested, this, &pnlCampi::ApriMenu);
}

void pnlCampi::Attiva() {
  raise();
  txtFiltro_->setFocus(Qt::ShortcutFocusReason);
  txtFiltro_->selectAll();
}

/// Of the entry there, which is chosen by it.
void pnlCampi::ApriMenu(QPoint dove) {
  lstCampi_->setCurrentIndex(lstCampi_->indexAt(dove).siblingAtColumn(qtElencoCampi::Nome));
  const VoceInseribile* voce = scelta_->Scelta();
  if (voce == nullptr) return;
  auto* menu = new QMenu(this);
  QAction* inserisci = menu->addAction("&Inserisci", scelta_, &qtSceltaCampi::Inserisci);
  inserisci->setEnabled(!voce->Nuova());
  menu->addAction("Apri &maschera...", scelta_, &qtSceltaCampi::ApriMaschera);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->popup(lstCampi_->viewport()->mapToGlobal(dove));
}

void pnlCampi::closeEvent(QCloseEvent* evento) {
  QDockWidget::closeEvent(evento);
  emit Chiuso();
}

}  // namespace parvik
