#include "sistema/posix/CartellaPropria.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "sistema/posix/OperazioniFile.h"
#include "sistema/posix/Ripeti.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

EsitoSistema<void> VerificaPropria(const fs::path& cartella) {
  const EsitoSistema<struct stat> stato = StatoSenzaSeguire(cartella);
  if (!stato) return stato.Errore();
  const bool propria =
      S_ISDIR(stato->st_mode) && stato->st_uid == ::geteuid() && (stato->st_mode & 077U) == 0;
  if (!propria) return EACCES;
  return {};
}

}  // namespace

void TogliCartella(const fs::path& cartella) {
  ::rmdir(cartella.c_str());
}

EsitoSistema<void> PreparaCartellaPropria(const fs::path& cartella) {
  const bool fatta = Ripeti([&] { return ::mkdir(cartella.c_str(), 0700); }) == 0;
  if (!fatta && errno != EEXIST) return errno;
  const EsitoSistema<void> propria = VerificaPropria(cartella);
  if (!propria && fatta) TogliCartella(cartella);
  return propria;
}

}  // namespace parvik
