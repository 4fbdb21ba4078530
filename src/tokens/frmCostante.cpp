#include "tokens/frmCostante.h"

#include "common/qtCampi.h"
#include "common/qtTesto.h"
#include "tokens/CodiceCostante.h"
#include "ui_frmCostante.h"

namespace parvik {

frmCostante::frmCostante(QWidget* padre) : frmCodice(padre), ui_(std::make_unique<Ui::frmCostante>()) {
  ui_->setupUi(this);
  TestoDiCodice(*ui_->txtDescri);
  SelezionaTuttoAlFuoco(*ui_->txtDescri);
  connect(ui_->txtDescri, &QLineEdit::textChanged, this, &frmCostante::RicostruisciCodice);
  MostraCodici(*ui_->txtCost);
  connect(ui_->cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->cmdCanc, &QPushButton::clicked, this, &QDialog::reject);
}

frmCostante::~frmCostante() = default;

void frmCostante::Mostra(std::string_view contenuto) {
  ImpostaComeSta(*ui_->txtDescri, PerSchermo(LeggiCostante(contenuto)));
}

std::vector<std::string> frmCostante::Codici() const {
  if (result() != Accepted) return {};
  return {DaSchermo(ui_->txtCost->text())};
}

void frmCostante::RicostruisciCodice() {
  ImpostaComeSta(*ui_->txtCost, PerSchermo(CostruisciCostante(DaSchermo(ui_->txtDescri->text()))));
}

}  // namespace parvik
