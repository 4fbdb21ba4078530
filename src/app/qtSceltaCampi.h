// The choice of one of the fields that can be inserted: a box in which words are typed, and the list of what
// answers to them (docs/pannello-campi.md).
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QTreeView>

#include "app/qtElencoCampi.h"

class QKeyEvent;

namespace parvik {

class qtSceltaCampi final : public QObject {
  Q_OBJECT

 public:
  enum class Come {
    DueControlli,  // the focus goes from the box to the list and back
    SoloCasella,   // it stays in the box, and the arrows move in the list
  };

  /// Prepares the controls, which must outlive this. `nessuno` shows when nothing answers.
  qtSceltaCampi(Editore& editore, QLineEdit& casella, QTreeView& elenco, QLabel& nessuno, Come come);

  /// What can be inserted may be something else; what was chosen stays so where it still is there.
  void Rinnova();
  /// No words, and nothing chosen.
  void Azzera();

  const VoceInseribile* Scelta() const { return modello_.VoceA(elenco_.currentIndex()); }
  void Inserisci() { Conferma(false); }
  void ApriMaschera() { Conferma(true); }

  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 signals:
  void Confermata(const parvik::VoceInseribile& voce, bool conMaschera);
  /// Escape, with nothing to clear.
  void Lasciata();

 private:
  void PreparaElenco();
  void Filtra();
  void MostraTutto();
  void Descrivi();
  void Conferma(bool conMaschera);
  void Usa();
  bool PremutoComune(const QKeyEvent& tasto);
  bool PremutoInCasella(const QKeyEvent& tasto);
  bool PremutoInElenco(QKeyEvent& tasto);
  int PassiDi(const QKeyEvent& tasto) const;

  QLineEdit& casella_;
  QTreeView& elenco_;
  QLabel& nessuno_;
  Come come_;
  qtElencoCampi modello_;
};

}  // namespace parvik
