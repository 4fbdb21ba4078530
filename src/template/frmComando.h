// The dialog of the body settings.
#pragma once

#include <cstdint>
#include <memory>

#include "common/frmModale.h"
#include "template/ImmagineModello.h"

namespace Ui {
class frmComando;
}

namespace parvik {

class frmComando final : public frmModale {
  Q_OBJECT

 public:
  /// Shows the settings as they are, and `linee`, the lines that the Corpo has now.
  frmComando(const ImpostazioniCorpo& attuali, std::int16_t linee, QWidget* padre);
  ~frmComando() override;

  /// What OK stores; after Cancel nothing is to be stored.
  ImpostazioniCorpo Scelte() const;

 private:
  void CaricaStringaCorpo();

  std::unique_ptr<Ui::frmComando> ui_;
  ImpostazioniCorpo attuali_;
  std::int16_t linee_;
};

}  // namespace parvik
