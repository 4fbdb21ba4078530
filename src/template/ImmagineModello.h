// Template image files (*.img), byte by byte (docs/template-file.md).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "common/Esito.h"
#include "common/Sezione.h"

namespace parvik {

/// How a document type lays a template out; the file itself does not say.
enum class Formato { UnaSezione, TreSezioni };

constexpr Formato FormatoDi(std::int16_t numSezioni) {
  return HaTreSezioni(numSezioni) ? Formato::TreSezioni : Formato::UnaSezione;
}

/// The body settings, kept in the marker line of a three-section file.
struct ImpostazioniCorpo {
  std::int16_t RigheCorpo = 0;  // rows that the body takes on a page
  std::int16_t LineeCorpo = 0;  // lines of the Corpo section: one row
  std::string FlagSbarra;       // "C": rows left over are barred; or ""
  std::string FlagAccorpa;      // "S": empty rows are merged; or "", or any one byte that a file had there

  bool operator==(const ImpostazioniCorpo&) const = default;
};

/// What the choice of a three-section document type sets.
ImpostazioniCorpo ImpostazioniPredefinite();

struct ImmagineLetta {
  TestiSezioni Testi;  // in the one-section layout only the Testata is meaningful
  ImpostazioniCorpo Corpo;
  /// The run-time error that ended the reading; what was read until then is there.
  std::optional<NumeroErrore> Errore;
  /// The marker promises more Corpo lines than the file has. What there is was read.
  bool CorpoIncompleto = false;
  /// Lines of the file were left unread.
  bool TestoNonLetto = false;
};

/// Reads a file's bytes. `attuali` are the settings before: those that the file does not set stay.
ImmagineLetta LeggiImmagine(std::string_view byte, Formato formato, const ImpostazioniCorpo& attuali);

/// Builds a file's bytes. In the three-section layout LineeCorpo is recounted, and a Corpo whose last line
/// lacks its CR LF is completed, in `testi` itself. Overflow, and nothing changed, when the Corpo has more
/// than 32767 lines.
Esito<std::string> ScriviImmagine(TestiSezioni& testi, ImpostazioniCorpo& corpo, Formato formato);

}  // namespace parvik
