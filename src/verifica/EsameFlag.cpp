#include "verifica/EsameFlag.h"

#include "common/Delimitatori.h"

namespace parvik {

void EsameFlag::Flag(Selezione dove, const EsitoCodice& esito) {
  if (!esito.FlagDelTipo) return;
  governa_.reset();
  if (esito.Incompleto()) return;
  governa_ = dove;
  inAttesa_.push_back(dove);
}

void EsameFlag::Governato(Selezione dove, std::optional<TipoCodice> tipo) {
  for (const Selezione flag : inAttesa_) {
    if (flag == governa_) {
      Governa(flag, dove, tipo);
    } else {
      Aggiungi(Regola::FlagSenzaEffetto, flag, "un altro flag lo segue prima del codice: vale solo l'ultimo");
    }
  }
  inAttesa_.clear();
  governa_.reset();
}

void EsameFlag::Fine() {
  for (const Selezione flag : inAttesa_) {
    Aggiungi(Regola::FlagSenzaEffetto, flag,
             "nessun codice lo segue nella sezione: governa il primo codice della sezione seguente");
  }
}

void EsameFlag::Governa(Selezione flag, Selezione codice, std::optional<TipoCodice> tipo) {
  const std::string_view fra = testo_.substr(flag.Fine(), codice.Inizio - flag.Fine());
  if (fra.find('\r') != std::string_view::npos)
    Aggiungi(Regola::FlagSuAltraRiga, flag, "il codice che governa è su una riga seguente");
  if (tipo == TipoCodice::Stile)
    Aggiungi(Regola::FlagSuStile, flag, "governa uno stile: nasconde quello, e non il valore che lo segue");
}

void EsameFlag::Aggiungi(Regola regola, Selezione dove, std::string_view perche) {
  const std::string_view codice = testo_.substr(dove.Inizio, dove.Lunghezza);
  rilievi_.push_back({.Quale = regola,
                      .Dove = sezione_,
                      .Inizio = dove.Inizio,
                      .Lunghezza = dove.Lunghezza,
                      .Testo = CodiceCitato(ContenutoDi(codice)) + ": " + std::string(perche)});
}

}  // namespace parvik
