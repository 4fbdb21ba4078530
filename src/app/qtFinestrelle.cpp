#include "app/qtFinestrelle.h"

namespace parvik {

void qtFinestrelle::Aggiorna() {
  MostraFlag();
  MostraTotali();
}

void qtFinestrelle::RicaricaFlag() {
  if (settaFlag_ != nullptr) settaFlag_->Ricarica();
}

void qtFinestrelle::MostraFlag() {
  const bool visibile = editore_.SettaFlagSpuntata();
  if (settaFlag_ == nullptr && !visibile) return;
  if (settaFlag_ == nullptr) {
    settaFlag_ = std::make_unique<frmSettaFlag>(editore_.Flag(), &finestra_);
    QObject::connect(settaFlag_.get(), &frmSettaFlag::Nascosta, settaFlag_.get(), [this] {
      if (editore_.SettaFlagSpuntata()) editore_.CommutaSettaFlag();
    });
    QObject::connect(settaFlag_.get(), &frmSettaFlag::Cambiati, settaFlag_.get(),
                     [this] { editore_.CambiatiFlag(); });
  }
  settaFlag_->setVisible(visibile);
}

void qtFinestrelle::MostraTotali() {
  const auto& totali = editore_.Totali();
  if (totali.has_value() == (totali_ != nullptr)) return;
  totali_ = totali ? std::make_unique<frmTotRighe>(totali->Righe, totali->Pagina, &finestra_) : nullptr;
  if (totali_) totali_->show();
}

}  // namespace parvik
