// The lines of a catalogue, one by one (docs/catalogue-file.md). A line is trimmed of the spaces at its ends.
#pragma once

#include <cstddef>
#include <string_view>

#include "catalogue/TipoDoc.h"
#include "common/Esito.h"

namespace parvik {

/// The line behind the document types.
inline constexpr std::string_view FineDocumenti = "//fine documenti";

/// Why a line could not be read: ArgumentoNonValido when it does not split, Overflow, or
/// IndiceFuoriIntervallo of a type's number.
struct ErroreRiga {
  NumeroErrore Numero;
  std::size_t Byte = 0;  // of the line: where the field begins that it is about
};

/// An empty line, or a comment.
bool RigaIgnorata(std::string_view riga);

Esito<TipoDoc, ErroreRiga> LeggiRigaTipo(std::string_view riga);
Esito<Variabile, ErroreRiga> LeggiRigaVariabile(std::string_view riga);
Esito<Flag, ErroreRiga> LeggiRigaFlag(std::string_view riga);

/// The number of a line of the body, by which ranges find it.
double NumeroRigaCorpo(std::string_view riga);

/// Where the field of that number, from 0, of a line's record begins, and its text up to the next separator
/// or quote; the last one there is where there are fewer.
struct CampoRiga {
  std::size_t Byte = 0;
  std::string_view Testo;
};
CampoRiga CampoDi(std::string_view riga, std::size_t quale);

}  // namespace parvik
