#include "verifica/EsameSezione.h"

#include <array>
#include <string>
#include <utility>

#include "common/Delimitatori.h"
#include "template/Marcatore.h"
#include "tokens/Pezzi.h"

namespace parvik {
namespace {

constexpr std::string_view SegnoDiStile = "S;";

/// Between codes there is often but a blank: the library's search costs more than looking at it.
std::size_t TrovaSegno(std::string_view testo, std::size_t da) {
  constexpr std::size_t Corto = 16;
  if (testo.size() > Corto) return testo.find(SegnoDiStile, da);
  for (; da + 1 < testo.size(); ++da)
    if (testo[da] == SegnoDiStile[0] && testo[da + 1] == SegnoDiStile[1]) return da;
  return std::string_view::npos;
}

Selezione In(const Pezzo& pezzo, std::size_t base) {
  return {.Inizio = base + pezzo.Inizio, .Lunghezza = pezzo.Fine - pezzo.Inizio};
}

}  // namespace

void EsameSezione::Esegui(std::size_t da, MarcatoriNelTesto marcatori, bool daFinestra) {
  marcatori_ = marcatori;
  daFinestra_ = daFinestra;
  LettorePezzi lettore(testo_.substr(da));
  while (const auto pezzo = lettore.Prossimo()) {
    const Selezione dove = In(*pezzo, da);
    if (pezzo->Genere == GenerePezzo::Testo) {
      Testo(dove);
    } else if (pezzo->Genere == GenerePezzo::Codice) {
      Codice(dove);
    } else if (testo_[dove.Inizio] == DelimChiusura) {
      Aggiungi(Regola::ChiusuraIsolata, dove, "chiusura fuori dai codici");
    } else {
      Rotto(dove, Regola::CodiceNonChiuso, "codice che niente chiude fino alla fine della sezione");
      break;  // it swallows what follows
    }
  }
  flag_.Fine();
}

void EsameSezione::Testo(Selezione dove) {
  const std::string_view testo(testo_.data() + dove.Inizio, dove.Lunghezza);
  for (std::size_t s = TrovaSegno(testo, 0); s != std::string_view::npos;
       s = TrovaSegno(testo, s + SegnoDiStile.size())) {
    Aggiungi(Regola::TestoStile, {.Inizio = dove.Inizio + s, .Lunghezza = SegnoDiStile.size()},
             "l'anteprima prende \"S;\" per un segno di stile");
  }
  if (daFinestra_) DelimitatoriDiFile(dove);
}

void EsameSezione::DelimitatoriDiFile(Selezione dove) {
  constexpr std::array DiFile = {DelimFileApertura, DelimFileChiusura};
  const std::string_view tutti(DiFile.data(), DiFile.size());
  const std::string_view testo = testo_.substr(0, dove.Fine());
  for (std::size_t d = testo.find_first_of(tutti, dove.Inizio); d != std::string_view::npos;
       d = testo.find_first_of(tutti, d + 1)) {
    Aggiungi(Regola::DelimitatoreDiFile, {.Inizio = d, .Lunghezza = 1},
             testo_[d] == DelimFileApertura ? "\"®\" salvando diventa l'apertura di un codice"
                                            : "\"¯\" salvando diventa la chiusura di un codice");
  }
}

/// A line that is told as a marker holds no code.
bool EsameSezione::Marcatore(Selezione dove) {
  if (marcatori_ == MarcatoriNelTesto::Codici || testo_[dove.Inizio + 1] != 'C') return false;
  if (!RigaIntera(dove) || MarcatoreIntero(testo_.substr(dove.Inizio, dove.Lunghezza)) != dove.Lunghezza)
    return false;
  if (marcatori_ == MarcatoriNelTesto::Ambigui) {
    Aggiungi(Regola::MarcatoreAmbiguo, dove, "un'altra riga che è un marcatore: vale la prima");
    return true;
  }
  Aggiungi(Regola::CodiceIncompleto, dove, "marcatore in un tipo a sezione unica");
  flag_.Codice(dove, TipoCodice::Costante);
  return true;
}

void EsameSezione::Codice(Selezione dove) {
  const std::string_view contenuto(testo_.data() + dove.Inizio + 1, dove.Lunghezza - 2);
  const EsitoCodice* noto = codici_.Noto(contenuto);
  if (noto != nullptr && noto->Giudizi.empty()) return Conta(dove, *noto);
  if (Marcatore(dove)) return;
  if (noto == nullptr && contenuto.find(DelimApertura) != std::string_view::npos)
    return Rotto(dove, Regola::AperturaNelCodice, "un'apertura dentro il codice: manca la chiusura prima");
  if (noto == nullptr && contenuto.find('\r') != std::string_view::npos)
    return Rotto(dove, Regola::CodiceSuPiuRighe, "una fine di riga dentro il codice");
  const EsitoCodice& esito = noto != nullptr ? *noto : codici_(contenuto);
  Conta(dove, esito);
  for (const Giudizio& giudizio : esito.Giudizi) {
    Rilievo& rilievo = Aggiungi(giudizio.Quale, dove, giudizio.Testo);
    rilievo.Proposta = giudizio.Proposta;
    rilievo.Cosa = giudizio.Cosa;
  }
}

void EsameSezione::Conta(Selezione dove, const EsitoCodice& esito) {
  if (esito.Tipo == TipoCodice::Flag) {
    flag_.Flag(dove, esito);
  } else {
    flag_.Codice(dove, esito.Tipo);
  }
}

void EsameSezione::Rotto(Selezione dove, Regola regola, std::string_view perche) {
  Aggiungi(regola, dove, std::string(perche));
  flag_.Codice(dove, std::nullopt);
}

bool EsameSezione::RigaIntera(Selezione dove) const {
  const bool comincia = dove.Inizio == 0 || testo_.substr(0, dove.Inizio).ends_with(FineRiga);
  return comincia && (dove.Fine() == testo_.size() || testo_[dove.Fine()] == '\r');
}

Rilievo& EsameSezione::Aggiungi(Regola regola, Selezione dove, std::string testo) {
  return rilievi_.emplace_back(Rilievo{.Quale = regola,
                                       .Dove = sezione_,
                                       .Inizio = dove.Inizio,
                                       .Lunghezza = dove.Lunghezza,
                                       .Testo = std::move(testo)});
}

}  // namespace parvik
