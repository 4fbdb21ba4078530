#include "common/SegnaliFine.h"

#include <sys/signalfd.h>
#include <unistd.h>

namespace parvik {
namespace {

sigset_t Insieme() {
  sigset_t segnali;
  ::sigemptyset(&segnali);
  ::sigaddset(&segnali, SIGTERM);
  ::sigaddset(&segnali, SIGHUP);
  ::sigaddset(&segnali, SIGINT);
  return segnali;
}

}  // namespace

SegnaliFine::SegnaliFine() {
  const sigset_t segnali = Insieme();
  ::pthread_sigmask(SIG_BLOCK, &segnali, &prima_);
  lettura_ = Descrittore(::signalfd(-1, &segnali, SFD_NONBLOCK | SFD_CLOEXEC));
  if (!lettura_) ::pthread_sigmask(SIG_SETMASK, &prima_, nullptr);
}

SegnaliFine::~SegnaliFine() {
  if (lettura_) ::pthread_sigmask(SIG_SETMASK, &prima_, nullptr);
}

bool SegnaliFine::Prendi() const {
  signalfd_siginfo notizia = {};
  return lettura_ && ::read(lettura_.Numero(), &notizia, sizeof notizia) == sizeof notizia;
}

}  // namespace parvik
