// The line totals: a small modeless window whose numbers are those of the moment at which it was made.
#pragma once

#include <QDialog>
#include <memory>

#include "output/TotaliRighe.h"

namespace Ui {
class frmTotRighe;
}

namespace parvik {

/// Only the menu command closes it: its close box and Escape do nothing.
class frmTotRighe final : public QDialog {
  Q_OBJECT

 public:
  frmTotRighe(const TotaliRighe& totali, std::int16_t pagina, QWidget* padre);
  ~frmTotRighe() override;

  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  std::unique_ptr<Ui::frmTotRighe> ui_;
};

}  // namespace parvik
