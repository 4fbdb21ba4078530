// The ways by which ScritturaSicura brings bytes to their destination (docs/windows.md).
#pragma once

#include <memory>
#include <string_view>

#include "sistema/ScritturaSicura.h"
#include "sistema/windows/ErroreWin.h"

namespace parvik {

class ScritturaSicura::Strada {
 public:
  Strada() = default;
  Strada(const Strada&) = delete;
  Strada& operator=(const Strada&) = delete;
  virtual ~Strada() = default;
  virtual EsitoPasso Scrivi(std::string_view byte) = 0;
  virtual EsitoScrittura Conferma() = 0;
};

using EsitoStrada = EsitoSistema<std::unique_ptr<ScritturaSicura::Strada>>;

}  // namespace parvik
