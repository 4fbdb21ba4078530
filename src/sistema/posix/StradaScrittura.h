// The ways by which ScritturaSicura brings bytes to their destination (docs/saving.md).
#pragma once

#include <string_view>

#include "sistema/ScritturaSicura.h"

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

}  // namespace parvik
