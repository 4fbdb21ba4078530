// Where the places of one preview are in the next one.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "output/MappaAnteprima.h"
#include "template/Modifica.h"

namespace parvik {

class Ricollocazione {
 public:
  /// Where a part of a section, as the run before read it, is in what this one read; nullopt where that is
  /// not certain.
  using Porta = std::function<std::optional<Selezione>(Sezione, const Selezione&)>;

  /// Without the map of the run before, lines alone are counted.
  Ricollocazione(std::shared_ptr<const MappaAnteprima> prima, std::shared_ptr<const MappaAnteprima> dopo,
                 Porta porta)
      : prima_(std::move(prima)), dopo_(std::move(dopo)), porta_(std::move(porta)) {}

  /// Where the byte of one text has gone in the other: with what it comes from, where that is certain; or
  /// else to the same column of the line that its own one has become, as those in front of it tell; the end
  /// marker stays the end marker.
  std::size_t operator()(const TestoAnteprima& prima, const TestoAnteprima& dopo, std::size_t byte) const;

 private:
  std::optional<std::size_t> Certo(std::size_t byte) const;
  std::size_t Riga(const TestoAnteprima& prima, const TestoAnteprima& dopo, std::size_t riga) const;

  std::shared_ptr<const MappaAnteprima> prima_;
  std::shared_ptr<const MappaAnteprima> dopo_;
  Porta porta_;
};

}  // namespace parvik
