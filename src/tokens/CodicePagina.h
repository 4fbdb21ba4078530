// Page-number codes (docs/code-grammar.md).
#pragma once

#include <string>
#include <string_view>

namespace parvik {

/// The code, delimiters included; "" when `numero` is empty or nothing but spaces.
std::string CostruisciPagina(std::string_view numero);

/// The number of a page-number code's content, as it is written.
std::string LeggiPagina(std::string_view contenuto);

}  // namespace parvik
