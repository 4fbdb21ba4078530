// Where the two views of a content part: the kinds of difference that docs/code-grammar.md tables, told by
// what a content looks like and not by what the views make of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace parvik::prova {

/// Of a variable's width.
std::vector<std::string> DifferenzeDiLarghezza(std::string_view contenuto);
/// Of a variable's fill.
std::vector<std::string> DifferenzeDiRiempimento(std::string_view contenuto);
/// Of a constant's text.
std::vector<std::string> DifferenzeDiTesto(std::string_view contenuto);
/// Of a style.
std::vector<std::string> DifferenzeDiStile(std::string_view contenuto);

/// All of them that a content of its kind has.
std::vector<std::string> Differenze(std::string_view contenuto);

/// The names of all kinds.
std::vector<std::string> NomiDifferenze();

}  // namespace parvik::prova
