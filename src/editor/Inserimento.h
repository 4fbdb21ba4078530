// Where the codes that the dialogs build go: into the active section, at its caret.
#pragma once

#include <span>
#include <string>

#include "common/Sezione.h"
#include "editor/Vista.h"
#include "template/Documento.h"

namespace parvik {

class Inserimento {
 public:
  /// Both must outlive it. `vista` is first used when there is something to insert.
  Inserimento(Documento& documento, VistaSezioni& vista) : documento_(documento), vista_(vista) {}

  /// The section that last had the focus, at first the Testata.
  Sezione Attiva() const { return attiva_; }
  /// One that the template has, as in all that follow.
  void ImpostaAttiva(Sezione sezione) { attiva_ = sezione; }

  /// Before a dialog that builds a code is shown: what its answer will take the place of cuts no code.
  void Prepara();

  /// At the caret, the first in place of the selection, each next one behind it; one step to undo. The
  /// template is modified by it, even if a code is empty.
  void Inserisci(std::span<const std::string> codici);

 private:
  Documento& documento_;
  VistaSezioni& vista_;
  Sezione attiva_ = Sezione::Testata;
};

}  // namespace parvik
