// From bytes of sections to lines and columns, and into the order of the file.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "common/Sezione.h"
#include "verifica/Rilievo.h"

namespace parvik {

/// Where the lines of each section begin in what the findings count: the number of the first one.
using PrimeRighe = std::array<std::size_t, MaxSezioni>;

/// Gives each finding that has a section its line and column. Goes over the texts once, as far as there are
/// findings.
void MettiPosti(const std::array<std::string_view, MaxSezioni>& testi, const PrimeRighe& prime,
                std::vector<Rilievo>& rilievi);

}  // namespace parvik
