// Where parts of a text have gone since a moment, as its edits tell: what none of them has touched
// (docs/anteprima.md).
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "template/Modifica.h"

namespace parvik {

/// Where a place is after an edit; nullopt when that has been in it.
std::optional<Selezione> Spostato(const Selezione& posto, const Modifica& fatta);

/// The stretches that are still as they were. An edit costs as much as there are of them.
class Spostamenti {
 public:
  /// Of an empty text.
  Spostamenti() = default;
  /// Of a text of that size, as it is now.
  explicit Spostamenti(std::size_t dimensione);

  void Modificato(const Modifica& modifica);
  /// The whole text is another one: nothing is where it was.
  void Sostituito() { tratti_.clear(); }

  /// Where a part of the old text is now, and where one of the present text was; nullopt unless all of it is
  /// unchanged. The part has bytes.
  std::optional<Selezione> Dopo(const Selezione& prima) const;
  std::optional<Selezione> Prima(const Selezione& dopo) const;

 private:
  struct Intatto {
    std::size_t Prima = 0;
    std::size_t Dopo = 0;
    std::size_t Lunghezza = 0;

    /// Whether `altro` follows it, before and now.
    bool Continua(const Intatto& altro) const {
      return altro.Prima == Prima + Lunghezza && altro.Dopo == Dopo + Lunghezza;
    }
  };

  static std::optional<Selezione> Porta(const std::vector<Intatto>& tratti, const Selezione& parte,
                                        std::size_t Intatto::*da, std::size_t Intatto::*a);

  std::vector<Intatto> tratti_;  // in their order, which is the same before and now; none is empty
};

}  // namespace parvik
