#include "app/qtMisure.h"

namespace parvik {

void qtMisure::Aggiorna() {
  for (const Sezione sezione : TutteLeSezioni) {
    const bool accesa = editore_.Scelte()[Preferenza::Misura] && editore_.InUso(sezione);
    area_.Editor(sezione).MostraAMisura(accesa ? &editore_.AMisura() : nullptr, LettoreDi(sezione));
  }
}

void qtMisure::Rimisura() {
  for (const Sezione sezione : TutteLeSezioni) area_.Editor(sezione).Rimisura();
}

LettoreCampi qtMisure::LettoreDi(Sezione sezione) const {
  return {.Testo = [this, sezione](
                       std::string_view contenuto,
                       const PostoCampo& posto) { return editore_.TestoCampo(sezione, contenuto, posto); },
          .ConLarghezza =
              [this, sezione](std::string_view contenuto, std::int16_t larghezza) {
                return editore_.ConLarghezza(sezione, contenuto, larghezza);
              }};
}

}  // namespace parvik
