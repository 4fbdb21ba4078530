// What a code says, in words for a person.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "catalogue/TipoDoc.h"

namespace parvik {

/// One line of Italian (UTF-8) that tells what the code with this content is, for example
///     Variabile 25 · Imponibile · 12 caratteri a destra, riempimento "*", 2 decimali, separatore migliaia
/// `variabili` and `flag` are those of the code's section; empty slots in them count as absent, and the page
/// conditions are known whether `flag` has them or not. Plain text: the words of the template and of the
/// catalogue in it are not escaped for any markup.
std::string DescriviCodice(std::string_view contenuto, std::span<const Variabile> variabili,
                           std::span<const Flag> flag);

/// The same as one phrase, for example
///     Variabile 25 Imponibile, 12 caratteri a destra, riempimento "*", 2 decimali, separatore migliaia
std::string DescriviInFrase(std::string_view contenuto, std::span<const Variabile> variabili,
                            std::span<const Flag> flag);

}  // namespace parvik
