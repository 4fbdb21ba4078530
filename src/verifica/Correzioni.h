// Mends: what the checker finds and has one right answer for, made in a file (docs/verifica.md).
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/Catalogo.h"
#include "common/Esito.h"
#include "verifica/Verifica.h"

namespace parvik {

/// Why a mend was not made.
enum class NonCorretto : std::uint8_t {
  CambiaStampa,   // something else would print
  CambiaLettera,  // another L or R than is written
  CambiaStile,    // the word begins no style's name
};

/// Italian, UTF-8.
std::string_view Motivo(NonCorretto perche);

struct CorrezioneMancata {
  Rilievo Quale;  // places of the file as it is after the mends that were made
  NonCorretto Perche = NonCorretto::CambiaStampa;
};

struct FileCorretto {
  std::string Byte;       // of the file
  std::size_t Fatte = 0;  // 0: the bytes are what they were
  std::vector<CorrezioneMancata> Mancate;
};

/// Mends a file's bytes as far as the rules of `opzioni` go: contents of codes, no other byte. What prints
/// stays as it was, in a text file and in the preview with its looks, all print flags true or all false; a
/// mend that would change it is not made. A mended file has nothing left to mend. An error only when memory
/// is exhausted.
Esito<FileCorretto> Correggi(std::string_view byte, Verificatore& verificatore, const Catalogo& catalogo,
                             const OpzioniVerifica& opzioni);

}  // namespace parvik
