#include "start/Avvio.h"

#include <utility>

#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"
#include "sistema/LetturaFile.h"

namespace parvik {
namespace {

std::string TestoConPosto(NumeroErrore errore, const std::filesystem::path& file, std::size_t riga) {
  return TestoErrore(errore) + "\r\n" + Mostrabile(TestoPercorso(file)) + ", riga " + std::to_string(riga);
}

}  // namespace

Esito<Catalogo, std::string> LeggiCatalogo(const std::filesystem::path& fileCampi) {
  Esito<std::string> contenuto = LeggiFile(fileCampi);
  if (!contenuto) return TestoConPosto(contenuto.Errore(), fileCampi, 1);
  Esito<Catalogo, ErroreCatalogo> catalogo = Catalogo::CaricaCampi(std::move(*contenuto));
  if (!catalogo) return TestoConPosto(catalogo.Errore().Numero, fileCampi, catalogo.Errore().Riga);
  return std::move(*catalogo);
}

std::optional<DatiAvvio> Avvia(const Ambiente& ambiente, Interlocutore& interlocutore) {
  std::optional<Installazione> installazione = VerificaCampiTXT(ambiente, interlocutore);
  if (!installazione) return std::nullopt;
  Esito<Catalogo, std::string> catalogo = LeggiCatalogo(installazione->FileCampi);
  if (!catalogo) {
    interlocutore.Chiedi({.Testo = catalogo.Errore()});
    return std::nullopt;
  }
  return DatiAvvio{.DirProgramma = ambiente.DirProgramma,
                   .Dove = std::move(*installazione),
                   .Campi = std::move(*catalogo),
                   .CartellaUtente = ambiente.CartellaUtente,
                   .CartelleConfigurazione = ambiente.CartelleConfigurazione,
                   .CartellaStato = ambiente.CartellaStato,
                   .CartellaEsecuzione = ambiente.CartellaEsecuzione};
}

}  // namespace parvik
