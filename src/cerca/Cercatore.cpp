#include "cerca/Cercatore.h"

#include <algorithm>
#include <utility>

#include "common/Delimitatori.h"
#include "common/Lettere.h"
#include "tokens/Pezzi.h"

namespace parvik {
namespace {

/// Calls `visita` with the stretches of a text that lie between its codes.
template <class Visita>
void PerOgniTestoFraCodici(std::string_view testo, Visita visita) {
  std::size_t inizio = 0;
  LettorePezzi lettore(testo);
  while (const std::optional<Pezzo> pezzo = lettore.Prossimo()) {
    if (pezzo->Genere != GenerePezzo::Codice) continue;
    visita(Selezione{.Inizio = inizio, .Lunghezza = pezzo->Inizio - inizio});
    inizio = pezzo->Fine;
  }
  visita(Selezione{.Inizio = inizio, .Lunghezza = testo.size() - inizio});
}

/// No place of a text is between the two bytes of a line end.
bool InUnFineRiga(std::string_view testo, std::size_t posto) {
  return posto > 0 && testo.substr(posto - 1, FineRiga.size()) == FineRiga;
}

}  // namespace

Cercatore::Cercatore(Criterio criterio, std::unique_ptr<Espressione> espressione, Basta basta)
    : criterio_(std::move(criterio)),
      espressione_(std::move(espressione)),
      basta_(std::move(basta)),
      senso_(criterio_),
      cercato_(criterio_.Maiuscole ? criterio_.Testo : InMinuscolo(criterio_.Testo)) {}

std::vector<Selezione> Cercatore::Cerca(std::string_view testo, const VociDiSezione& voci) {
  interrotta_ = false;
  Posti trovate;
  if (criterio_.Testo.empty()) return trovate;
  if (criterio_.Dove == DoveCercare::SoloCodici) {
    CercaCodici(testo, voci, trovate);
    return trovate;
  }
  if (criterio_.Espressione) {
    CercaEspressione(testo, trovate);
    return trovate;
  }
  const std::string piccolo = criterio_.Maiuscole ? std::string() : InMinuscolo(testo);
  const std::string_view confrontato = criterio_.Maiuscole ? testo : piccolo;
  if (criterio_.Dove == DoveCercare::Ovunque) {
    CercaParole(confrontato, {.Inizio = 0, .Lunghezza = testo.size()}, trovate);
  } else {
    PerOgniTestoFraCodici(testo, [&](const Selezione& fra) { CercaParole(confrontato, fra, trovate); });
  }
  return trovate;
}

bool Cercatore::DaSmettere() {
  interrotta_ = interrotta_ || basta_();
  return interrotta_;
}

void Cercatore::CercaParole(std::string_view testo, const Selezione& dove, Posti& trovate) {
  const std::string_view qui = testo.substr(0, dove.Fine());
  for (std::size_t posto = qui.find(cercato_, dove.Inizio); posto != std::string_view::npos;) {
    const Selezione trovata{.Inizio = posto, .Lunghezza = cercato_.size()};
    const bool vale = !InUnFineRiga(testo, trovata.Inizio) && !InUnFineRiga(testo, trovata.Fine()) &&
                      (!criterio_.Parola || IntornoNonParola(testo, trovata));
    if (vale) trovate.push_back(trovata);
    posto = qui.find(cercato_, vale ? trovata.Fine() : posto + 1);
  }
}

/// An end that is no letter itself needs nothing beside it.
bool Cercatore::IntornoNonParola(std::string_view testo, const Selezione& posto) const {
  const std::size_t fine = posto.Fine();
  const bool prima =
      posto.Inizio > 0 && LetteraOCifra(cercato_.front()) && LetteraOCifra(testo[posto.Inizio - 1]);
  const bool dopo = fine < testo.size() && LetteraOCifra(cercato_.back()) && LetteraOCifra(testo[fine]);
  return !prima && !dopo;
}

/// Line by line: an expression's ^ and $ are the ends of a line.
void Cercatore::CercaEspressione(std::string_view testo, Posti& trovate) {
  const Posti dove = DoveCercarla(testo);
  std::size_t qui = 0;  // the first of them that may reach the line
  for (std::size_t inizio = 0; inizio <= testo.size() && !DaSmettere();) {
    const std::size_t fine = std::min(testo.find(FineRiga, inizio), testo.size());
    espressione_->Leggi(testo.substr(inizio, fine - inizio));
    while (qui < dove.size() && dove[qui].Inizio <= fine) {
      const std::size_t da = std::max(inizio, dove[qui].Inizio);
      const std::size_t a = std::min(fine, dove[qui].Fine());
      if (da <= a)
        CercaNellaRiga({.Riga = {.Inizio = inizio, .Lunghezza = fine - inizio}, .Da = da, .A = a}, trovate);
      if (dove[qui].Fine() > fine) break;
      ++qui;
    }
    inizio = fine + FineRiga.size();
  }
}

std::vector<Selezione> Cercatore::DoveCercarla(std::string_view testo) const {
  if (criterio_.Dove == DoveCercare::Ovunque) return {{.Inizio = 0, .Lunghezza = testo.size()}};
  Posti fra;
  PerOgniTestoFraCodici(testo, [&](const Selezione& uno) { fra.push_back(uno); });
  return fra;
}

/// As the line has it where that ends in time, so that no end but the line's is taken for one.
EsitoConfronto Cercatore::ProssimaNellaRiga(std::size_t da, std::size_t a, std::size_t fineRiga) {
  const EsitoConfronto esito = espressione_->Trova(da, fineRiga);
  if (esito != EsitoConfronto::Trovata) return esito;
  const Selezione trovata = espressione_->Gruppi().front();
  if (trovata.Inizio > a) return EsitoConfronto::Niente;
  return trovata.Fine() > a ? espressione_->Trova(da, a) : esito;
}

void Cercatore::CercaNellaRiga(const Tratto& tratto, Posti& trovate) {
  const std::size_t inizio = tratto.Riga.Inizio;
  for (std::size_t da = tratto.Da; da <= tratto.A && !DaSmettere();) {
    const EsitoConfronto esito = ProssimaNellaRiga(da - inizio, tratto.A - inizio, tratto.Riga.Lunghezza);
    if (esito == EsitoConfronto::TroppoLunga) interrotta_ = true;
    if (esito != EsitoConfronto::Trovata) return;
    Selezione trovata = espressione_->Gruppi().front();
    trovata.Inizio += inizio;
    const bool vuotaDopo =
        trovata.Lunghezza == 0 && !trovate.empty() && trovate.back().Fine() == trovata.Inizio;
    if (!vuotaDopo) trovate.push_back(trovata);
    da = trovata.Lunghezza > 0 ? trovata.Fine() : trovata.Inizio + 1;
  }
}

void Cercatore::CercaCodici(std::string_view testo, const VociDiSezione& voci, Posti& trovate) {
  std::unordered_map<std::string_view, bool> esaminati;  // codes that are written alike mean the same
  LettorePezzi lettore(testo);
  while (const std::optional<Pezzo> pezzo = lettore.Prossimo()) {
    if (pezzo->Genere != GenerePezzo::Codice) continue;
    if (DaSmettere()) return;
    const std::string_view contenuto = ContenutoDi(pezzo->In(testo));
    const auto [esaminato, nuovo] = esaminati.try_emplace(contenuto, false);
    if (nuovo) esaminato->second = EdaTrovare(contenuto, voci);
    if (esaminato->second)
      trovate.push_back({.Inizio = pezzo->Inizio, .Lunghezza = pezzo->Fine - pezzo->Inizio});
  }
}

bool Cercatore::EdaTrovare(std::string_view contenuto, const VociDiSezione& voci) {
  if (!espressione_) return senso_.Trova(contenuto, voci);
  espressione_->Leggi(contenuto);
  const EsitoConfronto esito = espressione_->Trova(0, contenuto.size());
  if (esito == EsitoConfronto::TroppoLunga) interrotta_ = true;
  return esito == EsitoConfronto::Trovata;
}

}  // namespace parvik
