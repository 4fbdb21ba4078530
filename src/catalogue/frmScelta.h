// The choice of the document type.
#pragma once

#include <QStringList>
#include <memory>
#include <optional>

#include "common/frmModale.h"

namespace Ui {
class frmScelta;
}

namespace parvik {

class frmScelta final : public frmModale {
  Q_OBJECT

 public:
  frmScelta(const QStringList& descrizioni, QWidget* padre);
  ~frmScelta() override;

  /// Selects an entry, 0-based, before the user does.
  void Proponi(std::size_t voce);

  /// The 0-based entry that was chosen; nullopt after Cancel, and while nothing can be chosen.
  std::optional<std::size_t> Scelta() const;

 private:
  void CaricaLista(const QStringList& descrizioni);

  std::unique_ptr<Ui::frmScelta> ui_;
};

}  // namespace parvik
