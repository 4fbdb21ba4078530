// The inside of the main window: the sections with their labels, the preview with its status line, and the
// boundary between them (docs/menus.md).
#pragma once

#include <QWidget>
#include <array>
#include <optional>

#include "app/lblTCP.h"
#include "app/presaAnte.h"
#include "common/Sezione.h"
#include "editor/Disposizione.h"
#include "output/lblRighe.h"
#include "output/ricAnte.h"
#include "template/txtTCP.h"

namespace parvik {

class qtArea final : public QWidget {
 public:
  /// Nothing is shown before Mostra. `documento` must outlive this.
  qtArea(Documento& documento, QWidget* padre);

  /// They belong to this; all three sections are always there.
  txtTCP& Editor(Sezione sezione) const { return *sezioni_[Indice(sezione)]; }
  ricAnte& Pannello() const { return *pannello_; }

  /// Lays out what is there now; the boundary goes back to the middle when the preview is off.
  void Mostra(const StatoArea& stato);

  /// The label of that section is the active one, no other.
  void Attiva(Sezione sezione);

  /// Puts the caret there, in sight.
  void Rivela(const CursoreSezione& cursore);
  /// The same, and gives the section the focus.
  void Raggiungi(const CursoreSezione& cursore);

  /// Gives up what an input method is composing in any section.
  void FinisciComposizione();

 protected:
  /// In another size of the window the boundary goes back to the middle; bars that come and go leave it.
  void resizeEvent(QResizeEvent* evento) override;

 private:
  void CreaDivisore();
  void SpostaDivisore(int x);
  void CreaTasto(Qt::Key tasto, int passo);
  Finestra Misure() const;
  Disposizione Posti();
  void MisuraEtichette();
  void ResizeControls();

  std::array<lblTCP*, MaxSezioni> etichette_ = {};
  std::array<txtTCP*, MaxSezioni> sezioni_ = {};
  ricAnte* pannello_ = nullptr;
  lblRighe* lblRighe_ = nullptr;
  presaAnte* presa_ = nullptr;
  StatoArea stato_;
  std::optional<int> divisore_;  // in twips; where the user has dragged the boundary since the last resize
  QSize finestra_;               // the size that the window had then
  bool etichetteMisurate_ = false;
};

}  // namespace parvik
