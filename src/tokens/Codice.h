// A code as a whole: of which kind it is, with its delimiters and without (docs/code-grammar.md; where codes
// stand in a text: tokens/Pezzi.h). Texts are Windows-1252 bytes; a code's content is what stands between its
// two delimiters.
#pragma once

#include <string>
#include <string_view>

namespace parvik {

enum class TipoCodice { Sconosciuto, Variabile, Costante, Flag, Stile, Lingua, Pagina };
inline constexpr std::size_t NumTipiCodice = static_cast<std::size_t>(TipoCodice::Pagina) + 1;

/// The kind that a content's leading text tells. Letters count in their case.
constexpr TipoCodice Riconosci(std::string_view contenuto) {
  if (contenuto.starts_with("V0;")) return TipoCodice::Costante;
  if (contenuto.empty()) return TipoCodice::Sconosciuto;
  switch (contenuto.front()) {
    case 'V':
      return TipoCodice::Variabile;
    case 'C':
      return TipoCodice::Costante;
    case 'F':
      return TipoCodice::Flag;
    case 'S':
      return TipoCodice::Stile;
    case 'L':
      return TipoCodice::Lingua;
    case 'P':
      return TipoCodice::Pagina;
    default:
      return TipoCodice::Sconosciuto;
  }
}

/// The content of a code with its delimiters; `codice` must have both.
std::string_view ContenutoDi(std::string_view codice);

/// A content with its delimiters around it: what is inserted into a section.
std::string ConDelimitatori(std::string_view contenuto);

}  // namespace parvik
