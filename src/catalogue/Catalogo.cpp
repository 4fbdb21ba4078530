#include "catalogue/Catalogo.h"

#include <algorithm>
#include <utility>

#include "catalogue/RigaCatalogo.h"
#include "common/LettoreRighe.h"
#include "common/Ritagli.h"
#include "common/SeBastaMemoria.h"

namespace parvik {
namespace {

/// What stands in a slot that nothing fills; unlike the default record, it has no width and no texts.
Variabile VariabileVuota() {
  Variabile vuota;
  vuota.Intero2 = 0;
  vuota.Intero3 = 0;
  vuota.Testo1.clear();
  vuota.Testo2.clear();
  return vuota;
}

}  // namespace

const std::array<Flag, 3>& CondPagina() {
  static const std::array<Flag, 3> condizioni = {
      Flag{.Descrizione = "Solo prima pagina", .Codice = 97, .Valore = "N"},
      Flag{.Descrizione = "Escluso ultima pagina", .Codice = 98, .Valore = "N"},
      Flag{.Descrizione = "Su tutte le pagine", .Codice = 99, .Valore = "N"}};
  return condizioni;
}

Esito<Catalogo, ErroreCatalogo> Catalogo::CaricaCampi(std::string contenuto) {
  const auto carica = [&contenuto]() -> Esito<Catalogo, ErroreCatalogo> {
    Catalogo catalogo;
    catalogo.contenuto_ = std::make_unique<const std::string>(std::move(contenuto));
    LettoreRighe righe(*catalogo.contenuto_);
    if (const auto errore = catalogo.LeggiTestata(righe)) return *errore;
    catalogo.LeggiCorpo(righe);
    return catalogo;
  };
  return SeBastaMemoria(carica, ErroreCatalogo{NumeroErrore::MemoriaEsaurita, 1});
}

std::optional<ErroreCatalogo> Catalogo::LeggiTestata(LettoreRighe& righe) {
  while (const auto grezza = righe.Prossima()) {
    const std::string_view riga = Rifila(*grezza);
    if (riga == FineDocumenti) return std::nullopt;
    if (RigaIgnorata(riga)) continue;
    Esito<TipoDoc, ErroreRiga> tipo = LeggiRigaTipo(riga);
    if (!tipo) return ErroreCatalogo{tipo.Errore().Numero, righe.Numero()};
    const auto slot = static_cast<std::size_t>(tipo->Indice);
    tipiDoc_[slot] = std::move(*tipo);
  }
  return ErroreCatalogo{NumeroErrore::InputOltreFine, righe.Numero() + 1};
}

void Catalogo::LeggiCorpo(LettoreRighe& righe) {
  while (const auto grezza = righe.Prossima()) {
    const std::string_view riga = Rifila(*grezza);
    if (!RigaIgnorata(riga)) righeCorpo_.push_back(riga);
  }
}

std::vector<const TipoDoc*> Catalogo::TipiElencati() const {
  std::vector<const TipoDoc*> elenco;
  for (const TipoDoc& tipo : tipiDoc_) {
    if (tipo.Descrizione.empty() || elenco.size() == MaxTipiElencati) break;
    elenco.push_back(&tipo);
  }
  return elenco;
}

std::optional<std::size_t> Catalogo::TrovaRiga(std::int16_t numero) const {
  const auto trovata = std::ranges::find_if(
      righeCorpo_, [numero](std::string_view riga) { return NumeroRigaCorpo(riga) == numero; });
  if (trovata == righeCorpo_.end()) return std::nullopt;
  return static_cast<std::size_t>(trovata - righeCorpo_.begin());
}

/// Counted when it is asked for: only what is wrong needs it.
std::size_t Catalogo::RigaNelFile(std::size_t rigaCorpo) const {
  LettoreRighe righe(*contenuto_);
  const bool esiste = rigaCorpo < righeCorpo_.size();
  while (const auto riga = righe.Prossima()) {
    if (esiste && riga->data() + riga->size() > righeCorpo_[rigaCorpo].data()) return righe.Numero();
  }
  return righe.Numero() + 1;
}

template <class Voce>
static Esito<void> AggiungiVoce(Esito<Voce, ErroreRiga> voce, std::vector<Voce>& voci) {
  if (!voce) return voce.Errore().Numero;
  voci.push_back(std::move(*voce));
  return {};
}

template <class Voce>
Tabella<Voce> Catalogo::CaricaTabella(Intervallo intervallo,
                                      Esito<Voce, ErroreRiga> (*leggi)(std::string_view)) const {
  Tabella<Voce> tabella;
  const int quante = intervallo.A - intervallo.Da + 1;
  const std::optional<std::size_t> prima = TrovaRiga(intervallo.Da);
  if (quante <= 1 || !prima) return tabella;  // one line stands for "no entries" and is never parsed
  for (std::size_t i = *prima; i < *prima + static_cast<std::size_t>(quante); ++i) {
    // Past the last line there is nothing but empty lines, which lack their quote.
    const std::string_view riga = i < righeCorpo_.size() ? righeCorpo_[i] : std::string_view();
    const Esito<void> letta = SeBastaMemoria([&] { return AggiungiVoce(leggi(riga), tabella.Voci); });
    if (!letta) {
      tabella.Errore = letta.Errore();
      tabella.RigaErrore = RigaNelFile(i);
      break;
    }
  }
  return tabella;
}

Tabella<Variabile> Catalogo::LeggiVariabili(const TipoDoc& tipo, Sezione sezione) const {
  return CaricaTabella<Variabile>(tipo.Voci[Indice(sezione)].Variabili, LeggiRigaVariabile);
}

Tabella<Flag> Catalogo::LeggiFlags(const TipoDoc& tipo, Sezione sezione) const {
  return CaricaTabella<Flag>(tipo.Voci[Indice(sezione)].Flag, LeggiRigaFlag);
}

Tabella<Variabile> Catalogo::CaricaVariabili(const TipoDoc& tipo, Sezione sezione) const {
  Tabella<Variabile> tabella = LeggiVariabili(tipo, sezione);
  if (tabella.Voci.empty()) tabella.Voci.emplace_back();
  tabella.Voci.push_back(VariabileVuota());
  return tabella;
}

Tabella<Flag> Catalogo::CaricaFlag(const TipoDoc& tipo, Sezione sezione) const {
  Tabella<Flag> tabella = LeggiFlags(tipo, sezione);
  if (tabella.Errore) return tabella;
  if (tabella.Voci.empty()) tabella.Voci.emplace_back();
  tabella.Voci.insert(tabella.Voci.end(), CondPagina().begin(), CondPagina().end());
  tabella.Voci.emplace_back();
  return tabella;
}

}  // namespace parvik
