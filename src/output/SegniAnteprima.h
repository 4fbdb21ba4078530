// The places of a preview at which one part of a section stands: all its repetitions.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "output/MappaAnteprima.h"
#include "template/Modifica.h"

namespace parvik {

/// A value. However often a body is repeated, only those that are asked for are ever looked at.
class SegniAnteprima {
 public:
  /// None.
  SegniAnteprima() = default;
  /// Those of `parte`; none unless the run saw exactly that there.
  SegniAnteprima(std::shared_ptr<const MappaAnteprima> mappa, const OrigineStampa& parte);

  bool Vuoti() const { return luoghi_.empty(); }

  /// Those that have bytes in a stretch of the preview, in their order.
  std::vector<Selezione> In(const Selezione& tratto) const;
  /// The first one that ends behind that byte, or else the last one. nullopt where there are none.
  std::optional<Selezione> Da(std::size_t byte) const;

  bool operator==(const SegniAnteprima&) const = default;

 private:
  std::size_t PrimaVolta(const LuogoStampa& luogo, std::size_t byte) const;

  std::shared_ptr<const MappaAnteprima> mappa_;
  std::vector<LuogoStampa> luoghi_;  // in the order of the preview
};

}  // namespace parvik
