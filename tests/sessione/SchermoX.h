// A display seen from outside: the windows on it by their titles, and keys for them. No window manager is
// there, so this does what one would.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace parvik::prova {

class SchermoX {
 public:
  struct Misura {
    int Larghezza = 0;
    int Altezza = 0;
  };

  /// Connects to the display of that name (":7"); the process ends when it cannot.
  explicit SchermoX(const std::string& nome);
  ~SchermoX();
  SchermoX(const SchermoX&) = delete;
  SchermoX& operator=(const SchermoX&) = delete;

  /// The size of the visible window with that title; nullopt when there is none.
  std::optional<Misura> Finestra(const std::string& titolo);
  /// How many of them there are.
  int Quante(const std::string& titolo);
  /// Gives the window the keyboard and presses a key, told by its X name ("Return"), with modifiers or
  /// without.
  enum Modificatori : unsigned { Nessuno = 0, Maiuscole = 1, Controllo = 4, Alt = 8 };
  void Premi(const std::string& titolo, const char* tasto, unsigned modificatori = Nessuno);
  /// The same for whatever window has the keyboard now.
  void Premi(const char* tasto, unsigned modificatori = Nessuno);

 private:
  struct Connessione;
  std::unique_ptr<Connessione> x_;
};

}  // namespace parvik::prova
