// The export into a PDF document, as decisions: what is asked, in which order, what is rendered, what is told
// (docs/printing.md).
#pragma once

#include <filesystem>
#include <optional>

#include "catalogue/TipoDoc.h"
#include "common/EsitoScrittura.h"
#include "common/Interlocutore.h"
#include "editor/Resa.h"
#include "editor/Vista.h"
#include "output/Foglio.h"
#include "start/Installazione.h"
#include "template/Documento.h"

namespace parvik {

/// The collaborators must outlive the command. `tipo` is always the current document type.
class ComandoEsporta {
 public:
  ComandoEsporta(const Documento& documento, const Installazione& installazione, Resa& resa,
                 VistaStampa& vista, Interlocutore& interlocutore)
      : documento_(documento),
        installazione_(installazione),
        resa_(resa),
        vista_(vista),
        interlocutore_(interlocutore) {}

  /// Asks for a file, and before one is replaced; renders, and writes what a printer would get, on that
  /// sheet. A failure is told with its reason, and the old file is as it was; so it is, without a word, when
  /// the command was given up. There must be something to print.
  void Esegui(const TipoDoc& tipo, const Foglio& foglio);

 private:
  std::filesystem::path ScegliFile();
  std::optional<EsitoScrittura> Scrivi(const std::filesystem::path& file, const TipoDoc& tipo,
                                       const Foglio& foglio);

  const Documento& documento_;
  const Installazione& installazione_;
  Resa& resa_;
  VistaStampa& vista_;
  Interlocutore& interlocutore_;
};

}  // namespace parvik
