// The columns at which the user has set guides.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace parvik {

class Guide {
 public:
  /// In their order, from 0.
  const std::vector<std::size_t>& Colonne() const { return colonne_; }

  /// Sets one there, or takes it away.
  void Commuta(std::size_t colonna) {
    const auto posto = std::ranges::lower_bound(colonne_, colonna);
    if (posto != colonne_.end() && *posto == colonna) {
      colonne_.erase(posto);
    } else {
      colonne_.insert(posto, colonna);
    }
  }

 private:
  std::vector<std::size_t> colonne_;
};

}  // namespace parvik
