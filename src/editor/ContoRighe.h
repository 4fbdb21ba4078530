// The lines of the sections, counted for the user: the line totals, while they are shown, and what the body
// settings say of the body.
#pragma once

#include <cstdint>
#include <optional>

#include "catalogue/TipoDoc.h"
#include "common/Interlocutore.h"
#include "common/Sezione.h"
#include "output/TotaliRighe.h"
#include "template/Documento.h"

namespace parvik {

/// The line totals as they are shown.
struct RigheMostrate {
  TotaliRighe Righe;
  std::int16_t Pagina = 0;
};

/// The collaborators must outlive it. `tipo` is always the current document type.
class ContoRighe {
 public:
  ContoRighe(Documento& documento, Interlocutore& interlocutore)
      : documento_(documento), interlocutore_(interlocutore) {}

  /// The lines of a section, its last line completed; nullopt after a message when there are too many to
  /// count. A section that `tipo` does not have is out of sight and keeps its text.
  std::optional<std::int16_t> Conta(const TipoDoc& tipo, Sezione sezione);

  /// Shows the numbers of this moment, or hides them. They stay hidden, after a message, when there are too
  /// many lines to count.
  void Commuta(const TipoDoc& tipo);
  void Nascondi() { mostrati_.reset(); }
  /// The numbers of the moment at which they were shown; nullopt while they are hidden.
  const std::optional<RigheMostrate>& Mostrati() const { return mostrati_; }

 private:
  std::optional<RigheMostrate> Calcola(const TipoDoc& tipo);
  void Segnala(NumeroErrore errore);

  Documento& documento_;
  Interlocutore& interlocutore_;
  std::optional<RigheMostrate> mostrati_;
};

}  // namespace parvik
