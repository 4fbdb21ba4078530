// What the checker has to say of a template: one finding (docs/verifica.md).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "common/Sezione.h"
#include "verifica/Regole.h"

namespace parvik {

/// What can be done about a finding without asking anybody.
enum class Rimedio : std::uint8_t {
  Nessuno,
  Pronto,        // the proposal takes the code's place, unless something else would print then
  AltraLettera,  // none: the proposal has another L or R than is written
  AltroStile,    // none: the proposal is a style that the word does not begin
};

struct Rilievo {
  Regola Quale = Regola::TipoIncerto;
  std::optional<Sezione> Dove;  // nullopt of what concerns the whole file, or its marker
  std::size_t Inizio = 0;       // byte of the section; 0 without one
  std::size_t Lunghezza = 0;    // in bytes; 0 of what concerns the whole file
  // Both from 1; the column in characters. Of a file, lines of the file; of texts in a window, of the
  // section.
  std::size_t Riga = 1;
  std::size_t Colonna = 1;
  std::string Testo;  // Italian, UTF-8, on one line
  /// What could stand there instead, as bytes of a section: a whole code where `Cosa` says of a remedy, a
  /// number of the catalogue otherwise.
  std::optional<std::string> Proposta = {};
  Rimedio Cosa = Rimedio::Nessuno;

  Livello Grado() const { return VoceDi(Quale).Grado; }
  bool operator==(const Rilievo&) const = default;
};

}  // namespace parvik
