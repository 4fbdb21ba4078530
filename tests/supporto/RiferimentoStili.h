// The style pass again, word for word: select, apply, find, replace, on a text with a look for each
// character.
#pragma once

#include <string>
#include <vector>

#include "output/MettiStili.h"

namespace parvik::prova {

struct TestoConAspetti {
  std::string Testo;
  std::vector<Aspetto> Aspetti;  // one a byte
};

TestoConAspetti StiliDiRiferimento(const std::string& testo);

}  // namespace parvik::prova
