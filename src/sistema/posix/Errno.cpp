#include "sistema/posix/Errno.h"

#include <cerrno>

#include "sistema/ErroreSistema.h"

namespace parvik {

NumeroErrore DaErrno(int numero) {
  switch (numero) {
    case ENOENT:
      return NumeroErrore::FileNonTrovato;
    case ENOTDIR:
      return NumeroErrore::PercorsoNonTrovato;
    case EACCES:
    case EPERM:
    case EBUSY:  // another program is at it
      return NumeroErrore::AutorizzazioneNegata;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return NumeroErrore::DiscoPieno;
    case ENOMEM:
      return NumeroErrore::MemoriaEsaurita;
    case EIO:
    case ENXIO:
    case EPIPE:
      return NumeroErrore::ErroreDiPeriferica;
    default:
      return NumeroErrore::AccessoPercorsoFile;
  }
}

ErroreScrittura ErroreDaErrno(int numero) {
  ErroreScrittura errore{.Numero = DaErrno(numero)};
  if (numero == EBUSY) errore.Nota = "Il file è in uso: un altro programma lo sta salvando";
  return errore;
}

EsitoPasso PerUtente(const EsitoSistema<void>& passo) {
  if (passo) return {};
  return ErroreDaErrno(passo.Errore());
}

NumeroErrore DaErroreSistema(const std::error_code& errore) {
  return DaErrno(errore.value());
}

}  // namespace parvik
