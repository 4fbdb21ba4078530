#include "common/EsitoScrittura.h"

#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"

namespace parvik {

std::string TestoErrore(const ErroreScrittura& errore) {
  std::string testo = TestoErrore(errore.Numero);
  if (!errore.Nota.empty()) testo.append("\r\n").append(errore.Nota);
  return testo;
}

std::string TestoAvviso(const Scritto& scritto) {
  std::string testo;
  if (scritto.Accesso == Diritti::Ridotti)
    testo = "Il file è salvato, ma con diritti di accesso più ristretti di prima";
  if (scritto.CopiaTenuta.empty()) return testo;
  if (!testo.empty()) testo += "\r\n";
  return testo + "Un salvataggio interrotto aveva lasciato il contenuto di prima: ora è in " +
         Mostrabile(TestoPercorso(scritto.CopiaTenuta));
}

}  // namespace parvik
