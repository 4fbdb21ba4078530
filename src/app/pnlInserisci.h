// The small box at the caret in which a field is looked for and inserted (docs/pannello-campi.md).
#pragma once

#include <QFrame>
#include <QLineEdit>
#include <QTreeView>

#include "app/qtSceltaCampi.h"

namespace parvik {

class pnlInserisci final : public QFrame {
  Q_OBJECT

 public:
  /// `editore` must outlive this. It stands in `finestra`, whose focus it gives back.
  pnlInserisci(Editore& editore, QWidget* finestra);

  /// Opens below, or above, that part of the window, without words and with the focus.
  void Apri(const QRect& cursore);
  /// What can be inserted may be something else.
  void Rinnova() { scelta_->Rinnova(); }
  /// Closes it, wherever the focus is.
  void Chiudi();

  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 signals:
  void Confermata(const parvik::VoceInseribile& voce, bool conMaschera);
  /// It goes, and nobody else has taken the focus yet.
  void Lasciato();

 private:
  void Colloca();

  QLineEdit* txtCodice_;
  QTreeView* lstCodici_;
  qtSceltaCampi* scelta_;
  QRect cursore_;
};

}  // namespace parvik
