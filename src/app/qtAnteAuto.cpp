#include "app/qtAnteAuto.h"

#include <QCoreApplication>
#include <QEvent>
#include <system_error>
#include <utility>

#include "common/SeBastaMemoria.h"

namespace parvik {
namespace {

constexpr int DopoIlDisegno = Qt::LowEventPriority - 1;  // which windows are painted with

}  // namespace

qtAnteAuto::qtAnteAuto(Editore& editore, ricAnte& pannello) : editore_(editore), pannello_(pannello) {
  connect(&pannello, &ricAnte::OrigineChiesta, this, [this](std::size_t byte) {
    if (editore_.TipoScelto()) editore_.RaggiungiOrigine(byte);
  });
}

/// The work is asked to stop before it is waited for.
qtAnteAuto::~qtAnteAuto() = default;

void qtAnteAuto::Segui() {
  if (filo_.joinable() && editore_.AnteprimaDaRifare()) filo_.request_stop();
  if (!attesa_.isActive()) attesa_.start(0, this);
}

/// The keys are handled; what they have changed is to be painted first.
void qtAnteAuto::timerEvent(QTimerEvent* /*evento*/) {
  attesa_.stop();
  QCoreApplication::postEvent(this, new QEvent(QEvent::User), DopoIlDisegno);
}

/// Without memory the pane stays behind, until something changes again.
void qtAnteAuto::customEvent(QEvent* /*evento*/) {
  static_cast<void>(SeBastaMemoria([this]() -> Esito<void> {
    Rinnova();
    Segna();
    return {};
  }));
}

/// Never two at once: the end of the one under way asks again.
void qtAnteAuto::Rinnova() {
  if (sospesa_ || filo_.joinable() || !editore_.AnteprimaDaRifare()) return;
  const std::optional<LavoroAnteprima> lavoro = editore_.RinnovaAnteprima();
  if (lavoro) Inizia(*lavoro);
}

/// Where the system has no thread to give, the work is done here.
void qtAnteAuto::Inizia(const LavoroAnteprima& lavoro) {
  finito_ = false;
  const auto lavora = [this, lavoro](const std::stop_token& smetti) {
    fatto_ = lavoro.Esegui(smetti);
    finito_ = true;
    QMetaObject::invokeMethod(
        this, [this] { Finisci(); }, Qt::QueuedConnection);
  };
  try {
    filo_ = std::jthread(lavora);
  } catch (const std::system_error&) {
    editore_.Consegna(lavoro.Esegui(std::stop_token()));
  }
}

/// Also called once more for one that was waited for already.
void qtAnteAuto::Finisci() {
  if (!filo_.joinable() || !finito_) return;
  Ritira();
  Segui();
}

/// Waits for the work, and hands in what has become of it.
void qtAnteAuto::Ritira() {
  filo_.join();
  editore_.Consegna(std::exchange(fatto_, {}));
}

void qtAnteAuto::Segna() {
  const bool altri = pannello_.MostraSegni(editore_.SegniAlCursore());
  if (altri && editore_.Scelte()[Preferenza::AnteAuto]) pannello_.RivelaSegni();
}

void qtAnteAuto::VaiAnte() {
  Segna();
  pannello_.RivelaSegni();
}

void qtAnteAuto::Sospendi() {
  sospesa_ = true;
  if (!filo_.joinable()) return;
  filo_.request_stop();
  Ritira();
}

void qtAnteAuto::Riprendi() {
  sospesa_ = false;
  Segui();
}

}  // namespace parvik
