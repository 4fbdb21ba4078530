#include "output/GeneraStampa.h"

#include <algorithm>
#include <optional>

#include "common/Delimitatori.h"

namespace parvik {
namespace {

/// Finds one byte again and again from growing positions; looks at every byte of the text once.
class Cercatore {
 public:
  Cercatore(std::string_view testo, char cercato) : testo_(testo), cercato_(cercato) {}
  /// The first place at or after `da`; the text's size when there is none. `da` never goes back.
  std::size_t Da(std::size_t da) {
    if (trovato_ == Mai || trovato_ < da) trovato_ = std::min(testo_.find(cercato_, da), testo_.size());
    return trovato_;
  }

 private:
  static constexpr std::size_t Mai = std::string_view::npos;
  std::string_view testo_;
  char cercato_;
  std::size_t trovato_ = Mai;
};

/// Where the last line that a section emits ends: its CR. npos when it emits none.
std::size_t UltimaFineRiga(std::string_view testo) {
  std::size_t ultima = std::string_view::npos;
  for (std::size_t i = 0; i < testo.size();) {
    const std::size_t apertura = std::min(testo.find(DelimApertura, i), testo.size());
    const std::size_t fine = testo.substr(i, apertura - i).rfind('\r');
    if (fine != std::string_view::npos) ultima = i + fine;
    const std::size_t chiusura = testo.find(DelimChiusura, apertura);
    if (chiusura == std::string_view::npos) break;
    i = chiusura + 1;
  }
  return ultima;
}

class Corsa {
 public:
  Corsa(TipoStampa destinazione, const FlagPerStampe& flag, UscitaRighe& uscita)
      : trovaVar_(destinazione, flag), uscita_(uscita) {}

  /// Renders a section as often as it is repeated. False when the output ended the run.
  bool Sezione(std::string_view testo, int ripetizioni) {
    testo_ = testo;
    ultimaFine_.reset();
    for (int volta = 0; volta < ripetizioni; ++volta) {
      if (!UnaVolta()) return false;
    }
    return true;
  }

  bool Scarica() {
    const bool continua = blocco_.empty() || uscita_.Righe(blocco_);
    blocco_.clear();
    fineUltimaRiga_ = 0;
    RicominciaPasso();
    return continua;
  }

 private:
  static constexpr std::size_t MezzoPasso = PassoStampa / 2;

  bool UnaVolta() {
    Cercatore fineRiga(testo_, '\r');
    Cercatore apertura(testo_, DelimApertura);
    posto_ = 0;
    while (posto_ < testo_.size()) {
      const std::size_t prossimo = std::min(fineRiga.Da(posto_), apertura.Da(posto_));
      if (!Scrivi(testo_.substr(posto_, prossimo - posto_))) return false;
      if (prossimo == testo_.size()) break;
      if (testo_[prossimo] == DelimApertura) {
        const std::size_t chiusura = testo_.find(DelimChiusura, prossimo);
        letti_ += std::min(chiusura, testo_.size()) - prossimo;
        if (chiusura == std::string_view::npos) break;  // swallows the rest, and is no code
        if (!Scrivi(trovaVar_(testo_.substr(prossimo + 1, chiusura - prossimo - 1)))) return false;
        posto_ = chiusura + 1;
      } else {
        posto_ = prossimo + (testo_.substr(prossimo).starts_with(FineRiga) ? FineRiga.size() : 1);
        if (!ChiudiRiga()) return false;
      }
    }
    blocco_.resize(fineUltimaRiga_);  // a line without its end is not emitted
    return Prosegui();
  }

  bool ChiudiRiga() {
    blocco_.append(FineRiga);
    fineUltimaRiga_ = blocco_.size();
    return blocco_.size() < PassoStampa || Scarica();
  }

  bool Scrivi(const Campione& campione) {
    if (campione.Lunghezza() > MezzoPasso) [[unlikely]] {
      return Ripeti(campione.RiempiPrima, campione.Riempimento) && Scrivi(campione.Testo) &&
             Ripeti(campione.Zeri, '0') && Ripeti(campione.RiempiDopo, campione.Riempimento);
    }
    campione.AggiungiA(blocco_);
    return Prosegui();
  }
  bool Ripeti(std::size_t volte, char carattere) {
    for (; volte > MezzoPasso; volte -= MezzoPasso) {
      blocco_.append(MezzoPasso, carattere);
      if (!Prosegui()) return false;
    }
    blocco_.append(volte, carattere);
    return Prosegui();
  }
  bool Scrivi(std::string_view testo) {
    for (; testo.size() > MezzoPasso; testo.remove_prefix(MezzoPasso)) {
      blocco_.append(testo.substr(0, MezzoPasso));
      if (!Prosegui()) return false;
    }
    blocco_.append(testo);
    return Prosegui();
  }

  /// Turns to the output when half a step is done. No piece that is added in between is longer than the other
  /// half.
  bool Prosegui() {
    if (blocco_.size() + letti_ < prossimaDomanda_) [[likely]] {
      return true;
    }
    return Chiedi();
  }
  bool Chiedi() {
    if (blocco_.size() - fineUltimaRiga_ >= PassoStampa) {
      if (RigaFinisce()) return Scarica();
      blocco_.resize(fineUltimaRiga_);
    }
    RicominciaPasso();
    return uscita_.Continua();
  }
  void RicominciaPasso() {
    letti_ = 0;
    prossimaDomanda_ = blocco_.size() + MezzoPasso;
  }

  /// Whether the line under way will be emitted. Only a line that is too long to be kept needs to know.
  bool RigaFinisce() {
    if (!ultimaFine_) ultimaFine_ = UltimaFineRiga(testo_);
    return *ultimaFine_ != std::string_view::npos && posto_ <= *ultimaFine_;
  }

  TrovaVar trovaVar_;
  UscitaRighe& uscita_;
  std::string_view testo_;                 // the section
  std::size_t posto_ = 0;                  // how far it was rendered
  std::optional<std::size_t> ultimaFine_;  // UltimaFineRiga() of the section, once it was asked for
  std::string blocco_;                     // whole lines, and the line under way or what is left of it
  std::size_t fineUltimaRiga_ = 0;         // where the line under way begins
  std::size_t letti_ = 0;                  // bytes of codes since the last question
  std::size_t prossimaDomanda_ = MezzoPasso;
};

/// How often a section is rendered.
int Ripetizioni(Sezione sezione, const DatiStampa& dati) {
  if (sezione != Sezione::Corpo) return 1;
  if (dati.LineeCorpo <= 0) return 0;
  return dati.RigheCorpo / dati.LineeCorpo;
}

}  // namespace

bool GeneraStampa(const DatiStampa& dati, TipoStampa destinazione, UscitaRighe& uscita) {
  Corsa corsa(destinazione, dati.Flag, uscita);
  for (const Sezione sezione : TutteLeSezioni) {
    if (static_cast<int>(sezione) >= dati.NumSezioni) break;
    const std::string_view testo = dati.Testi[Indice(sezione)];
    if (testo == FineRiga) continue;
    if (!corsa.Sezione(testo, Ripetizioni(sezione, dati))) return false;
  }
  return corsa.Scarica();
}

}  // namespace parvik
