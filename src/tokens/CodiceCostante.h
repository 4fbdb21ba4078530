// Constant codes: a fixed text (docs/code-grammar.md).
#pragma once

#include <string>
#include <string_view>

namespace parvik {

/// The code, delimiters included; "" when `testo` is empty or nothing but spaces. The text is not trimmed.
std::string CostruisciCostante(std::string_view testo);

/// The text of a constant code's content. It is cut out by length, so that quotes inside it survive.
std::string LeggiCostante(std::string_view contenuto);

}  // namespace parvik
