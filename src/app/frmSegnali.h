// The end of the session, as the system announces it: logging out, SIGTERM and SIGHUP (docs/saving.md).
#pragma once

#include <QObject>
#include <QSessionManager>
#include <functional>

#include "common/SegnaliFine.h"

namespace parvik {

class frmSegnali final : public QObject {
  Q_OBJECT

 public:
  /// `chiudi` ends the program, asking when something would be lost, and tells whether it does end. It is
  /// called from the event loop, and not again while it asks. `segnali` must outlive this.
  frmSegnali(const SegnaliFine& segnali, std::function<bool()> chiudi);

 private:
  void SegnaleArrivato();
  void FineSessione(QSessionManager& gestore);
  bool Chiudi();

  const SegnaliFine& segnali_;
  std::function<bool()> chiudi_;
  bool chiede_ = false;
};

}  // namespace parvik
