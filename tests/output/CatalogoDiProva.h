// A small catalogue made of flags alone, and a run over texts that stand in the test.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/Catalogo.h"
#include "output/GeneraStampa.h"

namespace parvik::prova {

/// A flag of the catalogue, and whether it is true.
struct FlagDiProva {
  int Numero = 0;
  bool Vero = false;
  std::string Descrizione = "x";
};

/// Print flags as a document type with these flags in its Testata has them; the page conditions follow.
FlagPerStampe FlagDi(const std::vector<FlagDiProva>& flag);

/// Collects what a run writes, and fails the test on a piece that is neither made of whole lines nor long.
class Raccolta final : public UscitaRighe {
 public:
  bool Righe(std::string_view righe) override;
  std::string Testo;
};

/// The text file of a run over one section.
std::string Reso(std::string_view testata, const std::vector<FlagDiProva>& flag = {});

/// The text of one code: a line that holds nothing else. The delimiters are added.
std::string ResoCodice(std::string_view contenuto);

}  // namespace parvik::prova
