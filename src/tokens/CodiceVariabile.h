// Variable codes: a field of the document, formatted (docs/code-grammar.md).
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "catalogue/TipoDoc.h"

namespace parvik {

/// The code of a variable format record, delimiters included.
std::string CostruisciVariabile(const Variabile& variabile);

/// What a variable code says, read against the variables of its section.
struct VariabileLetta {
  /// The 0-based entry of the table that has the number; nullopt when none has.
  std::optional<std::size_t> Voce;
  /// The format: number, type and description from the entry, all else from the code. Without an entry the
  /// type counts as string, and the number is the one that the code names.
  Variabile Formato;
};

/// Reads a variable code's content. Lenient: missing groups take their defaults, a number or width that is no
/// number (or beyond 16 bits) is 0.
VariabileLetta LeggiVariabile(std::string_view contenuto, std::span<const Variabile> variabili);

}  // namespace parvik
