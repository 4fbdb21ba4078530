#include "sistema/SegnaliFine.h"

namespace parvik {

/// The end of a session comes to a program with windows as a message to these, which the toolkit answers;
/// this system has nothing that rings.
struct SegnaliFine::Campanello {};

SegnaliFine::SegnaliFine() = default;
SegnaliFine::~SegnaliFine() = default;

int SegnaliFine::Numero() const {
  return -1;
}

bool SegnaliFine::Prendi() const {
  return false;
}

class SegnaliFatali::Guardia {};

SegnaliFatali::SegnaliFatali(const SegnaliFine&) {}
SegnaliFatali::~SegnaliFatali() = default;

}  // namespace parvik
