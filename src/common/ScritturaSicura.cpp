#include "common/ScritturaSicura.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "common/CopiaDiRiserva.h"
#include "common/Ripeti.h"
#include "common/ScritturaAccanto.h"
#include "common/ScritturaSulPosto.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

/// A device or a pipe: what is written is gone at once.
class Diretta final : public ScritturaSicura::Strada {
 public:
  explicit Diretta(Descrittore file) : file_(std::move(file)) {}
  Esito<void> Scrivi(std::string_view byte) override { return PerUtente(ScriviTutto(file_, byte)); }
  Esito<void> Conferma() override { return PerUtente(Chiudi(file_)); }

 private:
  Descrittore file_;
};

using EsitoStrada = EsitoSistema<std::unique_ptr<ScritturaSicura::Strada>>;

EsitoStrada ApriDiretta(const fs::path& destinazione) {
  // Opening a pipe that nobody reads must not wait; writing to one that somebody reads may.
  Descrittore file = ApriFile(destinazione, O_WRONLY | O_NOCTTY | O_NONBLOCK);
  if (!file) return errno;
  if (::fcntl(file.Numero(), F_SETFL, 0) != 0) return errno;
  return EsitoStrada(std::make_unique<Diretta>(std::move(file)));
}

/// `originale`: whose attributes the file gets, or "".
EsitoStrada ApriAccanto(const fs::path& destinazione, const fs::path& originale) {
  if (const auto passo = ConservaCopiaInterrotta(destinazione); !passo) return passo.Errore();
  auto accanto = ScritturaAccanto::Apri(
      {.Destinazione = destinazione, .Provvisorio = NomeProvvisorio(destinazione), .Originale = originale});
  if (!accanto) return accanto.Errore();
  return EsitoStrada(std::move(*accanto));
}

EsitoStrada ApriEsistente(const fs::path& destinazione, const struct stat& vecchio) {
  if (S_ISDIR(vecchio.st_mode)) return EISDIR;
  if (!S_ISREG(vecchio.st_mode)) return ApriDiretta(destinazione);
  // A rename would replace a file that may not be written to.
  if (Ripeti([&] { return ::faccessat(AT_FDCWD, destinazione.c_str(), W_OK, AT_EACCESS); }) != 0)
    return errno;
  if (vecchio.st_nlink == 1) {
    EsitoStrada accanto = ApriAccanto(destinazione, destinazione);
    if (accanto || !NonPrendeFile(accanto.Errore())) return accanto;
  }
  return EsitoStrada(std::make_unique<ScritturaSulPosto>(destinazione));
}

EsitoStrada ApriStrada(const fs::path& destinazione) {
  const EsitoSistema<fs::path> fine = SeguiCollegamenti(destinazione);
  if (!fine) return fine.Errore();
  const EsitoSistema<struct stat> vecchio = Stato(*fine);
  if (vecchio) return ApriEsistente(*fine, *vecchio);
  if (vecchio.Errore() != ENOENT) return vecchio.Errore();
  EsitoStrada accanto = ApriAccanto(*fine, {});
  // Nothing is missing when a new file is made, unless it is the folder.
  if (!accanto && accanto.Errore() == ENOENT) return ENOTDIR;
  return accanto;
}

}  // namespace

ScritturaSicura::ScritturaSicura(std::unique_ptr<Strada> strada) : strada_(std::move(strada)) {}
ScritturaSicura::ScritturaSicura(ScritturaSicura&& altra) noexcept = default;
ScritturaSicura& ScritturaSicura::operator=(ScritturaSicura&& altra) noexcept = default;
ScritturaSicura::~ScritturaSicura() = default;

Esito<ScritturaSicura> ScritturaSicura::Apri(const fs::path& destinazione) {
  if (!destinazione.has_filename()) return NumeroErrore::AccessoPercorsoFile;
  EsitoStrada strada = ApriStrada(destinazione);
  if (!strada) return DaErrno(strada.Errore());
  return ScritturaSicura(std::move(*strada));
}

Esito<void> ScritturaSicura::Scrivi(std::string_view byte) {
  return strada_->Scrivi(byte);
}

Esito<void> ScritturaSicura::Conferma() {
  return strada_->Conferma();
}

Esito<void> ScriviFile(const fs::path& destinazione, std::string_view byte) {
  Esito<ScritturaSicura> file = ScritturaSicura::Apri(destinazione);
  if (!file) return file.Errore();
  if (const Esito<void> scritto = file->Scrivi(byte); !scritto) return scritto.Errore();
  return file->Conferma();
}

}  // namespace parvik
