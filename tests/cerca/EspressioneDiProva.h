// What the tests of the search work on: an expression of the standard library's, and texts that can be read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cerca/Espressione.h"
#include "cerca/SensoCodice.h"
#include "template/Modifica.h"

namespace parvik::prova {

/// "!" is one that takes too long wherever it is looked for.
std::unique_ptr<Espressione> EspressioneDi(const std::string& scritta);

/// Bytes of a section: < and > stand for the delimiters, ¶ for CR LF.
std::string DellaSezione(std::string_view scritto);
/// The way back.
std::string Scritto(std::string_view sezione);

/// Variables 1 Cliente (string), 15 Ragione sociale cliente (string), 105 Quantità (numeric); flags 3 Estero
/// and 14 Omaggio.
VociDiSezione Voci();

/// Each place in brackets: "a[b]c".
std::string Segnate(std::string_view sezione, const std::vector<Selezione>& posti);

}  // namespace parvik::prova
