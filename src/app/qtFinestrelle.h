// The small windows that stand beside the main one while their menu entries are checked: the line totals and
// the print flags.
#pragma once

#include <QWidget>
#include <memory>

#include "editor/Editore.h"
#include "output/frmSettaFlag.h"
#include "output/frmTotRighe.h"

namespace parvik {

class qtFinestrelle {
 public:
  /// Both must outlive this. `finestra` is the main window.
  qtFinestrelle(Editore& editore, QWidget& finestra) : editore_(editore), finestra_(finestra) {}

  /// Shows what is checked, and nothing else.
  void Aggiorna();

  /// The print flags are other ones, or their values are.
  void RicaricaFlag();

 private:
  void MostraFlag();
  void MostraTotali();

  Editore& editore_;
  QWidget& finestra_;
  std::unique_ptr<frmTotRighe> totali_;      // made anew each time it is shown
  std::unique_ptr<frmSettaFlag> settaFlag_;  // made when it is first shown
};

}  // namespace parvik
