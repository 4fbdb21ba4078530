// What stands in the field of a code that is drawn as wide as it prints.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "catalogue/TipoDoc.h"

namespace parvik {

/// A field's room: how many cells it is drawn with, and how many the code prints.
struct PostoCampo {
  std::size_t Celle = 0;
  std::size_t Larghezza = 0;
};

/// A byte (Windows-1252) for each cell. A constant is its own text. Anything else is told, as far as there is
/// room, at the side on which it prints; the rest of a variable is its fill, if it has one, and blanks
/// without. A field that is cut tells its width. `variabili` are those of the code's section.
std::string TestoCampo(std::string_view contenuto, const PostoCampo& posto,
                       std::span<const Variabile> variabili);

}  // namespace parvik
