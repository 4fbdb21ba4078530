// Renders the document as it stands: into the preview pane, or into a text file.
#pragma once

#include <filesystem>
#include <optional>

#include "catalogue/TipoDoc.h"
#include "common/EsitoScrittura.h"
#include "common/Interlocutore.h"
#include "editor/Vista.h"
#include "output/FlagPerStampe.h"
#include "output/LavoroStampa.h"
#include "template/Documento.h"

namespace parvik {

/// The collaborators must outlive it. `tipo` is always the current document type.
class Resa {
 public:
  Resa(const Documento& documento, const FlagPerStampe& flag, VistaAnteprima& vista,
       Interlocutore& interlocutore)
      : documento_(documento), flag_(flag), vista_(vista), interlocutore_(interlocutore) {}

  /// Fills the preview pane: at once with the beginning, and then with all. False when the run was given up,
  /// or ran out of memory, which is told.
  bool RiempiAnteprima(const TipoDoc& tipo);

  /// What there is to say when the file stands there whole; on a failure, and when it was given up, nothing,
  /// and the old file is as it was.
  std::optional<Scritto> ScriviTesto(const TipoDoc& tipo, const std::filesystem::path& file);

 private:
  LavoroStampa SenzaTesti(const TipoDoc& tipo) const;
  LavoroStampa Inizio(const TipoDoc& tipo) const;
  bool Mancata(NumeroErrore perche);

  const Documento& documento_;
  const FlagPerStampe& flag_;
  VistaAnteprima& vista_;
  Interlocutore& interlocutore_;
};

}  // namespace parvik
