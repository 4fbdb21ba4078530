#include "catalogue/Catalogo.h"

#include <algorithm>
#include <utility>

#include "common/LettoreRighe.h"
#include "common/NumeroLeniente.h"
#include "common/Ritagli.h"
#include "common/SeBastaMemoria.h"

namespace parvik {
namespace {

constexpr std::string_view FineDocumenti = "//fine documenti";
constexpr std::size_t CifreNumeroRiga = 4;

bool Ignorata(std::string_view riga) {
  return riga.empty() || riga.starts_with("//");
}

/// Takes the fields of a record one after the other. The first failure stays: what is taken after it is
/// empty.
class LettoreCampi {
 public:
  explicit LettoreCampi(std::string_view record) : resto_(record) {}

  /// Up to the next ";", which must be there.
  std::string_view Testo() {
    const std::size_t fine = resto_.find(';');
    if (fine == std::string_view::npos) return Fallisci(NumeroErrore::ArgomentoNonValido);
    const std::string_view campo = resto_.substr(0, fine);
    resto_.remove_prefix(fine + 1);
    return campo;
  }
  std::int16_t Numero() { return Converti(Testo()); }

  /// All that is left.
  std::string_view Ultimo() { return errore_ ? std::string_view() : std::exchange(resto_, {}); }
  std::int16_t UltimoNumero() { return Converti(Ultimo()); }

  bool CiSonoAltri() const { return !errore_ && resto_.find(';') != std::string_view::npos; }
  const std::optional<NumeroErrore>& Errore() const { return errore_; }

 private:
  std::string_view Fallisci(NumeroErrore errore) {
    if (!errore_) errore_ = errore;
    resto_ = {};
    return {};
  }
  std::int16_t Converti(std::string_view campo) {
    const Esito<std::int16_t> numero = InteroLeniente(campo);
    if (numero) return *numero;
    Fallisci(numero.Errore());
    return 0;
  }

  std::string_view resto_;
  std::optional<NumeroErrore> errore_;
};

/// The record between the first and the second double quote of a document-type line.
Esito<std::string_view> TestoRecord(std::string_view riga) {
  const std::size_t primo = riga.find('"');
  const std::size_t secondo = primo == std::string_view::npos ? primo : riga.find('"', primo + 1);
  if (secondo == std::string_view::npos) return NumeroErrore::ArgomentoNonValido;
  return riga.substr(primo + 1, secondo - primo - 1);
}

/// The slot that a document-type line fills; it may lie outside the table.
Esito<int> SlotDi(std::string_view riga) {
  const std::size_t virgola = riga.find(',');
  const std::string_view testo =
      virgola == std::string_view::npos ? std::string_view() : riga.substr(0, virgola);
  const Esito<std::int16_t> numero = InteroLeniente(testo);
  if (!numero) return numero.Errore();
  return *numero - 1;
}

Esito<TipoDoc> CaricaTipoDoc(int slot, std::string_view record) {
  LettoreCampi campi(record);
  TipoDoc tipo;
  tipo.Indice = static_cast<std::int16_t>(slot);
  tipo.Descrizione = Rifila(campi.Testo());
  tipo.Titolo = campi.Testo();
  tipo.NumSezioni = campi.Numero();
  for (VociSezione& voci : tipo.Voci) voci.Variabili = {.Da = campi.Numero(), .A = campi.Numero()};
  for (VociSezione& voci : tipo.Voci) {
    voci.Flag.Da = campi.Numero();
    voci.Flag.A = &voci == &tipo.Voci.back() ? campi.UltimoNumero() : campi.Numero();
  }
  if (campi.Errore()) return *campi.Errore();
  return tipo;
}

/// The payload of a body line: what follows its first double quote.
Esito<std::string_view> TestoCorpo(std::string_view riga) {
  const std::size_t apice = riga.find('"');
  if (apice == std::string_view::npos) return NumeroErrore::ArgomentoNonValido;
  return riga.substr(apice + 1);
}

Esito<Variabile> LeggiRigaVariabile(std::string_view riga) {
  const Esito<std::string_view> testo = TestoCorpo(riga);
  if (!testo) return testo.Errore();
  LettoreCampi campi(*testo);
  Variabile variabile;
  variabile.Descrizione = campi.Testo();
  variabile.Intero1 = campi.Numero();
  variabile.Intero2 = campi.Numero();
  variabile.Testo1 = campi.Testo();
  variabile.Intero3 = campi.Numero();
  variabile.Intero4 = campi.Numero();
  variabile.Intero5 = campi.Numero();
  variabile.Intero6 = campi.Numero();
  variabile.Intero7 = campi.Numero();
  variabile.Intero8 = campi.Numero();
  const bool conEuro = campi.CiSonoAltri();
  variabile.Testo2 = conEuro ? campi.Testo() : campi.Ultimo();
  variabile.Testo3 = conEuro ? campi.Ultimo() : "0";
  if (campi.Errore()) return *campi.Errore();
  return variabile;
}

/// What stands in a slot that nothing fills; unlike the default record, it has no width and no texts.
Variabile VariabileVuota() {
  Variabile vuota;
  vuota.Intero2 = 0;
  vuota.Intero3 = 0;
  vuota.Testo1.clear();
  vuota.Testo2.clear();
  return vuota;
}

Esito<Flag> LeggiRigaFlag(std::string_view riga) {
  const Esito<std::string_view> testo = TestoCorpo(riga);
  if (!testo) return testo.Errore();
  LettoreCampi campi(*testo);
  Flag flag;
  flag.Descrizione = campi.Testo();
  flag.Codice = campi.Numero();
  flag.Valore = campi.Ultimo();
  if (campi.Errore()) return *campi.Errore();
  return flag;
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
    if (Ignorata(riga)) continue;
    const auto errore = [&righe](NumeroErrore numero) { return ErroreCatalogo{numero, righe.Numero()}; };
    const Esito<int> slot = SlotDi(riga);
    if (!slot) return errore(slot.Errore());
    const Esito<std::string_view> record = TestoRecord(riga);
    if (!record) return errore(record.Errore());
    if (*slot < 0 || *slot >= static_cast<int>(MaxTipiDoc))
      return errore(NumeroErrore::IndiceFuoriIntervallo);
    Esito<TipoDoc> tipo = CaricaTipoDoc(*slot, *record);
    if (!tipo) return errore(tipo.Errore());
    tipiDoc_[static_cast<std::size_t>(*slot)] = std::move(*tipo);
  }
  return ErroreCatalogo{NumeroErrore::InputOltreFine, righe.Numero() + 1};
}

void Catalogo::LeggiCorpo(LettoreRighe& righe) {
  while (const auto grezza = righe.Prossima()) {
    const std::string_view riga = Rifila(*grezza);
    if (!Ignorata(riga)) righeCorpo_.push_back(riga);
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
  const auto trovata = std::ranges::find_if(righeCorpo_, [numero](std::string_view riga) {
    return NumeroLeniente(riga.substr(0, CifreNumeroRiga)) == numero;
  });
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
static Esito<void> AggiungiVoce(Esito<Voce> voce, std::vector<Voce>& voci) {
  if (!voce) return voce.Errore();
  voci.push_back(std::move(*voce));
  return {};
}

template <class Voce>
Tabella<Voce> Catalogo::CaricaTabella(Intervallo intervallo, Esito<Voce> (*leggi)(std::string_view)) const {
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
