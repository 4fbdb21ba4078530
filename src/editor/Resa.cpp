#include "editor/Resa.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "output/StampaSuFile.h"

namespace parvik {
namespace {

/// What is taken over and rendered at once, in the time that a hand takes to leave a key; more is worth a
/// thread.
constexpr std::size_t ParteImmediata = 1024UL * 1024UL;

/// The first whole lines of a text: as many as `massimo` bytes hold, but one at least.
std::string PrimeRighe(const TestoSezione& testo, std::size_t massimo) {
  if (testo.Dimensione() <= massimo) return testo.Byte();
  const std::size_t riga = std::max<std::size_t>(testo.RigaDi(massimo), 1);
  const std::size_t fine = riga < testo.Righe() ? testo.Riga(riga).Inizio : testo.Dimensione();
  return testo.Byte({.Inizio = 0, .Lunghezza = fine});
}

/// The snapshots of a run's texts, to be laid out where it runs.
void PrendiTesti(LavoroStampa& lavoro, const std::array<TestoSezione, MaxSezioni>& testi) {
  for (std::size_t i = 0; i < MaxSezioni && static_cast<int>(i) < lavoro.NumSezioni; ++i)
    lavoro.Testi[i] = testi[i].Byte();
}

}  // namespace

LavoroStampa Resa::SenzaTesti(const TipoDoc& tipo) const {
  LavoroStampa lavoro;
  lavoro.NumSezioni = tipo.NumSezioni;
  lavoro.RigheCorpo = documento_.Stato().Corpo.RigheCorpo;
  lavoro.LineeCorpo = documento_.Stato().Corpo.LineeCorpo;
  lavoro.Flag = flag_;
  return lavoro;
}

/// As much of the sections as is rendered at once. A run ends where the first cut is: nothing follows a
/// section that was cut, nor does it itself once more.
LavoroStampa Resa::Inizio(const TipoDoc& tipo) const {
  LavoroStampa lavoro = SenzaTesti(tipo);
  std::size_t posto = ParteImmediata;
  for (const Sezione sezione : TutteLeSezioni) {
    if (static_cast<int>(sezione) >= lavoro.NumSezioni) break;
    const TestoSezione& testo = documento_.Testo(sezione);
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

/// Says why there is no preview; false.
bool Resa::Mancata(NumeroErrore perche) {
  interlocutore_.Chiedi({.Testo = TestoErrore(perche)});
  return false;
}

bool Resa::RiempiAnteprima(const TipoDoc& tipo) {
  LavoroStampa lavoro = Inizio(tipo);
  Esito<InizioAnteprima> inizio = GeneraInizioAnteprima(lavoro.Dati(), ParteImmediata);
  if (!inizio) return Mancata(inizio.Errore());
  vista_.MostraAnteprima(std::move(inizio->Testo));
  if (inizio->Intera) return true;
  const bool daPrendere = !lavoro.Interi;
  if (daPrendere) lavoro = SenzaTesti(tipo);
  const std::array testi = documento_.Testi();
  Esito<Anteprima, Interruzione> intera = Interruzione::Chiesta;
  const Esito<void> atteso = vista_.Attendi([&](const std::stop_token& smetti) {
    if (daPrendere) PrendiTesti(lavoro, testi);
    intera = GeneraAnteprima(lavoro.Dati(), smetti);
  });
  if (!atteso) return Mancata(atteso.Errore());
  if (!intera && intera.Errore() == Interruzione::MemoriaEsaurita)
    return Mancata(NumeroErrore::MemoriaEsaurita);
  if (!intera) return false;
  vista_.CompletaAnteprima(std::move(*intera));
  return true;
}

std::optional<Scritto> Resa::ScriviTesto(const TipoDoc& tipo, const std::filesystem::path& file) {
  LavoroStampa lavoro = SenzaTesti(tipo);
  const std::array testi = documento_.Testi();
  std::optional<Scritto> scritto;
  // Too little memory is a failure like any other.
  static_cast<void>(vista_.Attendi([&](const std::stop_token& smetti) {
    PrendiTesti(lavoro, testi);
    if (!smetti.stop_requested()) scritto = StampaSuFile(file, lavoro.Dati(), smetti);
  }));
  return scritto;
}

}  // namespace parvik
