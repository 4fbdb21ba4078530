#include "output/MettiStili.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <string_view>
#include <utility>

namespace parvik {
namespace {

constexpr std::string_view InizioMarcatore = "S;";
constexpr std::size_t LunghezzaMarcatore = 4;
constexpr std::size_t NonTrovato = std::string_view::npos;
constexpr std::size_t ByteTraDomande = 64UL * 1024UL;
constexpr unsigned MarcatoriTraDomande = 1024;

/// The text with a gap in it: before the gap what is finished, after it what is still to be looked at.
/// Removing a marker widens the gap, so that nothing is moved more than once or twice.
class TestoConVarco {
 public:
  /// `varchi`, unless it is nullptr, gets what was taken out in front of what is finished.
  TestoConVarco(std::string& testo, std::vector<Varco>* varchi) : testo_(testo), varchi_(varchi) {}

  std::string_view Resto() const { return std::string_view(testo_).substr(resto_); }
  std::string_view Finito() const { return std::string_view(testo_).substr(0, finito_); }

  void Togli(std::size_t quanti) { resto_ += std::min(quanti, testo_.size() - resto_); }

  /// Moves the first characters of the rest over the gap, with their look.
  void Finisci(std::size_t quanti, Aspetto aspetto) {
    if (quanti == 0) return;
    if (varchi_ != nullptr) Annota();
    std::memmove(testo_.data() + finito_, testo_.data() + resto_, quanti);
    if (!tratti_.empty() && tratti_.back().Come == aspetto) {
      tratti_.back().Lunghezza += quanti;
    } else {
      tratti_.push_back({.Inizio = finito_, .Lunghezza = quanti, .Come = aspetto});
    }
    finito_ += quanti;
    resto_ += quanti;
  }

  /// Moves the last finished characters back to the rest. Needs a gap at least as wide.
  void Riprendi(std::size_t quanti) {
    finito_ -= quanti;
    resto_ -= quanti;
    while (varchi_ != nullptr && !varchi_->empty() && varchi_->back().Dove >= finito_) varchi_->pop_back();
    std::memmove(testo_.data() + resto_, testo_.data() + finito_, quanti);
    while (quanti > 0) {
      const std::size_t tolti = std::min(quanti, tratti_.back().Lunghezza);
      tratti_.back().Lunghezza -= tolti;
      quanti -= tolti;
      if (tratti_.back().Lunghezza == 0) tratti_.pop_back();
    }
  }

  std::vector<Tratto> Chiudi() {
    resto_ = testo_.size();
    if (varchi_ != nullptr) Annota();
    testo_.resize(finito_);
    return std::move(tratti_);
  }

 private:
  void Annota() {
    const std::size_t tolti = resto_ - finito_;
    if (tolti > (varchi_->empty() ? 0 : varchi_->back().Tolti))
      varchi_->push_back({.Dove = finito_, .Tolti = tolti});
  }

  std::string& testo_;
  std::vector<Varco>* varchi_;
  std::size_t finito_ = 0;
  std::size_t resto_ = 0;
  std::vector<Tratto> tratti_;
};

class Stilista {
 public:
  Stilista(std::string& testo, const std::stop_token& smetti, std::vector<Varco>* varchi)
      : testo_(testo, varchi), smetti_(smetti) {}

  std::optional<std::vector<Tratto>> Esegui() {
    const Aspetto normale = Aspetto().Con(Stile::Normale);
    const std::size_t primo = Cerca(testo_.Resto(), 0);
    if (primo == NonTrovato) {
      testo_.Finisci(testo_.Resto().size(), normale);
      return Chiudi();
    }
    testo_.Finisci(primo, normale);
    for (unsigned tolti = 0; !smesso_ && TogliMarcatore(); ++tolti) {
      if (tolti % MarcatoriTraDomande == 0) smesso_ = smetti_.stop_requested();
    }
    testo_.Finisci(testo_.Resto().size(), coda_);
    return Chiudi();
  }

 private:
  /// The first marker at or after `da`. NonTrovato also when the work was given up meanwhile.
  std::size_t Cerca(std::string_view testo, std::size_t da) {
    while (testo.size() - std::min(da, testo.size()) > ByteTraDomande) {
      // One more: a marker may begin with the last byte.
      const std::size_t trovato = testo.substr(da, ByteTraDomande + 1).find(InizioMarcatore);
      if (trovato != NonTrovato) return da + trovato;
      da += ByteTraDomande;
      smesso_ = smetti_.stop_requested();
      if (smesso_) return NonTrovato;
    }
    return testo.find(InizioMarcatore, da);
  }

  std::optional<std::vector<Tratto>> Chiudi() {
    if (smesso_) return std::nullopt;
    return testo_.Chiudi();
  }

  /// The rest begins with a marker. Removes it, and moves on to the next one; false when there is none.
  bool TogliMarcatore() {
    const std::string_view resto = testo_.Resto();
    const std::size_t prossimo = ultimo_ ? NonTrovato : Cerca(resto, InizioMarcatore.size());
    const std::optional<Stile> stile = StileDi(resto.substr(InizioMarcatore.size(), 2));
    const Aspetto aspetto = stile ? coda_.Con(*stile) : coda_;
    testo_.Togli(LunghezzaMarcatore);
    if (prossimo == NonTrovato) {
      ultimo_ = true;
      coda_ = aspetto;  // up to the end of the text
      return RiprendiGiunta();
    }
    // The next search starts where the next marker has moved to.
    cercaDa_ = testo_.Finito().size() + prossimo;
    cercaDa_ -= std::min(cercaDa_, LunghezzaMarcatore);
    if (prossimo < LunghezzaMarcatore) return CercaDopoSovrapposizione();
    testo_.Finisci(prossimo - LunghezzaMarcatore, aspetto);
    return true;
  }

  /// The last marker is gone: only its two neighbours may have made a new one.
  bool RiprendiGiunta() {
    const std::string_view finito = testo_.Finito();
    const bool giunta = finito.size() > cercaDa_ && finito.ends_with('S') && testo_.Resto().starts_with(';');
    if (giunta) testo_.Riprendi(1);
    return giunta;
  }

  /// The removed marker reached into the next one. The search goes on up to two characters further back.
  bool CercaDopoSovrapposizione() {
    if (testo_.Finito().substr(cercaDa_).starts_with(InizioMarcatore)) {
      testo_.Riprendi(testo_.Finito().size() - cercaDa_);
      return true;
    }
    if (RiprendiGiunta()) return true;
    const std::size_t prossimo = Cerca(testo_.Resto(), 0);
    if (prossimo == NonTrovato) return false;
    testo_.Finisci(prossimo, coda_);
    return true;
  }

  TestoConVarco testo_;
  const std::stop_token& smetti_;
  bool smesso_ = false;
  std::size_t cercaDa_ = 0;  // where the search for the next marker starts
  bool ultimo_ = false;      // no marker follows in the rest: it need not be searched again
  Aspetto coda_;             // the look of what no marker has touched yet
};

}  // namespace

double Punti(CorpoCarattere corpo) {
  switch (corpo) {
    case CorpoCarattere::Normale:
      return 10.0;
    case CorpoCarattere::Compresso:
      return 8.0;
    default:
      return 9.75;
  }
}

Aspetto Aspetto::Con(Stile stile) const {
  Aspetto nuovo;
  nuovo.Corpo = Corpo;
  nuovo.Grassetto = stile == Stile::Grassetto;
  nuovo.Italico = stile == Stile::Italico;
  nuovo.Sottolineato = stile == Stile::Sottolineato;
  if (stile == Stile::Normale) nuovo.Corpo = CorpoCarattere::Normale;
  if (stile == Stile::Compresso) nuovo.Corpo = CorpoCarattere::Compresso;
  return nuovo;
}

std::vector<Tratto> MettiStili(std::string& testo) {
  return MettiStili(testo, std::stop_token()).value();
}

std::optional<std::vector<Tratto>> MettiStili(std::string& testo, const std::stop_token& smetti) {
  return Stilista(testo, smetti, nullptr).Esegui();
}

std::optional<std::vector<Tratto>> MettiStili(std::string& testo, const std::stop_token& smetti,
                                              std::vector<Varco>& varchi) {
  return Stilista(testo, smetti, &varchi).Esegui();
}

}  // namespace parvik
