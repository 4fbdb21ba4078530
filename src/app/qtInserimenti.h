// What inserts fields beside the menus' dialogs: the panel of fields, and the box at the caret
// (docs/pannello-campi.md). When they are brought up to date, and what becomes of a choice.
#pragma once

#include <QMainWindow>
#include <QObject>
#include <QTimer>

#include "app/pnlCampi.h"
#include "app/pnlInserisci.h"
#include "app/qtArea.h"
#include "app/qtMaschere.h"
#include "common/qtFilo.h"
#include "editor/Editore.h"

namespace parvik {

class qtInserimenti final : public QObject {
  Q_OBJECT

 public:
  /// All must outlive it. `finestra` is the main window.
  qtInserimenti(Editore& editore, qtMaschere& maschere, qtArea& area, QMainWindow& finestra);

  /// Shows the panel, or hides it: it is there while a document type is chosen and it is switched on.
  void Aggiorna();
  /// A text may have changed: what it uses is counted when nothing has for a while.
  void Segui();
  /// Another section may be the active one.
  void Rinnova();

  /// The command of the panel: with the focus in its filter when it comes.
  void CommutaPannello();
  /// The command of the box.
  void Scegli();

 private:
  void CreaPannello();
  void CreaRiquadro();
  bool Guardati() const;
  void Conta();
  void Inserisci(const VoceInseribile& voce, bool conMaschera);
  void TornaAllaSezione();

  Editore& editore_;
  qtMaschere& maschere_;
  qtArea& area_;
  QMainWindow& finestra_;
  pnlCampi* pannello_ = nullptr;
  pnlInserisci* riquadro_ = nullptr;
  bool visibile_ = false;  // the panel
  bool nuovo_ = false;     // it has never been shown, nor was its place kept
  QTimer attesa_;
  qtFilo<LavoroUsi::Fatto> filo_;
};

}  // namespace parvik
