#include "output/GeneraStampa.h"

#include <algorithm>
#include <utility>

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

class Corsa {
 public:
  Corsa(TipoStampa destinazione, const FlagPerStampe& flag, UscitaRighe& uscita)
      : trovaVar_(destinazione, flag), uscita_(uscita) {}

  /// Renders a section once. False when the output ended the run.
  bool Sezione(std::string_view testo) {
    Cercatore fineRiga(testo, '\r');
    Cercatore apertura(testo, DelimApertura);
    std::size_t i = 0;
    while (i < testo.size()) {
      const std::size_t prossimo = std::min(fineRiga.Da(i), apertura.Da(i));
      if (!Scrivi(testo.substr(i, prossimo - i))) return false;
      if (prossimo == testo.size()) break;
      if (testo[prossimo] == DelimApertura) {
        const std::size_t chiusura = testo.find(DelimChiusura, prossimo);
        letti_ += std::min(chiusura, testo.size()) - prossimo;
        if (chiusura == std::string_view::npos) break;  // swallows the rest, and is no code
        if (!Scrivi(trovaVar_(testo.substr(prossimo + 1, chiusura - prossimo - 1)))) return false;
        i = chiusura + 1;
      } else {
        i = prossimo + (testo.substr(prossimo).starts_with(FineRiga) ? FineRiga.size() : 1);
        if (!ChiudiRiga()) return false;
      }
    }
    blocco_.resize(fineUltimaRiga_);  // a line without its end is not emitted
    return Prosegui();
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

  bool ChiudiRiga() {
    blocco_.append(FineRiga);
    fineUltimaRiga_ = blocco_.size();
    return blocco_.size() < PassoStampa || Scarica();
  }

  bool Scrivi(const Campione& campione) {
    if (campione.Lunghezza() > MezzoPasso) [[unlikely]]
      return ScriviAPassi(campione);
    campione.AggiungiA(blocco_);
    return Prosegui();
  }

  bool ScriviAPassi(const Campione& campione) {
    return Ripeti(campione.RiempiPrima, campione.Riempimento) && Scrivi(campione.Testo) &&
           Ripeti(campione.Zeri, '0') && Ripeti(campione.RiempiDopo, campione.Riempimento);
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

  /// Asks the output when half a step is done. No piece that is added without asking is longer than the other
  /// half.
  bool Prosegui() {
    if (blocco_.size() + letti_ < prossimaDomanda_) [[likely]]
      return true;
    RicominciaPasso();
    return uscita_.Continua();
  }
  void RicominciaPasso() {
    letti_ = 0;
    prossimaDomanda_ = blocco_.size() + MezzoPasso;
  }

  TrovaVar trovaVar_;
  UscitaRighe& uscita_;
  std::string blocco_;              // whole lines, and the line under way
  std::size_t fineUltimaRiga_ = 0;  // where the line under way begins
  std::size_t letti_ = 0;           // bytes of codes since the last question
  std::size_t prossimaDomanda_ = MezzoPasso;
};

/// How often a section is rendered.
int Ripetizioni(Sezione sezione, const DatiStampa& dati) {
  if (sezione != Sezione::Corpo) return 1;
  if (dati.LineeCorpo <= 0) return 0;
  return dati.RigheCorpo / dati.LineeCorpo;
}

/// The whole text, unless it is given up.
class RaccoltaTesto final : public UscitaRighe {
 public:
  RaccoltaTesto(std::string& testo, const std::stop_token& smetti) : testo_(testo), smetti_(smetti) {}
  bool Righe(std::string_view righe) override {
    testo_.append(righe);
    return Continua();
  }
  bool Continua() override { return !smetti_.stop_requested(); }

 private:
  std::string& testo_;
  const std::stop_token& smetti_;
};

/// The first lines that fit into a number of bytes.
class RaccoltaInizio final : public UscitaRighe {
 public:
  RaccoltaInizio(std::string& testo, std::size_t massimo) : testo_(testo), massimo_(massimo) {}
  bool Righe(std::string_view righe) override {
    percorsi_ = 0;
    const std::size_t posto = massimo_ - testo_.size();
    if (righe.size() <= posto) {
      testo_.append(righe);
      return true;
    }
    const std::size_t fine = righe.substr(0, posto).rfind(FineRiga);
    if (fine != std::string_view::npos) testo_.append(righe, 0, fine + FineRiga.size());
    return false;
  }
  bool Continua() override {
    percorsi_ += PassoStampa;
    return percorsi_ <= std::max(massimo_, PercorsoConsentito);
  }

 private:
  // Between two blocks of lines; a block may stand for several times as much in codes.
  static constexpr std::size_t PercorsoConsentito = 16 * PassoStampa;

  std::string& testo_;
  std::size_t massimo_;
  std::size_t percorsi_ = 0;  // since the last lines
};

void AggiungiFine(std::string& testo) {
  if (!testo.empty()) testo.append(FineRiga).append(FineAnteprima);
}

}  // namespace

bool GeneraStampa(const DatiStampa& dati, TipoStampa destinazione, UscitaRighe& uscita) {
  Corsa corsa(destinazione, dati.Flag, uscita);
  for (const Sezione sezione : TutteLeSezioni) {
    if (static_cast<int>(sezione) >= dati.NumSezioni) break;
    const std::string_view testo = dati.Testi[Indice(sezione)];
    if (testo == FineRiga) continue;
    const int ripetizioni = Ripetizioni(sezione, dati);
    for (int volta = 0; volta < ripetizioni; ++volta) {
      if (!corsa.Sezione(testo)) return false;
    }
  }
  return corsa.Scarica();
}

Anteprima GeneraAnteprima(const DatiStampa& dati) {
  return GeneraAnteprima(dati, std::stop_token()).value();
}

std::optional<Anteprima> GeneraAnteprima(const DatiStampa& dati, const std::stop_token& smetti) {
  Anteprima anteprima;
  RaccoltaTesto raccolta(anteprima.Testo, smetti);
  if (!GeneraStampa(dati, TipoStampa::Anteprima, raccolta)) return std::nullopt;
  AggiungiFine(anteprima.Testo);
  auto tratti = MettiStili(anteprima.Testo, smetti);
  if (!tratti || smetti.stop_requested()) return std::nullopt;
  anteprima.Tratti = std::move(*tratti);
  return anteprima;
}

InizioAnteprima GeneraInizioAnteprima(const DatiStampa& dati, std::size_t massimo) {
  InizioAnteprima inizio;
  RaccoltaInizio raccolta(inizio.Testo.Testo, massimo);
  inizio.Intera = GeneraStampa(dati, TipoStampa::Anteprima, raccolta);
  if (inizio.Intera) AggiungiFine(inizio.Testo.Testo);
  inizio.Testo.Tratti = MettiStili(inizio.Testo.Testo);
  return inizio;
}

}  // namespace parvik
