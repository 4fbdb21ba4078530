// The status bar of the main window: made when it is first to be seen, and written when what it tells has
// come to rest.
#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QObject>
#include <QTimer>

#include "app/barStato.h"
#include "app/qtArea.h"
#include "editor/Editore.h"

namespace parvik {

class qtBarraStato final : public QObject {
  Q_OBJECT

 public:
  /// All must outlive this, which belongs to `finestra`, the main window.
  qtBarraStato(Editore& editore, qtArea& area, QMainWindow& finestra);

  /// Shows the bar, or hides it: it is there while a document type is chosen and it is switched on.
  void Aggiorna();

  /// Writes it anew, as soon as there is nothing else to do, or a moment later where it has just been
  /// written. However often it is asked for, once.
  void Accoda();

 private:
  void Scrivi();

  Editore& editore_;
  qtArea& area_;
  QMainWindow& finestra_;
  barStato* barra_ = nullptr;
  QTimer attesa_;
  QElapsedTimer ultima_;  // since it was last written
};

}  // namespace parvik
