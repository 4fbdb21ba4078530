// Files that are dropped on the window: opened, wherever on it they land (docs/file-commands.md).
#pragma once

#include <QMimeData>
#include <QObject>
#include <QWidget>

namespace parvik {

class qtApertura final : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// A widget on which files may be dropped; what else is dropped there is its own. The widget must not
  /// outlive this.
  void Osserva(QWidget& bersaglio);

 signals:
  /// One file was dropped, by its path. Emitted from the event loop, when the drop is over: whoever is told
  /// may ask the user something.
  void Depositato(const QString& file);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
};

}  // namespace parvik
