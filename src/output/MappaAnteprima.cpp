#include "output/MappaAnteprima.h"

#include "common/SeBastaMemoria.h"

namespace parvik {
namespace {

AnteprimaMappata Mappata(Anteprima anteprima, std::shared_ptr<const MappaAnteprima> mappa) {
  return {.Testo = std::make_shared<const TestoAnteprima>(std::move(anteprima)), .Mappa = std::move(mappa)};
}

}  // namespace

Esito<AnteprimaMappata, Interruzione> GeneraMappata(LavoroStampa lavoro, const std::stop_token& smetti) {
  const auto genera = [&]() -> Esito<AnteprimaMappata, Interruzione> {
    const auto mappa = std::make_shared<MappaAnteprima>(std::move(lavoro));
    Esito<Anteprima, Interruzione> anteprima = GeneraAnteprima(mappa->Letto.Dati(), smetti, mappa->Traccia);
    if (!anteprima) return anteprima.Errore();
    return Mappata(std::move(*anteprima), mappa);
  };
  return SeBastaMemoria(genera, Interruzione::MemoriaEsaurita);
}

Esito<AnteprimaMappata> GeneraMappata(LavoroStampa lavoro, std::size_t massimo) {
  return SeBastaMemoria([&]() -> Esito<AnteprimaMappata> {
    const auto mappa = std::make_shared<MappaAnteprima>(std::move(lavoro));
    Esito<InizioAnteprima> inizio = GeneraInizioAnteprima(mappa->Letto.Dati(), massimo, mappa->Traccia);
    if (!inizio) return inizio.Errore();
    if (!inizio->Intera) return AnteprimaMappata();
    return Mappata(std::move(inizio->Testo), mappa);
  });
}

}  // namespace parvik
