// The guide, in a window beside the main one.
#pragma once

#include <QDialog>
#include <QTextBrowser>

#include "app/qtPagineGuida.h"

namespace parvik {

class frmGuida final : public QDialog {
  Q_OBJECT

 public:
  frmGuida(const qtMenu& menu, QWidget* padre);

  /// Shows that page, in front.
  void Apri(PaginaGuida pagina);

 private:
  QTextBrowser* txtGuida_;
};

}  // namespace parvik
