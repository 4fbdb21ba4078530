// The dialogs that build codes: which one opens on what, and what becomes of its answer.
#pragma once

#include <QWidget>
#include <memory>
#include <string>

#include "editor/Editore.h"
#include "tokens/Codice.h"
#include "tokens/frmCodice.h"

namespace parvik {

class qtMaschere {
 public:
  /// Both must outlive this. `finestra` is what the dialogs stand in front of.
  qtMaschere(Editore& editore, QWidget& finestra) : editore_(editore), finestra_(finestra) {}

  /// A new code of that kind, from the menu or by a key; the dialog begins as for the code that `contenuto`
  /// is, if it is any.
  void ApriForm(TipoCodice genere, const std::string& contenuto = {});

  /// An existing code, by its content; it is selected, and what the dialog gives takes its place. A code of
  /// unknown kind opens nothing.
  void ApriMaschera(const std::string& contenuto);

  /// The body settings, which are no code.
  void ApriComando();

  /// The sheet of the document type, which is no code either.
  void ApriFoglio();

 private:
  std::unique_ptr<frmCodice> Crea(TipoCodice genere);
  void Esegui(frmCodice& maschera);
  std::string ChiediFlag(QWidget* padre);

  Editore& editore_;
  QWidget& finestra_;
};

}  // namespace parvik
