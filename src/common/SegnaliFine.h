// The signals that ask the program to end, as something to read instead of something that kills.
#pragma once

#include <csignal>

#include "common/Descrittore.h"

namespace parvik {

/// While it lives SIGTERM, SIGHUP and SIGINT end nothing but make the descriptor readable. It must be made
/// before the process has a second thread. Where the system does not give the descriptor, the signals kill as
/// ever.
class SegnaliFine {
 public:
  SegnaliFine();
  SegnaliFine(const SegnaliFine&) = delete;
  SegnaliFine& operator=(const SegnaliFine&) = delete;
  ~SegnaliFine();

  /// -1 when there is none.
  int Numero() const { return lettura_ ? lettura_.Numero() : -1; }

  /// Takes the next one off the descriptor; false when none has come.
  bool Prendi() const;

 private:
  sigset_t prima_ = {};
  Descrittore lettura_;
};

}  // namespace parvik
