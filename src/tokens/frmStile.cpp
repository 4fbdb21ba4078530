#include "tokens/frmStile.h"

#include <QEvent>

#include "common/qtCampi.h"
#include "common/qtTesto.h"
#include "ui_frmStile.h"

namespace parvik {

frmStile::frmStile(QWidget* padre) : frmCodice(padre), ui_(std::make_unique<Ui::frmStile>()) {
  ui_->setupUi(this);
  opzioni_ = {ui_->optStile_0, ui_->optStile_1, ui_->optStile_2, ui_->optStile_3, ui_->optStile_4};
  for (std::size_t i = 0; i < opzioni_.size(); ++i) {
    opzioni_[i]->installEventFilter(this);
    connect(opzioni_[i], &QRadioButton::toggled, this, [this, i](bool scelta) {
      if (scelta) ScriviCodice(static_cast<Stile>(i));
    });
  }
  MostraCodici(*ui_->txtStile);
  connect(ui_->cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->cmdCanc, &QPushButton::clicked, this, &QDialog::reject);
  ui_->cmdOk->setFocus();  // the first option would be chosen by its focus
}

frmStile::~frmStile() = default;

void frmStile::Mostra(std::string_view contenuto) {
  const Stile stile = StileDi(LeggiStile(contenuto)).value_or(Stile::Normale);
  QRadioButton* opzione = opzioni_[static_cast<std::size_t>(stile)];
  opzione->setChecked(true);
  opzione->setFocus();
}

std::vector<std::string> frmStile::Codici() const {
  if (result() != Accepted) return {};
  return {DaSchermo(ui_->txtStile->text())};
}

bool frmStile::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::FocusIn) {
    if (auto* opzione = qobject_cast<QRadioButton*>(oggetto)) opzione->setChecked(true);
  }
  return frmCodice::eventFilter(oggetto, evento);
}

void frmStile::ScriviCodice(Stile stile) {
  ImpostaComeSta(*ui_->txtStile, PerSchermo(CostruisciStile(stile)));
}

}  // namespace parvik
