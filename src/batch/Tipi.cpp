#include <string>

#include "batch/Catalogo.h"
#include "batch/Comandi.h"
#include "batch/Messaggi.h"

namespace parvik::batch {

Uscita Tipi(const Opzioni& opzioni) {
  const auto catalogo = ApriCatalogo(opzioni);
  if (!catalogo) return Uscita::NonFatto;
  std::string tabella;
  for (const TipoDoc* tipo : catalogo->Campi.TipiElencati()) {
    tabella += std::to_string(tipo->Indice + 1) + '\t' + PerTabella(tipo->Descrizione) + '\t' +
               PerTabella(tipo->Titolo) + '\t' + std::to_string(tipo->NumSezioni) + '\n';
  }
  return Stampa(tabella) ? Uscita::Fatto : Uscita::NonFatto;
}

}  // namespace parvik::batch
