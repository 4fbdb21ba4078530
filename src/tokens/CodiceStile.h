// Style codes: a change of character style (docs/code-grammar.md).
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace parvik {

/// In the order in which the styles are offered.
enum class Stile { Normale = 0, Grassetto = 1, Compresso = 2, Italico = 3, Sottolineato = 4 };

/// As the style dialog calls them, in their order.
inline constexpr std::array<std::string_view, 5> NomiStile = {"Normale", "Grassetto", "Compresso",
                                                              "Corsivo o Italico", "Sottolineato"};

/// The word that a style code carries, in upper case.
std::string_view ParolaStile(Stile stile);

/// The style whose word begins with the same two letters as `parola`, compared without regard to case;
/// nullopt when there is none.
std::optional<Stile> StileDi(std::string_view parola);

/// The code, delimiters included.
std::string CostruisciStile(Stile stile);

/// The word of a style code's content: everything after the first ";", "" when there is none.
std::string_view LeggiStile(std::string_view contenuto);

}  // namespace parvik
