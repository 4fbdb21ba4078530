#include "app/qtBarraStato.h"

#include <QLayout>
#include <algorithm>

namespace parvik {
namespace {

/// From one time that it is written to the next, in milliseconds: while keys come fast the eye follows no
/// more, and they shall not wait for it.
constexpr qint64 TraScritture = 200;

}  // namespace

qtBarraStato::qtBarraStato(Editore& editore, qtArea& area, QMainWindow& finestra)
    : QObject(&finestra), editore_(editore), area_(area), finestra_(finestra) {
  attesa_.setSingleShot(true);
  connect(&attesa_, &QTimer::timeout, this, &qtBarraStato::Scrivi);
  for (const Sezione sezione : TutteLeSezioni) {
    connect(&area.Editor(sezione), &QPlainTextEdit::cursorPositionChanged, this, &qtBarraStato::Accoda);
    connect(&area.Editor(sezione), &QPlainTextEdit::selectionChanged, this, &qtBarraStato::Accoda);
    connect(&area.Editor(sezione), &txtTCP::Attivata, this, &qtBarraStato::Accoda);
  }
  connect(&area.Pannello(), &ricAnte::Mostrata, this, &qtBarraStato::Accoda);
}

/// Laid out at once: what is shown next has its place already.
void qtBarraStato::Aggiorna() {
  const bool visibile = editore_.TipoScelto() && editore_.Scelte()[Preferenza::BarraStato];
  if (barra_ == nullptr && visibile) {
    barra_ = new barStato(&finestra_);
    finestra_.setStatusBar(barra_);
  }
  if (barra_ == nullptr) return;
  const bool cambia = barra_->isHidden() == visibile;
  barra_->setVisible(visibile);
  if (cambia && finestra_.isVisible()) finestra_.layout()->activate();
  Accoda();
}

void qtBarraStato::Accoda() {
  if (barra_ == nullptr || barra_->isHidden() || attesa_.isActive()) return;
  const qint64 passati = ultima_.isValid() ? ultima_.elapsed() : TraScritture;
  attesa_.start(static_cast<int>(std::max<qint64>(0, TraScritture - passati)));
}

void qtBarraStato::Scrivi() {
  if (barra_ != nullptr && !barra_->isHidden() && editore_.TipoScelto())
    barra_->Mostra(editore_.Barra(area_.Pannello().Contenuto(), area_.Pannello().SulFoglio()));
  ultima_.start();
}

}  // namespace parvik
