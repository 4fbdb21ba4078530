// What the main window keeps from one session to the next, while the user wants it to.
#pragma once

#include <QMainWindow>
#include <filesystem>
#include <optional>
#include <vector>

#include "app/qtRicordo.h"
#include "common/LavoroLasciato.h"
#include "editor/Editore.h"

namespace parvik {

class qtRicordi {
 public:
  /// Both must outlive this. `finestra` is the main window.
  qtRicordi(Editore& editore, QMainWindow& finestra, qtRicordo file);

  /// The switches and the window as they were left. Before the window is shown.
  void Riprendi();

  /// The editor's state has changed: writes what is other than was kept, and forgets all when it was turned
  /// off.
  void Aggiorna();
  /// The window is about to close: its place, too.
  void Salva();

  /// How much larger texts are, in steps, as they were left; and as they are now.
  int Ingrandimento() const { return ricordo_.Ingrandimento; }
  void NotaIngrandimento(int passi);

  /// The templates that are kept and still there, as far as that is known soon; none while nothing is kept.
  const Recenti& Modelli();

 private:
  void NotaModello();
  void Scrivi();
  void RiponiFinestra();
  void TogliSpariti();

  Editore& editore_;
  QMainWindow& finestra_;
  qtRicordo file_;
  Ricordo ricordo_;
  std::optional<Ricordo> scritto_;  // what the file says; nullopt while nothing is kept
  LavoroLasciato<std::vector<std::filesystem::path>> spariti_;
};

}  // namespace parvik
