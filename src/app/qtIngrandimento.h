// The size of the texts in sections and preview, by keys and wheel (docs/menus.md).
#pragma once

#include <QObject>

#include "app/qtArea.h"

namespace parvik {

class qtIngrandimento final : public QObject {
  Q_OBJECT

 public:
  /// Ctrl++ (or Ctrl+=), Ctrl+- and Ctrl+0 of `finestra`, Ctrl and the wheel over sections and preview.
  qtIngrandimento(qtArea& area, QWidget& finestra);

  /// As many steps larger than at first, or as near to that as sizes go.
  void Imposta(int passi);

 signals:
  void Cambiato(int passi);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  qtArea& area_;
  int passi_ = 0;
  int girato_ = 0;  // of the wheel, less than what makes a step
};

}  // namespace parvik
