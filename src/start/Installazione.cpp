#include "start/Installazione.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "common/Percorsi.h"
#include "sistema/CartelleConfigurazione.h"
#include "sistema/DirProgramma.h"
#include "sistema/LetturaProfilo.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view FileProfilo = "VELKOR.INI";
constexpr std::string_view NomeCampi = "CAMPI.TXT";

fs::path ConSeparatore(fs::path cartella) {
  if (cartella.has_filename()) cartella /= "";
  return cartella;
}

std::string DirDalProfilo(const Ambiente& ambiente) {
  for (const fs::path& cartella : ambiente.CartelleConfigurazione) {
    const fs::path profilo = TrovaSenzaCaso(cartella, FileProfilo);
    if (!EsisteFile(profilo)) continue;
    return LeggiDaProfilo(profilo, "AMBIENTE", "Dir velkor");
  }
  return {};
}

fs::path CercaCampi(const fs::path& dirImg, Interlocutore& interlocutore) {
  const Risposta risposta = interlocutore.Chiedi(
      {.Testo = "File CAMPI.TXT non trovato! Senza di esso non sarà possibile proseguire.\r\n"
                "Si desidera cercarlo?",
       .Simbolo = Icona::Esclamazione,
       .Tasti = Pulsanti::SiNo});
  if (risposta != Risposta::Si) return {};
  RichiestaFile richiesta;
  richiesta.Uso = RichiestaFile::Scopo::Apri;
  richiesta.Titolo = "Apri file " + std::string(NomeCampi);
  richiesta.Cartella = dirImg;
  richiesta.EtichettaFiltro = "File TXT (*.txt)";
  richiesta.Modello = NomeCampi;
  return interlocutore.ScegliFile(richiesta);
}

}  // namespace

Ambiente AmbienteDelProcesso(const fs::path& chiamato) {
  return {.DirProgramma = DirProgramma(chiamato),
          .CartelleConfigurazione = CartelleConfigurazione(),
          .CartellaUtente = CartellaConfigurazioneUtente(),
          .CartellaStato = CartellaStatoUtente(),
          .CartellaEsecuzione = CartellaEsecuzione()};
}

Installazione Installazione::In(const fs::path& dirVelkor) {
  Installazione installazione;
  installazione.DirVelkor = ConSeparatore(dirVelkor);
  installazione.DirImg = TrovaSenzaCaso(installazione.DirVelkor, "D_IMG");
  installazione.FileCampi = TrovaSenzaCaso(installazione.DirImg, NomeCampi);
  return installazione;
}

fs::path Installazione::DirStm() const {
  return TrovaSenzaCaso(DirVelkor, "D_STM");
}

fs::path TrovaDirVelkor(const Ambiente& ambiente) {
  if (!ambiente.DirVelkor.empty()) return ConSeparatore(ambiente.DirVelkor);
  fs::path genitore = ConSeparatore(ambiente.DirProgramma.parent_path());
  if (EsisteFile(TrovaSenzaCaso(genitore, FileProfilo))) return genitore;
  const std::string valore = DirDalProfilo(ambiente);
  return valore.empty() ? fs::path() : ConSeparatore(PercorsoDellHost(valore));
}

std::optional<Installazione> VerificaCampiTXT(const Ambiente& ambiente, Interlocutore& interlocutore) {
  const fs::path dirVelkor = TrovaDirVelkor(ambiente);
  if (dirVelkor.empty()) {
    interlocutore.Chiedi({.Testo =
                              "Non sono riuscito a trovare la directory di installazione di [velkor].\r\n"
                              "Impossibile continure!"});
    return std::nullopt;
  }
  Installazione installazione = Installazione::In(dirVelkor);
  if (EsisteFile(installazione.FileCampi)) return installazione;
  installazione.FileCampi = CercaCampi(installazione.DirImg, interlocutore);
  if (installazione.FileCampi.empty()) return std::nullopt;
  return installazione;
}

}  // namespace parvik
