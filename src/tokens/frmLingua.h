// The dialog that builds a language code.
#pragma once

#include <memory>

#include "tokens/CodiceLingua.h"
#include "tokens/frmCodice.h"

namespace Ui {
class frmLingua;
}

namespace parvik {

class frmLingua final : public frmCodice {
  Q_OBJECT

 public:
  explicit frmLingua(QWidget* padre);
  ~frmLingua() override;

  void Mostra(std::string_view contenuto) override;
  std::vector<std::string> Codici() const override;

 private:
  void Carica(const CodiceLingua& lingua);
  void RicostruisciCodice();

  std::unique_ptr<Ui::frmLingua> ui_;
};

}  // namespace parvik
