// The ways of every dialog that gives an answer: Escape is its Cancel button, and Enter clicks the button
// that it means (docs/key-rules.md).
#pragma once

#include <QDialog>

#include "common/qtPulsanti.h"

namespace parvik {

class frmModale : public QDialog {
  Q_OBJECT

 public:
  /// What the window's own close box does.
  enum class Chiusura { Rifiutata, ComeAnnulla };

  explicit frmModale(QWidget* padre, Chiusura chiusura = Chiusura::Rifiutata);

 protected:
  void closeEvent(QCloseEvent* evento) override;

  qtPulsanti& Tasti() { return tasti_; }

 private:
  Chiusura chiusura_;
  qtPulsanti tasti_{*this};
};

}  // namespace parvik
