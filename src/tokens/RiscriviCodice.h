// A code as its dialog would write it back.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "catalogue/TipoDoc.h"

namespace parvik {

/// The code, delimiters included, that comes of the dialog of its kind when it was opened on this content and
/// OK is chosen at once; "" when that is nothing. nullopt of no kind, and where the dialog would show another
/// entry: `variabili` and `flag`, those of the code's section, have none of that number. The page conditions
/// are known whether `flag` has them or not.
std::optional<std::string> Riscrivi(std::string_view contenuto, std::span<const Variabile> variabili,
                                    std::span<const Flag> flag);

}  // namespace parvik
