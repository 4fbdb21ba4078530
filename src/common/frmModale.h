// The ways of every dialog that gives an answer: Escape is its Cancel button, Enter its OK button, and the
// window's own close box does nothing.
#pragma once

#include <QDialog>

namespace parvik {

class frmModale : public QDialog {
  Q_OBJECT

 public:
  explicit frmModale(QWidget* padre);

 protected:
  void closeEvent(QCloseEvent* evento) override;
};

}  // namespace parvik
