#include "app/qtRighelli.h"

#include "common/righello.h"

namespace parvik {

void qtRighelli::Aggiorna() {
  const bool acceso = editore_.Scelte()[Preferenza::Righello];
  const bool nelleSezioni = acceso && editore_.Scelte()[Preferenza::Misura];
  for (const Sezione sezione : TutteLeSezioni)
    Mostra(area_.Editor(sezione), nelleSezioni && editore_.InUso(sezione));
  Mostra(area_.Pannello(), acceso && editore_.AnteVisibile());
}

template <class Scatola>
void qtRighelli::Mostra(Scatola& scatola, bool mostra) {
  const bool nuovo = scatola.Righello() == nullptr;
  scatola.MostraRighello(mostra);
  righello* mostrato = scatola.Righello();
  if (mostrato == nullptr) return;
  if (nuovo) {
    QObject::connect(mostrato, &righello::Cliccata, mostrato,
                     [this](std::size_t colonna) { editore_.CommutaGuida(colonna); });
  }
  mostrato->ImpostaGuide(editore_.GuideMesse().Colonne());
  scatola.viewport()->update();
}

}  // namespace parvik
