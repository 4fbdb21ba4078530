#include "editor/ComandoEsporta.h"

#include <string>
#include <string_view>

#include "common/Avverti.h"
#include "common/Delimitatori.h"
#include "common/Percorsi.h"
#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"
#include "editor/UsciteStampa.h"
#include "sistema/ScritturaSicura.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr const char* TitoloEsporta = "Esporta PDF";
constexpr const char* EstensionePdf = ".pdf";

/// All but what a preview ends with for those who look at it: the marker, and the line end in front of it, an
/// empty line that a full page would not hold.
Selezione SenzaFine(const TestoAnteprima& testo) {
  std::string_view righe = testo.Testo();
  if (righe.ends_with(FineAnteprima)) righe.remove_suffix(FineRiga.size() + FineAnteprima.size());
  return {.Inizio = 0, .Lunghezza = righe.size()};
}

}  // namespace

/// Empty when the choice was given up.
fs::path ComandoEsporta::ScegliFile() {
  RichiestaFile richiesta;
  richiesta.Uso = RichiestaFile::Scopo::Salva;
  richiesta.Titolo = TitoloEsporta;
  richiesta.Cartella = CartellaUscite(installazione_);
  richiesta.EtichettaFiltro = "File PDF (*.pdf)";
  richiesta.Modello = "*.pdf";
  richiesta.NomeProposto = NomeUscita(documento_.Stato(), EstensionePdf);
  const fs::path scelto = interlocutore_.ScegliFile(richiesta);
  if (scelto.empty()) return {};
  fs::path file = ConEstensione(scelto, EstensionePdf);
  if (!EsisteFile(file)) return file;
  const Risposta risposta = interlocutore_.Chiedi(
      {.Testo = "Il file esiste già, vuoi sostituirlo?\r\n" + Mostrabile(TestoPercorso(file)),
       .Simbolo = Icona::Domanda,
       .Tasti = Pulsanti::SiNo,
       .Titolo = TitoloEsporta});
  return risposta == Risposta::Si ? file : fs::path();
}

void ComandoEsporta::Esegui(const TipoDoc& tipo, const Foglio& foglio) {
  const fs::path file = ScegliFile();
  if (file.empty()) return;
  const std::optional<EsitoScrittura> scritto = Scrivi(file, tipo, foglio);
  if (!scritto) return;
  if (*scritto) return Avverti(**scritto, interlocutore_);
  interlocutore_.Chiedi({.Testo = TestoErrore(scritto->Errore()) + "\r\n" + Mostrabile(TestoPercorso(file))});
}

/// A file that cannot be written is found out before anybody waits for the run. Nothing when it was given up,
/// or when what failed was told already.
std::optional<EsitoScrittura> ComandoEsporta::Scrivi(const fs::path& file, const TipoDoc& tipo,
                                                     const Foglio& foglio) {
  auto aperto = ScritturaSicura::Apri(file);
  if (!aperto) return aperto.Errore();
  const std::optional<TestoAnteprima> testo = resa_.PerCarta(tipo);
  if (!testo) return std::nullopt;
  EsitoPasso passo;
  const bool intero = vista_.ComponiPdf({.Testo = *testo,
                                         .Parte = SenzaFine(*testo),
                                         .Titolo = NomeLavoro(documento_.Stato()),
                                         .SuFoglio = foglio},
                                        [&](std::string_view byte) {
                                          passo = aperto->Scrivi(byte);
                                          return static_cast<bool>(passo);
                                        });
  if (!passo) return passo.Errore();
  if (!intero) return std::nullopt;
  return aperto->Conferma();
}

}  // namespace parvik
