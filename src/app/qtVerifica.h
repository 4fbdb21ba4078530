// What is wrong with the template, kept beside it while its panel is open: when it is looked for, and who
// shows it (docs/verifica.md).
#pragma once

#include <QMainWindow>
#include <QObject>
#include <QTimer>

#include "app/pnlProblemi.h"
#include "app/qtArea.h"
#include "common/qtFilo.h"
#include "editor/Editore.h"

namespace parvik {

class qtVerifica final : public QObject {
  Q_OBJECT

 public:
  /// All must outlive it. `finestra` is the main window.
  qtVerifica(Editore& editore, qtArea& area, QMainWindow& finestra);

  /// Shows the panel, or hides it: it is there while a document type is chosen and it is switched on.
  void Aggiorna();
  /// Something may have changed: what is wrong is looked for when nothing has for a while.
  void Segui();
  /// What is wrong is told anew.
  void Mostra();

  /// The command: opens the panel, or goes to what is next in it.
  void Verifica();

 private:
  void CreaPannello();
  void CambiataPagina();
  void Rinnova();
  void Passa(int passo);
  void MostraOnde(bool accese);

  Editore& editore_;
  qtArea& area_;
  QMainWindow& finestra_;
  pnlProblemi* pannello_ = nullptr;
  bool visibile_ = false;
  bool nuovo_ = false;  // it has never been shown, nor was its place kept
  QTimer attesa_;
  qtFilo<LavoroVerifica::Fatto> filo_;
};

}  // namespace parvik
