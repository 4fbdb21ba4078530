// The lines of a template as they print, the body once and all print flags true (docs/verifica.md).
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "common/Sezione.h"
#include "output/TrovaVar.h"
#include "tokens/Pezzi.h"

namespace parvik {

/// Characters of a printed line that stand side by side: a text, or one character some times over.
struct ParteStampata {
  std::string_view Testo;
  std::size_t Volte = 0;  // of Carattere; 0 of a text
  char Carattere = ' ';

  std::size_t Lunghezza() const { return Testo.size() + Volte; }
};

struct RigaStampata {
  Sezione Dove = Sezione::Testata;
  std::size_t Inizio = 0;  // byte of the section
  std::size_t Fine = 0;    // in front of its line end
  std::vector<ParteStampata> Parti;

  std::size_t Lunghezza() const;
};

/// Gives one line after the other. A line that a code crosses, or that a code without its end swallows, is
/// left out, and so is what follows the last line end. A copy goes on from where the original stands.
class RigheStampate {
 public:
  /// The texts must stay as they are. Those of sections that a type does not have are empty.
  explicit RigheStampate(const std::array<std::string_view, MaxSezioni>& testi);

  /// False at the end. `riga` is the next line, whatever it was before.
  bool Prossima(RigaStampata& riga);

 private:
  bool ProssimaDellaSezione(RigaStampata& riga);
  bool Codice(RigaStampata& riga, bool& attraversata);
  void Inizia(std::size_t sezione);
  std::string_view Testo() const { return testi_[sezione_]; }

  std::array<std::string_view, MaxSezioni> testi_;
  TrovaVar trovaVar_;
  std::size_t sezione_ = 0;
  std::size_t posto_ = 0;
  // Looked for again when the walk has gone past them: a line may hold any number of codes.
  ConfiniCodice codice_;  // the next one, from posto_ on
  std::size_t fine_ = 0;  // the next CR
};

}  // namespace parvik
