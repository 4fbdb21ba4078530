// The properties of a printer, as the toolkit's own print dialog shows them: they begin with the printer's
// default paper whatever the printer was set to, so the paper that is wanted is put into their boxes
// (docs/foglio.md).
#pragma once

#include <QDialog>
#include <QObject>
#include <QPageLayout>

namespace parvik {

class qtProprietaStampa final : public QObject {
  Q_OBJECT

 public:
  /// `dialogo` is the print dialog, which owns this; `carta` must be valid.
  qtProprietaStampa(QDialog& dialogo, const QPageLayout& carta);

  /// Whether what the dialog has set up is the printer's default, for the user was not asked, or gave it up.
  bool DaPreparare() const;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void Riempi(QWidget& proprieta) const;

  QDialog& dialogo_;
  QPageLayout carta_;
  bool confermate_ = false;
};

}  // namespace parvik
