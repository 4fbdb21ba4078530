#include "app/qtSegnali.h"

#include <QApplication>
#include <QDialog>
#include <QSocketNotifier>
#include <utility>

namespace parvik {
namespace {

/// Who waits for a dialog is told that nothing was chosen, and work that shows one is given up.
void ChiudiTutto() {
  for (QWidget* finestra : QApplication::topLevelWidgets()) {
    auto* dialogo = qobject_cast<QDialog*>(finestra);
    if (dialogo != nullptr && dialogo->isModal() && dialogo->isVisible()) {
      dialogo->reject();
    } else {
      finestra->hide();
    }
  }
}

}  // namespace

qtSegnali::qtSegnali(const SegnaliFine& segnali, int stato, std::function<bool()> puoFinire)
    : segnali_(segnali), stato_(stato), puoFinire_(std::move(puoFinire)) {
  connect(qApp, &QApplication::commitDataRequest, this, &qtSegnali::FineSessione, Qt::DirectConnection);
  if (segnali.Numero() < 0) return;
  auto* campanello = new QSocketNotifier(segnali.Numero(), QSocketNotifier::Read, this);
  connect(campanello, &QSocketNotifier::activated, this, &qtSegnali::SegnaleArrivato);
}

void qtSegnali::SegnaleArrivato() {
  while (segnali_.Prendi()) {
  }
  Finisci();
}

/// Where nobody may be asked nothing is written by itself, and the session ends.
void qtSegnali::FineSessione(QSessionManager& gestore) {
  if (!gestore.allowsInteraction()) return;
  if (Finisci()) {
    gestore.release();
  } else {
    gestore.cancel();
  }
}

bool qtSegnali::Finisci() {
  if (finita_) return true;
  if (!puoFinire_()) return false;
  finita_ = true;
  ChiudiTutto();
  QApplication::exit(stato_);
  return true;
}

}  // namespace parvik
