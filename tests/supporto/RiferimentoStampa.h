// The output run again, word for word as its rules are written down: positions count from 1, every text is
// copied, nothing is shared with the program but the rows of the print flags. Slow, and meant to be read
// beside the rules.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace parvik::prova {

struct DatiRiferimento {
  std::array<std::string, 3> Testi;
  int NumSezioni = 0;
  int RigheCorpo = 0;
  int LineeCorpo = 0;
  std::vector<std::string> RigheFlag;
};

/// The lines of a run for destination 0, 1 or 2. For 2 the end marker follows them; style markers are still
/// there.
std::string StampaDiRiferimento(const DatiRiferimento& dati, int tipoStampa);

}  // namespace parvik::prova
