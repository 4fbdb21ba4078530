// The marker's line of a file (docs/verifica.md).
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "verifica/Rilievo.h"

namespace parvik {

/// The line of a file that the reader takes for the marker.
struct RigaDelMarcatore {
  std::size_t Riga = 0;     // of the file, from 1
  std::size_t Colonna = 0;  // of the first opening and C
  std::size_t Lunghezza = 0;
  bool Intero = false;  // a whole marker stands there
  bool Solo = false;    // and nothing beside it
};

/// What a file of three sections says of its marker.
struct MarcatoreEsaminato {
  std::optional<RigaDelMarcatore> Preso;
  bool InPrimaRiga = false;  // the first line is one, and is not looked at

  /// Whether it is known where the sections begin.
  bool Certo() const { return Preso && Preso->Intero && !InPrimaRiga; }
};

/// Whether the first line of a text is a whole marker and nothing else.
bool MarcatoreNellaPrimaRiga(std::string_view testo);

/// Looks at the marker of a file, and adds what there is to say of its line.
MarcatoreEsaminato EsaminaMarcatore(std::string_view byte, std::vector<Rilievo>& rilievi);

}  // namespace parvik
