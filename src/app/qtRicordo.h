// The one file in which the program keeps something of its own, where the user wants it
// (docs/impostazioni.md).
#pragma once

#include <QByteArray>
#include <QRect>
#include <filesystem>
#include <optional>
#include <vector>

#include "editor/Fogli.h"
#include "editor/Preferenze.h"
#include "editor/Recenti.h"

namespace parvik {

/// What is kept from one session to the next.
struct Ricordo {
  Preferenze Scelte;
  int Ingrandimento = 0;  // of the texts, in steps
  QRect Finestra;         // its place with the frame, its size without; null when not known
  bool Massimizzata = false;
  QByteArray Pannelli;  // where those about the sections stand; as the toolkit tells it
  Recenti Modelli;
  parvik::Fogli Fogli;

  bool operator==(const Ricordo&) const = default;
};

class qtRicordo {
 public:
  /// The folder of the user's configuration files ("" for none), and all that there are.
  qtRicordo(const std::filesystem::path& utente, const std::vector<std::filesystem::path>& tutte);

  /// What was kept; nullopt where nothing is to be. Looks for the user's file, then for those for all users,
  /// and reads only one that is there. A file that cannot be read, or not understood, says what can be
  /// understood of it.
  std::optional<Ricordo> Leggi() const;

  /// Writes the user's file. Failures are silent. Writes none where one that this has written has gone:
  /// somebody has turned it off.
  void Scrivi(const Ricordo& ricordo);
  /// Removes it.
  void Dimentica();

 private:
  std::filesystem::path file_;  // "" for none
  std::vector<std::filesystem::path> diTutti_;
  bool scritto_ = false;
};

}  // namespace parvik
