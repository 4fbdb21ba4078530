#include "common/OperazioniFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <utility>

#include "common/Ripeti.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

EsitoSistema<void> DaRisultato(int risultato) {
  if (risultato == 0) return {};
  return errno;
}

/// FNV-1a: short, and the same in every version of the program.
std::string Impronta(std::string_view testo) {
  constexpr std::uint64_t Base = 0xCBF29CE484222325U;
  constexpr std::uint64_t Primo = 0x100000001B3U;
  std::uint64_t impronta = Base;
  for (const char c : testo) impronta = (impronta ^ static_cast<unsigned char>(c)) * Primo;
  constexpr std::string_view Cifre = "0123456789abcdef";
  std::string esadecimale;
  for (unsigned int bit = 64; bit > 0; bit -= 4) esadecimale += Cifre[(impronta >> (bit - 4)) & 15U];
  return esadecimale;
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

Esito<void> PerUtente(const EsitoSistema<void>& passo) {
  if (passo) return {};
  return DaErrno(passo.Errore());
}

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
  constexpr std::size_t Spazio = 16 + 1;  // the number and a hyphen
  std::string derivato(prima);
  if (prima.size() + nome.size() + dopo.size() <= NAME_MAX) {
    derivato += nome;
  } else {
    derivato.append(nome.substr(0, NAME_MAX - prima.size() - dopo.size() - Spazio));
    derivato.append("-").append(Impronta(nome));
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

EsitoSistema<void> ScriviTutto(const Descrittore& file, std::string_view byte) {
  while (!byte.empty()) {
    const ssize_t scritti = Ripeti([&] { return ::write(file.Numero(), byte.data(), byte.size()); });
    if (scritti < 0) return errno;
    if (scritti == 0) return EIO;  // no progress: never to be waited for
    byte.remove_prefix(static_cast<std::size_t>(scritti));
  }
  return {};
}

EsitoSistema<void> Sincronizza(const Descrittore& file) {
  return DaRisultato(Ripeti([&] { return ::fsync(file.Numero()); }));
}

EsitoSistema<void> SincronizzaCartella(const fs::path& cartella) {
  const Descrittore dir = ApriFile(cartella, O_RDONLY | O_DIRECTORY);
  if (!dir && errno == EACCES) return {};
  if (!dir) return errno;
  const EsitoSistema<void> esito = Sincronizza(dir);
  if (!esito && (esito.Errore() == EINVAL || esito.Errore() == ENOTSUP)) return {};
  return esito;
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

bool Blocca(const Descrittore& file) {
  return Ripeti([&] { return ::flock(file.Numero(), LOCK_EX | LOCK_NB); }) == 0 || errno != EWOULDBLOCK;
}

bool NonPrendeFile(int errore) {
  return errore == EACCES || errore == EPERM || errore == EROFS || errore == ENAMETOOLONG;
}

}  // namespace parvik
