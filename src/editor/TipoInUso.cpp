#include "editor/TipoInUso.h"

#include <utility>

#include "start/Avvio.h"
#include "tokens/ConLarghezza.h"
#include "tokens/DescriviCodice.h"

namespace parvik {
namespace {

constexpr int UscitaPerErrore = 1;

}  // namespace

void TipoInUso::Segnala(NumeroErrore errore) {
  if (errore == NumeroErrore::ArgomentoNonValido) {
    interlocutore_.Chiedi({.Testo = MessaggioVersioneDiversa});
    interlocutore_.Termina(UscitaPerErrore);
  } else {
    interlocutore_.Chiedi({.Testo = TestoErrore(errore)});
  }
}

std::vector<Variabile> TipoInUso::VariabiliDaOffrire(Sezione sezione) {
  Tabella<Variabile> tabella = catalogo_.CaricaVariabili(tipo_, sezione);
  if (tabella.Errore) Segnala(*tabella.Errore);
  tabella.Voci.pop_back();  // the empty slot
  return std::move(tabella.Voci);
}

std::vector<Flag> TipoInUso::FlagDaOffrire(Sezione sezione) {
  Tabella<Flag> tabella = catalogo_.CaricaFlag(tipo_, sezione);
  if (tabella.Errore) Segnala(*tabella.Errore);
  if (!tabella.Errore) tabella.Voci.pop_back();  // the empty slot
  return std::move(tabella.Voci);
}

void TipoInUso::CaricaFlagStampe(FlagPerStampe& flag) {
  for (const ErroreSezione& errore : flag.Carica(catalogo_, tipo_)) Segnala(errore.Numero);
}

std::string TipoInUso::Descrivi(Sezione sezione, std::string_view contenuto) {
  const TabelleSezione& tabelle = *Tabelle(sezione);
  return DescriviCodice(contenuto, tabelle.Variabili, tabelle.Flag);
}

std::string TipoInUso::TestoCampo(Sezione sezione, std::string_view contenuto, const PostoCampo& posto) {
  return parvik::TestoCampo(contenuto, posto, Tabelle(sezione)->Variabili);
}

std::optional<std::string> TipoInUso::ConLarghezza(Sezione sezione, std::string_view contenuto,
                                                   std::int16_t larghezza) {
  return parvik::ConLarghezza(contenuto, larghezza, Tabelle(sezione)->Variabili);
}

std::string TipoInUso::DescriviInFrase(Sezione sezione, std::string_view contenuto) {
  const TabelleSezione& tabelle = *Tabelle(sezione);
  return parvik::DescriviInFrase(contenuto, tabelle.Variabili, tabelle.Flag);
}

const std::shared_ptr<const TabelleSezione>& TipoInUso::Tabelle(Sezione sezione) {
  std::shared_ptr<const TabelleSezione>& tabelle = tabelle_[Indice(sezione)];
  if (!tabelle) {
    tabelle = std::make_shared<const TabelleSezione>(
        TabelleSezione{.Variabili = catalogo_.LeggiVariabili(tipo_, sezione).Voci,
                       .Flag = catalogo_.CaricaFlag(tipo_, sezione).Voci});
  }
  return tabelle;
}

}  // namespace parvik
