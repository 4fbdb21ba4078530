#include "output/frmTotRighe.h"

#include <QCloseEvent>

#include "ui_frmTotRighe.h"

namespace parvik {

frmTotRighe::frmTotRighe(const TotaliRighe& totali, std::int16_t pagina, QWidget* padre)
    : QDialog(padre), ui_(std::make_unique<Ui::frmTotRighe>()) {
  ui_->setupUi(this);
  if (totali.UnaSezione) ui_->lblRigheTCP_0->setText("Righe testo:");
  ui_->lblNumTCP_0->setText(QString::number(totali.Testata));
  ui_->lblNumTCP_1->setText(QString::number(totali.Corpo));
  ui_->lblNumTCP_2->setText(QString::number(totali.Piede));
  ui_->lblNumPag->setText(QString::number(pagina));
  for (QLabel* riga : {ui_->lblRigheTCP_1, ui_->lblNumTCP_1, ui_->lblRigheTCP_2, ui_->lblNumTCP_2}) {
    riga->setVisible(!totali.UnaSezione);
  }
}

frmTotRighe::~frmTotRighe() = default;

void frmTotRighe::closeEvent(QCloseEvent* evento) {
  evento->ignore();
}

}  // namespace parvik
