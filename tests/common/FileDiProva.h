// What the tests of files need besides folders of their own.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

// The limits that a test has set to it are a matter of the system.
#ifdef _WIN32
#include "common/FileDiProvaWindows.h"
#else
#include "common/FileDiProvaPosix.h"
#endif

namespace parvik::prova {

/// The names in a folder, sorted.
inline std::vector<std::string> Nomi(const std::filesystem::path& cartella) {
  std::vector<std::string> nomi;
  for (const auto& voce : std::filesystem::directory_iterator(cartella)) {
    nomi.push_back(voce.path().filename().string());
  }
  std::ranges::sort(nomi);
  return nomi;
}

}  // namespace parvik::prova
