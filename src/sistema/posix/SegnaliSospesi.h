// Signals that end the program, for as long as that would leave something half done.
#pragma once

#include <csignal>

namespace parvik {

/// While it lives, SIGINT, SIGTERM and SIGHUP wait; then they do what they do.
class SegnaliSospesi {
 public:
  SegnaliSospesi() {
    sigset_t segnali;
    ::sigemptyset(&segnali);
    for (const int segnale : {SIGINT, SIGTERM, SIGHUP}) ::sigaddset(&segnali, segnale);
    ::pthread_sigmask(SIG_BLOCK, &segnali, &prima_);
  }
  SegnaliSospesi(const SegnaliSospesi&) = delete;
  SegnaliSospesi& operator=(const SegnaliSospesi&) = delete;
  ~SegnaliSospesi() { ::pthread_sigmask(SIG_SETMASK, &prima_, nullptr); }

 private:
  sigset_t prima_ = {};
};

}  // namespace parvik
