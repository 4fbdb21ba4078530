// Rows of parameterised tests are told by their name: in lists of tests and in failures.
#pragma once

#include <concepts>
#include <ostream>
#include <string_view>

namespace parvik::prova {

template <class Riga>
concept ConNome = requires(const Riga& riga) {
  { riga.Nome } -> std::convertible_to<std::string_view>;
};

/// Without it the framework prints bytes and addresses, which are other ones in every run. It is found for a
/// row of a namespace without a name by `using prova::PrintTo;` there.
template <ConNome Riga>
void PrintTo(const Riga& riga, std::ostream* uscita) {
  *uscita << std::string_view(riga.Nome);
}

}  // namespace parvik::prova
