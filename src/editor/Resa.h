// Renders the document as it stands: into the preview pane, for paper, or into a text file.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "catalogue/TipoDoc.h"
#include "common/EsitoScrittura.h"
#include "common/Interlocutore.h"
#include "editor/AnteprimaMostrata.h"
#include "editor/Vista.h"
#include "output/FlagPerStampe.h"
#include "output/MappaAnteprima.h"
#include "output/TestoAnteprima.h"
#include "template/Documento.h"

namespace parvik {

/// The collaborators must outlive it. `tipo` is always the current document type.
class Resa {
 public:
  Resa(const Documento& documento, const FlagPerStampe& flag, AnteprimaMostrata& mostrata,
       VistaAnteprima& vista, Interlocutore& interlocutore)
      : documento_(documento),
        flag_(flag),
        mostrata_(mostrata),
        vista_(vista),
        interlocutore_(interlocutore) {}

  /// Fills the preview pane: at once with the beginning, and then with all. False when the run was given up,
  /// or ran out of memory, which is told.
  bool RiempiAnteprima(const TipoDoc& tipo);

  /// The preview of this moment, the end marker included; the pane keeps what it shows. Nothing when the run
  /// was given up, or ran out of memory, which is told.
  std::optional<TestoAnteprima> PerCarta(const TipoDoc& tipo);

  /// What there is to say when the file stands there whole; on a failure, and when it was given up, nothing,
  /// and the old file is as it was.
  std::optional<Scritto> ScriviTesto(const TipoDoc& tipo, const std::filesystem::path& file);

 private:
  bool Riempi(const TipoDoc& tipo);
  void Riuscita(AnteprimaMostrata::Numero numero, std::shared_ptr<const MappaAnteprima> mappa);
  bool Mancata(AnteprimaMostrata::Numero numero, NumeroErrore perche);

  const Documento& documento_;
  const FlagPerStampe& flag_;
  AnteprimaMostrata& mostrata_;
  VistaAnteprima& vista_;
  Interlocutore& interlocutore_;
};

}  // namespace parvik
