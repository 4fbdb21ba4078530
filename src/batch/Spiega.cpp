#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "batch/Catalogo.h"
#include "batch/Comandi.h"
#include "batch/Json.h"
#include "batch/Messaggi.h"
#include "common/Delimitatori.h"
#include "common/TestoPercorso.h"
#include "common/Windows1252.h"
#include "verifica/SpiegaCodice.h"

namespace parvik::batch {
namespace {

/// The content of a code as it was written: its delimiters may be there, those of a file too.
std::string Contenuto(std::string_view scritto) {
  const std::string ansi = AnsiDaUtf8(scritto);
  const std::string_view tutto = ansi;
  const bool editor = tutto.starts_with(DelimApertura) && tutto.ends_with(DelimChiusura);
  const bool file = tutto.starts_with(DelimFileApertura) && tutto.ends_with(DelimFileChiusura);
  return editor || file ? std::string(tutto.substr(1, tutto.size() - 2)) : ansi;
}

std::string InRighe(const CodiceSpiegato& spiegato) {
  std::string righe = spiegato.Codice + "\n";
  const auto riga = [&righe](std::string_view nome, const std::optional<std::string>& valore) {
    if (valore) righe.append("  ").append(nome).append(": ").append(*valore).append("\n");
  };
  riga("genere", spiegato.Genere);
  for (const auto& [nome, valore] : spiegato.Campi) riga(nome, valore);
  riga("descrizione", spiegato.Descrizione);
  riga("manca", spiegato.Manca);
  riga("maschera", spiegato.Maschera);
  riga("stampa", spiegato.Stampa);
  return righe;
}

Json PerJson(const CodiceSpiegato& spiegato) {
  Json campi = Json::object();
  for (const auto& [nome, valore] : spiegato.Campi) campi[std::string(nome)] = valore;
  return {{"codice", spiegato.Codice},
          {"genere", spiegato.Genere},
          {"campi", std::move(campi)},
          {"descrizione", OppureNiente(spiegato.Descrizione)},
          {"manca", OppureNiente(spiegato.Manca)},
          {"maschera", OppureNiente(spiegato.Maschera)},
          {"stampa", spiegato.Stampa}};
}

}  // namespace

Uscita Spiega(const Opzioni& opzioni) {
  const auto catalogo = ApriCatalogo(opzioni);
  const TipoDoc* tipo = catalogo ? TrovaTipo(*catalogo, opzioni.Tipo) : nullptr;
  if (tipo == nullptr) return Uscita::NonFatto;
  const Sezione sezione = opzioni.SolaSezione.value_or(Sezione::Testata);
  if (!HaSezione(tipo->NumSezioni, sezione)) {
    Segnala(catalogo->File, "il tipo di documento " + std::to_string(opzioni.Tipo) + " non ha la sezione " +
                                std::string(NomiSezioni[Indice(sezione)]));
    return Uscita::NonFatto;
  }
  const Tabella<Variabile> variabili = catalogo->Campi.LeggiVariabili(*tipo, sezione);
  const Tabella<Flag> flag = catalogo->Campi.LeggiFlags(*tipo, sezione);
  std::vector<ErroreSezione> errori;
  if (variabili.Errore) errori.push_back({sezione, *variabili.Errore, variabili.RigaErrore});
  if (flag.Errore) errori.push_back({sezione, *flag.Errore, flag.RigaErrore});
  SegnalaErrori(*catalogo, errori);
  if (!errori.empty()) return Uscita::NonFatto;
  ElencoJson elenco;
  bool scritto = !opzioni.Rilievi.Json || elenco.Inizia();
  for (const std::filesystem::path& codice : opzioni.File) {
    const CodiceSpiegato spiegato = SpiegaCodice(Contenuto(TestoPercorso(codice)), variabili.Voci, flag.Voci);
    scritto =
        scritto && (opzioni.Rilievi.Json ? elenco.Aggiungi(PerJson(spiegato)) : Stampa(InRighe(spiegato)));
  }
  scritto = scritto && (!opzioni.Rilievi.Json || elenco.Finisci());
  return scritto ? Uscita::Fatto : Uscita::NonFatto;
}

}  // namespace parvik::batch
