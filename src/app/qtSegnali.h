// The end of the session, as the system announces it: logging out, SIGTERM, SIGHUP and SIGINT
// (docs/saving.md).
#pragma once

#include <QObject>
#include <QSessionManager>
#include <functional>

#include "sistema/SegnaliFine.h"

namespace parvik {

class qtSegnali final : public QObject {
  Q_OBJECT

 public:
  /// `puoFinire` tells whether the program may end now, asking when something would be lost. When it may,
  /// every window goes, with a dialog given up, and the program's event loops end with `stato`. It is called
  /// from whatever event loop runs, that of any dialog included, and may be called again before it has
  /// answered. `segnali` must outlive this.
  qtSegnali(const SegnaliFine& segnali, int stato, std::function<bool()> puoFinire);

 private:
  void SegnaleArrivato();
  void FineSessione(QSessionManager& gestore);
  bool Finisci();

  const SegnaliFine& segnali_;
  int stato_;
  std::function<bool()> puoFinire_;
  bool finita_ = false;
};

}  // namespace parvik
