// What is looked for in a template's texts (docs/ricerca.md).
#pragma once

#include <string>

namespace parvik {

enum class DoveCercare {
  Ovunque,     // the text as it stands, that of the codes included
  SoloTesto,   // what stands between the codes
  SoloCodici,  // codes, by what they mean
};

struct Criterio {
  std::string Testo;  // Windows-1252; a regular expression: UTF-8
  DoveCercare Dove = DoveCercare::Ovunque;
  bool Maiuscole = false;    // letters in their case, and with their accents
  bool Parola = false;       // not as a part of a longer word
  bool Espressione = false;  // `Testo` is a regular expression

  bool operator==(const Criterio&) const = default;
};

}  // namespace parvik
