#include "editor/Resa.h"

#include <utility>

#include "editor/Istantanea.h"
#include "output/StampaSuFile.h"

namespace parvik {
namespace {

/// What is taken over and rendered at once, in the time that a hand takes to leave a key; more is worth a
/// thread.
constexpr std::size_t ParteImmediata = 1024UL * 1024UL;

}  // namespace

/// Says why there is no preview; false.
bool Resa::Mancata(AnteprimaMostrata::Numero numero, NumeroErrore perche) {
  mostrata_.Fallisci(numero);
  interlocutore_.Chiedi({.Testo = TestoErrore(perche)});
  return false;
}

/// What shows stays where it is: it is the same preview.
void Resa::Riuscita(AnteprimaMostrata::Numero numero, std::shared_ptr<const MappaAnteprima> mappa) {
  static_cast<void>(mostrata_.Finisci(numero, std::move(mappa)));
}

bool Resa::RiempiAnteprima(const TipoDoc& tipo) {
  const bool riempita = Riempi(tipo);
  vista_.CambiataAnteprima();
  return riempita;
}

bool Resa::Riempi(const TipoDoc& tipo) {
  const Istantanea adesso(documento_, flag_, tipo);
  const AnteprimaMostrata::Numero numero = mostrata_.Comincia(tipo);
  auto mappa = std::make_shared<MappaAnteprima>(adesso.Inizio(ParteImmediata));
  Esito<InizioAnteprima> inizio = GeneraInizioAnteprima(mappa->Letto.Dati(), ParteImmediata, mappa->Traccia);
  if (!inizio) return Mancata(numero, inizio.Errore());
  mostrata_.MostratoInizio(numero);
  vista_.MostraAnteprima(std::move(inizio->Testo));
  if (inizio->Intera) {
    Riuscita(numero, std::move(mappa));
    return true;
  }
  mappa.reset();
  Esito<Anteprima, Interruzione> intera = Interruzione::Chiesta;
  const Esito<void> atteso = vista_.Attendi([&](const std::stop_token& smetti) {
    mappa = std::make_shared<MappaAnteprima>(adesso.Intera());
    intera = GeneraAnteprima(mappa->Letto.Dati(), smetti, mappa->Traccia);
  });
  if (!atteso) return Mancata(numero, atteso.Errore());
  if (!intera && intera.Errore() == Interruzione::MemoriaEsaurita)
    return Mancata(numero, NumeroErrore::MemoriaEsaurita);
  if (!intera) {
    mostrata_.Fallisci(numero);
    return false;
  }
  vista_.CompletaAnteprima(std::move(*intera));
  Riuscita(numero, std::move(mappa));
  return true;
}

std::optional<TestoAnteprima> Resa::PerCarta(const TipoDoc& tipo) {
  const Istantanea adesso(documento_, flag_, tipo);
  std::optional<TestoAnteprima> testo;
  Interruzione perche = Interruzione::Chiesta;
  const Esito<void> atteso = vista_.Attendi([&](const std::stop_token& smetti) {
    const LavoroStampa lavoro = adesso.Intera();
    Esito<Anteprima, Interruzione> anteprima = GeneraAnteprima(lavoro.Dati(), smetti);
    if (anteprima) {
      testo.emplace(std::move(*anteprima));
    } else {
      perche = anteprima.Errore();
    }
  });
  if (!atteso || perche == Interruzione::MemoriaEsaurita)
    interlocutore_.Chiedi({.Testo = TestoErrore(NumeroErrore::MemoriaEsaurita)});
  return testo;
}

std::optional<Scritto> Resa::ScriviTesto(const TipoDoc& tipo, const std::filesystem::path& file) {
  const Istantanea adesso(documento_, flag_, tipo);
  std::optional<Scritto> scritto;
  // Too little memory is a failure like any other.
  static_cast<void>(vista_.Attendi([&](const std::stop_token& smetti) {
    const LavoroStampa lavoro = adesso.Intera();
    if (!smetti.stop_requested()) scritto = StampaSuFile(file, lavoro.Dati(), smetti);
  }));
  return scritto;
}

}  // namespace parvik
