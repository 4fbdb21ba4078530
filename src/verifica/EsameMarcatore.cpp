#include "verifica/EsameMarcatore.h"

#include <string>

#include "common/LettoreRighe.h"
#include "template/Marcatore.h"

namespace parvik {
namespace {

std::size_t QuanteRighe(std::string_view testo) {
  LettoreRighe righe(testo);
  while (righe.Prossima()) {
  }
  return righe.Numero();
}

RigaDelMarcatore Esamina(std::string_view byte, const Marcatore& preso) {
  const std::string_view riga =
      LettoreRighe(byte.substr(preso.InizioRiga, preso.FineRiga - preso.InizioRiga)).Prossima().value_or("");
  const std::size_t colonna = preso.Coppia - preso.InizioRiga;
  const std::size_t intero = MarcatoreIntero(riga.substr(colonna));
  return {.Riga = QuanteRighe(byte.substr(0, preso.InizioRiga)) + 1,
          .Colonna = colonna + 1,
          .Lunghezza = intero > 0 ? intero : riga.size() - colonna,
          .Intero = intero > 0,
          .Solo = intero > 0 && intero == riga.size()};
}

Rilievo DelMarcatore(Regola regola, const RigaDelMarcatore& dove, const char* testo) {
  Rilievo rilievo{.Quale = regola, .Dove = {}, .Lunghezza = dove.Lunghezza, .Testo = testo};
  rilievo.Riga = dove.Riga;
  rilievo.Colonna = dove.Colonna;
  return rilievo;
}

}  // namespace

bool MarcatoreNellaPrimaRiga(std::string_view testo) {
  const std::string_view riga = LettoreRighe(testo).Prossima().value_or("");
  return !riga.empty() && MarcatoreIntero(riga) == riga.size();
}

MarcatoreEsaminato EsaminaMarcatore(std::string_view byte, std::vector<Rilievo>& rilievi) {
  MarcatoreEsaminato esaminato{.Preso = {}, .InPrimaRiga = MarcatoreNellaPrimaRiga(byte)};
  if (esaminato.InPrimaRiga) {
    const RigaDelMarcatore prima{.Riga = 1, .Colonna = 1, .Lunghezza = LettoreRighe(byte).Prossima()->size()};
    rilievi.push_back(
        DelMarcatore(Regola::MarcatoreInPrimaRiga, prima,
                     "il marcatore è nella prima riga, dove nessuno lo cerca: la testata è vuota"));
  }
  if (const auto preso = TrovaMarcatore(byte, 0)) esaminato.Preso = Esamina(byte, *preso);
  if (!esaminato.Preso && !esaminato.InPrimaRiga) {
    rilievi.push_back({.Quale = Regola::MarcatoreMancante,
                       .Dove = {},
                       .Testo = "nessuna riga ha il marcatore: tutto il file è testata"});
  }
  if (esaminato.Preso && !esaminato.Preso->Intero) {
    rilievi.push_back(DelMarcatore(Regola::MarcatoreMalformato, *esaminato.Preso,
                                   "la riga è presa per il marcatore, ma non ne ha uno intero"));
  } else if (esaminato.Preso && !esaminato.Preso->Solo) {
    rilievi.push_back(DelMarcatore(Regola::MarcatoreAmbiguo, *esaminato.Preso,
                                   "la riga del marcatore ha altro accanto, che va perso"));
  }
  return esaminato;
}

}  // namespace parvik
