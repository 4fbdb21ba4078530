// The dialog that builds a style code.
#pragma once

#include <array>
#include <memory>

#include "tokens/CodiceStile.h"
#include "tokens/frmCodice.h"

class QRadioButton;

namespace Ui {
class frmStile;
}

namespace parvik {

class frmStile final : public frmCodice {
  Q_OBJECT

 public:
  /// Without Mostra no style is chosen, and the code is empty until the user chooses one.
  explicit frmStile(QWidget* padre);
  ~frmStile() override;

  void Mostra(std::string_view contenuto) override;
  std::vector<std::string> Codici() const override;

 protected:
  /// An option that gets the focus is chosen.
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void ScriviCodice(Stile stile);

  std::unique_ptr<Ui::frmStile> ui_;
  std::array<QRadioButton*, 5> opzioni_;  // by Stile
};

}  // namespace parvik
