// Tells the repetitions of a held key from presses where the toolkit mistakes them.
#pragma once

#include <QObject>

class QKeyEvent;

namespace parvik {

/// One for the program, made after every other filter of its keys. The display says of a held key that it was
/// released and pressed again at the same moment. The toolkit knows a repetition only when it finds both
/// together: now and then it does not, and calls it a press. While this lives, such a press comes to its
/// widget as the repetition that it is.
class qtTastiRipetuti final : public QObject {
  Q_OBJECT

 public:
  explicit qtTastiRipetuti(QObject* padre);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void Osserva(const QKeyEvent& tasto);
  bool Correggi(QObject& oggetto, QKeyEvent& tasto) const;

  struct Rilascio {
    int Tasto = 0;
    quint64 Quando = 0;
  };
  Rilascio rilascio_;  // the last one
  int ripetuto_ = 0;   // the key of the last press, when that was a repetition
};

}  // namespace parvik
