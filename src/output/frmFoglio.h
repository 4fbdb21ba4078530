// The dialog of the sheet that previews of a document type are looked at on (docs/foglio.md).
#pragma once

#include <array>
#include <memory>

#include "common/frmModale.h"
#include "output/Foglio.h"

class QLineEdit;
class QWidget;

namespace Ui {
class frmFoglio;
}

namespace parvik {

class frmFoglio final : public frmModale {
  Q_OBJECT

 public:
  /// Shows the sheet as it is. `cella` is the width of a character on paper, in tenths of a millimetre.
  frmFoglio(const Foglio& attuale, double cella, QWidget* padre);
  ~frmFoglio() override;

  /// What OK stores: it has then nothing wrong. After Cancel nothing is to be stored.
  Foglio Scelto() const;

 private:
  void PreparaCaselle();
  void CambiaCarta(Carta carta);
  void Mostra(const Foglio& foglio);
  void Aggiorna();

  std::unique_ptr<Ui::frmFoglio> ui_;
  std::array<QLineEdit*, NumMargini> margini_;
  double cella_;
  int linee_;  // the last ones that could be read
};

}  // namespace parvik
