#include "editor/ContoRighe.h"

#include "template/RigheSezione.h"

namespace parvik {

std::optional<std::int16_t> ContoRighe::Conta(const TipoDoc& tipo, Sezione sezione) {
  const Esito<ConteggioRighe> conteggio = ContaRigheSezione(documento_.Testo(sezione).Byte());
  if (!conteggio) {
    Segnala(conteggio.Errore());
    return std::nullopt;
  }
  if (conteggio->DaCompletare && HaSezione(tipo.NumSezioni, sezione)) documento_.CompletaUltimaRiga(sezione);
  return conteggio->Righe;
}

void ContoRighe::Commuta(const TipoDoc& tipo) {
  mostrati_ = mostrati_ ? std::nullopt : Calcola(tipo);
}

std::optional<RigheMostrate> ContoRighe::Calcola(const TipoDoc& tipo) {
  TotaliRighe righe;
  righe.UnaSezione = tipo.NumSezioni == 1;
  const std::optional<std::int16_t> testata = Conta(tipo, Sezione::Testata);
  const std::optional<std::int16_t> piede = righe.UnaSezione ? std::int16_t{0} : Conta(tipo, Sezione::Piede);
  if (!testata || !piede) return std::nullopt;
  righe.Testata = *testata;
  righe.Corpo = documento_.Stato().Corpo.RigheCorpo;
  righe.Piede = *piede;
  const Esito<std::int16_t> pagina = righe.Pagina();
  if (pagina) return RigheMostrate{.Righe = righe, .Pagina = *pagina};
  Segnala(pagina.Errore());
  return std::nullopt;
}

void ContoRighe::Segnala(NumeroErrore errore) {
  interlocutore_.Chiedi({.Testo = TestoErrore(errore)});
}

}  // namespace parvik
