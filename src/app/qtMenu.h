// The menu bar: built from the table of the core (editor/Menu.h), which tells what is in it and what can be
// used.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <QObject>
#include <QWidget>
#include <utility>
#include <vector>

#include "editor/Menu.h"

namespace parvik {

class qtMenu final : public QObject {
  Q_OBJECT

 public:
  /// Fills `barra`, the menu bar of `finestra`, which owns this. The keys of entries that can always be used
  /// hold in the whole window, whatever menu they are in.
  qtMenu(QMenuBar& barra, QWidget& finestra);

  /// The entry of a command.
  QAction* Azione(Comando comando) const;

  /// What can be used, and which check marks are there.
  void Aggiorna(const StatoMenu& stato);

 signals:
  /// The user has chosen an entry.
  void Scelto(parvik::Comando comando);

 private:
  void Metti(QMenuBar& barra, const VoceMenu& voce);
  QMenu* ApriMenu(QMenu* menu, const VoceMenu& voce);
  QAction* CreaVoce(const VoceMenu& voce);

  QWidget& finestra_;
  std::vector<QMenu*> aperti_;  // while the bar is filled: the top menu, and the submenu in it

  std::vector<std::pair<const VoceMenu*, QAction*>> azioni_;
};

}  // namespace parvik
