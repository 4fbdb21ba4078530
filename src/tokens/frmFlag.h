// The choice of a flag, and of what it does where it hides something.
#pragma once

#include <memory>
#include <optional>

#include "catalogue/TipoDoc.h"
#include "tokens/frmCodice.h"

namespace Ui {
class frmFlag;
}

namespace parvik {

class frmFlag final : public frmCodice {
  Q_OBJECT

 public:
  /// The list offers exactly the records of `flag`. The dialog has them to itself: choosing a switch changes
  /// its own copy.
  frmFlag(std::vector<Flag> flag, QWidget* padre);
  ~frmFlag() override;

  /// Selects the first entry that has the code's number, entry 0 when none has (a line says so), and gives it
  /// the code's switch.
  void Mostra(std::string_view contenuto) override;
  /// The flag code of the selected entry; none for an entry without a text.
  std::vector<std::string> Codici() const override;

 private:
  std::optional<std::size_t> VoceSelezionata() const;
  std::optional<std::size_t> VoceDi(std::string_view numero) const;
  void CaricaVoce();
  void CambiaInterruttore();
  void MostraCodice(const Flag& flag);

  std::unique_ptr<Ui::frmFlag> ui_;
  std::vector<Flag> flag_;  // what the list shows, as edited so far
};

}  // namespace parvik
