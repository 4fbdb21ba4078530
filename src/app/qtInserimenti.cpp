#include "app/qtInserimenti.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace parvik {
namespace {

constexpr int Pausa = 300;           // milliseconds in which nothing changes
constexpr int ParteDelPannello = 4;  // of the window's width, at first

}  // namespace

qtInserimenti::qtInserimenti(Editore& editore, qtMaschere& maschere, qtArea& area, QMainWindow& finestra)
    : QObject(&finestra),
      editore_(editore),
      maschere_(maschere),
      area_(area),
      finestra_(finestra),
      filo_([this](LavoroUsi::Fatto fatto) {
        editore_.Consegna(std::move(fatto));
        Rinnova();
        Segui();
      }) {
  attesa_.setSingleShot(true);
  attesa_.setInterval(Pausa);
  connect(&attesa_, &QTimer::timeout, this, &qtInserimenti::Conta);
}

void qtInserimenti::CreaPannello() {
  pannello_ = new pnlCampi(editore_, &finestra_);
  nuovo_ = !finestra_.restoreDockWidget(pannello_);
  if (nuovo_) finestra_.addDockWidget(Qt::LeftDockWidgetArea, pannello_);
  connect(pannello_, &pnlCampi::Confermata, this, &qtInserimenti::Inserisci);
  connect(pannello_, &pnlCampi::Lasciato, this, &qtInserimenti::TornaAllaSezione);
  connect(pannello_, &pnlCampi::Chiuso, this, [this] {
    if (editore_.CampiVisibili()) CommutaPannello();
  });
}

void qtInserimenti::CreaRiquadro() {
  riquadro_ = new pnlInserisci(editore_, &finestra_);
  connect(riquadro_, &pnlInserisci::Confermata, this, &qtInserimenti::Inserisci);
  connect(riquadro_, &pnlInserisci::Lasciato, this, &qtInserimenti::TornaAllaSezione);
}

void qtInserimenti::Aggiorna() {
  const bool visibile = editore_.CampiVisibili();
  if (riquadro_ != nullptr && !editore_.TipoScelto()) riquadro_->Chiudi();
  if (visibile && pannello_ == nullptr) CreaPannello();
  if (visibile != visibile_) {
    visibile_ = visibile;
    if (visibile) Conta();  // the first look is not waited for
    pannello_->setVisible(visibile);
    if (visibile && std::exchange(nuovo_, false))
      finestra_.resizeDocks({pannello_}, {finestra_.width() / ParteDelPannello}, Qt::Horizontal);
  }
  Rinnova();
  Segui();
}

bool qtInserimenti::Guardati() const {
  return visibile_ || (riquadro_ != nullptr && riquadro_->isVisible());
}

void qtInserimenti::Segui() {
  if (Guardati() && editore_.UsiDaContare()) attesa_.start();
}

/// Never two at once: the end of the one under way asks again.
void qtInserimenti::Conta() {
  attesa_.stop();
  if (filo_.AlLavoro() || !editore_.UsiDaContare()) return;
  const std::optional<LavoroUsi> lavoro = editore_.ContaUsi();
  if (!lavoro) return Rinnova();
  filo_.Comincia([lavoro = *lavoro](const std::stop_token& /*smetti*/) { return lavoro.Esegui(); });
}

void qtInserimenti::Rinnova() {
  if (visibile_) pannello_->Rinnova();
  if (riquadro_ != nullptr && riquadro_->isVisible()) riquadro_->Rinnova();
}

/// A panel that goes leaves the focus where its fields went.
void qtInserimenti::CommutaPannello() {
  const bool conFuoco = pannello_ != nullptr && pannello_->isAncestorOf(finestra_.focusWidget());
  editore_.Commuta(Preferenza::PannelloCampi);
  if (editore_.CampiVisibili()) return pannello_->Attiva();
  if (conFuoco && editore_.TipoScelto()) TornaAllaSezione();
}

/// The caret may be out of sight: then the box stands at the edge behind which it is.
void qtInserimenti::Scegli() {
  if (riquadro_ != nullptr && riquadro_->isVisible()) return;
  if (riquadro_ == nullptr) CreaRiquadro();
  const txtTCP& sezione = area_.Editor(editore_.Attiva());
  const QRect vista = sezione.viewport()->rect();
  QRect cursore = sezione.cursorRect();
  cursore.moveLeft(std::clamp(cursore.left(), vista.left(), vista.right()));
  cursore.moveTop(
      std::clamp(cursore.top(), vista.top(), std::max(vista.top(), vista.bottom() - cursore.height())));
  riquadro_->Apri({sezione.viewport()->mapTo(&finestra_, cursore.topLeft()), cursore.size()});
  Conta();
  Rinnova();
}

/// As every dialog does it. The box goes when the section gets the focus.
void qtInserimenti::Inserisci(const VoceInseribile& voce, bool conMaschera) {
  TornaAllaSezione();
  if (conMaschera) {
    const std::string contenuto(voce.Nuova() ? std::string_view() : ContenutoDi(voce.Codice));
    return maschere_.ApriForm(GenereDi(voce.Gruppo), contenuto);
  }
  editore_.PreparaInserimento();
  editore_.InserisciCodici(std::array{voce.Codice});
  area_.Editor(editore_.Attiva()).ensureCursorVisible();
}

void qtInserimenti::TornaAllaSezione() {
  area_.Editor(editore_.Attiva()).setFocus(Qt::OtherFocusReason);
}

}  // namespace parvik
