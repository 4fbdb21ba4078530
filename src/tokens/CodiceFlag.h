// Flag codes: a condition that shows or hides the next code (docs/code-grammar.md).
#pragma once

#include <string>
#include <string_view>

namespace parvik {

/// What a flag code says. `Interruttore` is "S" (spaces in place of the variable) or "N", or whatever text
/// the catalogue or the code has there.
struct CodiceFlag {
  std::string Numero;  // as it is written; "" reads as 0
  std::string Interruttore = "N";

  bool operator==(const CodiceFlag&) const = default;
};

/// The code, delimiters included.
std::string CostruisciFlag(const CodiceFlag& flag);

/// Reads a flag code's content. A last character that is no digit is the switch; without one it is "N".
CodiceFlag LeggiFlag(std::string_view contenuto);

}  // namespace parvik
