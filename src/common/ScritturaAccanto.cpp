#include "common/ScritturaAccanto.h"

#include <fcntl.h>

#include <cerrno>
#include <utility>

#include "common/AttributiFile.h"
#include "common/Ripeti.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr mode_t ModoNuovo = 0666;  // less the umask
constexpr mode_t SoloMio = 0600;    // until the right mode is known

/// Takes away what a killed program left under the provisional name.
EsitoSistema<void> TogliAbbandonato(const fs::path& provvisorio) {
  const Descrittore vecchio = ApriFile(provvisorio, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
  if (vecchio && !Blocca(vecchio)) return EBUSY;
  if (vecchio) {
    // Somebody else may have cleared it away and begun anew since it was opened.
    const EsitoSistema<struct stat> aperto = Stato(vecchio);
    const EsitoSistema<struct stat> attuale = StatoSenzaSeguire(provvisorio);
    if (!attuale && attuale.Errore() == ENOENT) return {};
    if (!aperto || !attuale) return EBUSY;
    if (aperto->st_ino != attuale->st_ino || aperto->st_dev != attuale->st_dev) return EBUSY;
  }
  return Togli(provvisorio);
}

EsitoSistema<Descrittore> CreaProvvisorio(const fs::path& provvisorio, mode_t modo) {
  constexpr int Opzioni = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW;
  Descrittore file = ApriFile(provvisorio, Opzioni, modo);
  if (!file && errno == EEXIST) {
    if (const EsitoSistema<void> tolto = TogliAbbandonato(provvisorio); !tolto) return tolto.Errore();
    file = ApriFile(provvisorio, Opzioni, modo);
  }
  if (!file) return errno == EEXIST ? EBUSY : errno;
  if (!Blocca(file)) return EBUSY;
  return file;
}

}  // namespace

fs::path NomeProvvisorio(const fs::path& destinazione) {
  return CartellaDi(destinazione) / NomeDerivato(".", destinazione.filename().string(), ".nuovo~");
}

EsitoSistema<std::unique_ptr<ScritturaAccanto>> ScritturaAccanto::Apri(Posto posto) {
  EsitoSistema<Descrittore> file =
      CreaProvvisorio(posto.Provvisorio, posto.Originale.empty() ? ModoNuovo : SoloMio);
  if (!file) return file.Errore();
  Descrittore lucchetto(Ripeti([&] { return ::fcntl(file->Numero(), F_DUPFD_CLOEXEC, 0); }));
  if (!posto.Originale.empty()) CopiaAttributi(*file, posto.Originale);
  return std::make_unique<ScritturaAccanto>(std::move(posto), std::move(*file), std::move(lucchetto));
}

ScritturaAccanto::ScritturaAccanto(Posto posto, Descrittore file, Descrittore lucchetto)
    : posto_(std::move(posto)), file_(std::move(file)), lucchetto_(std::move(lucchetto)) {}

ScritturaAccanto::~ScritturaAccanto() {
  if (!confermata_) static_cast<void>(Togli(posto_.Provvisorio));
}

Esito<void> ScritturaAccanto::Scrivi(std::string_view byte) {
  return PerUtente(ScriviTutto(file_, byte));
}

Esito<void> ScritturaAccanto::Conferma() {
  if (const auto passo = Sincronizza(file_); !passo) return DaErrno(passo.Errore());
  if (const auto passo = Chiudi(file_); !passo) return DaErrno(passo.Errore());
  if (const auto passo = Rinomina(posto_.Provvisorio, posto_.Destinazione); !passo)
    return DaErrno(passo.Errore());
  confermata_ = true;
  return PerUtente(SincronizzaCartella(CartellaDi(posto_.Destinazione)));
}

}  // namespace parvik
