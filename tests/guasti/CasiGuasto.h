// The ways in which any system call of a save is made to fail.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <string>

#include "supporto/ConNome.h"

namespace parvik::prova {

struct CasoGuasto {
  const char* Nome;
  int Errore;  // an errno
  bool PerSempre;
};

inline constexpr std::array CasiGuasto = {
    CasoGuasto{"disk_full_once", ENOSPC, false},  CasoGuasto{"disk_full", ENOSPC, true},
    CasoGuasto{"device_error_once", EIO, false},  CasoGuasto{"device_error", EIO, true},
    CasoGuasto{"over_quota_once", EDQUOT, false}, CasoGuasto{"over_quota", EDQUOT, true},
    CasoGuasto{"denied_once", EACCES, false},     CasoGuasto{"denied", EACCES, true},
    CasoGuasto{"read_only_once", EROFS, false},   CasoGuasto{"read_only", EROFS, true},
    CasoGuasto{"interrupted_once", EINTR, false}, CasoGuasto{"interrupted_without_end", EINTR, true},
};

inline std::string NomeCaso(const testing::TestParamInfo<CasoGuasto>& caso) {
  return caso.param.Nome;
}

}  // namespace parvik::prova
