// Document types by what a person knows of them: their number, or the name of a template file, which does not
// say its type.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "catalogue/Catalogo.h"

namespace parvik {

/// The slot of a type by its number, as the catalogue writes it; nullopt when there is none of that number.
std::optional<std::size_t> TipoPerNumero(const Catalogo& catalogo, int numero);

/// Whether a file name fits a pattern: "*" any characters, "?" one, the letters A to Z in either case. Both
/// UTF-8.
bool NomeCorrisponde(std::string_view nome, std::string_view modello);

/// The slots of the listed types whose file-name pattern (`Titolo`) `nome` (UTF-8, without a folder) fits, in
/// their order. A `Titolo` that holds none of "*", "?" and "." is no pattern and fits nothing.
std::vector<std::size_t> TipiPerNome(const Catalogo& catalogo, std::string_view nome);

}  // namespace parvik
