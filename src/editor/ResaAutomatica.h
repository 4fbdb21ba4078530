// The preview that follows every change by itself: what is run at once, and what on a thread
// (docs/anteprima.md).
#pragma once

#include <cstddef>
#include <optional>
#include <stop_token>
#include <utility>

#include "editor/AnteprimaMostrata.h"
#include "editor/Istantanea.h"
#include "editor/Vista.h"

namespace parvik {

/// A run of its own, to be made on any thread.
class LavoroAnteprima {
 public:
  LavoroAnteprima(AnteprimaMostrata::Numero numero, Istantanea cosa)
      : numero_(numero), cosa_(std::move(cosa)) {}

  struct Fatto {
    AnteprimaMostrata::Numero Numero = 0;
    Esito<AnteprimaMappata, Interruzione> Anteprima = Interruzione::Chiesta;
  };
  Fatto Esegui(const std::stop_token& smetti) const;

 private:
  AnteprimaMostrata::Numero numero_;
  Istantanea cosa_;
};

class ResaAutomatica {
 public:
  /// All must outlive it.
  ResaAutomatica(const Documento& documento, const FlagPerStampe& flag, AnteprimaMostrata& mostrata,
                 VistaAnteprima& vista)
      : documento_(documento), flag_(flag), mostrata_(mostrata), vista_(vista) {}

  /// Renders the document as it stands into the pane: at once where that is quick, or else the run that there
  /// is to make, whose result is to be handed in.
  std::optional<LavoroAnteprima> Rinnova(const TipoDoc& tipo);
  /// Failures are silent.
  void Consegna(LavoroAnteprima::Fatto fatto);

 private:
  const Documento& documento_;
  const FlagPerStampe& flag_;
  AnteprimaMostrata& mostrata_;
  VistaAnteprima& vista_;
  bool lunga_ = false;  // the last one came out longer than what is rendered at once
};

}  // namespace parvik
