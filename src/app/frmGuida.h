// The guide: the manual, in a window beside the one that is at work.
#pragma once

#include <QDialog>
#include <QDir>

#include "app/txtGuida.h"

class QBoxLayout;
class QPushButton;

namespace parvik {

class frmGuida final : public QDialog {
  Q_OBJECT

 public:
  frmGuida(const QDir& manuale, const qtMenu& menu, QWidget* padre);

  /// Shows that page of the manual, in front.
  void Apri(const QString& pagina);

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  QBoxLayout* CreaComandi();

  txtGuida* txtGuida_;
};

}  // namespace parvik
