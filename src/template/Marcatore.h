// The line of a three-section file that separates Testata and Corpo and keeps the body settings
// (docs/template-file.md).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "common/Esito.h"

namespace parvik {

/// The body settings.
struct ImpostazioniCorpo {
  std::int16_t RigheCorpo = 0;  // rows that the body takes on a page
  std::int16_t LineeCorpo = 0;  // lines of the Corpo section: one row
  std::string FlagSbarra;       // "C": rows left over are barred; or ""
  std::string FlagAccorpa;      // "S": empty rows are merged; or "", or any one byte that a file had there

  bool operator==(const ImpostazioniCorpo&) const = default;
};

/// Where the marker's line is: places in the file's bytes.
struct Marcatore {
  std::size_t InizioRiga = 0;
  std::size_t Coppia = 0;    // of the two bytes that it is known by
  std::size_t FineRiga = 0;  // behind its line end
};

/// The first one in the lines that begin at `da` or later, itself the beginning of a line; nullopt when there
/// is none. In the first line of the file it is never looked for.
std::optional<Marcatore> TrovaMarcatore(std::string_view byte, std::size_t da);

/// How many bytes the whole marker takes that a text of a section or of a file begins with: an opening
/// delimiter, C, an integer, ";", an integer, ";", a C or not, an S or not, and the closing delimiter, each
/// as it is written. 0 when the text begins with none.
std::size_t MarcatoreIntero(std::string_view testo);

/// Reads the settings. What was set before an error, and what the line does not set, stays.
Esito<void> LeggiMarcatore(std::string_view byte, const Marcatore& marcatore, ImpostazioniCorpo& corpo);

/// The line that keeps the settings, with its line end.
std::string RigaMarcatore(const ImpostazioniCorpo& corpo);

}  // namespace parvik
