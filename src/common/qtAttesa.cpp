#include "common/qtAttesa.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QTimer>
#include <atomic>
#include <system_error>
#include <thread>

#include "common/SeBastaMemoria.h"

namespace parvik {
namespace {

using namespace std::chrono_literals;

constexpr auto PrimaDiDirlo = 500ms;

/// A thread at work, and the event loop that waits for it.
class Attesa {
 public:
  /// Where the system has no thread to give, the work is done here: the window stands still meanwhile.
  explicit Attesa(const std::function<void(std::stop_token)>& lavoro) {
    const auto lavora = [this, &lavoro](const std::stop_token& smetti) { Lavora(lavoro, smetti); };
    try {
      filo_ = std::jthread(lavora);
    } catch (const std::system_error&) {
      lavora(std::stop_token());
    }
  }

  /// Until the work has ended or the time is over, without keys and clicks. Whether it has ended.
  bool PerPoco() {
    QTimer::singleShot(PrimaDiDirlo, &giro_, &QEventLoop::quit);
    if (!finito_) giro_.exec(QEventLoop::ExcludeUserInputEvents);
    return finito_;
  }

  void FinoAllaFine() {
    while (!finito_ && giro_.exec() >= 0) {
    }
    if (!finito_) FinisciComunque();
  }

  void Smetti() { filo_.request_stop(); }

  Esito<void> Chiudi() {
    if (filo_.joinable()) filo_.join();
    if (esaurita_) return NumeroErrore::MemoriaEsaurita;
    return {};
  }

 private:
  /// The program is ending, and no event loop runs any more. The work is asked to stop; what it still wants
  /// of the windows until then it must be given.
  void FinisciComunque() {
    Smetti();
    while (!finito_)
      QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
  }

  void Lavora(const std::function<void(std::stop_token)>& lavoro, const std::stop_token& smetti) {
    const auto lavora = [&]() -> Esito<void> {
      lavoro(smetti);
      return {};
    };
    esaurita_ = !SeBastaMemoria(lavora);
    finito_ = true;
    QMetaObject::invokeMethod(&giro_, &QEventLoop::quit, Qt::QueuedConnection);
  }

  QEventLoop giro_;
  std::atomic<bool> finito_ = false;
  std::atomic<bool> esaurita_ = false;
  std::jthread filo_;  // last: it uses the others
};

/// Says that the program works. Closing it, too, asks to stop.
void MostraAttesa(QWidget* padre, Attesa& attesa) {
  QProgressDialog scatola("Elaborazione in corso...", "Annulla", 0, 0, padre);  // how long is not known
  scatola.setObjectName("frmAttesa");
  scatola.setWindowTitle("Ordavia");
  scatola.setWindowModality(Qt::ApplicationModal);
  scatola.setAutoReset(false);
  const auto smetti = [&attesa] { attesa.Smetti(); };
  QObject::connect(&scatola, &QProgressDialog::canceled, smetti);
  QObject::connect(&scatola, &QDialog::rejected, smetti);
  scatola.show();
  attesa.FinoAllaFine();
}

}  // namespace

Esito<void> AttendiLavoro(QWidget* padre, const std::function<void(std::stop_token)>& lavoro) {
  Attesa attesa(lavoro);
  if (!attesa.PerPoco()) MostraAttesa(padre, attesa);
  return attesa.Chiudi();
}

}  // namespace parvik
