#include "editor/Inserimento.h"

#include "template/TastiSezione.h"

namespace parvik {

void Inserimento::Prepara() {
  const Cursore cursore = vista_.CursoreIn(attiva_);
  const TestoSezione& testo = documento_.Testo(attiva_);
  const EsitoTasto esito = PremiTasto(testo, cursore.Selezionato(), TastoSezione::Togli);
  if (esito.Azione == AzioneTasto::Allarga) vista_.ImpostaCursore(attiva_, CursoreSu(esito.Nuova));
}

void Inserimento::Inserisci(std::span<const std::string> codici) {
  const Documento::PassoUnico passo(documento_);
  for (const std::string& codice : codici) {
    const Cursore cursore = vista_.CursoreIn(attiva_);
    const Selezione scelta = cursore.Selezionato();
    documento_.Applica(attiva_, {.Dove = scelta.Inizio, .Tolti = scelta.Lunghezza, .Messi = codice},
                       GenereModifica::Codice, cursore);
  }
}

}  // namespace parvik
