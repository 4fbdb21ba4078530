// The rules by which a catalogue itself is checked (docs/verifica.md).
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/Esito.h"
#include "verifica/Regole.h"

namespace parvik {

/// In the order of the table.
enum class RegolaCatalogo {
  RigaNonDivisa,
  NumeroOltre16Bit,
  NumeroDiTipo,
  FineDocumentiMancante,
  IntervalloSenzaInizio,
  IntervalloOltreLaFine,
  IntervalliSovrapposti,
  NumeroDoppio,
  FlagDiTreCifre,
  TipoNonElencato,
  DescrizioneLunga,
};
inline constexpr std::size_t NumRegoleCatalogo =
    static_cast<std::size_t>(RegolaCatalogo::DescrizioneLunga) + 1;

struct VoceRegolaCatalogo {
  RegolaCatalogo Quale;
  std::string_view Nome;
  Livello Grado;
};

std::span<const VoceRegolaCatalogo> RegoleCatalogo();
const VoceRegolaCatalogo& VoceDi(RegolaCatalogo regola);

struct RilievoCatalogo {
  RegolaCatalogo Quale = RegolaCatalogo::RigaNonDivisa;
  // Of the file, from 1; the column in characters.
  std::size_t Riga = 1;
  std::size_t Colonna = 1;
  std::size_t Lunghezza = 0;
  std::string Testo;  // Italian, UTF-8, on one line

  bool operator==(const RilievoCatalogo&) const = default;
};

/// Checks a catalogue's bytes, whether it can be loaded or not. Of a type's sections those count that it has.
/// By line, column and rule. An error only when memory is exhausted.
Esito<std::vector<RilievoCatalogo>> VerificaCatalogo(std::string_view byte);

}  // namespace parvik
