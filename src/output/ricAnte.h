// The preview pane: rendered text with its formatting, to be read and selected, not edited.
#pragma once

#include <QPlainTextEdit>

#include "output/GeneraStampa.h"

namespace parvik {

class ricAnte final : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit ricAnte(QWidget* padre);

  /// Replaces the content. The caret is at the start, and nothing is selected.
  void Mostra(const Anteprima& anteprima);
};

}  // namespace parvik
