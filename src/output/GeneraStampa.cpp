#include "output/GeneraStampa.h"

#include <algorithm>

#include "common/Delimitatori.h"

namespace parvik {
namespace {

constexpr std::size_t DimensioneBlocco = 64UL * 1024UL;

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
      blocco_.append(testo, i, prossimo - i);
      if (prossimo == testo.size()) break;
      if (testo[prossimo] == DelimApertura) {
        const std::size_t chiusura = testo.find(DelimChiusura, prossimo);
        if (chiusura == std::string_view::npos) break;  // swallows the rest, and is no code
        trovaVar_(testo.substr(prossimo + 1, chiusura - prossimo - 1)).AggiungiA(blocco_);
        i = chiusura + 1;
      } else {
        i = prossimo + (testo.substr(prossimo).starts_with(FineRiga) ? FineRiga.size() : 1);
        if (!ChiudiRiga()) return false;
      }
    }
    blocco_.resize(fineUltimaRiga_);  // a line without its end is not emitted
    return true;
  }

  bool Scarica() {
    const bool continua = blocco_.empty() || uscita_.Righe(blocco_);
    blocco_.clear();
    fineUltimaRiga_ = 0;
    return continua;
  }

 private:
  bool ChiudiRiga() {
    blocco_.append(FineRiga);
    fineUltimaRiga_ = blocco_.size();
    return blocco_.size() < DimensioneBlocco || Scarica();
  }

  TrovaVar trovaVar_;
  UscitaRighe& uscita_;
  std::string blocco_;              // whole lines, and the line under way
  std::size_t fineUltimaRiga_ = 0;  // where the line under way begins
};

/// How often a section is rendered.
int Ripetizioni(Sezione sezione, const DatiStampa& dati) {
  if (sezione != Sezione::Corpo) return 1;
  if (dati.LineeCorpo <= 0) return 0;
  return dati.RigheCorpo / dati.LineeCorpo;
}

class RaccoltaTesto final : public UscitaRighe {
 public:
  explicit RaccoltaTesto(std::string& testo) : testo_(testo) {}
  bool Righe(std::string_view righe) override {
    testo_.append(righe);
    return true;
  }

 private:
  std::string& testo_;
};

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
  Anteprima anteprima;
  RaccoltaTesto raccolta(anteprima.Testo);
  GeneraStampa(dati, TipoStampa::Anteprima, raccolta);
  if (anteprima.Testo.empty()) return anteprima;
  anteprima.Testo.append(FineRiga).append(FineAnteprima);
  anteprima.Tratti = MettiStili(anteprima.Testo);
  return anteprima;
}

}  // namespace parvik
