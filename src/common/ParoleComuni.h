// Words that more than one text of the screen uses. UTF-8.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "common/Sezione.h"

namespace parvik {

/// What the sections are called.
inline constexpr std::array<const char*, MaxSezioni> TitoliSezioni = {"Testata", "Corpo", "Piede"};

/// "1 riga", "2 righe".
inline std::string Quanti(std::size_t numero, std::string_view uno, std::string_view tanti) {
  return std::to_string(numero) + " " + std::string(numero == 1 ? uno : tanti);
}

}  // namespace parvik
