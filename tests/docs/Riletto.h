// A content read back and built again, in the words of docs/code-grammar.md.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/TipoDoc.h"
#include "tokens/Codice.h"

namespace parvik::prova {

std::string NomeTipo(TipoCodice tipo);

/// The page's own variables, read as those of a section.
std::vector<Variabile> VariabiliDellaPagina(std::string_view pagina);

struct Riletto {
  std::string Detto;
  std::string Ricostruito;
};

Riletto Rileggi(std::string_view contenuto, std::span<const Variabile> variabili);

}  // namespace parvik::prova
