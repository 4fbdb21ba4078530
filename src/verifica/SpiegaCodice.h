// All that there is to say of one code, field by field.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/TipoDoc.h"

namespace parvik {

/// UTF-8 on one line each.
struct CodiceSpiegato {
  std::string Codice;  // with the editor's delimiters
  std::string Genere;
  std::vector<std::pair<std::string_view, std::string>> Campi;  // name and value, as the readers read them
  std::optional<std::string> Descrizione;                       // the catalogue's word
  std::optional<std::string> Manca;                             // what it cannot do without
  std::optional<std::string> Maschera;                          // as its dialog writes it
  std::string Stampa;                                           // what a text file has of it
};

/// `variabili` and `flag` are those of the code's section.
CodiceSpiegato SpiegaCodice(std::string_view contenuto, std::span<const Variabile> variabili,
                            std::span<const Flag> flag);

/// "variabile", "costante", …
std::string_view NomeGenere(std::string_view contenuto);

}  // namespace parvik
