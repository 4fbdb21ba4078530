// What a run keeps where it comes to a place, found by looking back over the codes in front of it
// (docs/rendering.md).
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "common/Sezione.h"
#include "output/TrovaVar.h"
#include "template/TestoSezione.h"

namespace parvik {

/// A time that a section is rendered, from 0.
struct GiroCorsa {
  Sezione Dove = Sezione::Testata;
  int Volta = 0;
};

/// The one in front of it, when the body is rendered `ripetizioni` times; nullopt at the beginning. Of a body
/// that is repeated often the last times are left out: a run can tell no more than three of them apart. A
/// body that is not rendered at all leaves nothing to the section behind it, but has the Testata in front of
/// it.
std::optional<GiroCorsa> GiroDavanti(const GiroCorsa& giro, int ripetizioni);

/// The codes that a run has evaluated when it comes to a place, from the last one back to the first.
class CodiciIndietro {
 public:
  using Testi = std::array<TestoSezione, MaxSezioni>;

  /// In front of byte `da` of a section; a code in which that lies is behind it. `testi` must outlive this.
  CodiciIndietro(const Testi& testi, int ripetizioni, const GiroCorsa& giro, std::size_t da)
      : testi_(&testi), ripetizioni_(ripetizioni), giro_(giro), qui_(da) {}

  /// To the code in front. False when there is none.
  bool Passa();

  /// Of the code that it stands at; valid until the next step.
  std::string_view Contenuto() const;

 private:
  const TestoSezione& Testo() const { return (*testi_)[Indice(giro_.Dove)]; }

  const Testi* testi_;
  int ripetizioni_;
  GiroCorsa giro_;
  std::size_t qui_;
  std::string codice_;
};

/// Whether the next code at that place is shown. Looks back as far as the last code that is no flag, or a
/// flag that the print flags know.
bool MostraProssimo(CodiciIndietro qui, const StatiFlag& stati);

/// The width of the text that a code of unknown kind repeats at that place. Looks back as far as the last
/// code of a known kind.
std::size_t UltimaLarghezza(CodiciIndietro qui, const StatiFlag& stati);

}  // namespace parvik
