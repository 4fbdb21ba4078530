// System calls that fail when a test says so. The file functions of the C library are defined anew in
// guasti.cpp: linked into a test program they are this process's own, and as a library of its own
// (LD_PRELOAD) those of any program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace parvik::prova {

/// What happens at the call that is the `Chiamata`-th (from 1) of those that touch the folders.
struct Guasto {
  enum class Genere {
    Errore,         // the call does nothing and fails; close closes all the same, as the system does
    Uccisione,      // the process gets SIGKILL before the call
    Segnale,        // the process gets the signal `Errore` before the call
    Fermata,        // the process stops before the call (SIGSTOP), until somebody lets it go on (SIGCONT)
    Attesa,         // the call does not return before the plan is over; other threads go on
    ScritturaCorta  // a write writes half of its bytes; other calls are made as they are
  };
  int Chiamata = 0;
  Genere Quale = Genere::Errore;
  int Errore = 0;          // an errno, or a signal
  bool PerSempre = false;  // and at every call after it
};

struct PianoGuasti {
  /// Absolute paths. Calls on these folders and on what lies in them are counted, whether by path or by a
  /// descriptor that was opened there.
  std::vector<std::string> Cartelle;
  std::vector<Guasto> Guasti;
  /// A folder that takes no new file and loses none: EACCES, uncounted among the faults. Empty: none.
  std::string Chiusa = {};
  /// The errno of every flock, uncounted among the faults; 0: there are locks.
  int SenzaLucchetti = 0;
};

/// The environment of a program that loads the library: PARVIK_GUASTI is the plan, PARVIK_GUASTI_DIARIO a
/// file to which a line is added for every call counted.
std::string Scritto(const PianoGuasti& piano);
PianoGuasti DaScritto(std::string_view testo);

/// While it lives, the plan holds for this process.
class GuastiInCorso {
 public:
  explicit GuastiInCorso(PianoGuasti piano);
  GuastiInCorso(const GuastiInCorso&) = delete;
  GuastiInCorso& operator=(const GuastiInCorso&) = delete;
  ~GuastiInCorso();

  /// The calls counted so far: name and file's name, and " !" where a fault came in.
  static std::vector<std::string> Chiamate();
};

}  // namespace parvik::prova
