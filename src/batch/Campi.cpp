#include <span>
#include <string>
#include <string_view>

#include "batch/Catalogo.h"
#include "batch/Comandi.h"
#include "batch/Messaggi.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceVariabile.h"

namespace parvik::batch {
namespace {

std::string Riga(Sezione sezione, char genere, int numero, std::string_view codice,
                 std::string_view descrizione) {
  return std::string(NomiSezioni[Indice(sezione)]) + '\t' + genere + '\t' + std::to_string(numero) + '\t' +
         PerTabella(codice) + '\t' + PerTabella(descrizione) + '\n';
}

std::string Righe(Sezione sezione, const Tabella<Variabile>& variabili) {
  std::string righe;
  for (const Variabile& v : variabili.Voci) {
    righe += Riga(sezione, 'V', v.Intero1, CostruisciVariabile(v), v.Descrizione);
  }
  return righe;
}

std::string Righe(Sezione sezione, const Tabella<Flag>& flag) {
  std::string righe;
  for (const Flag& f : flag.Voci) {
    const CodiceFlag codice{.Numero = std::to_string(f.Codice), .Interruttore = f.Valore};
    righe += Riga(sezione, 'F', f.Codice, CostruisciFlag(codice), f.Descrizione);
  }
  return righe;
}

std::span<const Sezione> SezioniDi(const TipoDoc& tipo) {
  return std::span(TutteLeSezioni).first(HaTreSezioni(tipo.NumSezioni) ? MaxSezioni : 1);
}

}  // namespace

Uscita Campi(const Opzioni& opzioni) {
  const auto catalogo = ApriCatalogo(opzioni);
  const TipoDoc* tipo = catalogo ? TrovaTipo(*catalogo, opzioni.Tipo) : nullptr;
  if (tipo == nullptr) return Uscita::NonFatto;
  Uscita esito = Uscita::Fatto;
  std::string uscita;
  for (const Sezione sezione : SezioniDi(*tipo)) {
    if (opzioni.SolaSezione && *opzioni.SolaSezione != sezione) continue;
    const Tabella<Variabile> variabili = catalogo->Campi.LeggiVariabili(*tipo, sezione);
    const Tabella<Flag> flag = catalogo->Campi.LeggiFlag(*tipo, sezione);
    uscita += Righe(sezione, variabili) + Righe(sezione, flag);
    for (const auto& errore : {variabili.Errore, flag.Errore}) {
      if (!errore) continue;
      esito = Uscita::NonFatto;
      if (SegnalaErroreSezione(*catalogo, *errore)) return esito;
    }
  }
  return Stampa(uscita) ? esito : Uscita::NonFatto;
}

}  // namespace parvik::batch
