// When the guide comes, and in front of what: F1 in the main window and in every dialog that stands on it.
#pragma once

#include <QObject>
#include <QPointer>
#include <filesystem>

#include "app/qtMenu.h"

namespace parvik {

class frmGuida;

class qtGuida final : public QObject {
  Q_OBJECT

 public:
  /// `menu` and `finestra`, the main window, must outlive this. The manual is looked for when it is asked
  /// for.
  qtGuida(std::filesystem::path dirProgramma, const qtMenu& menu, QWidget& finestra);

  /// The page of what has the focus. In front of a modal dialog the guide belongs to it: it can be used while
  /// the dialog is open, and goes with it.
  void Apri();

  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  std::filesystem::path dirProgramma_;
  const qtMenu& menu_;
  QWidget& finestra_;
  QPointer<frmGuida> guida_;  // made when it is first asked for
};

}  // namespace parvik
