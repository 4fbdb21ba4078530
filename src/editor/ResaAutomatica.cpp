#include "editor/ResaAutomatica.h"

#include "common/SeBastaMemoria.h"

namespace parvik {
namespace {

/// In bytes, read and written: what takes no longer than a key does by itself.
constexpr std::size_t ParteImmediata = 256UL * 1024UL;

/// What nobody would want to be rendered unasked: it would take the memory of everything else.
constexpr std::size_t Massimo = 512UL * 1024UL * 1024UL;

}  // namespace

LavoroAnteprima::Fatto LavoroAnteprima::Esegui(const std::stop_token& smetti) const {
  const auto esegui = [&]() -> Esito<AnteprimaMappata, Interruzione> {
    if (smetti.stop_requested()) return Interruzione::Chiesta;
    return GeneraMappata(cosa_.Intera(), smetti);
  };
  return {.Numero = numero_, .Anteprima = SeBastaMemoria(esegui, Interruzione::MemoriaEsaurita)};
}

std::optional<LavoroAnteprima> ResaAutomatica::Rinnova(const TipoDoc& tipo) {
  const Istantanea adesso(documento_, flag_, tipo);
  const AnteprimaMostrata::Numero numero = mostrata_.Comincia(tipo);
  if (adesso.Dimensione() > Massimo) {
    Consegna({.Numero = numero, .Anteprima = Interruzione::MemoriaEsaurita});
    return std::nullopt;
  }
  if (lunga_ || adesso.Dimensione() > ParteImmediata) return LavoroAnteprima(numero, adesso);
  Esito<AnteprimaMappata> subito =
      SeBastaMemoria([&] { return GeneraMappata(adesso.Intera(), ParteImmediata); });
  if (!subito) {
    Consegna({.Numero = numero, .Anteprima = Interruzione::MemoriaEsaurita});
    return std::nullopt;
  }
  lunga_ = subito->Mappa == nullptr;
  if (lunga_) return LavoroAnteprima(numero, adesso);
  Consegna({.Numero = numero, .Anteprima = std::move(*subito)});
  return std::nullopt;
}

void ResaAutomatica::Consegna(LavoroAnteprima::Fatto fatto) {
  if (fatto.Anteprima) {
    lunga_ = fatto.Anteprima->Mappa->Traccia.Scritti() > ParteImmediata;
    const auto dove = mostrata_.Finisci(fatto.Numero, std::move(fatto.Anteprima->Mappa));
    if (dove) vista_.RinnovaAnteprima(std::move(fatto.Anteprima->Testo), *dove);
  } else if (fatto.Anteprima.Errore() == Interruzione::MemoriaEsaurita) {
    mostrata_.Fallisci(fatto.Numero);
  } else {
    mostrata_.Rinuncia(fatto.Numero);
  }
  vista_.CambiataAnteprima();
}

}  // namespace parvik
