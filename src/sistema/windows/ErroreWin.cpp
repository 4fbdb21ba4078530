#include "sistema/windows/ErroreWin.h"

#include <cerrno>

#include "sistema/ErroreSistema.h"

namespace parvik {
namespace {

constexpr DWORD QuotaSuperata = 1295;  // the compiler's headers have no name for it

/// The same, where the library tells of a failure by the C library's numbers.
NumeroErrore DaErrno(int numero) {
  switch (numero) {
    case ENOENT:
      return NumeroErrore::FileNonTrovato;
    case ENOTDIR:
      return NumeroErrore::PercorsoNonTrovato;
    case EACCES:
    case EPERM:
    case EBUSY:
      return NumeroErrore::AutorizzazioneNegata;
    case ENOSPC:
    case EFBIG:
      return NumeroErrore::DiscoPieno;
    case ENOMEM:
      return NumeroErrore::MemoriaEsaurita;
    case EIO:
    case EPIPE:
      return NumeroErrore::ErroreDiPeriferica;
    default:
      return NumeroErrore::AccessoPercorsoFile;
  }
}

}  // namespace

bool InUso(DWORD numero) {
  switch (numero) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_UNABLE_TO_REMOVE_REPLACED:
    case ERROR_UNABLE_TO_MOVE_REPLACEMENT:
    case ERROR_UNABLE_TO_MOVE_REPLACEMENT_2:
    case ERROR_BUSY:
      return true;
    default:
      return false;
  }
}

NumeroErrore DaErroreWin(DWORD numero) {
  if (InUso(numero)) return NumeroErrore::AutorizzazioneNegata;
  switch (numero) {
    case ERROR_FILE_NOT_FOUND:
      return NumeroErrore::FileNonTrovato;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return NumeroErrore::PercorsoNonTrovato;
    case ERROR_ACCESS_DENIED:
    case ERROR_NETWORK_ACCESS_DENIED:
      return NumeroErrore::AutorizzazioneNegata;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case QuotaSuperata:
    case ERROR_FILE_TOO_LARGE:
      return NumeroErrore::DiscoPieno;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
      return NumeroErrore::MemoriaEsaurita;
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_CRC:
    case ERROR_IO_DEVICE:
    case ERROR_NOT_READY:
    case ERROR_BROKEN_PIPE:
    case ERROR_NO_DATA:
    case ERROR_PIPE_NOT_CONNECTED:
      return NumeroErrore::ErroreDiPeriferica;
    default:
      return NumeroErrore::AccessoPercorsoFile;
  }
}

ErroreScrittura ErroreDaWin(DWORD numero) {
  ErroreScrittura errore{.Numero = DaErroreWin(numero)};
  if (InUso(numero)) errore.Nota = "Il file è in uso: un altro programma lo sta salvando";
  return errore;
}

EsitoPasso PerUtente(const EsitoSistema<void>& passo) {
  if (passo) return {};
  return ErroreDaWin(passo.Errore());
}

NumeroErrore DaErroreSistema(const std::error_code& errore) {
  if (errore.category() == std::generic_category()) return DaErrno(errore.value());
  return DaErroreWin(static_cast<DWORD>(errore.value()));
}

}  // namespace parvik
