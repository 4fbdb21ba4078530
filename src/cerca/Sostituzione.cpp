#include "cerca/Sostituzione.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "common/Delimitatori.h"
#include "common/NumeroLeniente.h"
#include "common/Precondizione.h"
#include "tokens/Codice.h"
#include "tokens/Pezzi.h"

namespace parvik {
namespace {

constexpr char Fuga = '\\';

constexpr const char* ConDelimitatore =
    "\u00AB e \u00BB racchiudono i codici: una sostituzione non pu\u00F2 metterne";

/// Walks over the codes of a text beside places that come in their order.
class CodiciAccanto {
 public:
  explicit CodiciAccanto(std::string_view testo) : lettore_(testo) { Avanza(); }

  /// Whether a code would lose a part of itself with that place, and keep another.
  bool Taglia(const Selezione& posto) {
    while (codice_ && codice_->Fine <= posto.Inizio) Avanza();
    if (!codice_) return false;
    if (codice_->Inizio < posto.Inizio) return true;
    // Those that lie in it whole are behind it, up to the one that may reach over its end.
    while (codice_ && codice_->Fine <= posto.Fine()) Avanza();
    return codice_ && codice_->Inizio < posto.Fine();
  }

 private:
  void Avanza() {
    do codice_ = lettore_.Prossimo();
    while (codice_ && codice_->Genere != GenerePezzo::Codice);
  }

  LettorePezzi lettore_;
  std::optional<Pezzo> codice_;
};

/// The line of a text that a place lies in; places come in their order, and the expression reads each line
/// once.
class RigheAccanto {
 public:
  RigheAccanto(std::string_view testo, Espressione& espressione) : testo_(testo), espressione_(espressione) {
    Leggi(0);
  }

  /// The line, and the expression has found its groups where the place is; nullopt when it finds them no
  /// more.
  std::optional<std::string_view> Con(const Selezione& posto) {
    if (posto.Inizio > fine_) Leggi(Inizio(posto.Inizio));
    if (!Ritrova(posto, fine_) && !Ritrova(posto, posto.Fine())) return std::nullopt;
    return testo_.substr(inizio_, fine_ - inizio_);
  }

 private:
  /// Whether the match at that place is found again, in the line up to `fine`.
  bool Ritrova(const Selezione& posto, std::size_t fine) {
    const Selezione nellaRiga{.Inizio = posto.Inizio - inizio_, .Lunghezza = posto.Lunghezza};
    return espressione_.Trova(nellaRiga.Inizio, fine - inizio_) == EsitoConfronto::Trovata &&
           espressione_.Gruppi().front() == nellaRiga;
  }
  std::size_t Inizio(std::size_t posto) const {
    const std::size_t prima = testo_.rfind(FineRiga, posto - FineRiga.size());
    return prima == std::string_view::npos ? 0 : prima + FineRiga.size();
  }
  void Leggi(std::size_t inizio) {
    inizio_ = inizio;
    fine_ = std::min(testo_.find(FineRiga, inizio), testo_.size());
    espressione_.Leggi(testo_.substr(inizio_, fine_ - inizio_));
  }

  std::string_view testo_;
  Espressione& espressione_;
  std::size_t inizio_ = 0;
  std::size_t fine_ = 0;
};

/// Whether all delimiters of a text belong to codes, and these to what it takes the place of.
bool SoloCodiciDi(std::string_view testo, std::string_view prima) {
  const auto perOgniPezzo = [](std::string_view byte, auto vale) {
    LettorePezzi lettore(byte);
    while (const std::optional<Pezzo> pezzo = lettore.Prossimo())
      if (!vale(*pezzo)) return false;
    return true;
  };
  std::set<std::string_view> codici;
  perOgniPezzo(prima, [&](const Pezzo& pezzo) {
    if (pezzo.Genere == GenerePezzo::Codice) codici.insert(pezzo.In(prima));
    return true;
  });
  return perOgniPezzo(testo, [&](const Pezzo& pezzo) {
    return pezzo.Genere == GenerePezzo::Testo ||
           (pezzo.Genere == GenerePezzo::Codice && codici.contains(pezzo.In(testo)));
  });
}

Sostituzioni SostituisciCodici(std::string_view testo, const std::vector<Selezione>& trovate,
                               const std::vector<CambioCodice>& cambi, const VociDiSezione& voci) {
  Sostituzioni esito;
  for (const Selezione& posto : trovate) {
    const std::string_view contenuto = ContenutoDi(testo.substr(posto.Inizio, posto.Lunghezza));
    std::optional<std::string> nuovo = cambi.empty() ? std::string() : Cambia(contenuto, cambi, voci);
    if (nuovo) {
      esito.Fatte.push_back({.Dove = posto.Inizio, .Tolti = posto.Lunghezza, .Messi = std::move(*nuovo)});
    } else {
      ++esito.Inadatte;
    }
  }
  return esito;
}

}  // namespace

Esito<Sostituto, std::string> Sostituto::Leggi(const Criterio& criterio, std::string_view scritto) {
  const auto ha = [scritto](char byte) { return scritto.find(byte) != std::string_view::npos; };
  if (ha(DelimApertura) || ha(DelimChiusura)) return std::string(ConDelimitatore);
  if (scritto.find_first_of(FineRiga) != std::string_view::npos)
    return std::string("una sostituzione sta in una riga sola");
  Sostituto sostituto;
  sostituto.scritto_ = scritto;
  sostituto.diCodici_ = criterio.Dove == DoveCercare::SoloCodici;
  sostituto.conGruppi_ = criterio.Espressione && scritto.find(Fuga) != std::string_view::npos;
  if (!sostituto.diCodici_ || scritto.empty()) return sostituto;
  Esito<std::vector<CambioCodice>, std::string> cambi = LeggiCambi(scritto);
  if (!cambi) return cambi.Errore();
  sostituto.cambi_ = std::move(*cambi);
  return sostituto;
}

std::string Sostituto::Testo(std::string_view riga, const std::vector<Selezione>& gruppi) const {
  std::string testo;
  for (std::size_t i = 0; i < scritto_.size(); ++i) {
    const char seguente = i + 1 < scritto_.size() ? scritto_[i + 1] : '\0';
    if (scritto_[i] != Fuga || (!Cifra(seguente) && seguente != Fuga)) {
      testo += scritto_[i];
      continue;
    }
    ++i;
    const auto gruppo = static_cast<std::size_t>(seguente - '0');
    if (seguente == Fuga) {
      testo += Fuga;
    } else if (gruppo < gruppi.size()) {
      testo += riga.substr(gruppi[gruppo].Inizio, gruppi[gruppo].Lunghezza);
    }
  }
  return testo;
}

/// Groups may hold delimiters: none but those of whole codes may come back.
Sostituzioni Sostituisci(std::string_view testo, const std::vector<Selezione>& trovate,
                         const Sostituto& sostituto, Espressione* espressione, const VociDiSezione& voci) {
  if (sostituto.DiCodici()) return SostituisciCodici(testo, trovate, sostituto.Cambi(), voci);
  Sostituzioni esito;
  CodiciAccanto codici(testo);
  std::optional<RigheAccanto> righe;
  if (espressione != nullptr && sostituto.ConGruppi()) righe.emplace(testo, *espressione);
  for (const Selezione& posto : trovate) {
    std::string messi = sostituto.Scritto();
    bool intero = !codici.Taglia(posto);
    if (intero && righe) {
      const auto riga = righe->Con(posto);
      if (riga) messi = sostituto.Testo(*riga, espressione->Gruppi());
      intero = riga.has_value() && SoloCodiciDi(messi, testo.substr(posto.Inizio, posto.Lunghezza));
    }
    if (intero) {
      esito.Fatte.push_back({.Dove = posto.Inizio, .Tolti = posto.Lunghezza, .Messi = std::move(messi)});
    } else {
      ++esito.Tagliate;
    }
  }
  return esito;
}

Modifica InUna(std::string_view testo, const std::vector<Modifica>& modifiche) {
  PARVIK_ESIGE(!modifiche.empty(), "a change");
  Modifica una{.Dove = modifiche.front().Dove, .Tolti = 0, .Messi = {}};
  std::size_t qui = una.Dove;
  for (const Modifica& modifica : modifiche) {
    una.Messi += testo.substr(qui, modifica.Dove - qui);
    una.Messi += modifica.Messi;
    qui = modifica.Dove + modifica.Tolti;
  }
  una.Tolti = qui - una.Dove;
  return una;
}

}  // namespace parvik
