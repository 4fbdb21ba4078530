#include "supporto/Tasti.h"

#include "common/Delimitatori.h"

namespace parvik::prova {

std::vector<std::string> Codici(const std::string& testo) {
  std::vector<std::string> codici;
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const auto codice = testo[i] == DelimApertura ? CodiceSotto(testo, i) : std::nullopt;
    if (codice && codice->Inizio == i) codici.push_back(testo.substr(codice->Inizio, codice->Lunghezza));
  }
  return codici;
}

void Obbedisci(std::string& testo, Selezione& selezione, TastoSezione tasto) {
  const EsitoTasto esito = PremiTasto(testo, selezione, tasto);
  if (esito.Azione == AzioneTasto::Allarga || esito.Azione == AzioneTasto::ApriCodice)
    selezione = esito.Nuova;
  if (esito.Azione != AzioneTasto::Consueta) return;
  if (tasto == TastoSezione::F4 || tasto == TastoSezione::Spazio) return;
  if (selezione.Lunghezza == 0 && tasto == TastoSezione::Backspace)
    selezione = {.Inizio = selezione.Inizio - 1, .Lunghezza = 1};
  if (selezione.Lunghezza == 0 && tasto == TastoSezione::Canc && selezione.Inizio < testo.size())
    selezione.Lunghezza = 1;
  testo.erase(selezione.Inizio, selezione.Lunghezza);
  selezione.Lunghezza = 0;
}

}  // namespace parvik::prova
