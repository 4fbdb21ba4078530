// What the replaced functions of guasti.cpp ask before they call the real ones.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "guasti/Guasti.h"

namespace parvik::prova {

class Motore {
 public:
  /// The one of this process. Starts with the plan of the environment, if there is one.
  static Motore& Unico();

  void Pianifica(PianoGuasti piano);
  const std::vector<std::string>& Chiamate() const { return chiamate_; }

  /// What is to become of a call; kills the process when that is due.
  enum class Esito { Estraneo, Prosegui, Fallisci, Accorcia };
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
  void Chiuso(int numero) { aperti_.erase(numero); }

 private:
  Motore();
  bool Sorvegliato(std::string_view percorso) const;
  Esito Conta(const char* chiamata, std::string_view percorso);
  void Annota(const std::string& riga);

  PianoGuasti piano_;
  std::map<int, std::string> aperti_;  // descriptors in the folders, and their paths
  std::vector<std::string> chiamate_;
  int diario_ = -1;
};

}  // namespace parvik::prova
