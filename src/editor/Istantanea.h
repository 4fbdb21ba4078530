// All that a run would read of the document at one moment.
#pragma once

#include <array>
#include <cstddef>

#include "catalogue/TipoDoc.h"
#include "output/LavoroStampa.h"
#include "template/Documento.h"

namespace parvik {

/// A value that costs next to nothing: the texts are laid out when they are asked for, on whatever thread.
class Istantanea {
 public:
  Istantanea(const Documento& documento, const FlagPerStampe& flag, const TipoDoc& tipo);

  /// How many bytes a run goes over, each repetition of the body counted.
  std::size_t Dimensione() const;

  LavoroStampa Intera() const;
  /// The first lines, as many as that many bytes hold. A run ends where the first cut is: nothing follows a
  /// section that was cut, nor does it itself once more.
  LavoroStampa Inizio(std::size_t massimo) const;

 private:
  std::array<TestoSezione, MaxSezioni> testi_;
  LavoroStampa senzaTesti_;
};

}  // namespace parvik
