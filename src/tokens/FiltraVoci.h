// The search for an entry while its words are being typed: which entries have them, and which of those come
// first (docs/pannello-campi.md).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace parvik {

/// What can be looked for in an entry.
struct VoceCercabile {
  std::string_view Descrizione;    // in bare letters (common/Lettere.h)
  std::optional<int> Numero = {};  // none: it cannot be found by one
  char Lettera = '\0';             // that its codes begin with, a small one: "v105" is variable 105
};

/// How well an entry answers, the best first.
enum class Merito { NumeroEsatto, InizioDescrizione, InizioParola, Altrove };

/// Words in any order. Each of them is a part of the description, whatever its case and accents, or of the
/// number. Without words every entry answers, and all alike.
class FiltroVoci {
 public:
  /// Windows-1252.
  explicit FiltroVoci(std::string_view cercato);

  bool Vuoto() const { return parole_.empty(); }
  /// nullopt where it does not answer.
  std::optional<Merito> Di(const VoceCercabile& voce) const;

 private:
  std::vector<std::string> parole_;  // in bare letters
  std::string insieme_;              // the same with one space between them
};

}  // namespace parvik
