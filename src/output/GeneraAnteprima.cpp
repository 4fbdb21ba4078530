// The run into the preview.
#include <algorithm>
#include <utility>

#include "common/Delimitatori.h"
#include "common/SeBastaMemoria.h"
#include "output/GeneraStampa.h"
#include "output/TracciaStampa.h"

namespace parvik {
namespace {

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
    testo_.append(righe.substr(0, posto));
    return righe.size() <= posto;
  }
  /// Takes a line away again whose end did not fit.
  void TogliRigaIncompleta() {
    const std::size_t fine = testo_.rfind(FineRiga);
    testo_.resize(fine == std::string::npos ? 0 : fine + FineRiga.size());
  }
  bool Continua() override {
    percorsi_ += PassoStampa;
    return percorsi_ <= std::max(massimo_, PercorsoConsentito);
  }

 private:
  // Between two blocks of text; a block may stand for several times as much in codes.
  static constexpr std::size_t PercorsoConsentito = 16 * PassoStampa;

  std::string& testo_;
  std::size_t massimo_;
  std::size_t percorsi_ = 0;  // since the last text
};

/// About as long as the text becomes, unless a body is repeated often: growing costs new memory each time.
std::size_t Dimensione(const DatiStampa& dati) {
  std::size_t dimensione = 0;
  for (const std::string_view testo : dati.Testi) dimensione += testo.size();
  return dimensione;
}

void AggiungiFine(std::string& testo) {
  if (!testo.empty()) testo.append(FineRiga).append(FineAnteprima);
}

/// `corri` is the run, `stili` the style pass.
template <class Corri, class Stili>
Esito<Anteprima, Interruzione> Genera(const DatiStampa& dati, const std::stop_token& smetti, Corri corri,
                                      Stili stili) {
  Anteprima anteprima;
  anteprima.Testo.reserve(Dimensione(dati));
  RaccoltaTesto raccolta(anteprima.Testo, smetti);
  const Esito<void, Interruzione> corsa = corri(raccolta);
  if (!corsa) return corsa.Errore();
  AggiungiFine(anteprima.Testo);
  auto tratti = stili(anteprima.Testo);
  if (!tratti || smetti.stop_requested()) return Interruzione::Chiesta;
  anteprima.Tratti = std::move(*tratti);
  return anteprima;
}

/// The same two.
template <class Corri, class Stili>
Esito<InizioAnteprima> GeneraInizio(const DatiStampa& dati, std::size_t massimo, Corri corri, Stili stili) {
  InizioAnteprima inizio;
  RaccoltaInizio raccolta(inizio.Testo.Testo, massimo);
  const Esito<void, Interruzione> corsa = corri(raccolta);
  if (!corsa && corsa.Errore() == Interruzione::MemoriaEsaurita) return NumeroErrore::MemoriaEsaurita;
  inizio.Intera = corsa && dati.Interi;
  if (inizio.Intera) {
    AggiungiFine(inizio.Testo.Testo);
  } else {
    raccolta.TogliRigaIncompleta();
  }
  inizio.Testo.Tratti = stili(inizio.Testo.Testo);
  return inizio;
}

}  // namespace

Anteprima GeneraAnteprima(const DatiStampa& dati) {
  return std::move(*GeneraAnteprima(dati, std::stop_token()));
}

Esito<Anteprima, Interruzione> GeneraAnteprima(const DatiStampa& dati, const std::stop_token& smetti) {
  const auto corri = [&](UscitaRighe& uscita) { return GeneraStampa(dati, TipoStampa::Anteprima, uscita); };
  const auto stili = [&](std::string& testo) { return MettiStili(testo, smetti); };
  const auto genera = [&] { return Genera(dati, smetti, corri, stili); };
  return SeBastaMemoria(genera, Interruzione::MemoriaEsaurita);
}

Esito<Anteprima, Interruzione> GeneraAnteprima(const DatiStampa& dati, const std::stop_token& smetti,
                                               TracciaStampa& traccia) {
  std::vector<Varco> varchi;
  const auto corri = [&](UscitaRighe& uscita) {
    return GeneraStampa(dati, TipoStampa::Anteprima, uscita, traccia);
  };
  const auto stili = [&](std::string& testo) { return MettiStili(testo, smetti, varchi); };
  const auto genera = [&] { return Genera(dati, smetti, corri, stili); };
  Esito<Anteprima, Interruzione> anteprima = SeBastaMemoria(genera, Interruzione::MemoriaEsaurita);
  traccia.ImpostaVarchi(std::move(varchi));
  return anteprima;
}

Esito<InizioAnteprima> GeneraInizioAnteprima(const DatiStampa& dati, std::size_t massimo) {
  const auto corri = [&](UscitaRighe& uscita) { return GeneraStampa(dati, TipoStampa::Anteprima, uscita); };
  const auto stili = [](std::string& testo) { return MettiStili(testo); };
  return SeBastaMemoria([&] { return GeneraInizio(dati, massimo, corri, stili); });
}

Esito<InizioAnteprima> GeneraInizioAnteprima(const DatiStampa& dati, std::size_t massimo,
                                             TracciaStampa& traccia) {
  std::vector<Varco> varchi;
  const auto corri = [&](UscitaRighe& uscita) {
    return GeneraStampa(dati, TipoStampa::Anteprima, uscita, traccia);
  };
  const auto stili = [&](std::string& testo) { return *MettiStili(testo, std::stop_token(), varchi); };
  Esito<InizioAnteprima> inizio = SeBastaMemoria([&] { return GeneraInizio(dati, massimo, corri, stili); });
  traccia.ImpostaVarchi(std::move(varchi));
  return inizio;
}

}  // namespace parvik
