#include "app/qtAnteAuto.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>

#include "common/SeBastaMemoria.h"

namespace parvik {
namespace {

constexpr int DopoIlDisegno = Qt::LowEventPriority - 1;  // which windows are painted with

}  // namespace

/// The end of what was under way asks again.
qtAnteAuto::qtAnteAuto(Editore& editore, ricAnte& pannello)
    : editore_(editore), pannello_(pannello), filo_([this](LavoroAnteprima::Fatto fatto) {
        editore_.Consegna(std::move(fatto));
        Segui();
      }) {
  connect(&pannello, &ricAnte::OrigineChiesta, this, [this](std::size_t byte) {
    if (editore_.TipoScelto()) editore_.RaggiungiOrigine(byte);
  });
}

/// The work is asked to stop before it is waited for.
qtAnteAuto::~qtAnteAuto() = default;

void qtAnteAuto::Segui() {
  if (filo_.AlLavoro() && editore_.AnteprimaDaRifare()) filo_.Ferma();
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

/// Never two at once.
void qtAnteAuto::Rinnova() {
  if (sospesa_ || filo_.AlLavoro() || !editore_.AnteprimaDaRifare()) return;
  const std::optional<LavoroAnteprima> lavoro = editore_.RinnovaAnteprima();
  if (lavoro)
    filo_.Comincia([lavoro = *lavoro](const std::stop_token& smetti) { return lavoro.Esegui(smetti); });
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
  filo_.Aspetta();
}

void qtAnteAuto::Riprendi() {
  sospesa_ = false;
  Segui();
}

}  // namespace parvik
