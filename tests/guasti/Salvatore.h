// A process of its own that saves a file, and can be stopped on the way.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>

#include "guasti/Guasti.h"

namespace parvik::prova {

/// Where every pair of calls is tried, one second call in so many is under the sanitizers: a process with
/// their memory takes long to be forked. Which ones they are goes round with the first.
#ifdef __SANITIZE_ADDRESS__
inline constexpr int UnaSu = 7;
#else
inline constexpr int UnaSu = 1;
#endif
inline int PrimaSeconda(int prima) {
  return 1 + prima % UnaSu;
}

class Salvatore {
 public:
  enum class Stato { Fermo, Scritto, InUso, AltroErrore, Ucciso };

  /// Begins to save `byte` as `file`, and comes back when the process has stopped or ended.
  Salvatore(const std::filesystem::path& file, const std::string& byte, const PianoGuasti& piano);
  Salvatore(const Salvatore&) = delete;
  Salvatore& operator=(const Salvatore&) = delete;
  ~Salvatore();

  Stato Ora() const { return stato_; }
  bool Fermo() const { return stato_ == Stato::Fermo; }
  /// Lets it go on to its next stop or its end, where it has stopped.
  void Avanza();
  /// The same, and there is no stop any more.
  void Prosegui();
  void Uccidi();

 private:
  void Attendi();

  pid_t figlio_ = -1;
  Stato stato_ = Stato::Fermo;
};

}  // namespace parvik::prova
