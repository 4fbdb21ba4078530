// The rulers above the preview and, while they are shown to measure, above the sections.
#pragma once

#include "app/qtArea.h"
#include "editor/Editore.h"

namespace parvik {

class qtRighelli {
 public:
  /// Both must outlive this, and `area` what its rulers tell.
  qtRighelli(Editore& editore, qtArea& area) : editore_(editore), area_(area) {}

  /// Which of them show, and their guides.
  void Aggiorna();

 private:
  template <class Scatola>
  void Mostra(Scatola& scatola, bool mostra);

  Editore& editore_;
  qtArea& area_;
};

}  // namespace parvik
