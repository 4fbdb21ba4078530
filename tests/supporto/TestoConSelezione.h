// A text with a caret or a selection drawn into it.
#pragma once

#include <string>
#include <string_view>

#include "template/TestoSezione.h"

namespace parvik::prova {

/// From UTF-8 with "|" for the caret or "[" and "]" around the selection, « » for the delimiters, and a line
/// feed for a line end, to a section's text.
struct ConSelezione {
  explicit ConSelezione(std::string_view disegno);

  TestoSezione Testo;
  Selezione Selezionato;
};

/// The way back; a caret is drawn as "|".
std::string Scritto(const TestoSezione& testo, Selezione selezione);

}  // namespace parvik::prova
