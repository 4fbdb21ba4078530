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

  /// Where the caret stands, both from 1. Lines are those of the text; nothing wraps.
  struct Posto {
    int Riga = 1;
    int Colonna = 1;
  };
  Posto RigaColonna() const;

 signals:
  /// The pane was clicked, or an arrow key was released in it.
  void CursoreMosso();

 protected:
  void keyReleaseEvent(QKeyEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
};

}  // namespace parvik
