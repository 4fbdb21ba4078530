#include "tokens/frmPagina.h"

#include "common/qtCampi.h"
#include "common/qtTesto.h"
#include "tokens/CodicePagina.h"
#include "ui_frmPagina.h"

namespace parvik {
namespace {

constexpr int CifreNumero = 3;
const QString NumeroPredefinito = "1";

}  // namespace

frmPagina::frmPagina(QWidget* padre) : frmCodice(padre), ui_(std::make_unique<Ui::frmPagina>()) {
  ui_->setupUi(this);
  SoloCifre(*ui_->txtNum, CifreNumero);
  SelezionaTuttoAlFuoco(*ui_->txtNum);
  connect(ui_->txtNum, &QLineEdit::textChanged, this, &frmPagina::RicostruisciCodice);
  MostraCodici(*ui_->txtPag);
  ui_->txtNum->setText(NumeroPredefinito);
  connect(ui_->cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->cmdCanc, &QPushButton::clicked, this, &QDialog::reject);
}

frmPagina::~frmPagina() = default;

void frmPagina::Mostra(std::string_view contenuto) {
  ImpostaComeSta(*ui_->txtNum, PerSchermo(LeggiPagina(contenuto)));
}

std::vector<std::string> frmPagina::Codici() const {
  if (result() != Accepted) return {};
  return {DaSchermo(ui_->txtPag->text())};
}

void frmPagina::RicostruisciCodice() {
  ImpostaComeSta(*ui_->txtPag, PerSchermo(CostruisciPagina(DaSchermo(ui_->txtNum->text()))));
}

}  // namespace parvik
