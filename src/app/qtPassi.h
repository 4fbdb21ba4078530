// Undo and redo by their keys: those that the system has, and those that hold on every system
// (docs/document.md).
#pragma once

#include <QAction>
#include <QKeySequence>
#include <QObject>
#include <QWidget>

namespace parvik {

class qtPassi final : public QObject {
  Q_OBJECT

 public:
  /// The keys hold all over `finestra`, which owns this.
  explicit qtPassi(QWidget* finestra);

 signals:
  /// The user asks for the document's last step.
  void DaAnnullare();
  void DaRipetere();

 private:
  QAction* CreaAzione(QKeySequence::StandardKey tasti, const char* nome, QWidget& finestra);
};

}  // namespace parvik
