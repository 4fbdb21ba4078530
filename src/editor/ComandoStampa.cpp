#include "editor/ComandoStampa.h"

#include <optional>
#include <string>

#include "common/Avverti.h"
#include "common/Percorsi.h"
#include "common/TestoPercorso.h"
#include "editor/UsciteStampa.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr const char* EstensioneTesti = ".txt";

}  // namespace

void ComandoStampa::Esegui(const TipoDoc& tipo) {
  const std::optional<Destinazione> destinazione = vista_.ScegliDestinazione();
  if (!destinazione) return;
  switch (*destinazione) {
    case Destinazione::Stampante:
      return SuCarta();
    case Destinazione::File:
      return SuFile(tipo);
    case Destinazione::Anteprima:
      anteprima_.AccendiAnteprima();
  }
}

/// Failures to print are silent, and so is giving up the choice of the printer. A preview that is shown is
/// printed as it stands.
void ComandoStampa::SuCarta() {
  const Esito<VistaStampa::Tipografo, std::string> stampa = vista_.ScegliStampante();
  if (!stampa) {
    interlocutore_.Chiedi({.Testo = stampa.Errore()});
    return;
  }
  if (!*stampa) return;
  if (!anteprima_.AnteprimaAccesa() && !anteprima_.AccendiAnteprima()) return;
  (*stampa)(NomeLavoro(documento_.Stato()));
}

RichiestaFile ComandoStampa::RichiestaTesto() const {
  RichiestaFile richiesta;
  richiesta.Uso = RichiestaFile::Scopo::Salva;
  richiesta.Cartella = CartellaUscite(installazione_);
  richiesta.EtichettaFiltro = "File TXT (*.txt)";
  richiesta.Modello = "*.txt";
  richiesta.NomeProposto =
      scelto_.empty() ? NomeUscita(documento_.Stato(), EstensioneTesti) : TestoPercorso(scelto_);
  return richiesta;
}

/// An existing file is replaced without a question. Failures are silent.
void ComandoStampa::SuFile(const TipoDoc& tipo) {
  const fs::path scelto = interlocutore_.ScegliFile(RichiestaTesto());
  if (scelto.empty()) return;
  scelto_ = ConEstensione(scelto, EstensioneTesti);
  const std::optional<Scritto> scritto = resa_.ScriviTesto(tipo, scelto_);
  if (scritto) Avverti(*scritto, interlocutore_);
}

}  // namespace parvik
