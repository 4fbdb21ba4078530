// Whether a file is still the one that was looked at.
#pragma once

#include <cstdint>
#include <filesystem>

#include "common/Esito.h"

namespace parvik {

/// Which file stands under a name, and when it was last written to. Equal as long as nobody has touched it.
struct IdentitaFile {
  std::uint64_t Dispositivo = 0;
  std::uint64_t Numero = 0;
  std::uint64_t Dimensione = 0;
  std::int64_t Secondi = 0;  // of the last change
  std::int64_t Nanosecondi = 0;

  bool operator==(const IdentitaFile&) const = default;
};

/// Links are followed. Nothing is read. AccessoPercorsoFile for what is no regular file.
Esito<IdentitaFile> IdentitaDi(const std::filesystem::path& file);

}  // namespace parvik
