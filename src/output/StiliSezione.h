// Where a section has style codes: an index that follows its changes, so that the look of any place is found
// without reading what is in front of it.
#pragma once

#include <cstddef>
#include <vector>

#include "template/Modifica.h"
#include "template/TestoSezione.h"
#include "tokens/CodiceStile.h"

namespace parvik {

class StiliSezione {
 public:
  struct Voce {
    std::size_t Inizio = 0;  // byte of the code
    Stile Quale = Stile::Normale;

    bool operator==(const Voce&) const = default;
  };

  /// Linear in the text.
  explicit StiliSezione(const TestoSezione& testo);

  /// `dopo` is the text after the change. Costs what lies between the codes around it, and the number of
  /// style codes behind.
  void Segui(const Modifica& modifica, const TestoSezione& dopo);

  /// In their order: those whose word is a style's.
  const std::vector<Voce>& Voci() const { return voci_; }
  /// How many begin in front of that byte.
  std::size_t Davanti(std::size_t byte) const;

 private:
  std::vector<Voce> voci_;
};

}  // namespace parvik
