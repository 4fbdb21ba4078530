// The marker's line of a file (docs/verifica.md).
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "template/Marcatore.h"
#include "verifica/Rilievo.h"

namespace parvik {

/// The line of a file that the reader takes for the marker.
struct RigaDelMarcatore {
  std::size_t InizioRiga = 0;  // byte of the file
  std::size_t Colonna = 0;     // of the first opening and C
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

/// How many lines a text has: the last one needs no end.
std::size_t QuanteRighe(std::string_view testo);

/// A finding at the marker of a file. Its line is counted there and then.
Rilievo DelMarcatore(Regola regola, std::string_view byte, const RigaDelMarcatore& dove, std::string testo);

/// Whether the first line of a text is a whole marker and nothing else.
bool MarcatoreNellaPrimaRiga(std::string_view testo);

/// Looks at the marker of a file, `preso`, and adds what there is to say of its line. Codes outside of it may
/// have the delimiters of files or the editor's.
MarcatoreEsaminato EsaminaMarcatore(std::string_view byte, const std::optional<Marcatore>& preso,
                                    std::vector<Rilievo>& rilievi);

}  // namespace parvik
