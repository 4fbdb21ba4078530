// Templates made at random for the checker.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "verifica/Regole.h"

namespace parvik::prova {

/// A template of type 1 as it is written (DelFile): lines of the sections, and the marker between.
struct ModelloCasuale {
  std::array<std::vector<std::string>, 3> Sezioni;

  std::string Scritto() const;
};

/// In which nothing is wrong. To be called in a property.
ModelloCasuale ModelloPulito();

/// A fault that was put into a template.
struct Guasto {
  Regola Quale;
  std::size_t Riga = 0;
  std::size_t Colonna = 0;
};

/// Puts faults of all kinds that stand in a section into it, at places of all kinds, and gives them in the
/// order of the file. To be called in a property.
std::vector<Guasto> Guasta(ModelloCasuale& modello);

/// Bytes of a file, rich in codes that are not quite right. To be called in a property.
std::string FileCasuale();

}  // namespace parvik::prova
