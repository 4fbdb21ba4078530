// The signals that ask the program to end, as something to read instead of something that kills.
#pragma once

#include <memory>

namespace parvik {

/// While it lives whoever asks the program to end (logging out, a terminal that closes, an interruption) ends
/// nothing but rings: Numero becomes readable. It must be made before the process has a second thread. Where
/// the system gives no bell, it kills as ever.
class SegnaliFine {
 public:
  SegnaliFine();
  SegnaliFine(const SegnaliFine&) = delete;
  SegnaliFine& operator=(const SegnaliFine&) = delete;
  ~SegnaliFine();

  /// What an event loop watches, by the number that the system has for it; -1 when there is none.
  int Numero() const;

  /// Takes the next one off it; false when none has come.
  bool Prendi() const;

 private:
  struct Campanello;
  std::unique_ptr<Campanello> campanello_;
};

/// While it lives one of these ends the process with the status of a failure, without a word: for when there
/// is no event loop yet that would take it.
class SegnaliFatali {
 public:
  /// `segnali` must outlive this.
  explicit SegnaliFatali(const SegnaliFine& segnali);
  SegnaliFatali(const SegnaliFatali&) = delete;
  SegnaliFatali& operator=(const SegnaliFatali&) = delete;
  ~SegnaliFatali();

 private:
  class Guardia;
  std::unique_ptr<Guardia> guardia_;
};

}  // namespace parvik
