#include "common/frmModale.h"

#include <QCloseEvent>

namespace parvik {

frmModale::frmModale(QWidget* padre) : QDialog(padre) {}

// Accepting and rejecting hide the dialog without a close event: this one comes from the close box.
void frmModale::closeEvent(QCloseEvent* evento) {
  evento->ignore();
}

}  // namespace parvik
