// Which document type a template file belongs to, by its name: the file does not say.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "catalogue/Catalogo.h"

namespace parvik {

/// Whether a file name fits a pattern: "*" any characters, "?" one, the letters A to Z in either case. Both
/// UTF-8.
bool NomeCorrisponde(std::string_view nome, std::string_view modello);

/// The slots of the listed types whose file-name pattern (`Titolo`) `nome` (UTF-8, without a folder) fits, in
/// their order. A `Titolo` that holds none of "*", "?" and "." is no pattern and fits nothing.
std::vector<std::size_t> TipiPerNome(const Catalogo& catalogo, std::string_view nome);

}  // namespace parvik
