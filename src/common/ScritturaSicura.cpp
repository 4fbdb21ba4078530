#include "common/ScritturaSicura.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>
#include <utility>

#include "common/Descrittore.h"
#include "common/LetturaFile.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr mode_t ModoNuovo = 0666;  // less the umask
constexpr mode_t SoloMio = 0600;    // until the old file's mode is known to be right
constexpr mode_t BitDelModo = 07777;

/// 0, or the errno of the write that failed.
int ScriviTutto(int fd, std::string_view byte) {
  while (!byte.empty()) {
    const ssize_t n = ::write(fd, byte.data(), byte.size());
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return errno;
    byte.remove_prefix(static_cast<std::size_t>(n));
  }
  return 0;
}

int Sincronizza(int fd) {
  while (::fsync(fd) != 0) {
    if (errno != EINTR) return errno;
  }
  return 0;
}

/// The name must be on the disk too. Some file systems have no such thing as the fsync of a folder.
int SincronizzaCartella(const fs::path& cartella) {
  const Descrittore dir(::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!dir) return errno == EACCES ? 0 : errno;
  const int errore = Sincronizza(dir.Numero());
  return errore == EINVAL || errore == ENOTSUP ? 0 : errore;
}

Esito<void> DaNumero(int errore) {
  if (errore == 0) return {};
  return DaErrno(errore);
}

/// Where a chain of links ends, whether or not something stands there.
Esito<fs::path> SeguiCollegamenti(fs::path percorso) {
  constexpr int MaxCollegamenti = 40;
  for (int i = 0; i < MaxCollegamenti; ++i) {
    std::error_code errore;
    const fs::path meta = fs::read_symlink(percorso, errore);
    if (errore) return percorso;
    percorso = meta.is_absolute() ? meta : percorso.parent_path() / meta;
  }
  return NumeroErrore::AccessoPercorsoFile;
}

fs::path CartellaDi(const fs::path& percorso) {
  return percorso.has_parent_path() ? percorso.parent_path() : fs::path(".");
}

}  // namespace

class ScritturaSicura::Strada {
 public:
  Strada() = default;
  Strada(const Strada&) = delete;
  Strada& operator=(const Strada&) = delete;
  virtual ~Strada() = default;
  virtual Esito<void> Scrivi(std::string_view byte) = 0;
  virtual Esito<void> Conferma() = 0;
};

namespace {

/// A device or a pipe: what is written is gone at once.
class Diretta final : public ScritturaSicura::Strada {
 public:
  explicit Diretta(Descrittore file) : file_(std::move(file)) {}
  Esito<void> Scrivi(std::string_view byte) override { return DaNumero(ScriviTutto(file_.Numero(), byte)); }
  Esito<void> Conferma() override { return DaNumero(file_.Chiudi() ? 0 : errno); }

 private:
  Descrittore file_;
};

/// A new file beside the old one, which takes its name in one step.
class Accanto final : public ScritturaSicura::Strada {
 public:
  Accanto(Descrittore file, fs::path provvisorio, fs::path destinazione)
      : file_(std::move(file)),
        provvisorio_(std::move(provvisorio)),
        destinazione_(std::move(destinazione)) {}
  ~Accanto() override {
    if (!confermata_) ::unlink(provvisorio_.c_str());
  }

  Esito<void> Scrivi(std::string_view byte) override { return DaNumero(ScriviTutto(file_.Numero(), byte)); }

  Esito<void> Conferma() override {
    if (const int errore = Sincronizza(file_.Numero())) return DaErrno(errore);
    if (!file_.Chiudi()) return DaErrno(errno);
    if (::rename(provvisorio_.c_str(), destinazione_.c_str()) != 0) return DaErrno(errno);
    confermata_ = true;
    return DaNumero(SincronizzaCartella(CartellaDi(destinazione_)));
  }

 private:
  Descrittore file_;
  fs::path provvisorio_;
  fs::path destinazione_;
  bool confermata_ = false;
};

/// The bytes are kept until Conferma, which lays the old content aside and writes over it.
class SulPosto final : public ScritturaSicura::Strada {
 public:
  explicit SulPosto(fs::path destinazione) : destinazione_(std::move(destinazione)) {}

  Esito<void> Scrivi(std::string_view byte) override {
    nuovo_.append(byte);
    return {};
  }

  Esito<void> Conferma() override {
    const Esito<std::string> vecchio = LeggiFile(destinazione_);
    if (!vecchio) return vecchio.Errore();
    std::error_code senzaCartella;
    std::string copia = (fs::temp_directory_path(senzaCartella) / "parvik32-XXXXXX").string();
    if (senzaCartella) return NumeroErrore::PercorsoNonTrovato;
    Descrittore fileCopia(::mkstemp(copia.data()));
    if (!fileCopia) return DaErrno(errno);
    int errore = ScriviTutto(fileCopia.Numero(), *vecchio);
    if (errore == 0) errore = Sincronizza(fileCopia.Numero());
    const bool messaDaParte = errore == 0;
    if (messaDaParte) errore = Sostituisci(nuovo_);
    // The copy stays only where the old content could not be put back either.
    if (errore == 0 || !messaDaParte || Sostituisci(*vecchio) == 0) ::unlink(copia.c_str());
    return DaNumero(errore);
  }

 private:
  int Sostituisci(std::string_view byte) const {
    Descrittore file(::open(destinazione_.c_str(), O_WRONLY | O_CLOEXEC));
    if (!file) return errno;
    if (const int errore = ScriviTutto(file.Numero(), byte)) return errore;
    if (::ftruncate(file.Numero(), static_cast<off_t>(byte.size())) != 0) return errno;
    if (const int errore = Sincronizza(file.Numero())) return errore;
    return file.Chiudi() ? 0 : errno;
  }

  fs::path destinazione_;
  std::string nuovo_;
};

using EsitoStrada = Esito<std::unique_ptr<ScritturaSicura::Strada>>;

EsitoStrada ApriDiretta(const fs::path& destinazione) {
  // Opening a pipe that nobody reads must not wait; writing to one that somebody reads may.
  Descrittore file(::open(destinazione.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
  if (!file) return DaErrno(errno);
  if (::fcntl(file.Numero(), F_SETFL, 0) != 0) return DaErrno(errno);
  return EsitoStrada(std::make_unique<Diretta>(std::move(file)));
}

/// One fixed name for each destination: what a killed program left behind is replaced by the next save.
fs::path NomeProvvisorio(const fs::path& destinazione) {
  constexpr std::size_t MaxNome = 200;
  return CartellaDi(destinazione) / ("." + destinazione.filename().string().substr(0, MaxNome) + ".nuovo~");
}

Descrittore CreaProvvisorio(const fs::path& provvisorio, mode_t modo) {
  constexpr int Opzioni = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW;
  Descrittore file(::open(provvisorio.c_str(), Opzioni, modo));
  if (!file && errno == EEXIST && ::unlink(provvisorio.c_str()) == 0) {
    file = Descrittore(::open(provvisorio.c_str(), Opzioni, modo));
  }
  return file;
}

/// Owner first: changing it may clear bits of the mode. A refused owner is no failure, but then nobody else
/// may be given rights that belonged to the old owner's identity.
void CopiaAttributi(int fd, const struct stat& vecchio) {
  const bool stesso = ::fchown(fd, vecchio.st_uid, vecchio.st_gid) == 0;
  const mode_t modo = vecchio.st_mode & BitDelModo;
  const mode_t concesso = stesso ? modo : modo & static_cast<mode_t>(0777);
  if (::fchmod(fd, concesso) != 0) return;  // keeps SoloMio: stricter than the old file, never laxer
}

EsitoStrada ApriAccanto(const fs::path& destinazione, const struct stat* vecchio) {
  fs::path provvisorio = NomeProvvisorio(destinazione);
  Descrittore file = CreaProvvisorio(provvisorio, vecchio == nullptr ? ModoNuovo : SoloMio);
  if (!file) return DaErrno(errno);
  if (vecchio != nullptr) CopiaAttributi(file.Numero(), *vecchio);
  return EsitoStrada(std::make_unique<Accanto>(std::move(file), std::move(provvisorio), destinazione));
}

EsitoStrada ApriEsistente(const fs::path& destinazione, const struct stat& vecchio) {
  if (S_ISDIR(vecchio.st_mode)) return NumeroErrore::AccessoPercorsoFile;
  if (!S_ISREG(vecchio.st_mode)) return ApriDiretta(destinazione);
  // A rename would replace a file that may not be written to.
  if (::faccessat(AT_FDCWD, destinazione.c_str(), W_OK, AT_EACCESS) != 0) return DaErrno(errno);
  if (vecchio.st_nlink == 1) {
    EsitoStrada accanto = ApriAccanto(destinazione, &vecchio);
    if (accanto || accanto.Errore() != NumeroErrore::AutorizzazioneNegata) return accanto;
  }
  return EsitoStrada(std::make_unique<SulPosto>(destinazione));
}

EsitoStrada ApriStrada(const fs::path& destinazione) {
  struct stat vecchio = {};
  if (::stat(destinazione.c_str(), &vecchio) == 0) return ApriEsistente(destinazione, vecchio);
  if (errno != ENOENT) return DaErrno(errno);
  EsitoStrada accanto = ApriAccanto(destinazione, nullptr);
  // Nothing is missing when a new file is made, unless it is the folder.
  if (!accanto && accanto.Errore() == NumeroErrore::FileNonTrovato) return NumeroErrore::PercorsoNonTrovato;
  return accanto;
}

}  // namespace

ScritturaSicura::ScritturaSicura(std::unique_ptr<Strada> strada) : strada_(std::move(strada)) {}
ScritturaSicura::ScritturaSicura(ScritturaSicura&& altra) noexcept = default;
ScritturaSicura& ScritturaSicura::operator=(ScritturaSicura&& altra) noexcept = default;
ScritturaSicura::~ScritturaSicura() = default;

Esito<ScritturaSicura> ScritturaSicura::Apri(const fs::path& destinazione) {
  if (!destinazione.has_filename()) return NumeroErrore::AccessoPercorsoFile;
  const Esito<fs::path> fine = SeguiCollegamenti(destinazione);
  if (!fine) return fine.Errore();
  EsitoStrada strada = ApriStrada(*fine);
  if (!strada) return strada.Errore();
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
