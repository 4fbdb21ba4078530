// What the checker's tests work on: a small catalogue, files written so that they can be read, and findings
// on one line each.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/Catalogo.h"
#include "verifica/Verifica.h"

namespace parvik::prova {

/// Type 1, three sections. Testata: variables 1 Cliente (string), 2 Importo (numeric, euro 1), 3 Note
/// (string), flags 3 and 4; Corpo: 11 Articolo (string), 12 Quantità (numeric), flag 14; Piede: 21 Totale
/// (numeric, euro 0), 22 Firma, flag 15. Type 2, one section: 501 Cliente, 502 Quantità, 503 Altro, flags 7
/// Estero, 8 Barre, -8 Reso. Type 3, three sections, with nothing.
const Catalogo& CatalogoDiVerifica();
const TipoDoc& TipoDiVerifica(int numero);

/// Bytes of a file: < and > stand for its delimiters, ¶ for CR LF.
std::string DelFile(std::string_view scritto);
/// Bytes of a section: < and > stand for the editor's delimiters.
std::string DellaSezione(std::string_view scritto);

/// "riga:colonna regola" of each finding, with ", " between them.
std::string Elenco(const std::vector<Rilievo>& rilievi);

/// What is found in a file of that type, as Elenco.
std::string Trova(std::string_view scritto, int tipo = 1, const OpzioniVerifica& opzioni = {});
std::vector<Rilievo> Rilievi(std::string_view scritto, int tipo = 1, const OpzioniVerifica& opzioni = {});

/// A file of type 1 with that Testata, and a Corpo and a Piede in which nothing is wrong.
std::string ConTestata(std::string_view testata);
/// What is found in it.
std::string TrovaInTestata(std::string_view testata);

}  // namespace parvik::prova
