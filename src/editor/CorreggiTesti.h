// Mends in the texts of the open template (docs/verifica.md).
#pragma once

#include <cstddef>
#include <vector>

#include "catalogue/Catalogo.h"
#include "common/Esito.h"
#include "template/Documento.h"

namespace parvik {

/// Makes those of the changes after which the template prints what it printed, in a text file and in the
/// preview with its looks, all print flags true or all false: one step. They lie apart, in any order. How
/// many were not made; an error, and no change, when memory is exhausted.
Esito<std::size_t> CorreggiTesti(Documento& documento, std::vector<ModificaSezione> modifiche,
                                 const Catalogo& catalogo, const TipoDoc& tipo);

}  // namespace parvik
