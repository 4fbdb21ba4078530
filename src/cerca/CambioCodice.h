// What is to be other in codes that were found, as a person writes it: "larghezza 32", "larghezza 29 → 32",
// "numero 106, a destra" (docs/ricerca.md).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cerca/SensoCodice.h"
#include "common/Esito.h"

namespace parvik {

enum class CampoCodice { Numero, Larghezza, Allineamento, Riempimento, Decimali };

struct CambioCodice {
  CampoCodice Quale = CampoCodice::Larghezza;
  /// Windows-1252, as the field of a format record has them: a number's digits, "L" or "R", a character or
  /// "" for no fill, a digit or "*".
  std::optional<std::string> Da = {};  // only where it is this
  std::string A = {};

  bool operator==(const CambioCodice&) const = default;
};

/// Reads what was written (Windows-1252, an arrow as "->"); the error says what cannot be understood, UTF-8.
/// Never empty.
Esito<std::vector<CambioCodice>, std::string> LeggiCambi(std::string_view scritto);

/// The code, delimiters included, with all of the changes, as its dialog would write it. nullopt where it
/// cannot have one of them: it has no such field, holds another value than the one to be changed, is not
/// whole, or its section offers no such number.
std::optional<std::string> Cambia(std::string_view contenuto, const std::vector<CambioCodice>& cambi,
                                  const VociDiSezione& voci);

}  // namespace parvik
