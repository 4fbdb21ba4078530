#include "app/qtAvvio.h"

#include <cstdlib>

#include "sistema/ErroriDeviati.h"

namespace parvik {
namespace {

constexpr const char* SenzaSchermo = "parvik32: nessuno schermo su cui aprire la finestra\n";

[[noreturn]] void FinisciSenzaSchermo() {
  ErroriDeviati::Scrivi(SenzaSchermo);
  std::_Exit(EXIT_FAILURE);
}

/// Before the application stands the toolkit finds one thing fatal: no display that it can use. It would say
/// so in several lines, each of them English, and abort. What the user has asked for to find out why is still
/// told.
void RiceviMessaggio(QtMsgType genere, const QMessageLogContext& contesto, const QString& testo) {
  if (genere == QtFatalMsg) FinisciSenzaSchermo();
  if (genere != QtDebugMsg) return;
  ErroriDeviati::Scrivi(qFormatLogMessage(genere, contesto, testo).toLocal8Bit().append('\n').toStdString());
}

/// While it lives messages are received here. The libraries below the toolkit write to standard error by
/// themselves, in English, why they find no display: that goes nowhere.
class Ricevitore {
 public:
  Ricevitore() : prima_(qInstallMessageHandler(RiceviMessaggio)) {}
  Ricevitore(const Ricevitore&) = delete;
  Ricevitore& operator=(const Ricevitore&) = delete;
  ~Ricevitore() { qInstallMessageHandler(prima_); }

 private:
  ErroriDeviati deviati_;
  QtMessageHandler prima_;
};

}  // namespace

std::unique_ptr<qtProgramma> ApriSchermo(int& argc, char** argv, const SegnaliFine& segnali) {
  const Ricevitore ricevitore;
  const SegnaliFatali fatali(segnali);
  auto programma = std::make_unique<qtProgramma>(argc, argv);
  // A platform may start without a screen, and end in the middle of the first window.
  if (QApplication::primaryScreen() == nullptr) FinisciSenzaSchermo();
  return programma;
}

}  // namespace parvik
