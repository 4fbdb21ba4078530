// A code as the run reads it (docs/rendering.md): the second view of the contents, beside the groups
// (tokens/Gruppi.h), and simpler. It asks no catalogue, knows no groups behind the first two separators, and
// a letter counts wherever it stands. What both views say of a well-formed code is the same; where they part
// is tabled in docs/code-grammar.md. Of which kind a code is, both ask Riconosci.
//
// Each function takes a content of its kind and never fails. Views look at the content.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "common/Ritagli.h"

namespace parvik {

/// What a variable or a language string asks for: as many characters as its width, all fill but for a zero.
struct CampoCorsa {
  std::size_t Larghezza = 0;
  char Riempimento = '$';
  bool Zero = false;                    // shows a zero
  bool ADestra = true;                  // where the zero stands
  std::optional<std::size_t> Decimali;  // of the zero

  bool operator==(const CampoCorsa&) const = default;
};

CampoCorsa VariabileCorsa(std::string_view contenuto);
CampoCorsa LinguaCorsa(std::string_view contenuto);

/// The text of a constant: what stands between its quotes, where it has them.
constexpr std::string_view CostanteCorsa(std::string_view contenuto) {
  return Da(SenzaUltimi(contenuto, 1), 4);
}

/// The marker that a style leaves in a preview.
constexpr std::string_view StileCorsa(std::string_view contenuto) {
  return contenuto.substr(0, 4);
}

constexpr std::string_view PaginaCorsa(std::string_view contenuto) {
  return Da(contenuto, 1);
}

/// The number of a flag. The run has no use for the switch.
double FlagCorsa(std::string_view contenuto);

}  // namespace parvik
