// The notices about the template's file: when it is looked at, and the bar that tells what was found
// (docs/notizie.md).
#pragma once

#include <QMainWindow>
#include <QObject>

#include "app/barNotizia.h"
#include "common/LavoroLasciato.h"
#include "editor/Editore.h"
#include "editor/NotizieFile.h"

namespace parvik {

class qtNotizie final : public QObject {
  Q_OBJECT

 public:
  /// Both must outlive it. `finestra` is the main window; `esecuzione` the user's folder for what counts
  /// while programs run.
  qtNotizie(Editore& editore, QMainWindow& finestra, std::filesystem::path esecuzione);

  /// The editor's state has changed.
  void Aggiorna();

  /// Whether the file is being looked at.
  bool AlLavoro() const { return sguardo_.AlLavoro(); }

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void Guarda();
  void Consegna();
  void Mostra();
  void CreaBarra();
  void Ignora();

  Editore& editore_;
  QMainWindow& finestra_;
  NotizieFile notizie_;
  barNotizia* barra_ = nullptr;
  QPushButton* cmdRicarica_ = nullptr;
  std::shared_ptr<const std::string> guardata_;  // what the look that is under way compares with
  LavoroLasciato<SguardoFile> sguardo_;          // last: it calls the others
};

}  // namespace parvik
