#include "verifica/EsameMarcatore.h"

#include <utility>

#include "common/LettoreRighe.h"

namespace parvik {
namespace {

RigaDelMarcatore Esamina(std::string_view byte, const Marcatore& preso) {
  const std::string_view riga =
      LettoreRighe(byte.substr(preso.InizioRiga, preso.FineRiga - preso.InizioRiga)).Prossima().value_or("");
  const std::size_t colonna = preso.Coppia - preso.InizioRiga;
  const std::size_t intero = MarcatoreIntero(riga.substr(colonna));
  return {.InizioRiga = preso.InizioRiga,
          .Colonna = colonna + 1,
          .Lunghezza = intero > 0 ? intero : riga.size() - colonna,
          .Intero = intero > 0,
          .Solo = intero > 0 && intero == riga.size()};
}

}  // namespace

std::size_t QuanteRighe(std::string_view testo) {
  LettoreRighe righe(testo);
  while (righe.Prossima()) {
  }
  return righe.Numero();
}

Rilievo DelMarcatore(Regola regola, std::string_view byte, const RigaDelMarcatore& dove, std::string testo) {
  Rilievo rilievo{.Quale = regola, .Dove = {}, .Lunghezza = dove.Lunghezza, .Testo = std::move(testo)};
  rilievo.Riga = QuanteRighe(byte.substr(0, dove.InizioRiga)) + 1;
  rilievo.Colonna = dove.Colonna;
  return rilievo;
}

bool MarcatoreNellaPrimaRiga(std::string_view testo) {
  const std::string_view riga = LettoreRighe(testo).Prossima().value_or("");
  return !riga.empty() && MarcatoreIntero(riga) == riga.size();
}

MarcatoreEsaminato EsaminaMarcatore(std::string_view byte, const std::optional<Marcatore>& preso,
                                    std::vector<Rilievo>& rilievi) {
  MarcatoreEsaminato esaminato{.Preso = {}, .InPrimaRiga = MarcatoreNellaPrimaRiga(byte)};
  if (esaminato.InPrimaRiga) {
    const RigaDelMarcatore prima{
        .InizioRiga = 0, .Colonna = 1, .Lunghezza = LettoreRighe(byte).Prossima()->size()};
    rilievi.push_back(
        DelMarcatore(Regola::MarcatoreInPrimaRiga, byte, prima,
                     "il marcatore è nella prima riga, dove nessuno lo cerca: la testata è vuota"));
  }
  if (preso) esaminato.Preso = Esamina(byte, *preso);
  if (!esaminato.Preso && !esaminato.InPrimaRiga) {
    rilievi.push_back({.Quale = Regola::MarcatoreMancante,
                       .Dove = {},
                       .Testo = "nessuna riga ha il marcatore: tutto il file è testata"});
  }
  if (esaminato.Preso && !esaminato.Preso->Intero) {
    rilievi.push_back(DelMarcatore(Regola::MarcatoreMalformato, byte, *esaminato.Preso,
                                   "la riga è presa per il marcatore, ma non ne ha uno intero"));
  } else if (esaminato.Preso && !esaminato.Preso->Solo) {
    rilievi.push_back(DelMarcatore(Regola::MarcatoreAmbiguo, byte, *esaminato.Preso,
                                   "la riga del marcatore ha altro accanto, che va perso"));
  }
  return esaminato;
}

}  // namespace parvik
