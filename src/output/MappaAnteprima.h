// A preview and where all of it comes from, kept together (docs/anteprima.md).
#pragma once

#include <memory>
#include <stop_token>
#include <utility>

#include "common/Esito.h"
#include "output/GeneraStampa.h"
#include "output/LavoroStampa.h"
#include "output/TestoAnteprima.h"
#include "output/TracciaStampa.h"

namespace parvik {

/// What a run read, and its trace, which looks at it. Nobody changes it when the run is over.
struct MappaAnteprima {
  explicit MappaAnteprima(LavoroStampa letto) : Letto(std::move(letto)) {}
  MappaAnteprima(const MappaAnteprima&) = delete;
  MappaAnteprima& operator=(const MappaAnteprima&) = delete;
  ~MappaAnteprima() = default;

  LavoroStampa Letto;
  TracciaStampa Traccia;
};

struct AnteprimaMappata {
  std::shared_ptr<const TestoAnteprima> Testo;
  std::shared_ptr<const MappaAnteprima> Mappa;
};

/// A run for the preview. Ends when `smetti` is asked for.
Esito<AnteprimaMappata, Interruzione> GeneraMappata(LavoroStampa lavoro, const std::stop_token& smetti);
/// The same, if no more than `massimo` bytes come of it; without a map and a text, if more do.
Esito<AnteprimaMappata> GeneraMappata(LavoroStampa lavoro, std::size_t massimo);

}  // namespace parvik
