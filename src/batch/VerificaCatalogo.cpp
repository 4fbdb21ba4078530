#include <string>
#include <vector>

#include "batch/Catalogo.h"
#include "batch/Comandi.h"
#include "batch/Messaggi.h"
#include "batch/Resoconto.h"
#include "sistema/LetturaFile.h"
#include "verifica/RegoleCatalogo.h"

namespace parvik::batch {

Uscita VerificaCatalogo(const Opzioni& opzioni) {
  const std::filesystem::path file = FileCatalogo(opzioni);
  if (file.empty()) return Uscita::NonFatto;
  const Esito<std::string> byte = LeggiFile(file);
  if (!byte) {
    Segnala(file, byte.Errore());
    return Uscita::NonFatto;
  }
  const auto rilievi = parvik::VerificaCatalogo(*byte);
  if (!rilievi) {
    Segnala(file, rilievi.Errore());
    return Uscita::NonFatto;
  }
  const std::vector<RilievoDetto> detti = Detti(*rilievi);
  const auto resoconto = ResocontoPer(opzioni.Rilievi);
  const bool detto = resoconto->Inizia() && resoconto->File(file, detti) && resoconto->Finisci();
  return detto ? EsitoDi(detti, opzioni.Rilievi) : Uscita::NonFatto;
}

}  // namespace parvik::batch
