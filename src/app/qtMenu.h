// The menu bar: built from the table of the core (editor/Menu.h), which tells what is in it and what can be
// used.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <QObject>
#include <utility>
#include <vector>

#include "editor/Menu.h"

namespace parvik {

class qtMenu final : public QObject {
  Q_OBJECT

 public:
  /// Fills `barra`, which must outlive this.
  qtMenu(QMenuBar& barra, QObject* padre);

  /// What can be used, and which check marks are there.
  void Aggiorna(const StatoMenu& stato);

 signals:
  /// The user has chosen an entry.
  void Scelto(parvik::Comando comando);

 private:
  QAction* CreaVoce(QMenu& menu, const VoceMenu& voce);

  std::vector<std::pair<const VoceMenu*, QAction*>> azioni_;
};

}  // namespace parvik
