// The line above the preview pane: where the pane's caret is.
#pragma once

#include <QLabel>

#include "output/ricAnte.h"

namespace parvik {

/// Tells the caret's place from the start, anew when the pane shows another run, and when the pane says that
/// its caret has moved; not whenever it moves.
class lblRighe final : public QLabel {
  Q_OBJECT

 public:
  /// `pannello` must outlive it.
  lblRighe(const ricAnte& pannello, QWidget* padre);

 private:
  void AggiornaRigaColonna();

  const ricAnte& pannello_;
};

}  // namespace parvik
