// The dialog that builds a page-number code.
#pragma once

#include <memory>

#include "tokens/frmCodice.h"

namespace Ui {
class frmPagina;
}

namespace parvik {

class frmPagina final : public frmCodice {
  Q_OBJECT

 public:
  explicit frmPagina(QWidget* padre);
  ~frmPagina() override;

  void Mostra(std::string_view contenuto) override;
  std::vector<std::string> Codici() const override;

 private:
  void RicostruisciCodice();

  std::unique_ptr<Ui::frmPagina> ui_;
};

}  // namespace parvik
