// All that a run reads, kept by value: a run can go on while the template is edited.
#pragma once

#include <cstddef>
#include <cstdint>

#include "common/Sezione.h"
#include "output/FlagPerStampe.h"
#include "output/GeneraStampa.h"

namespace parvik {

struct LavoroStampa {
  TestiSezioni Testi;  // Windows-1252, lines separated by CR LF
  std::int16_t NumSezioni = 0;
  std::int16_t RigheCorpo = 0;
  std::int16_t LineeCorpo = 0;
  FlagPerStampe Flag;
  bool Interi = true;  // false: only the beginning of the template

  /// Looks at this object, which must outlive it.
  DatiStampa Dati() const {
    return {.Testi = {Testi[0], Testi[1], Testi[2]},
            .NumSezioni = NumSezioni,
            .RigheCorpo = RigheCorpo,
            .LineeCorpo = LineeCorpo,
            .Flag = Flag,
            .Interi = Interi};
  }
};

}  // namespace parvik
