#include "app/frmSegnali.h"

#include <QApplication>
#include <QSocketNotifier>
#include <utility>

namespace parvik {

frmSegnali::frmSegnali(const SegnaliFine& segnali, std::function<bool()> chiudi)
    : segnali_(segnali), chiudi_(std::move(chiudi)) {
  connect(qApp, &QApplication::commitDataRequest, this, &frmSegnali::FineSessione, Qt::DirectConnection);
  if (segnali.Numero() < 0) return;
  auto* campanello = new QSocketNotifier(segnali.Numero(), QSocketNotifier::Read, this);
  connect(campanello, &QSocketNotifier::activated, this, &frmSegnali::SegnaleArrivato);
}

void frmSegnali::SegnaleArrivato() {
  while (segnali_.Prendi()) {
  }
  Chiudi();
}

/// Where nobody may be asked nothing is written by itself, and the session ends.
void frmSegnali::FineSessione(QSessionManager& gestore) {
  if (!gestore.allowsInteraction()) return;
  if (Chiudi()) {
    gestore.release();
  } else {
    gestore.cancel();
  }
}

bool frmSegnali::Chiudi() {
  if (chiede_) return false;
  chiede_ = true;
  const bool chiusa = chiudi_();
  chiede_ = false;
  return chiusa;
}

}  // namespace parvik
