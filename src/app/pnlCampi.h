// The panel of what can be inserted into the active section, left or right of it (docs/pannello-campi.md).
#pragma once

#include <QDockWidget>
#include <QLineEdit>
#include <QTreeView>

#include "app/qtSceltaCampi.h"

namespace parvik {

class pnlCampi final : public QDockWidget {
  Q_OBJECT

 public:
  /// `editore` must outlive this.
  pnlCampi(Editore& editore, QWidget* padre);

  /// What can be inserted may be something else.
  void Rinnova() { scelta_->Rinnova(); }
  /// Gives the filter the focus.
  void Attiva();

 signals:
  void Confermata(const parvik::VoceInseribile& voce, bool conMaschera);
  void Lasciato();
  /// The panel's own button has closed it.
  void Chiuso();

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  void ApriMenu(QPoint dove);

  QLineEdit* txtFiltro_;
  QTreeView* lstCampi_;
  qtSceltaCampi* scelta_;
};

}  // namespace parvik
