#include "tokens/frmCodice.h"

namespace parvik {

void frmCodice::AvvisaManca(QLabel& riga, const QString& quale, const QString& codice) {
  const QString esito = codice.isEmpty() ? "resta com'è" : "diventa " + codice;
  riga.setText(quale + " non è nel catalogo di questa sezione: con OK il codice " + esito + ".");
  riga.show();
  avviso_ = &riga;
  Tasti().ImpostaOkPredefinito(false);
}

void frmCodice::TogliAvviso() {
  if (avviso_ == nullptr) return;
  avviso_->hide();
  avviso_ = nullptr;
  Tasti().ImpostaOkPredefinito(true);
}

}  // namespace parvik
