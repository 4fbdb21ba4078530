#include "sistema/ScritturaSicura.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "common/SeBastaMemoria.h"
#include "sistema/posix/Ripeti.h"
#include "sistema/posix/ScritturaAccanto.h"
#include "sistema/posix/ScritturaSulPosto.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

ErroreScrittura SenzaMemoria() {
  return {NumeroErrore::MemoriaEsaurita};
}

/// A device or a pipe: what is written is gone at once.
class Diretta final : public ScritturaSicura::Strada {
 public:
  explicit Diretta(Descrittore file) : file_(std::move(file)) {}
  EsitoPasso Scrivi(std::string_view byte) override { return PerUtente(ScriviTutto(file_, byte)); }
  EsitoScrittura Conferma() override {
    if (const auto passo = Chiudi(file_); !passo) return ErroreDaErrno(passo.Errore());
    return Scritto();
  }

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
  auto accanto = ScritturaAccanto::Apri({.Destinazione = destinazione, .Originale = originale});
  if (accanto) return EsitoStrada(std::move(*accanto));
  // Nothing is missing when a new file is made, unless it is the folder.
  return accanto.Errore() == ENOENT ? ENOTDIR : accanto.Errore();
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

/// Links in the folder of the open descriptors say what they lead to, but it need not be a path: a pipe has
/// none. The system follows them all the same.
EsitoStrada ApriStradaCollegata(const fs::path& collegamento, const fs::path& fine) {
  const EsitoSistema<struct stat> daNome = Stato(fine);
  const EsitoSistema<struct stat> daSistema = Stato(collegamento);
  if (daSistema && !S_ISREG(daSistema->st_mode) && !S_ISDIR(daSistema->st_mode))
    return ApriDiretta(collegamento);
  if (daNome) return ApriEsistente(fine, *daNome);
  if (daNome.Errore() != ENOENT) return daNome.Errore();
  if (daSistema) return EBUSY;  // it is just coming, or has no name any more
  return ApriAccanto(fine, {});
}

EsitoStrada ApriStrada(const fs::path& destinazione) {
  const EsitoSistema<fs::path> fine = SeguiCollegamenti(destinazione);
  if (!fine) return fine.Errore();
  if (*fine != destinazione) return ApriStradaCollegata(destinazione, *fine);
  const EsitoSistema<struct stat> vecchio = Stato(destinazione);
  if (vecchio) return ApriEsistente(destinazione, *vecchio);
  if (vecchio.Errore() != ENOENT) return vecchio.Errore();
  return ApriAccanto(destinazione, {});
}

}  // namespace

ScritturaSicura::ScritturaSicura(std::unique_ptr<Strada> strada) : strada_(std::move(strada)) {}
ScritturaSicura::ScritturaSicura(ScritturaSicura&& altra) noexcept = default;
ScritturaSicura& ScritturaSicura::operator=(ScritturaSicura&& altra) noexcept = default;
ScritturaSicura::~ScritturaSicura() = default;

Esito<ScritturaSicura, ErroreScrittura> ScritturaSicura::Apri(const fs::path& destinazione) {
  const auto apri = [&destinazione]() -> Esito<ScritturaSicura, ErroreScrittura> {
    if (!destinazione.has_filename()) return ErroreScrittura{NumeroErrore::AccessoPercorsoFile};
    EsitoStrada strada = ApriStrada(destinazione);
    if (!strada) return ErroreDaErrno(strada.Errore());
    return ScritturaSicura(std::move(*strada));
  };
  return SeBastaMemoria(apri, SenzaMemoria());
}

EsitoPasso ScritturaSicura::Scrivi(std::string_view byte) {
  return SeBastaMemoria([&] { return strada_->Scrivi(byte); }, SenzaMemoria());
}

EsitoScrittura ScritturaSicura::Conferma() {
  return SeBastaMemoria([&] { return strada_->Conferma(); }, SenzaMemoria());
}

EsitoScrittura ScriviFile(const fs::path& destinazione, std::string_view byte) {
  Esito<ScritturaSicura, ErroreScrittura> file = ScritturaSicura::Apri(destinazione);
  if (!file) return file.Errore();
  if (const EsitoPasso scritto = file->Scrivi(byte); !scritto) return scritto.Errore();
  return file->Conferma();
}

EsitoScrittura ScriviFileCome(const fs::path& modello, const fs::path& destinazione, std::string_view byte) {
  const auto scrivi = [&]() -> EsitoScrittura {
    const auto strada = ScritturaAccanto::Apri({.Destinazione = destinazione, .Originale = modello});
    if (!strada) return ErroreDaErrno(strada.Errore());
    if (const EsitoPasso scritto = (*strada)->Scrivi(byte); !scritto) return scritto.Errore();
    return (*strada)->Conferma();
  };
  return SeBastaMemoria(scrivi, SenzaMemoria());
}

}  // namespace parvik
