#include <span>
#include <string>
#include <string_view>
#include <vector>

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

/// Variables and flags of a section, as far as they could be read.
std::string Voci(const Catalogo& catalogo, const TipoDoc& tipo, Sezione sezione,
                 std::vector<ErroreSezione>& errori) {
  const Tabella<Variabile> variabili = catalogo.LeggiVariabili(tipo, sezione);
  if (variabili.Errore) errori.push_back({sezione, *variabili.Errore, variabili.RigaErrore});
  if (AltraVersione(errori)) return {};
  const Tabella<Flag> flag = catalogo.LeggiFlags(tipo, sezione);
  if (flag.Errore) errori.push_back({sezione, *flag.Errore, flag.RigaErrore});
  return Righe(sezione, variabili) + Righe(sezione, flag);
}

std::span<const Sezione> SezioniDi(const TipoDoc& tipo) {
  return std::span(TutteLeSezioni).first(HaTreSezioni(tipo.NumSezioni) ? MaxSezioni : 1);
}

}  // namespace

Uscita Campi(const Opzioni& opzioni) {
  const auto catalogo = ApriCatalogo(opzioni);
  const TipoDoc* tipo = catalogo ? TrovaTipo(*catalogo, opzioni.Tipo) : nullptr;
  if (tipo == nullptr) return Uscita::NonFatto;
  std::vector<ErroreSezione> errori;
  std::string uscita;
  for (const Sezione sezione : SezioniDi(*tipo)) {
    if (opzioni.SolaSezione && *opzioni.SolaSezione != sezione) continue;
    uscita += Voci(catalogo->Campi, *tipo, sezione, errori);
    if (AltraVersione(errori)) break;
  }
  SegnalaErrori(*catalogo, errori);
  if (AltraVersione(errori)) return Uscita::NonFatto;
  return Stampa(uscita) && errori.empty() ? Uscita::Fatto : Uscita::NonFatto;
}

}  // namespace parvik::batch
