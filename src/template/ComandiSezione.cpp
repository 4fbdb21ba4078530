#include "template/ComandiSezione.h"

#include <algorithm>

#include "common/Delimitatori.h"
#include "tokens/Codice.h"

namespace parvik {

void ComandiSezione::Cambia(Selezione parte, std::string_view messi, GenereModifica genere) {
  documento_.Applica(sezione_, {.Dove = parte.Inizio, .Tolti = parte.Lunghezza, .Messi = ConFiniRiga(messi)},
                     genere, veduta_.CursoreAttuale());
}

AzioneTasto ComandiSezione::Premi(TastoSezione tasto, Pressione pressione) {
  const EsitoTasto esito = PremiTasto(Testo(), Selezionato(), tasto, pressione);
  switch (esito.Azione) {
    case AzioneTasto::Consueta:
      EseguiConsueta(tasto);
      break;
    case AzioneTasto::Nessuna:
      break;
    case AzioneTasto::Allarga:
      veduta_.Poni(CursoreSu(esito.Nuova));
      break;
    case AzioneTasto::ApriCodice:
      ApriCodice(esito.Nuova);
      break;
    case AzioneTasto::ApriVariabile:
      veduta_.ApriVariabile();
      break;
  }
  return esito.Azione;
}

/// The character beside the caret that a key takes away, or a whole line end; empty at the text's ends.
/// Always one, whatever other keys are down: never a word, which could end inside a code.
Selezione ComandiSezione::Accanto(TastoSezione tasto) const {
  const std::size_t qui = Selezionato().Inizio;
  if (tasto == TastoSezione::Canc) {
    if (qui == Testo().Dimensione()) return {.Inizio = qui};
    return {.Inizio = qui, .Lunghezza = Testo()[qui] == FineRiga.front() ? FineRiga.size() : 1};
  }
  if (qui == 0) return {};
  const std::size_t davanti = Testo().RigaColonnaDi(qui).Colonna == 0 ? FineRiga.size() : 1;
  return {.Inizio = qui - davanti, .Lunghezza = davanti};
}

void ComandiSezione::EseguiConsueta(TastoSezione tasto) {
  const Selezione scelta = Selezionato();
  if (tasto == TastoSezione::Spazio) return Cambia(scelta, " ", GenereModifica::Battuta);
  if (scelta.Lunghezza > 0) return Cambia(scelta, {}, GenereModifica::Eliminata);
  if (tasto == TastoSezione::Backspace || tasto == TastoSezione::Canc)
    Cambia(Accanto(tasto), {}, GenereModifica::Cancellata);
}

bool ComandiSezione::LasciaTogliere(Selezione parte, Pressione pressione) {
  if (parte.Lunghezza == 0) return true;
  const EsitoTasto esito = PremiTasto(Testo(), parte, TastoSezione::Togli, pressione);
  if (esito.Azione == AzioneTasto::Allarga) veduta_.Poni(CursoreSu(esito.Nuova));
  return esito.Azione == AzioneTasto::Consueta;
}

void ComandiSezione::Togli(Selezione parte) {
  Cambia(parte, {}, GenereModifica::Eliminata);
}

void ComandiSezione::CambiaCodice(Selezione codice, std::string_view nuovo) {
  Cambia(codice, nuovo, GenereModifica::Larghezza);
}

void ComandiSezione::ApriCodice(Selezione codice) {
  veduta_.Poni(CursoreSu(codice));
  const std::string contenuto(ContenutoDi(Testo().Byte(codice)));
  if (Riconosci(contenuto) == TipoCodice::Sconosciuto) return;
  veduta_.ApriDialogo(contenuto);
  if (Selezionato() == codice) veduta_.Poni({.Ancora = codice.Inizio, .Posto = codice.Inizio});
}

/// False when the rules did not let the selection go.
bool ComandiSezione::Sostituisci(std::string_view testo, GenereModifica genere, Pressione pressione) {
  if (!LasciaTogliere(Selezionato(), pressione)) return false;
  Cambia(Selezionato(), testo, genere);
  return true;
}

/// Whether more may be typed: the text and the selection are what they would be by typing.
bool ComandiSezione::ScriviCarattere(char carattere, Pressione pressione) {
  if (CarattereScartato(static_cast<unsigned char>(carattere))) return true;
  if (carattere != ' ') return Sostituisci({&carattere, 1}, GenereModifica::Battuta, pressione);
  const AzioneTasto azione = Premi(TastoSezione::Spazio, pressione);
  return azione == AzioneTasto::Consueta || azione == AzioneTasto::Nessuna;
}

void ComandiSezione::Scrivi(std::string_view testo, Pressione pressione) {
  static_cast<void>(
      std::ranges::all_of(testo, [&](char carattere) { return ScriviCarattere(carattere, pressione); }));
}

void ComandiSezione::VaiACapo(Pressione pressione) {
  Sostituisci(FineRiga, GenereModifica::ACapo, pressione);
}

void ComandiSezione::Incolla(std::string_view testo) {
  Sostituisci(testo, GenereModifica::Incollata, Pressione::Prima);
}

void ComandiSezione::CancellaFinoAFineRiga(Pressione pressione) {
  Selezione parte = Selezionato();
  if (parte.Lunghezza == 0) {
    const std::size_t fine = Testo().Riga(Testo().RigaDi(parte.Inizio)).Fine();
    parte = fine > parte.Inizio ? Selezione{.Inizio = parte.Inizio, .Lunghezza = fine - parte.Inizio}
                                : Accanto(TastoSezione::Canc);
    pressione = Pressione::Prima;  // no selection that a hand has made
  }
  if (LasciaTogliere(parte, pressione)) Togli(parte);
}

void ComandiSezione::Deposita(std::size_t posto, std::string_view testo) {
  veduta_.Poni({.Ancora = posto, .Posto = posto});
  Incolla(testo);
}

void ComandiSezione::Sposta(std::size_t posto) {
  const Selezione via = Selezionato();
  if (posto >= via.Inizio && posto <= via.Fine()) return;  // where it is
  if (!LasciaTogliere(via, Pressione::Prima)) return;
  const std::string testo = Testo().Byte(via);
  const Documento::PassoUnico passo(documento_);
  Cambia(via, {}, GenereModifica::Spostata);
  Deposita(posto > via.Inizio ? posto - via.Lunghezza : posto, testo);
}

}  // namespace parvik
