// The dialog that asks where a print goes. It always opens on the printer.
#pragma once

#include <array>
#include <memory>
#include <optional>

#include "common/frmModale.h"
#include "output/Destinazione.h"

class QFrame;
class QLabel;
class QRadioButton;

namespace Ui {
class frmDestStampa;
}

namespace parvik {

class frmDestStampa final : public frmModale {
  Q_OBJECT

 public:
  explicit frmDestStampa(QWidget* padre);
  ~frmDestStampa() override;

  /// The destination whose option had the focus last; nullopt unless OK was chosen.
  std::optional<Destinazione> Scelta() const;

 protected:
  /// An option that gets the focus is chosen and framed; a click on a picture gives its option the focus.
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  struct Voce {
    QRadioButton* Opzione = nullptr;
    QLabel* Immagine = nullptr;
    QFrame* Cornice = nullptr;
  };

  void Scegli(Destinazione destinazione);
  void Incornicia(const Voce& voce, bool attiva);

  std::unique_ptr<Ui::frmDestStampa> ui_;
  std::array<Voce, 3> voci_;  // by Destinazione
  std::optional<Destinazione> scelta_;
};

}  // namespace parvik
