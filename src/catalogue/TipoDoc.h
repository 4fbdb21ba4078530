// The records of the field catalogue (docs/catalogue-file.md). All texts are Windows-1252 bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "common/Sezione.h"

namespace parvik {

inline constexpr std::size_t MaxTipiDoc = 23;
/// The list of the document types offers the slots 0 to 21: the last one is never listed.
inline constexpr std::size_t MaxTipiElencati = 22;

/// A run of body lines by the numbers of its first and last line. The same number twice means "no entries".
struct Intervallo {
  std::int16_t Da = 0;
  std::int16_t A = 0;
};

/// What a section of a document type offers.
struct VociSezione {
  Intervallo Variabili;
  Intervallo Flag;
};

struct TipoDoc {
  std::int16_t Indice = 0;  // the slot: the type's number less one
  std::string Descrizione;  // "" in a slot that no line fills
  std::string Titolo;       // in practice a file-name pattern, such as FATT*.IMG
  std::int16_t NumSezioni = 0;
  std::array<VociSezione, MaxSezioni> Voci;
};

/// A variable: its default format in the catalogue, and at the same time what a variable code says of it.
/// A default-made record is the one that stands for a section without variables.
struct Variabile {
  std::string Descrizione;
  std::int16_t Intero1 = 0;  // the variable's number
  std::int16_t Intero2 = 1;  // width in characters
  std::string Testo1 = "$";  // fill
  std::int16_t Intero3 = 1;  // alignment: 1 left, any other value right
  std::int16_t Intero4 = 0;  // type: 0 string, any other value numeric
  std::int16_t Intero5 = 0;  // line count, 0 = single line
  std::int16_t Intero6 = 0;  // 1 = sign on the right
  std::int16_t Intero7 = 0;  // 1 = zero visible
  std::int16_t Intero8 = 0;  // 1 = thousands separator
  std::string Testo2 = "0";  // decimals, "0" = none
  std::string Testo3;        // euro, "0" or "1"

  bool operator==(const Variabile&) const = default;
};

struct Flag {
  std::string Descrizione;
  std::int16_t Codice = 0;  // the flag's number
  std::string Valore;       // "N" off, any other text on

  bool operator==(const Flag&) const = default;
};

}  // namespace parvik
