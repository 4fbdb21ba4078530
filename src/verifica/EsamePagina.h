// What is only seen on the printed page: lines too long, and frames that do not meet (docs/verifica.md).
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "common/Sezione.h"
#include "verifica/Rilievo.h"

namespace parvik {

/// Adds a finding for each printed line of more than `larghezza` characters. Linear in the texts.
void EsaminaLunghezze(const std::array<std::string_view, MaxSezioni>& testi, std::size_t larghezza,
                      std::vector<Rilievo>& rilievi);

/// Adds a finding for each printed line whose bars do not meet the crosses of the ruling lines above and
/// below it. Linear in the texts, but for the search of a cross among those of a ruling line.
void EsaminaCornici(const std::array<std::string_view, MaxSezioni>& testi, std::vector<Rilievo>& rilievi);

}  // namespace parvik
