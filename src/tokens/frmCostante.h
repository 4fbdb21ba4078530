// The dialog that builds a constant code.
#pragma once

#include <memory>

#include "tokens/frmCodice.h"

namespace Ui {
class frmCostante;
}

namespace parvik {

class frmCostante final : public frmCodice {
  Q_OBJECT

 public:
  explicit frmCostante(QWidget* padre);
  ~frmCostante() override;

  void Mostra(std::string_view contenuto) override;
  std::vector<std::string> Codici() const override;

 private:
  void RicostruisciCodice();

  std::unique_ptr<Ui::frmCostante> ui_;
};

}  // namespace parvik
