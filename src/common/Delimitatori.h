// The delimiters of codes, as bytes of Windows-1252 (docs/code-grammar.md, docs/template-file.md).
#pragma once

#include <string_view>

namespace parvik {

// In memory and on the screen a code stands between these two ...
inline constexpr char DelimApertura = '\xAB';
inline constexpr char DelimChiusura = '\xBB';
// ... and in a template file between these two.
inline constexpr char DelimFileApertura = '\xAE';
inline constexpr char DelimFileChiusura = '\xAF';
// Encloses literal text inside a code.
inline constexpr char DelimTesto = '"';

/// Separates the lines of a section in memory, and ends every line of a file that the program writes.
inline constexpr std::string_view FineRiga = "\r\n";

}  // namespace parvik
