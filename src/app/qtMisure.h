// The sections shown to measure while that is switched on.
#pragma once

#include "app/qtArea.h"
#include "editor/Editore.h"

namespace parvik {

class qtMisure {
 public:
  /// Both must outlive this.
  qtMisure(Editore& editore, qtArea& area) : editore_(editore), area_(area) {}

  /// The switch, or which sections there are, may have changed.
  void Aggiorna();
  /// Codes may print something else than they did.
  void Rimisura();

 private:
  LettoreCampi LettoreDi(Sezione sezione) const;

  Editore& editore_;
  qtArea& area_;
};

}  // namespace parvik
