// What the replaced functions of guasti.cpp ask before they call the real ones.
#pragma once

#include <condition_variable>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "guasti/Guasti.h"

namespace parvik::prova {

/// Asked from all threads, and by what a signal does in the middle of an answer.
class Motore {
 public:
  /// The one of this process. Starts with the plan of the environment, if there is one.
  static Motore& Unico();

  void Pianifica(PianoGuasti piano);
  std::vector<std::string> Chiamate() const;

  /// What is to become of a call; kills the process when that is due, or waits. Nobody is told Attendi.
  enum class Esito { Estraneo, Prosegui, Fallisci, Accorcia, Attendi };
  /// Estraneo: none of the folders is concerned. On Fallisci errno is set.
  Esito PerPercorso(const char* chiamata, std::string_view percorso);
  Esito PerDescrittore(const char* chiamata, int numero);
  /// Whether the name of this path may not be made or taken away.
  bool Chiuso(std::string_view percorso) const;
  /// Whether there are no locks; errno says so then.
  bool SenzaLucchetti() const;

  /// A descriptor was opened on the path, or is the twin of another, or is gone.
  void Aperto(int numero, std::string_view percorso);
  void Doppio(int numero, int originale);
  void Chiuso(int numero);

 private:
  Motore();
  bool Sorvegliato(std::string_view percorso) const;
  Esito Conta(const char* chiamata, std::string_view percorso);
  void Annota(const std::string& riga);
  Esito Attesa(Esito esito);

  mutable std::recursive_mutex porta_;
  std::condition_variable_any cambiato_;
  int piani_ = 0;  // how many there were

  PianoGuasti piano_;
  std::map<int, std::string> aperti_;  // descriptors in the folders, and their paths
  std::vector<std::string> chiamate_;
  int diario_ = -1;
};

}  // namespace parvik::prova
