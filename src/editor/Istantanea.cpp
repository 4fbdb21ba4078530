#include "editor/Istantanea.h"

#include <algorithm>
#include <string>
#include <utility>

namespace parvik {
namespace {

/// The first whole lines of a text: as many as `massimo` bytes hold, but one at least.
std::string PrimeRighe(const TestoSezione& testo, std::size_t massimo) {
  if (testo.Dimensione() <= massimo) return testo.Byte();
  const std::size_t riga = std::max<std::size_t>(testo.RigaDi(massimo), 1);
  const std::size_t fine = riga < testo.Righe() ? testo.Riga(riga).Inizio : testo.Dimensione();
  return testo.Byte({.Inizio = 0, .Lunghezza = fine});
}

}  // namespace

Istantanea::Istantanea(const Documento& documento, const FlagPerStampe& flag, const TipoDoc& tipo)
    : testi_(documento.Testi()) {
  senzaTesti_.NumSezioni = tipo.NumSezioni;
  senzaTesti_.RigheCorpo = documento.Stato().Corpo.RigheCorpo;
  senzaTesti_.LineeCorpo = documento.Stato().Corpo.LineeCorpo;
  senzaTesti_.Flag = flag;
}

std::size_t Istantanea::Dimensione() const {
  std::size_t dimensione = 0;
  for (const Sezione sezione : TutteLeSezioni) {
    if (static_cast<int>(sezione) >= senzaTesti_.NumSezioni) break;
    const int volte =
        sezione == Sezione::Corpo ? RipetizioniCorpo(senzaTesti_.RigheCorpo, senzaTesti_.LineeCorpo) : 1;
    dimensione += testi_[Indice(sezione)].Dimensione() * static_cast<std::size_t>(volte);
  }
  return dimensione;
}

LavoroStampa Istantanea::Intera() const {
  LavoroStampa lavoro = senzaTesti_;
  for (std::size_t i = 0; i < MaxSezioni && static_cast<int>(i) < lavoro.NumSezioni; ++i)
    lavoro.Testi[i] = testi_[i].Byte();
  return lavoro;
}

LavoroStampa Istantanea::Inizio(std::size_t massimo) const {
  LavoroStampa lavoro = senzaTesti_;
  std::size_t posto = massimo;
  for (const Sezione sezione : TutteLeSezioni) {
    if (static_cast<int>(sezione) >= lavoro.NumSezioni) break;
    const TestoSezione& testo = testi_[Indice(sezione)];
    std::string inizio = PrimeRighe(testo, posto);
    const bool intero = inizio.size() == testo.Dimensione();
    posto -= std::min(posto, inizio.size());
    lavoro.Testi[Indice(sezione)] = std::move(inizio);
    if (intero) continue;
    lavoro.Interi = false;
    lavoro.NumSezioni = static_cast<std::int16_t>(Indice(sezione) + 1);
    if (sezione == Sezione::Corpo) lavoro.RigheCorpo = std::min(lavoro.RigheCorpo, lavoro.LineeCorpo);
  }
  return lavoro;
}

}  // namespace parvik
