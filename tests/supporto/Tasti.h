// Keys of the section editor, pressed and obeyed.
#pragma once

#include <string>
#include <vector>

#include "template/TastiSezione.h"

namespace parvik::prova {

/// The codes of a text, in its order.
std::vector<std::string> Codici(const std::string& testo);

/// A key as an editor obeys it; a dialog that opens is cancelled. Only keys that remove change the text.
void Obbedisci(std::string& testo, Selezione& selezione, TastoSezione tasto);

}  // namespace parvik::prova
