#include "sistema/IdentitaFile.h"

#include "sistema/posix/OperazioniFile.h"

namespace parvik {

Esito<IdentitaFile> IdentitaDi(const std::filesystem::path& file) {
  const EsitoSistema<struct stat> stato = Stato(file);
  if (!stato) return DaErrno(stato.Errore());
  if (!S_ISREG(stato->st_mode)) return NumeroErrore::AccessoPercorsoFile;
  return IdentitaFile{.Dispositivo = stato->st_dev,
                      .Numero = stato->st_ino,
                      .Dimensione = static_cast<std::uint64_t>(stato->st_size),
                      .Secondi = stato->st_mtim.tv_sec,
                      .Nanosecondi = stato->st_mtim.tv_nsec};
}

}  // namespace parvik
