// A code with another width.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "catalogue/TipoDoc.h"

namespace parvik {

inline constexpr std::int16_t LarghezzaMassima = 999;

/// The code, delimiters included, that the dialog of a variable or of a language entry would write with that
/// width, from 1 to LarghezzaMassima. nullopt of any other code, and of a variable that is not among
/// `variabili`: without its type nobody can write it back.
std::optional<std::string> ConLarghezza(std::string_view contenuto, std::int16_t larghezza,
                                        std::span<const Variabile> variabili);

}  // namespace parvik
