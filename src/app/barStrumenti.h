// The tool bar: buttons for what is used all the time (docs/menus.md).
#pragma once

#include <QToolBar>
#include <vector>

#include "app/qtMenu.h"
#include "editor/Editore.h"

class QMainWindow;

namespace parvik {

class barStrumenti final : public QToolBar {
  Q_OBJECT

 public:
  /// Buttons of the menus' own entries, which must outlive this.
  barStrumenti(const qtMenu& menu, QWidget* padre);

  /// What the buttons would do now.
  void Aggiorna();

 private:
  std::vector<QAction*> azioni_;
};

/// Shows the bar of `finestra`, or hides it: it is there while a document type is chosen and it is switched
/// on, and is made when it first is. `barra` is nullptr until then.
void MostraStrumenti(const Editore& editore, const qtMenu& menu, QMainWindow& finestra, barStrumenti*& barra);

}  // namespace parvik
