// The label beside a section: a narrow strip with one letter a line.
#pragma once

#include <QLabel>

#include "common/Sezione.h"

namespace parvik {

class lblTCP final : public QLabel {
 public:
  /// Hidden, and without its size until Misura.
  lblTCP(Sezione sezione, QWidget* padre);

  /// Gives the label its size. This loads the font: not to be done before the label is to be seen.
  void Misura();

  /// The label of the active section is red, and has a bar: not everybody sees the red.
  void Attiva(bool attiva);

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  bool attiva_ = false;
};

}  // namespace parvik
