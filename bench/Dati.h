// What the benchmarks run over: the example installation, made as large as is asked for.
#pragma once

#include <cstddef>
#include <string>

#include "output/LavoroStampa.h"

namespace parvik::bench {

/// A template file of three sections: the lines of the example invoice over and over, `righe` of them, the
/// marker not counted. The two lines of its Corpo stand in the middle and are printed once.
std::string Modello(std::size_t righe);

/// The lines of the example invoice over and over until the file has `byte` bytes or a few more.
std::string ModelloDiByte(std::size_t byte);

/// The example invoice with the lines of its Testata over and over until there are `righe` lines, or the file
/// has `byte` bytes or a few more: nothing is wrong with it.
std::string ModelloInOrdine(std::size_t righe, std::size_t byte);

/// The example catalogue, its body over and over until the file has `byte` bytes or a few more.
std::string FileCatalogo(std::size_t byte);

/// A template as it stands in the editors, with the print flags of its document type, all false.
LavoroStampa Lavoro(std::string_view modello);

/// The Corpo of the example invoice alone, printed `volte` times.
LavoroStampa LavoroCorpo(std::int16_t volte);

}  // namespace parvik::bench
