#include "output/lblRighe.h"

namespace parvik {

lblRighe::lblRighe(const ricAnte& pannello, QWidget* padre) : QLabel(padre), pannello_(pannello) {
  setObjectName("lblRighe");
  connect(&pannello, &ricAnte::CursoreMosso, this, &lblRighe::AggiornaRigaColonna);
  connect(&pannello, &ricAnte::Mostrata, this, &lblRighe::AggiornaRigaColonna);
  AggiornaRigaColonna();
}

void lblRighe::AggiornaRigaColonna() {
  const auto [riga, colonna] = pannello_.RigaColonna();
  setText(QStringLiteral("Riga: %1 Col.: %2").arg(riga).arg(colonna));
}

}  // namespace parvik
