#include "catalogue/frmScelta.h"

#include "ui_frmScelta.h"

namespace parvik {

frmScelta::frmScelta(const QStringList& descrizioni, QWidget* padre)
    : frmModale(padre), ui_(std::make_unique<Ui::frmScelta>()) {
  ui_->setupUi(this);
  CaricaLista(descrizioni);
  connect(ui_->cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->cmdCanc, &QPushButton::clicked, this, &QDialog::reject);
  connect(ui_->lstScelta, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
}

frmScelta::~frmScelta() = default;

void frmScelta::CaricaLista(const QStringList& descrizioni) {
  ui_->lstScelta->addItems(descrizioni);
  ui_->lstScelta->setCurrentRow(0);
  ui_->cmdOk->setEnabled(!descrizioni.isEmpty());
}

void frmScelta::Proponi(std::size_t voce) {
  ui_->lstScelta->setCurrentRow(static_cast<int>(voce));
}

std::optional<std::size_t> frmScelta::Scelta() const {
  const int riga = ui_->lstScelta->currentRow();
  if (result() != Accepted || riga < 0) return std::nullopt;
  return static_cast<std::size_t>(riga);
}

}  // namespace parvik
