// Keys that do nothing in a window that they were not pressed for: those that were on their way when a dialog
// opened, as nobody could see it yet, and the repetitions of a key that was pressed in another window.
#pragma once

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>

class QKeyEvent;

namespace parvik {

/// One for the program: while it lives it looks after every window.
class qtTastiInCoda final : public QObject {
  Q_OBJECT

 public:
  explicit qtTastiInCoda(QObject* padre);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void Segui(QWidget& finestra, QEvent::Type evento);
  bool Scarta(const QWidget& destinazione, const QEvent& evento);
  bool ScartaTasto(QWidget& finestra, const QKeyEvent& tasto);
  bool InArrivo(const QWidget& finestra) const;
  bool Precede(const QKeyEvent& tasto);
  quint64 Adesso() const;

  /// The modal window that opened last.
  struct Apertura {
    QPointer<QWidget> Finestra;
    bool Attiva = false;
    bool Dipinta = false;
    quint64 Visibile = 0;  // when it could be seen, by the clock of the key events; 0 when that is not known
  };
  Apertura apertura_;
  QPointer<QWidget> premuto_;  // the window in which the last key was pressed
  struct Tasto {
    int Quale = 0;
    quint64 Quando = 0;    // by the clock of the key events
    bool Vecchio = false;  // pressed before the dialog could be seen
  };
  Tasto ultimo_;            // the last one whose time was known
  QElapsedTimer daUltimo_;  // since it came here
};

}  // namespace parvik
