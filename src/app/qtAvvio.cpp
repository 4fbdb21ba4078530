#include "app/qtAvvio.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "common/Descrittore.h"

namespace parvik {
namespace {

constexpr const char* SenzaSchermo = "parvik32: nessuno schermo su cui aprire la finestra\n";

/// Where standard error leads, while the libraries below the toolkit have none: they write there by
/// themselves, in English, why they find no display. A message handler is given no data of its own.
std::atomic<int> erroriVeri = STDERR_FILENO;

[[noreturn]] void FinisciSenzaSchermo() {
  static_cast<void>(::dprintf(erroriVeri, "%s", SenzaSchermo));
  std::_Exit(EXIT_FAILURE);
}

/// Before the application stands the toolkit finds one thing fatal: no display that it can use. It would say
/// so in several lines, each of them English, and abort. What the user has asked for to find out why is still
/// told.
void RiceviMessaggio(QtMsgType genere, const QMessageLogContext& contesto, const QString& testo) {
  if (genere == QtFatalMsg) FinisciSenzaSchermo();
  if (genere != QtDebugMsg) return;
  static_cast<void>(::dprintf(erroriVeri, "%s\n", qPrintable(qFormatLogMessage(genere, contesto, testo))));
}

/// While it lives messages are received here, and what goes to standard error past them goes nowhere.
class Ricevitore {
 public:
  Ricevitore()
      : veri_(::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0)), prima_(qInstallMessageHandler(RiceviMessaggio)) {
    const Descrittore nulla(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    if (!veri_ || !nulla) return;
    erroriVeri = veri_.Numero();
    ::dup2(nulla.Numero(), STDERR_FILENO);
  }
  Ricevitore(const Ricevitore&) = delete;
  Ricevitore& operator=(const Ricevitore&) = delete;
  ~Ricevitore() {
    if (erroriVeri != STDERR_FILENO) ::dup2(veri_.Numero(), STDERR_FILENO);
    erroriVeri = STDERR_FILENO;
    qInstallMessageHandler(prima_);
  }

 private:
  Descrittore veri_;
  QtMessageHandler prima_;
};

/// While it lives a signal ends the process: there is no event loop yet that would take it.
class Sentinella {
 public:
  explicit Sentinella(int segnali) : basta_(::eventfd(0, EFD_CLOEXEC)) {
    if (segnali >= 0 && basta_) filo_ = std::jthread([this, segnali] { Guarda(segnali); });
  }
  Sentinella(const Sentinella&) = delete;
  Sentinella& operator=(const Sentinella&) = delete;
  ~Sentinella() { static_cast<void>(::eventfd_write(basta_.Numero(), 1)); }

 private:
  void Guarda(int segnali) const {
    std::array<pollfd, 2> attesi = {{{basta_.Numero(), POLLIN, 0}, {segnali, POLLIN, 0}}};
    while (::poll(attesi.data(), attesi.size(), -1) < 0) {
    }
    if (attesi[0].revents == 0) std::_Exit(EXIT_FAILURE);
  }

  Descrittore basta_;
  std::jthread filo_;
};

}  // namespace

std::unique_ptr<QApplication> ApriSchermo(int& argc, char** argv, const SegnaliFine& segnali) {
  const Ricevitore ricevitore;
  const Sentinella sentinella(segnali.Numero());
  auto programma = std::make_unique<QApplication>(argc, argv);
  // A platform may start without a screen, and end in the middle of the first window.
  if (QApplication::primaryScreen() == nullptr) FinisciSenzaSchermo();
  return programma;
}

}  // namespace parvik
