// Find and replace in the window: the bar, when it is looked for what, and who shows where it was found
// (docs/ricerca.md).
#pragma once

#include <QMainWindow>
#include <QObject>
#include <QTimer>
#include <optional>
#include <string>

#include "app/barTrova.h"
#include "app/qtArea.h"
#include "common/qtFilo.h"
#include "editor/Editore.h"

namespace parvik {

class qtTrova final : public QObject {
  Q_OBJECT

 public:
  /// All must outlive it. `finestra` is the main window.
  qtTrova(Editore& editore, qtArea& area, QMainWindow& finestra);

  /// The editor's state has changed: without a document type there is no bar.
  void Aggiorna();
  /// Something may have changed: it is looked for anew when nothing has for a moment.
  void Segui();
  /// What was found is told anew.
  void Mostra();

  // The commands.

  void Apri(bool perSostituire);
  void Passa(int passo);

 private:
  void CreaBarra();
  void MettiInMostra();
  void Chiudi();
  void RendiFuoco();
  void Cambiata();
  void Rinnova();
  void Assicura();
  QString DaCercare() const;
  std::optional<std::string> DaMettere();
  void SostituisciUna();
  void SostituisciTutte();
  void MostraSegni(bool accesi);

  Editore& editore_;
  qtArea& area_;
  QMainWindow& finestra_;
  barTrova* barra_ = nullptr;
  bool visibile_ = false;
  QString nota_;  // what the last command has said, until something else is looked for or the text is other
  QTimer attesa_;
  qtFilo<LavoroRicerca::Fatto> filo_;
};

}  // namespace parvik
