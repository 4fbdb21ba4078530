// Steps that wait for each other while the program's own event loops run, those of its dialogs included.
#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>

namespace parvik::prova {

/// The dialog in front, once it is visible and has the keyboard; nullptr before, and when there is none.
QDialog* InPrimoPiano();

/// Whether a dialog, told by its objectName or its title, is in front. "" stands for no dialog at all.
bool Davanti(const std::string& nome);

class Regia {
 public:
  using Condizione = std::function<bool()>;
  using Azione = std::function<void()>;

  Regia();

  /// When the steps before are done and `quando` holds, `azione` is begun; it may block in a dialog's loop.
  /// `cosa` names what is waited for.
  void Poi(std::string cosa, Condizione quando, Azione azione);

  /// Runs the program's event loop until something ends it, and gives the status with which it ended. Fails
  /// the test when a step's condition does not come to hold, and when steps are left over.
  int Esegui();

 private:
  struct Passo {
    std::string Cosa;
    Condizione Quando;
    Azione Fai;
  };
  void Guarda();

  std::deque<Passo> passi_;
  QTimer orologio_;
  QElapsedTimer attesa_;  // since the last step
};

}  // namespace parvik::prova
