#include "editor/StatoBarra.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "common/ParoleComuni.h"
#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"
#include "template/TastiSezione.h"

namespace parvik {
namespace {

std::string Posto(const TestoSezione& testo, const CursoreSezione& dove) {
  const RigaColonna posto = testo.RigaColonnaDi(dove.Dentro.Posto);
  return std::string(TitoliSezioni[Indice(dove.Dove)]) + ": riga " + std::to_string(posto.Riga + 1) +
         ", col. " + std::to_string(posto.Colonna + 1);
}

/// A line end is one character.
std::string Scelti(const TestoSezione& testo, const Selezione& scelta) {
  const std::size_t finiRiga = testo.RigaDi(scelta.Fine()) - testo.RigaDi(scelta.Inizio);
  return Quanti(scelta.Lunghezza - finiRiga, "carattere selezionato", "caratteri selezionati");
}

std::string Percorso(const std::filesystem::path& file) {
  if (file.empty()) return {};
  std::error_code errore;
  const std::filesystem::path intero = std::filesystem::absolute(file, errore);
  return Mostrabile(TestoPercorso(errore ? file : intero));
}

/// The template's path, but after a save that kept what it found the name that this has now, beside it.
std::string DettoDelFile(const StatoModello& stato) {
  if (stato.Tenuta.empty()) return Percorso(stato.NomeFile);
  return "La versione trovata sul disco è in " + Mostrabile(TestoPercorso(stato.Tenuta.filename()));
}

std::string Righe(const CorsaMostrata& corsa) {
  return Quanti(corsa.Righe, "riga", "righe") + (corsa.Fine ? " + fine" : "");
}

std::string Fogli(const CorsaMostrata& corsa, const MisuraFoglio& foglio) {
  const std::string pagine = Quanti(Pagine(corsa.Righe, foglio.Pagina), "pagina", "pagine");
  return foglio.Oltre == 0 ? pagine
                           : pagine + ", " + Quanti(foglio.Oltre, "riga", "righe") + " oltre il foglio";
}

}  // namespace

std::optional<CorsaMostrata> CorsaDi(const TestoAnteprima& mostrato) {
  if (mostrato.Testo().empty()) return std::nullopt;
  const bool fine = mostrato.Testo().ends_with(FineAnteprima);
  const std::size_t altre = fine ? 2 : 1;  // the end marker and the empty line in front of it
  return CorsaMostrata{.Righe = mostrato.NumRighe() - std::min(altre, mostrato.NumRighe()), .Fine = fine};
}

std::optional<Selezione> CodiceDaDire(const TestoSezione& testo, std::size_t cursore) {
  const std::vector<Selezione> toccati = CodiciAlCursore(testo, cursore);
  if (toccati.empty()) return std::nullopt;
  return toccati.back();
}

std::string ContenutoDi(const TestoSezione& testo, const Selezione& codice) {
  return testo.Byte({.Inizio = codice.Inizio + 1, .Lunghezza = codice.Lunghezza - 2});
}

std::string ContoProblemi(std::size_t errori, std::size_t avvisi) {
  if (errori + avvisi == 0) return "Nessun problema";
  std::string soloAvvisi = Quanti(avvisi, "avviso", "avvisi");
  if (errori == 0) return soloAvvisi;
  std::string soloErrori = Quanti(errori, "errore", "errori");
  return avvisi == 0 ? soloErrori : soloErrori + ", " + soloAvvisi;
}

TestiBarra PerBarra(const DatiBarra& dati) {
  const TestoSezione& testo = dati.Modello.Testo(dati.Dove.Dove);
  const Selezione scelta = dati.Dove.Dentro.Selezionato();
  TestiBarra barra;
  barra.Sezione = Posto(testo, dati.Dove);
  if (dati.ColonnaCarta) barra.ColCarta = "Stampa: col. " + std::to_string(*dati.ColonnaCarta);
  barra.Codice = scelta.Lunghezza > 0 ? Scelti(testo, scelta) : dati.Codice;
  barra.Percorso = DettoDelFile(dati.Modello.Stato());
  if (dati.Corsa) barra.Pagine = Righe(*dati.Corsa);
  if (dati.Corsa && dati.Foglio) barra.Pagine += ": " + Fogli(*dati.Corsa, *dati.Foglio);
  if (dati.Corsa && !dati.Aggiornata) barra.Aggiornata = "Anteprima non aggiornata";
  barra.Problemi = dati.Problemi;
  return barra;
}

}  // namespace parvik
