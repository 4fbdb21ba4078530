// The editor's commands that render: preview and print.
#include <algorithm>
#include <system_error>
#include <utility>

#include "common/Avverti.h"
#include "common/Percorsi.h"
#include "common/Precondizione.h"
#include "editor/Editore.h"
#include "output/StampaSuFile.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

/// What is taken over and rendered at once, in the time that a hand takes to leave a key; more is worth a
/// thread.
constexpr std::size_t ParteImmediata = 1024UL * 1024UL;
constexpr const char* NomeLavoroSenzaFile = "Ordavia";
constexpr const char* EstensioneTesti = ".txt";

/// Where text files are offered: the host's folder for them, or the host's own when it has none.
fs::path CartellaTesti(const Installazione& installazione) {
  fs::path cartella = installazione.DirStm();
  std::error_code errore;
  return fs::is_directory(cartella, errore) ? cartella : installazione.DirVelkor;
}

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

LavoroStampa Editore::LavoroSenzaTesti() const {
  LavoroStampa lavoro;
  lavoro.NumSezioni = Tipo().NumSezioni;
  lavoro.RigheCorpo = documento_.Stato().Corpo.RigheCorpo;
  lavoro.LineeCorpo = documento_.Stato().Corpo.LineeCorpo;
  lavoro.Flag = flag_;
  return lavoro;
}

/// As much of the sections as is rendered at once. A run ends where the first cut is: nothing follows a
/// section that was cut, nor does it itself once more.
LavoroStampa Editore::InizioLavoro() const {
  LavoroStampa lavoro = LavoroSenzaTesti();
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

bool Editore::AnteprimaMancata(NumeroErrore perche) {
  interlocutore_.Chiedi({.Testo = TestoErrore(perche)});
  return false;
}

bool Editore::Genera() {
  LavoroStampa lavoro = InizioLavoro();
  Esito<InizioAnteprima> inizio = GeneraInizioAnteprima(lavoro.Dati(), ParteImmediata);
  if (!inizio) return AnteprimaMancata(inizio.Errore());
  vista_.MostraAnteprima(std::move(inizio->Testo));
  if (inizio->Intera) return true;
  const bool daPrendere = !lavoro.Interi;
  if (daPrendere) lavoro = LavoroSenzaTesti();
  const std::array testi = documento_.Testi();
  Esito<Anteprima, Interruzione> intera = Interruzione::Chiesta;
  const Esito<void> atteso = vista_.Attendi([&](const std::stop_token& smetti) {
    if (daPrendere) PrendiTesti(lavoro, testi);
    intera = GeneraAnteprima(lavoro.Dati(), smetti);
  });
  if (!atteso) return AnteprimaMancata(atteso.Errore());
  if (!intera && intera.Errore() == Interruzione::MemoriaEsaurita)
    return AnteprimaMancata(NumeroErrore::MemoriaEsaurita);
  if (!intera) return false;
  vista_.CompletaAnteprima(std::move(*intera));
  return true;
}

bool Editore::AccendiAnteprima() {
  anteSpuntata_ = true;
  vista_.Aggiorna();
  return Genera();
}

void Editore::SpegniAnteprima() {
  anteSpuntata_ = false;
  vista_.Aggiorna();
}

void Editore::CommutaAnteprima() {
  PARVIK_ESIGE(TipoScelto(), "a document type is chosen");
  if (anteSpuntata_) {
    SpegniAnteprima();
  } else {
    AccendiAnteprima();
  }
}

void Editore::Stampa() {
  PARVIK_ESIGE(TipoScelto(), "a document type is chosen");
  if (!comandi_.VerificaStampa(Tipo())) return;
  const std::optional<Destinazione> destinazione = vista_.ScegliDestinazione();
  if (!destinazione) return;
  switch (*destinazione) {
    case Destinazione::Stampante:
      return StampaSuCarta();
    case Destinazione::File:
      return StampaTesto();
    case Destinazione::Anteprima:
      AccendiAnteprima();  // renders again where it is on already
  }
}

/// Failures to print are silent, and so is giving up the choice of the printer. A preview that is shown is
/// printed as it stands.
void Editore::StampaSuCarta() {
  const Esito<Vista::Tipografo, std::string> stampa = vista_.ScegliStampante();
  if (!stampa) {
    interlocutore_.Chiedi({.Testo = stampa.Errore()});
    return;
  }
  if (!*stampa) return;
  if (!anteSpuntata_ && !AccendiAnteprima()) return;
  (*stampa)(documento_.Stato().NomeFile.empty() ? NomeLavoroSenzaFile
                                                : documento_.Stato().NomeFile.filename().string());
}

/// An existing file is replaced without a question. Failures are silent.
void Editore::StampaTesto() {
  RichiestaFile richiesta;
  richiesta.Uso = RichiestaFile::Scopo::Salva;
  richiesta.Cartella = CartellaTesti(installazione_);
  richiesta.EtichettaFiltro = "File TXT (*.txt)";
  richiesta.Modello = "*.txt";
  if (!fileStampa_.empty()) {
    richiesta.NomeProposto = fileStampa_.string();
  } else if (!documento_.Stato().NomeFile.empty()) {
    richiesta.NomeProposto = documento_.Stato().NomeFile.stem().string() + EstensioneTesti;
  }
  const fs::path scelto = interlocutore_.ScegliFile(richiesta);
  if (scelto.empty()) return;
  fileStampa_ = ConEstensione(scelto, EstensioneTesti);
  LavoroStampa lavoro = LavoroSenzaTesti();
  const std::array testi = documento_.Testi();
  std::optional<Scritto> scritto;
  // The command is silent on every failure: the old file, if there was one, is whole.
  static_cast<void>(vista_.Attendi([&](const std::stop_token& smetti) {
    PrendiTesti(lavoro, testi);
    if (!smetti.stop_requested()) scritto = StampaSuFile(fileStampa_, lavoro.Dati(), smetti);
  }));
  if (scritto) Avverti(*scritto, interlocutore_);
}

}  // namespace parvik
