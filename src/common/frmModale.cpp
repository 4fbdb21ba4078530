#include "common/frmModale.h"

#include <QCloseEvent>

namespace parvik {

frmModale::frmModale(QWidget* padre, Chiusura chiusura) : QDialog(padre), chiusura_(chiusura) {}

// Accepting and rejecting hide the dialog without a close event: this one comes from the close box.
void frmModale::closeEvent(QCloseEvent* evento) {
  if (chiusura_ == Chiusura::ComeAnnulla) {
    QDialog::closeEvent(evento);
  } else {
    evento->ignore();
  }
}

}  // namespace parvik
