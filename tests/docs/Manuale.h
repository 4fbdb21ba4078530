// The manual's pages, and what they name (docs/sviluppo.md tells how it is written).
#pragma once

#include <string>
#include <vector>

namespace parvik::prova {

struct PaginaManuale {
  std::string Nome;  // its way in the manual: "regole/cornice.md"
  std::string Testo;
};

/// All pages, by name.
const std::vector<PaginaManuale>& PagineManuale();

/// The first group of each match of an expression in a text.
std::vector<std::string> Trovati(const std::string& testo, const char* espressione);

/// What stands on the screen: menu entries ("File > Apri"), captions, titles.
std::vector<std::string> DidascalieDi(const PaginaManuale& pagina);
/// Keys: "Ctrl+Maiusc+S".
std::vector<std::string> TastiDi(const PaginaManuale& pagina);
/// What the program says, word for word; … stands for what changes.
std::vector<std::string> MessaggiDi(const PaginaManuale& pagina);
/// Where its links and pictures lead, as ways in the manual: "regole/cornice.md".
std::vector<std::string> CollegamentiDi(const PaginaManuale& pagina);

}  // namespace parvik::prova
