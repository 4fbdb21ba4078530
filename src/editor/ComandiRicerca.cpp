#include "editor/ComandiRicerca.h"

#include <memory>
#include <utility>

#include "common/ErroreRuntime.h"
#include "common/ParoleComuni.h"
#include "common/Precondizione.h"
#include "common/SeBastaMemoria.h"

namespace parvik {
namespace {

constexpr const char* Troppo = "Espressione troppo complessa: ricerca interrotta dopo un secondo";
constexpr const char* Taglierebbe = "Non sostituito: taglierebbe un codice";
constexpr const char* Inadatto = "Non cambiato: il codice non ha quel campo, o non quel valore";

/// Where a caret goes with changes that lie in their order; one inside of them is behind what has come.
std::size_t Portato(std::size_t posto, const std::vector<Modifica>& modifiche) {
  std::size_t ora = posto;
  for (const Modifica& modifica : modifiche) {
    if (modifica.Dove >= posto) break;
    if (posto < modifica.Dove + modifica.Tolti) return ora - (posto - modifica.Dove) + modifica.Messi.size();
    ora = ora - modifica.Tolti + modifica.Messi.size();
  }
  return ora;
}

}  // namespace

ComandiRicerca::ComandiRicerca(Documento& documento, Vista& vista, std::function<ContestoRicerca()> contesto)
    : documento_(documento), vista_(vista), contesto_(std::move(contesto)), ricerca_(documento) {}

void ComandiRicerca::Cerca(std::optional<RichiestaRicerca> richiesta, CompilaEspressione compila) {
  compila_ = compila;
  ricerca_.Imposta(std::move(richiesta), std::move(compila));
  vista_.CambiataRicerca();
}

void ComandiRicerca::Dimentica() {
  ricerca_.Dimentica();
  vista_.CambiataRicerca();
}

std::vector<Sezione> ComandiRicerca::SezioniDaCercare(const ContestoRicerca& contesto) const {
  std::vector<Sezione> sezioni;
  if (!ricerca_.Richiesta() || ricerca_.Richiesta()->Dove == Ambito::Anteprima) return sezioni;
  if (ricerca_.Richiesta()->Dove == Ambito::SezioneAttiva) return {contesto.Attiva};
  for (const Sezione sezione : TutteLeSezioni)
    if (HaSezione(contesto.Tipo->Tipo().NumSezioni, sezione)) sezioni.push_back(sezione);
  return sezioni;
}

bool ComandiRicerca::DaRifare() const {
  const ContestoRicerca contesto = contesto_();
  return contesto.Tipo != nullptr && ricerca_.DaRifare(SezioniDaCercare(contesto));
}

std::optional<LavoroRicerca> ComandiRicerca::Rinnova() {
  PARVIK_ESIGE(DaRifare(), "something is looked for, and what was found is out of date");
  const ContestoRicerca contesto = contesto_();
  DoveSiCerca dove{.Sezioni = SezioniDaCercare(contesto)};
  for (const Sezione sezione : dove.Sezioni) dove.Tabelle[Indice(sezione)] = contesto.Tipo->Tabelle(sezione);
  if (ricerca_.Richiesta()->Dove == Ambito::Anteprima) dove.Anteprima = vista_.InAnteprima();
  std::optional<LavoroRicerca> lavoro = ricerca_.Rinnova(std::move(dove));
  if (!lavoro) vista_.CambiataRicerca();
  return lavoro;
}

void ComandiRicerca::Consegna(LavoroRicerca::Fatto fatto) {
  ricerca_.Consegna(std::move(fatto));
  vista_.CambiataRicerca();
}

std::string ComandiRicerca::Detto() const {
  if (!ricerca_.Cercato()) return {};
  if (!ricerca_.Errore().empty()) return ricerca_.Errore();
  if (ricerca_.Interrotta()) return Troppo;
  const std::size_t quante = ricerca_.Quante();
  if (quante == 0) return "Nessun risultato";
  if (const auto numero = ricerca_.NumeroAttuale())
    return std::to_string(*numero) + " di " + std::to_string(quante);
  return Quanti(quante, "risultato", "risultati");
}

/// The place that was gone to, while the caret is still there: shown to measure, it may have taken a field
/// whole.
PostoTrovato ComandiRicerca::Partenza() const {
  if (ricerca_.Richiesta()->Dove == Ambito::Anteprima)
    return {.Dove = LuogoRicerca::Anteprima, .Posto = vista_.InAnteprima().Selezionato()};
  const Sezione attiva = contesto_().Attiva;
  const CursoreSezione cursore{.Dove = attiva, .Dentro = vista_.CursoreIn(attiva)};
  if (ricerca_.Attuale() && lasciato_ == cursore) return *ricerca_.Attuale();
  return {.Dove = LuogoDi(attiva), .Posto = cursore.Dentro.Selezionato()};
}

std::string ComandiRicerca::Trova(Verso verso, Fuoco fuoco) {
  if (!ricerca_.InCorso()) return {};
  const bool avanti = verso == Verso::Avanti;
  const auto prossimo = avanti ? ricerca_.Dopo(Partenza()) : ricerca_.Prima(Partenza());
  if (!prossimo) return Detto();
  Seleziona(prossimo->Quale, fuoco);
  vista_.CambiataRicerca();
  if (!prossimo->Ripreso) return Detto();
  return Detto() + (avanti ? ", ripreso dall'inizio" : ", ripreso dalla fine");
}

void ComandiRicerca::Seleziona(const PostoTrovato& posto, Fuoco fuoco) {
  ricerca_.ImpostaAttuale(posto);
  if (posto.Dove == LuogoRicerca::Anteprima) return vista_.SelezionaInAnteprima(posto.Posto);
  const CursoreSezione cursore{.Dove = SezioneDi(posto.Dove), .Dentro = CursoreSu(posto.Posto)};
  if (fuoco == Fuoco::Segue) {
    vista_.Raggiungi(cursore);
  } else {
    vista_.Rivela(cursore);
  }
  lasciato_ = {.Dove = cursore.Dove, .Dentro = vista_.CursoreIn(cursore.Dove)};
}

/// The error is why nothing can be put there.
Esito<ComandiRicerca::Piano, std::string> ComandiRicerca::Prepara(std::string_view scritto,
                                                                  const PerSezione& quali) const {
  const Criterio& cosa = ricerca_.Richiesta()->Cosa;
  const auto sostituto = Sostituto::Leggi(cosa, scritto);
  if (!sostituto) return sostituto.Errore();
  std::unique_ptr<Espressione> espressione;
  if (cosa.Espressione) {
    auto compilata = compila_(cosa);
    if (!compilata) return compilata.Errore();
    espressione = std::move(*compilata);
  }
  Piano piano;
  piano.DiCodici = sostituto->DiCodici();
  piano.Toglie = scritto.empty();
  for (const Sezione sezione : TutteLeSezioni) {
    const std::size_t indice = Indice(sezione);
    if (quali[indice].empty()) continue;
    piano.Testi[indice] = documento_.Testo(sezione).Byte();
    piano.Sezioni[indice] =
        parvik::Sostituisci(piano.Testi[indice], quali[indice], *sostituto, espressione.get(),
                            contesto_().Tipo->Tabelle(sezione)->Voci());
    piano.Fatte += piano.Sezioni[indice].Fatte.size();
    piano.Tagliate += piano.Sezioni[indice].Tagliate;
    piano.Inadatte += piano.Sezioni[indice].Inadatte;
  }
  return piano;
}

void ComandiRicerca::Fai(const Piano& piano) {
  const Documento::PassoUnico passo(documento_);
  for (const Sezione sezione : TutteLeSezioni) {
    const std::vector<Modifica>& fatte = piano.Sezioni[Indice(sezione)].Fatte;
    if (fatte.empty()) continue;
    const Cursore prima = vista_.CursoreIn(sezione);
    documento_.Applica(sezione, InUna(piano.Testi[Indice(sezione)], fatte), GenereModifica::Sostituita,
                       prima);
    vista_.ImpostaCursore(sezione,
                          {.Ancora = Portato(prima.Ancora, fatte), .Posto = Portato(prima.Posto, fatte)});
  }
}

/// The error is why nothing was changed.
Esito<ComandiRicerca::Piano, std::string> ComandiRicerca::Sostituisci(std::string_view scritto,
                                                                      const PerSezione& quali) {
  using Fatto = Esito<Piano, std::string>;
  const Esito<Fatto> fatto = SeBastaMemoria([&]() -> Esito<Fatto> {
    Fatto piano = Prepara(scritto, quali);
    if (piano) Fai(*piano);
    return piano;
  });
  return fatto ? *fatto : Fatto(TestoErrore(fatto.Errore()));
}

std::string ComandiRicerca::SostituisciAttuale(std::string_view scritto) {
  if (!ricerca_.NumeroAttuale() || ricerca_.Attuale()->Dove == LuogoRicerca::Anteprima) return {};
  PerSezione quali;
  quali[Indice(SezioneDi(ricerca_.Attuale()->Dove))] = {ricerca_.Attuale()->Posto};
  const auto piano = Sostituisci(scritto, quali);
  if (!piano) return piano.Errore();
  if (piano->Fatte > 0) return {};
  return piano->DiCodici ? Inadatto : Taglierebbe;
}

std::string ComandiRicerca::SostituisciTutte(std::string_view scritto) {
  if (!ricerca_.InCorso() || ricerca_.Richiesta()->Dove == Ambito::Anteprima) return {};
  if (ricerca_.Quante() == 0) return Detto();
  PerSezione quali;
  for (const Sezione sezione : TutteLeSezioni) quali[Indice(sezione)] = ricerca_.In(LuogoDi(sezione));
  const auto piano = Sostituisci(scritto, quali);
  return piano ? Dette(*piano) : piano.Errore();
}

std::string ComandiRicerca::Dette(const Piano& piano) {
  std::string detto;
  if (!piano.DiCodici) {
    detto = Quanti(piano.Fatte, "sostituzione", "sostituzioni");
  } else if (piano.Toglie) {
    detto = Quanti(piano.Fatte, "codice tolto", "codici tolti");
  } else {
    detto = Quanti(piano.Fatte, "codice cambiato", "codici cambiati");
  }
  const auto aggiungi = [&detto](std::size_t quante, std::string_view una, std::string_view tante) {
    if (quante > 0) detto += ", " + Quanti(quante, una, tante);
  };
  aggiungi(piano.Tagliate, "non fatta: taglierebbe un codice", "non fatte: taglierebbero un codice");
  aggiungi(piano.Inadatte, "lasciato: non ha quel campo, o non quel valore",
           "lasciati: non hanno quel campo, o non quel valore");
  return detto;
}

}  // namespace parvik
