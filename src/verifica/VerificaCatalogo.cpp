// The catalogue itself: its lines, its ranges, its numbers.
#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <tuple>
#include <type_traits>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "catalogue/RigaCatalogo.h"
#include "common/LettoreRighe.h"
#include "common/Ritagli.h"
#include "common/SeBastaMemoria.h"
#include "common/Sezione.h"
#include "verifica/RegoleCatalogo.h"

namespace parvik {
namespace {

constexpr Livello Errore = Livello::Errore;
constexpr Livello Avviso = Livello::Avviso;

constexpr std::array<VoceRegolaCatalogo, NumRegoleCatalogo> Tabella = {{
    {RegolaCatalogo::RigaNonDivisa, "riga-non-divisa", Errore},
    {RegolaCatalogo::NumeroOltre16Bit, "numero-oltre-16-bit", Errore},
    {RegolaCatalogo::NumeroDiTipo, "numero-di-tipo", Errore},
    {RegolaCatalogo::FineDocumentiMancante, "fine-documenti-mancante", Errore},
    {RegolaCatalogo::IntervalloSenzaInizio, "intervallo-senza-inizio", Errore},
    {RegolaCatalogo::IntervalloOltreLaFine, "intervallo-oltre-la-fine", Errore},
    {RegolaCatalogo::IntervalliSovrapposti, "intervalli-sovrapposti", Avviso},
    {RegolaCatalogo::NumeroDoppio, "numero-doppio", Avviso},
    {RegolaCatalogo::FlagDiTreCifre, "flag-di-tre-cifre", Avviso},
    {RegolaCatalogo::TipoNonElencato, "tipo-non-elencato", Avviso},
    {RegolaCatalogo::DescrizioneLunga, "descrizione-lunga", Avviso},
}};

enum class Genere { Variabili, Flag };
constexpr std::size_t Generi = 2;

/// A line of the file, trimmed.
struct Riga {
  std::size_t Numero = 0;  // from 1
  std::size_t Rientro = 0;
  std::string_view Testo;
};

struct RigaTipo {
  Riga Dove;
  TipoDoc Tipo;
};

/// The lines of the body that a section's entries take: from 0, `A` behind the last one.
struct Preso {
  std::size_t Da = 0;
  std::size_t A = 0;
  Sezione Dove = Sezione::Testata;
  Genere Quali = Genere::Variabili;
  CampoRiga Campo;  // of the type's line
};

std::string Nome(Sezione sezione, Genere genere) {
  return std::string(genere == Genere::Variabili ? "variabili di " : "flag di ") +
         std::string(NomiSezioni[Indice(sezione)]);
}

/// The field of a type's record, from 0, that has a range's first number.
std::size_t CampoIntervallo(Sezione sezione, Genere genere) {
  constexpr std::size_t PrimoIntervallo = 3;
  const std::size_t prima = genere == Genere::Variabili ? 0 : MaxSezioni;
  return PrimoIntervallo + 2 * (prima + Indice(sezione));
}

class Controllo {
 public:
  explicit Controllo(std::string_view byte) : righe_(byte) {}

  std::vector<RilievoCatalogo> Esegui() {
    LeggiTestata();
    LeggiCorpo();
    for (std::vector<bool>& viste : viste_) viste.resize(corpo_.size());
    EsaminaElenco();
    for (const RigaTipo& tipo : tipi_) EsaminaTipo(tipo);
    std::ranges::stable_sort(rilievi_, {},
                             [](const RilievoCatalogo& r) { return std::tuple(r.Riga, r.Colonna, r.Quale); });
    return std::move(rilievi_);
  }

 private:
  void Aggiungi(RegolaCatalogo regola, const Riga& riga, const CampoRiga& campo, std::string testo) {
    rilievi_.push_back({.Quale = regola,
                        .Riga = riga.Numero,
                        .Colonna = riga.Rientro + campo.Byte + 1,
                        .Lunghezza = campo.Testo.size(),
                        .Testo = std::move(testo)});
  }

  void Aggiungi(const Riga& riga, const ErroreRiga& errore) {
    const CampoRiga campo{
        .Byte = errore.Byte,
        .Testo = Da(riga.Testo, errore.Byte).substr(0, Da(riga.Testo, errore.Byte).find(';'))};
    if (errore.Numero == NumeroErrore::Overflow) {
      Aggiungi(RegolaCatalogo::NumeroOltre16Bit, riga, campo, "un numero oltre 16 bit");
    } else if (errore.Numero == NumeroErrore::IndiceFuoriIntervallo) {
      Aggiungi(RegolaCatalogo::NumeroDiTipo, riga, {.Byte = 0, .Testo = {}},
               "il numero del tipo non è fra 1 e " + std::to_string(MaxTipiDoc));
    } else {
      Aggiungi(RegolaCatalogo::RigaNonDivisa, riga, {.Byte = 0, .Testo = riga.Testo},
               "la riga non si divide nei suoi campi");
    }
  }

  std::optional<Riga> Prossima() {
    const auto grezza = righe_.Prossima();
    if (!grezza) return std::nullopt;
    const std::string_view rifilata = Rifila(*grezza);
    const std::size_t rientro =
        rifilata.empty() ? 0 : static_cast<std::size_t>(rifilata.data() - grezza->data());
    return Riga{.Numero = righe_.Numero(), .Rientro = rientro, .Testo = rifilata};
  }

  void LeggiTestata() {
    while (const auto riga = Prossima()) {
      if (riga->Testo == FineDocumenti) return;
      if (RigaIgnorata(riga->Testo)) continue;
      Esito<TipoDoc, ErroreRiga> tipo = LeggiRigaTipo(riga->Testo);
      if (tipo) {
        tipi_.push_back({*riga, std::move(*tipo)});
      } else {
        Aggiungi(*riga, tipo.Errore());
      }
    }
    Aggiungi(RegolaCatalogo::FineDocumentiMancante,
             {.Numero = righe_.Numero() + 1, .Rientro = 0, .Testo = {}}, {},
             "manca la riga " + std::string(FineDocumenti));
  }

  void LeggiCorpo() {
    while (const auto riga = Prossima()) {
      if (RigaIgnorata(riga->Testo)) continue;
      perNumero_.try_emplace(NumeroRigaCorpo(riga->Testo), corpo_.size());
      corpo_.push_back(*riga);
    }
  }

  /// Which types a list shows: those of the slots up to the first empty one, and not the last slot.
  void EsaminaElenco() {
    std::array<const RigaTipo*, MaxTipiDoc> slot{};
    for (const RigaTipo& riga : tipi_) {
      const RigaTipo*& posto = slot[static_cast<std::size_t>(riga.Tipo.Indice)];
      if (posto != nullptr) {
        Aggiungi(RegolaCatalogo::TipoNonElencato, posto->Dove, {},
                 "una riga seguente prende il posto di questo tipo");
      }
      posto = &riga;
    }
    bool elencato = true;
    for (std::size_t i = 0; i < MaxTipiDoc; ++i) {
      elencato = elencato && i < MaxTipiElencati && slot[i] != nullptr && !slot[i]->Tipo.Descrizione.empty();
      if (!elencato && slot[i] != nullptr) {
        Aggiungi(RegolaCatalogo::TipoNonElencato, slot[i]->Dove, {},
                 i < MaxTipiElencati
                     ? "nessun elenco mostra questo tipo: un numero prima di lui manca, o non ha "
                       "descrizione"
                     : "nessun elenco mostra il tipo 23");
      }
    }
  }

  void EsaminaTipo(const RigaTipo& tipo) {
    std::vector<Preso> presi;
    const std::size_t sezioni = HaTreSezioni(tipo.Tipo.NumSezioni) ? MaxSezioni : 1;
    for (const Genere genere : {Genere::Variabili, Genere::Flag}) {
      for (const Sezione sezione : std::span(TutteLeSezioni).first(sezioni)) {
        const VociSezione& voci = tipo.Tipo.Voci[Indice(sezione)];
        EsaminaIntervallo(tipo, genere == Genere::Variabili ? voci.Variabili : voci.Flag, sezione, genere,
                          presi);
      }
    }
  }

  void EsaminaIntervallo(const RigaTipo& tipo, Intervallo intervallo, Sezione sezione, Genere genere,
                         std::vector<Preso>& presi) {
    const int quante = intervallo.A - intervallo.Da + 1;
    if (quante <= 1) return;  // no entries
    const std::size_t campo = CampoIntervallo(sezione, genere);
    const CampoRiga da = CampoDi(tipo.Dove.Testo, campo);
    const auto prima = perNumero_.find(intervallo.Da);
    if (prima == perNumero_.end()) {
      Aggiungi(RegolaCatalogo::IntervalloSenzaInizio, tipo.Dove, da,
               Nome(sezione, genere) + ": nessuna riga ha il numero " + std::to_string(intervallo.Da));
      return;
    }
    Preso preso{.Da = prima->second,
                .A = prima->second + static_cast<std::size_t>(quante),
                .Dove = sezione,
                .Quali = genere,
                .Campo = da};
    if (preso.A > corpo_.size()) {
      Aggiungi(RegolaCatalogo::IntervalloOltreLaFine, tipo.Dove, CampoDi(tipo.Dove.Testo, campo + 1),
               Nome(sezione, genere) + ": " + std::to_string(quante) + " righe dalla " +
                   std::to_string(intervallo.Da) + ", e ce ne sono " +
                   std::to_string(corpo_.size() - preso.Da));
      preso.A = corpo_.size();
    }
    for (const Preso& altro : presi) {
      if (altro.Da >= preso.A || preso.Da >= altro.A) continue;
      Aggiungi(RegolaCatalogo::IntervalliSovrapposti, tipo.Dove, da,
               Nome(sezione, genere) + ": ha righe in comune con " + Nome(altro.Dove, altro.Quali));
      break;
    }
    presi.push_back(preso);
    if (esaminati_.insert({preso.Da, preso.A, genere}).second) EsaminaRighe(preso);
  }

  /// The entries of a range that no type before had.
  void EsaminaRighe(const Preso& preso) {
    std::unordered_set<std::int16_t> numeri;
    for (std::size_t i = preso.Da; i < preso.A; ++i) {
      const Riga& riga = corpo_[i];
      if (preso.Quali == Genere::Variabili) {
        Esamina(i, preso.Quali, LeggiRigaVariabile(riga.Testo), &Variabile::Intero1, numeri);
      } else {
        Esamina(i, preso.Quali, LeggiRigaFlag(riga.Testo), &Flag::Codice, numeri);
      }
    }
  }

  template <class Voce>
  void Esamina(std::size_t i, Genere genere, const Esito<Voce, ErroreRiga>& voce, std::int16_t Voce::*numero,
               std::unordered_set<std::int16_t>& numeri) {
    const Riga& riga = corpo_[i];
    std::vector<bool>& viste = viste_[static_cast<std::size_t>(genere)];
    const bool nuova = !viste[i];
    viste[i] = true;
    if (!voce) {
      if (nuova) Aggiungi(riga, voce.Errore());
      return;
    }
    const std::int16_t quale = (*voce).*numero;
    if (!numeri.insert(quale).second && doppi_.insert({i, genere}).second) {
      Aggiungi(RegolaCatalogo::NumeroDoppio, riga, CampoDi(riga.Testo, 1),
               "il numero " + std::to_string(quale) + " c'è già nella sezione: vale il primo");
    }
    if constexpr (std::is_same_v<Voce, Flag>)
      if (nuova) EsaminaFlag(riga, *voce);
  }

  void EsaminaFlag(const Riga& riga, const Flag& flag) {
    constexpr std::size_t Cifre = 2;
    constexpr std::size_t Caratteri = 60;
    if (std::to_string(flag.Codice).size() > Cifre) {
      Aggiungi(RegolaCatalogo::FlagDiTreCifre, riga, CampoDi(riga.Testo, 1),
               "il flag " + std::to_string(flag.Codice) +
                   " nell'elenco dei flag è tagliato a due cifre: non si trova");
    }
    if (flag.Descrizione.size() > Caratteri) {
      const CampoRiga descrizione{.Byte = CampoDi(riga.Testo, 0).Byte, .Testo = flag.Descrizione};
      Aggiungi(RegolaCatalogo::DescrizioneLunga, riga, descrizione,
               "la descrizione ha " + std::to_string(descrizione.Testo.size()) +
                   " caratteri: l'elenco dei flag ne mostra 60");
    }
  }

  LettoreRighe righe_;
  std::vector<RigaTipo> tipi_;
  std::vector<Riga> corpo_;
  std::unordered_map<double, std::size_t> perNumero_;
  std::array<std::vector<bool>, Generi> viste_;  // lines that were looked at
  std::set<std::tuple<std::size_t, std::size_t, Genere>> esaminati_;
  std::set<std::pair<std::size_t, Genere>> doppi_;
  std::vector<RilievoCatalogo> rilievi_;
};

}  // namespace

std::span<const VoceRegolaCatalogo> RegoleCatalogo() {
  return Tabella;
}

const VoceRegolaCatalogo& VoceDi(RegolaCatalogo regola) {
  return Tabella[static_cast<std::size_t>(regola)];
}

Esito<std::vector<RilievoCatalogo>> VerificaCatalogo(std::string_view byte) {
  return SeBastaMemoria([&]() -> Esito<std::vector<RilievoCatalogo>> { return Controllo(byte).Esegui(); });
}

}  // namespace parvik
