#include "output/frmDestStampa.h"

#include <QEvent>
#include <QKeyEvent>

#include "output/qtIcone.h"
#include "ui_frmDestStampa.h"

namespace parvik {
namespace {

/// How many options an arrow key moves on; 0 for any other key.
int Passo(const QEvent& evento) {
  if (evento.type() != QEvent::KeyPress) return 0;
  switch (static_cast<const QKeyEvent&>(evento).key()) {
    case Qt::Key_Down:
    case Qt::Key_Right:
      return 1;
    case Qt::Key_Up:
    case Qt::Key_Left:
      return -1;
    default:
      return 0;
  }
}

}  // namespace

frmDestStampa::frmDestStampa(QWidget* padre)
    : frmModale(padre, Chiusura::ComeAnnulla), ui_(std::make_unique<Ui::frmDestStampa>()) {
  ui_->setupUi(this);
  voci_ = {Voce{ui_->optStampa, ui_->picDest_0, ui_->shaDest_0},
           Voce{ui_->optFile, ui_->picDest_1, ui_->shaDest_1},
           Voce{ui_->optAnte, ui_->picDest_2, ui_->shaDest_2}};
  for (std::size_t i = 0; i < voci_.size(); ++i) {
    const Voce& voce = voci_[i];
    voce.Immagine->setPixmap(IconaDestinazione(static_cast<Destinazione>(i), palette(), devicePixelRatioF()));
    voce.Immagine->installEventFilter(this);
    voce.Opzione->installEventFilter(this);
    Incornicia(voce, false);
  }
  connect(ui_->cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->cmdCanc, &QPushButton::clicked, this, &QDialog::reject);
  ui_->optStampa->setFocus();
}

frmDestStampa::~frmDestStampa() = default;

std::optional<Destinazione> frmDestStampa::Scelta() const {
  return result() == Accepted ? scelta_ : std::nullopt;
}

bool frmDestStampa::eventFilter(QObject* oggetto, QEvent* evento) {
  for (std::size_t i = 0; i < voci_.size(); ++i) {
    const Voce& voce = voci_[i];
    if (const int passo = Passo(*evento); oggetto == voce.Opzione && passo != 0) {
      // The toolkit looks for the next option below or beside; here all arrows go along the row.
      const std::size_t prossima = (i + voci_.size() + static_cast<std::size_t>(passo)) % voci_.size();
      voci_[prossima].Opzione->setFocus();
      return true;
    }
    if (oggetto == voce.Opzione && evento->type() == QEvent::FocusIn) Scegli(static_cast<Destinazione>(i));
    if (oggetto == voce.Opzione && evento->type() == QEvent::FocusOut) Incornicia(voce, false);
    if (oggetto == voce.Immagine && evento->type() == QEvent::MouseButtonPress) voce.Opzione->setFocus();
  }
  return frmModale::eventFilter(oggetto, evento);
}

void frmDestStampa::Scegli(Destinazione destinazione) {
  const Voce& voce = voci_[static_cast<std::size_t>(destinazione)];
  scelta_ = destinazione;
  voce.Opzione->setChecked(true);
  Incornicia(voce, true);
}

void frmDestStampa::Incornicia(const Voce& voce, bool attiva) {
  QPalette colori = voce.Cornice->palette();
  const QPalette finestra = palette();
  colori.setColor(QPalette::WindowText, attiva ? finestra.color(QPalette::WindowText)
                                               : finestra.color(QPalette::Inactive, QPalette::Mid));
  voce.Cornice->setPalette(colori);
}

}  // namespace parvik
