// Parts of texts that are asked for whether they are there or not.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace parvik {

/// The text from byte `da` on; nothing when it is shorter.
constexpr std::string_view Da(std::string_view testo, std::size_t da) {
  return testo.substr(std::min(da, testo.size()));
}

/// The text without its last bytes; nothing when it has no more than those.
constexpr std::string_view SenzaUltimi(std::string_view testo, std::size_t quanti) {
  return testo.substr(0, testo.size() - std::min(quanti, testo.size()));
}

/// The text without what stands of `bianchi` at its two ends. By default these are spaces alone.
constexpr std::string_view Rifila(std::string_view testo, std::string_view bianchi = " ") {
  const std::size_t inizio = testo.find_first_not_of(bianchi);
  if (inizio == std::string_view::npos) return {};
  return testo.substr(inizio, testo.find_last_not_of(bianchi) - inizio + 1);
}

/// The words of a text: what stands between its spaces.
inline std::vector<std::string_view> ParoleDi(std::string_view testo) {
  std::vector<std::string_view> parole;
  while (!(testo = Rifila(testo)).empty()) {
    parole.push_back(testo.substr(0, testo.find(' ')));
    testo.remove_prefix(parole.back().size());
  }
  return parole;
}

}  // namespace parvik
