#include "sistema/posix/OperazioniFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <utility>

#include "common/Impronta.h"
#include "sistema/posix/Ripeti.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

EsitoSistema<void> DaRisultato(int risultato) {
  if (risultato == 0) return {};
  return errno;
}

/// The target of one link, "" when there is no link.
EsitoSistema<fs::path> LeggiCollegamento(const fs::path& percorso) {
  std::array<char, PATH_MAX> meta = {};
  const ssize_t lunga = Ripeti([&] { return ::readlink(percorso.c_str(), meta.data(), meta.size()); });
  if (lunga >= 0) return fs::path(std::string(meta.data(), static_cast<std::size_t>(lunga)));
  // What stands in the way of the path shows itself when the file is looked at.
  if (errno == EINVAL || errno == ENOENT || errno == ENOTDIR) return fs::path();
  return errno;
}

}  // namespace

EsitoSistema<fs::path> SeguiCollegamenti(fs::path percorso) {
  constexpr int MaxCollegamenti = 40;
  for (int i = 0; i < MaxCollegamenti; ++i) {
    const EsitoSistema<fs::path> meta = LeggiCollegamento(percorso);
    if (!meta) return meta.Errore();
    if (meta->empty()) return percorso;
    percorso = meta->is_absolute() ? *meta : percorso.parent_path() / *meta;
  }
  return ELOOP;
}

fs::path CartellaDi(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

std::string NomeDerivato(std::string_view prima, std::string_view nome, std::string_view dopo) {
  constexpr unsigned int Cifre = 16;
  constexpr std::size_t Spazio = Cifre + 1;  // the number and a hyphen
  std::string derivato(prima);
  if (prima.size() + nome.size() + dopo.size() <= NAME_MAX) {
    derivato += nome;
  } else {
    derivato.append(nome.substr(0, NAME_MAX - prima.size() - dopo.size() - Spazio));
    derivato.append("-").append(Esadecimale(Impronta(nome), Cifre));
  }
  return derivato.append(dopo);
}

EsitoSistema<struct stat> Stato(const fs::path& file) {
  struct stat stato = {};
  if (Ripeti([&] { return ::stat(file.c_str(), &stato); }) != 0) return errno;
  return stato;
}

EsitoSistema<struct stat> StatoSenzaSeguire(const fs::path& file) {
  struct stat stato = {};
  if (Ripeti([&] { return ::lstat(file.c_str(), &stato); }) != 0) return errno;
  return stato;
}

EsitoSistema<struct stat> Stato(const Descrittore& file) {
  struct stat stato = {};
  if (Ripeti([&] { return ::fstat(file.Numero(), &stato); }) != 0) return errno;
  return stato;
}

Descrittore ApriFile(const fs::path& file, int opzioni, mode_t modo) {
  return Descrittore(Ripeti([&] { return ::open(file.c_str(), opzioni | O_CLOEXEC, modo); }));
}

EsitoSistema<void> ScriviTutto(int file, std::string_view byte) {
  while (!byte.empty()) {
    const ssize_t scritti = Ripeti([&] { return ::write(file, byte.data(), byte.size()); });
    if (scritti < 0) return errno;
    if (scritti == 0) return EIO;  // no progress: never to be waited for
    byte.remove_prefix(static_cast<std::size_t>(scritti));
  }
  return {};
}

EsitoSistema<void> ScriviTutto(const Descrittore& file, std::string_view byte) {
  return ScriviTutto(file.Numero(), byte);
}

EsitoSistema<void> Sincronizza(const Descrittore& file) {
  return DaRisultato(Ripeti([&] { return ::fsync(file.Numero()); }));
}

EsitoSistema<Descrittore> ApriCartella(const fs::path& cartella) {
  Descrittore dir = ApriFile(cartella, O_RDONLY | O_DIRECTORY);
  if (!dir && errno != EACCES) return errno;
  return dir;
}

EsitoSistema<void> SincronizzaCartella(const Descrittore& cartella) {
  const EsitoSistema<void> esito = Sincronizza(cartella);
  if (!esito && (esito.Errore() == EINVAL || esito.Errore() == ENOTSUP)) return {};
  return esito;
}

EsitoSistema<void> LeggiCartella(const Descrittore& cartella,
                                 const std::function<void(std::string_view nome)>& nome) {
  constexpr std::size_t Spazio = 32768;
  alignas(dirent64) std::array<char, Spazio> voci;
  if (::lseek(cartella.Numero(), 0, SEEK_SET) != 0) return errno;
  for (;;) {
    const ssize_t letti = Ripeti([&] { return ::getdents64(cartella.Numero(), voci.data(), voci.size()); });
    if (letti < 0) return errno;
    if (letti == 0) return {};
    for (std::size_t i = 0; i < static_cast<std::size_t>(letti);) {
      const auto* voce = reinterpret_cast<const dirent64*>(voci.data() + i);
      nome(voce->d_name);
      i += voce->d_reclen;
    }
  }
}

EsitoSistema<void> Chiudi(Descrittore& file) {
  return DaRisultato(file.Chiudi() ? 0 : -1);
}

EsitoSistema<void> Rinomina(const fs::path& da, const fs::path& a) {
  return DaRisultato(Ripeti([&] { return ::rename(da.c_str(), a.c_str()); }));
}

EsitoSistema<void> Togli(const fs::path& file) {
  return DaRisultato(Ripeti([&] { return ::unlink(file.c_str()); }));
}

bool StessoFile(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

Lucchetto Blocca(const Descrittore& file, Blocco blocco) {
  const int operazione = (blocco == Blocco::Esclusivo ? LOCK_EX : LOCK_SH) | LOCK_NB;
  if (Ripeti([&] { return ::flock(file.Numero(), operazione); }) == 0) return Lucchetto::Preso;
  return errno == EWOULDBLOCK ? Lucchetto::Altrui : Lucchetto::Mancante;
}

bool NonPrendeFile(int errore) {
  return errore == EACCES || errore == EPERM || errore == EROFS || errore == ENAMETOOLONG;
}

}  // namespace parvik
