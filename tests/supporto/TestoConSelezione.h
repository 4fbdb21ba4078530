// A text with a caret or a selection drawn into it.
#pragma once

#include <string>
#include <string_view>

#include "template/TastiSezione.h"

namespace parvik::prova {

/// From UTF-8 with "|" for the caret or "[" and "]" around the selection, and « » for the delimiters, to
/// bytes.
struct ConSelezione {
  explicit ConSelezione(std::string_view disegno);

  std::string Testo;
  Selezione Selezionato;
};

/// The way back; a caret is drawn as "|".
std::string Scritto(std::string_view testo, Selezione selezione);

}  // namespace parvik::prova
