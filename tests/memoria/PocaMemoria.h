// A process whose memory runs out where a test wants it to.
#pragma once

#include <cstddef>

namespace parvik::prova {

/// While it lives, the next `concesse` requests for memory of this thread are granted, and the one after them
/// is not: that one alone, as when a single large piece is missing. Only one lives at a time.
class PocaMemoria {
 public:
  explicit PocaMemoria(std::size_t concesse);
  PocaMemoria(const PocaMemoria&) = delete;
  PocaMemoria& operator=(const PocaMemoria&) = delete;
  ~PocaMemoria();

  /// Whether one was not granted.
  static bool Negata();
};

}  // namespace parvik::prova
