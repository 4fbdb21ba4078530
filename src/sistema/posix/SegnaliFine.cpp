#include "sistema/SegnaliFine.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>

#include "sistema/posix/Descrittore.h"

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

struct SegnaliFine::Campanello {
  sigset_t Prima = {};
  Descrittore Lettura;
};

SegnaliFine::SegnaliFine() : campanello_(std::make_unique<Campanello>()) {
  const sigset_t segnali = Insieme();
  ::pthread_sigmask(SIG_BLOCK, &segnali, &campanello_->Prima);
  campanello_->Lettura = Descrittore(::signalfd(-1, &segnali, SFD_NONBLOCK | SFD_CLOEXEC));
  if (!campanello_->Lettura) ::pthread_sigmask(SIG_SETMASK, &campanello_->Prima, nullptr);
}

SegnaliFine::~SegnaliFine() {
  if (campanello_->Lettura) ::pthread_sigmask(SIG_SETMASK, &campanello_->Prima, nullptr);
}

int SegnaliFine::Numero() const {
  return campanello_->Lettura ? campanello_->Lettura.Numero() : -1;
}

bool SegnaliFine::Prendi() const {
  signalfd_siginfo notizia = {};
  const Descrittore& lettura = campanello_->Lettura;
  return lettura && ::read(lettura.Numero(), &notizia, sizeof notizia) == sizeof notizia;
}

}  // namespace parvik
