#include "sistema/Processo.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <exception>

#include "common/Precondizione.h"
#include "sistema/posix/NomiInCorso.h"

namespace parvik {
namespace {

/// The way round in which it cannot be used: reading from what was closed fails as before, and so does
/// writing to it, which the programs report. But messages have nobody to be reported to.
int Apertura(int numero) {
  switch (numero) {
    case STDIN_FILENO:
      return O_WRONLY;
    case STDOUT_FILENO:
      return O_RDONLY;
    default:
      return O_RDWR;
  }
}

/// From the lowest on: what is opened gets the lowest number that is free.
void RiempiDescrittori() {
  for (const int numero : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(numero, F_GETFD) >= 0 || errno != EBADF) continue;
    static_cast<void>(::open("/dev/null", Apertura(numero)));
  }
}

/// Comes once: the second signal, raised here, finds what the system does by itself.
extern "C" void TogliEFinisci(int segnale) {
  TogliNomiInCorso();
  static_cast<void>(::raise(segnale));
}

void TogliAllaFine(int segnale) {
  struct sigaction prima = {};
  if (::sigaction(segnale, nullptr, &prima) != 0 || prima.sa_handler == SIG_IGN) return;
  struct sigaction azione = {};
  azione.sa_handler = TogliEFinisci;
  azione.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
  ::sigemptyset(&azione.sa_mask);
  ::sigaction(segnale, &azione, nullptr);
}

void Ignora(int segnale) {
  static_cast<void>(std::signal(segnale, SIG_IGN));
}

}  // namespace

void PreparaProcesso() {
  std::set_terminate(EccezioneSfuggita);
  RiempiDescrittori();
  Ignora(SIGXFSZ);
}

void PreparaProcessoSenzaFinestra() {
  PreparaProcesso();
  Ignora(SIGPIPE);
  for (const int segnale : {SIGINT, SIGTERM, SIGHUP}) TogliAllaFine(segnale);
}

}  // namespace parvik
