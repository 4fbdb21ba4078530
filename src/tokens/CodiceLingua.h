// Language codes: an entry of the host's language table (docs/code-grammar.md).
#pragma once

#include <string>
#include <string_view>

namespace parvik {

/// Index and width as they are written, unchecked. An empty width writes no width group.
struct CodiceLingua {
  std::string IndiceTabella;
  std::string Lunghezza = "10";

  bool operator==(const CodiceLingua&) const = default;
};

/// The code, delimiters included; "" when the index is empty.
std::string CostruisciLingua(const CodiceLingua& lingua);

/// Reads a language code's content. A code without a width group has width "10".
CodiceLingua LeggiLingua(std::string_view contenuto);

}  // namespace parvik
