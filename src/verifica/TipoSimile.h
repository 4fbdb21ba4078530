// Whether a template seems to be of another type than the one that it is checked as (docs/verifica.md).
#pragma once

#include <array>
#include <string_view>

#include "catalogue/Catalogo.h"
#include "common/Sezione.h"
#include "verifica/VociTipo.h"

namespace parvik {

/// The type that knows most of a template's unknown variables, where more than half of all variables are
/// unknown to its own type and known to that one; the first such in the order of the catalogue. nullptr when
/// there is none. Linear in the texts and in the catalogue; that is only read when there is need.
const TipoDoc* TipoSimile(const std::array<std::string_view, MaxSezioni>& testi, const VociTipo& voci,
                          const Catalogo& catalogo);

}  // namespace parvik
