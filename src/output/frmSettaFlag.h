// The window of the print flags: which flags count as true in the preview and on paper. Not modal: it stands
// beside the main window and is hidden rather than closed.
#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmSettaFlag;
}

namespace parvik {

class FlagPerStampe;

class frmSettaFlag final : public QDialog {
  Q_OBJECT

 public:
  /// `flag` owns the rows and must outlive the window; the list shows them.
  frmSettaFlag(FlagPerStampe& flag, QWidget* padre);
  ~frmSettaFlag() override;

  /// Shows the rows as they now are: none selected, the first one current. Needed after every change of them
  /// that was not made here.
  void Ricarica();

 signals:
  /// The user has set print flags.
  void Cambiati();
  /// The user put the window away, by its close box or by Escape.
  void Nascosta();

 protected:
  void showEvent(QShowEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void SettaFlag(bool vero);
  void PreparaLista();
  void AllineaIntestazioni();

  std::unique_ptr<Ui::frmSettaFlag> ui_;
  FlagPerStampe& flag_;
};

}  // namespace parvik
