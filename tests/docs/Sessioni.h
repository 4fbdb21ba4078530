// Sessions in the documents, run as they stand (docs/README.md).
#pragma once

#include <string_view>

namespace parvik::prova {

/// In a folder with a copy of the example installation in `velkor`: every line of the example that begins
/// with the prompt is run; the lines up to the next one are what it says.
void ControllaSessione(std::string_view pagina, std::string_view nome);

}  // namespace parvik::prova
