// The lines of a section as the writer of template files counts and writes them (docs/template-file.md).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "common/Esito.h"

namespace parvik {

struct ConteggioRighe {
  std::int16_t Righe = 0;
  /// The section ends with text that no CR LF closes, and that is more than spaces: the count includes that
  /// line, and the section must be completed with a CR LF.
  bool DaCompletare = false;
};

/// Overflow when the section has more lines than a 16-bit number counts.
Esito<ConteggioRighe> ContaRigheSezione(std::string_view testo);

/// Whether a line's text holds anything but spaces (a lone LF is no text either).
bool HaTesto(std::string_view riga);

}  // namespace parvik
