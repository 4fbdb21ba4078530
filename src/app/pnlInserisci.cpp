#include "app/pnlInserisci.h"

#include <QFocusEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

namespace parvik {
namespace {

constexpr int LarghezzaInCaratteri = 44;
constexpr int AltezzaInRighe = 14;
constexpr int Margine = 4;  // pixels, to what it stands at and in

}  // namespace

pnlInserisci::pnlInserisci(Editore& editore, QWidget* finestra)
    : QFrame(finestra), txtCodice_(new QLineEdit), lstCodici_(new QTreeView) {
  setObjectName("pnlInserisci");
  setAccessibleName("Inserisci codice");
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setAutoFillBackground(true);
  txtCodice_->setObjectName("txtCodice");
  txtCodice_->setAccessibleName("Codice da inserire");
  lstCodici_->setObjectName("lstCodici");
  lstCodici_->setAccessibleName("Codici");
  auto* nessuno = new QLabel;
  nessuno->setObjectName("lblNessunCodice");
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(Margine, Margine, Margine, Margine);
  colonna->addWidget(txtCodice_);
  colonna->addWidget(nessuno);
  colonna->addWidget(lstCodici_);
  hide();
  scelta_ = new qtSceltaCampi(editore, *txtCodice_, *lstCodici_, *nessuno, qtSceltaCampi::Come::SoloCasella);
  connect(scelta_, &qtSceltaCampi::Confermata, this, &pnlInserisci::Confermata);
  connect(scelta_, &qtSceltaCampi::Lasciata, this, &pnlInserisci::Chiudi);
  txtCodice_->installEventFilter(this);
  finestra->installEventFilter(this);
}

void pnlInserisci::Apri(const QRect& cursore) {
  cursore_ = cursore;
  scelta_->Azzera();
  Colloca();
  show();
  raise();
  txtCodice_->setFocus(Qt::ShortcutFocusReason);
}

/// Inside the window, and not over the caret where there is room beside it.
void pnlInserisci::Colloca() {
  const QRect dove = parentWidget()->rect().adjusted(Margine, Margine, -Margine, -Margine);
  const QFontMetrics misure = fontMetrics();
  const QSize voluta(misure.averageCharWidth() * LarghezzaInCaratteri, misure.lineSpacing() * AltezzaInRighe);
  QRect posto(QPoint(cursore_.left(), cursore_.bottom() + Margine), voluta.boundedTo(dove.size()));
  if (posto.bottom() > dove.bottom() && cursore_.top() - Margine - posto.height() >= dove.top())
    posto.moveBottom(cursore_.top() - Margine);
  posto.moveLeft(std::clamp(posto.left(), dove.left(), dove.right() - posto.width() + 1));
  posto.moveTop(std::clamp(posto.top(), dove.top(), dove.bottom() - posto.height() + 1));
  setGeometry(posto);
}

void pnlInserisci::Chiudi() {
  if (isHidden()) return;
  if (isAncestorOf(window()->focusWidget())) emit Lasciato();
  hide();
}

/// Its own context menu takes the focus for a moment only.
bool pnlInserisci::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == parentWidget() && evento->type() == QEvent::Resize && isVisible()) Colloca();
  if (oggetto == txtCodice_ && evento->type() == QEvent::FocusOut &&
      static_cast<QFocusEvent*>(evento)->reason() != Qt::PopupFocusReason)
    Chiudi();
  return QFrame::eventFilter(oggetto, evento);
}

}  // namespace parvik
