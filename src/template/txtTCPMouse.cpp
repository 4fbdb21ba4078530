// The section editor's mouse: codes under the pointer, words, dragging and dropping, the context menu.
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "common/qtTesto.h"
#include "template/ParoleSezione.h"
#include "template/txtTCP.h"
#include "tokens/Codice.h"

namespace parvik {
namespace {

/// What a tooltip would take for mark-up is the catalogue's or the user's own text.
QString ComeTestoSemplice(const QString& testo) {
  return Qt::mightBeRichText(testo) ? "<p>" + testo.toHtmlEscaped() + "</p>" : testo;
}

/// The clipboard of what is selected, where the system has one, and what the middle button brings.
QClipboard* Selezioni() {
  QClipboard* appunti = QGuiApplication::clipboard();
  return appunti->supportsSelection() ? appunti : nullptr;
}

/// Lets an entry of the toolkit's context menu do something else.
template <class Comando>
void Ricollega(QMenu& menu, const char* nome, bool possibile, txtTCP* editor, Comando comando) {
  auto* voce = menu.findChild<QAction*>(nome, Qt::FindDirectChildrenOnly);
  if (voce == nullptr) return;
  voce->disconnect();
  voce->setEnabled(possibile);
  QObject::connect(voce, &QAction::triggered, editor, comando);
}

}  // namespace

/// The place of the character drawn at `punto` of the viewport; behind the end of a line, the line's end.
std::size_t txtTCP::CarattereAlPunto(QPoint punto) const {
  QTextCursor cursore = cursorForPosition(punto);
  // The nearest place of the caret is behind the character where its right half was hit.
  if (punto.x() < cursorRect(cursore).left() && !cursore.atBlockStart())
    cursore.movePosition(QTextCursor::PreviousCharacter);
  return specchio_->InByte(cursore.position());
}

/// The same, where there is a character.
std::optional<std::size_t> txtTCP::ByteAlPunto(QPoint punto) const {
  const std::size_t posto = CarattereAlPunto(punto);
  const TestoSezione& testo = comandi_.Testo();
  if (posto == testo.Riga(testo.RigaDi(posto)).Fine()) return std::nullopt;
  return posto;
}

Selezione txtTCP::ParolaAlPunto(QPoint punto) const {
  return ParolaSotto(comandi_.Testo(), CarattereAlPunto(punto));
}

bool txtTCP::viewportEvent(QEvent* evento) {
  if (Esclude(*evento)) return true;
  if (evento->type() != QEvent::ToolTip) return QPlainTextEdit::viewportEvent(evento);
  const auto* aiuto = static_cast<QHelpEvent*>(evento);
  if (!MostraDescrizione(aiuto->pos(), aiuto->globalPos())) QToolTip::hideText();
  return true;
}

bool txtTCP::MostraDescrizione(QPoint punto, QPoint globale) {
  const auto posto = descrizione_ ? ByteAlPunto(punto) : std::nullopt;
  if (!posto) return false;
  const Pezzo codice = comandi_.Testo().PezzoDi(*posto);
  if (codice.Genere != GenerePezzo::Codice) return false;
  const std::string testo = comandi_.Testo().Byte(codice);
  QToolTip::showText(globale, ComeTestoSemplice(descrizione_(ContenutoDi(testo))), viewport());
  return true;
}

void txtTCP::mousePressEvent(QMouseEvent* evento) {
  const QTextCursor prima = textCursor();
  gesto_ = {};
  QPlainTextEdit::mousePressEvent(evento);
  const QTextCursor dopo = textCursor();
  // A press on the selection leaves it as it is, for it may be dragged.
  const bool rimasta = prima.hasSelection() && prima.anchor() == dopo.anchor() && prima == dopo;
  if (evento->button() == Qt::LeftButton && !evento->modifiers().testFlag(Qt::ShiftModifier) && rimasta)
    gesto_.Presa = evento->globalPosition().toPoint();
}

/// A selection that cuts a code is not dragged: it grows, and stays when the button is released.
bool txtTCP::TrattieniTrascinamento(const QMouseEvent& evento) {
  if (gesto_.Trattenuta) return true;
  if (!gesto_.Presa) return false;
  const int strada = (evento.globalPosition().toPoint() - *gesto_.Presa).manhattanLength();
  if (strada < QApplication::startDragDistance()) return false;
  gesto_.Presa.reset();
  if (comandi_.LasciaTogliere(comandi_.Selezionato(), Pressione::Prima)) return false;
  gesto_.Trattenuta = comandi_.Selezionato();
  return true;
}

void txtTCP::mouseMoveEvent(QMouseEvent* evento) {
  if (!evento->buttons().testFlag(Qt::LeftButton)) return QPlainTextEdit::mouseMoveEvent(evento);
  if (TrattieniTrascinamento(*evento)) return;
  if (gesto_.Parola) return EstendiParola(evento->pos());
  QPlainTextEdit::mouseMoveEvent(evento);
}

/// From the word of the double click to the one under the pointer, both whole.
void txtTCP::EstendiParola(QPoint punto) {
  const Selezione prima = *gesto_.Parola;
  const Selezione ultima = ParolaAlPunto(punto);
  if (ultima.Inizio < prima.Inizio) {
    Poni({.Ancora = prima.Fine(), .Posto = ultima.Inizio});
  } else {
    Poni({.Ancora = prima.Inizio, .Posto = std::max(prima.Fine(), ultima.Fine())});
  }
  ensureCursorVisible();
}

void txtTCP::mouseReleaseEvent(QMouseEvent* evento) {
  const Gesto gesto = std::exchange(gesto_, {});
  if (evento->button() == Qt::MiddleButton && Selezioni() != nullptr) {
    const QString testo = Selezioni()->text(QClipboard::Selection);
    return comandi_.Deposita(PostoAlPunto(evento->pos()), DaAltrove(testo));
  }
  QPlainTextEdit::mouseReleaseEvent(evento);
  if (gesto.Trattenuta) Poni(CursoreSu(*gesto.Trattenuta));
  if (gesto.Parola) OffriSelezione();
}

void txtTCP::mouseDoubleClickEvent(QMouseEvent* evento) {
  const bool sinistro = evento->button() == Qt::LeftButton;
  const auto posto = sinistro ? ByteAlPunto(evento->pos()) : std::nullopt;
  if (const auto codice = posto ? CodiceSotto(comandi_.Testo(), *posto) : std::nullopt)
    return comandi_.ApriCodice(*codice);
  QPlainTextEdit::mouseDoubleClickEvent(evento);
  if (!sinistro) return;
  gesto_.Parola = ParolaAlPunto(evento->pos());
  Poni(CursoreSu(*gesto_.Parola));
}

/// To whoever takes the system's selection, as the toolkit does with the selections that it makes itself.
void txtTCP::OffriSelezione() {
  if (Selezioni() != nullptr && textCursor().hasSelection())
    Selezioni()->setMimeData(createMimeDataFromSelection(), QClipboard::Selection);
}

void txtTCP::contextMenuEvent(QContextMenuEvent* evento) {
  QMenu* menu = createStandardContextMenu(evento->pos());
  const bool scelta = comandi_.Selezionato().Lunghezza > 0;
  Ricollega(*menu, "edit-undo", documento_.PuoAnnullare(), this, &txtTCP::DaAnnullare);
  Ricollega(*menu, "edit-redo", documento_.PuoRipetere(), this, &txtTCP::DaRipetere);
  Ricollega(*menu, "edit-cut", scelta, this, [this] { Taglia(); });
  Ricollega(*menu, "edit-delete", scelta, this, [this] { Elimina(); });
  for (QAction* voce : menu->actions())
    if (voce->menu() != nullptr) menu->removeAction(voce);  // characters that no template holds
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->popup(evento->globalPos());
}

std::size_t txtTCP::PostoAlPunto(QPoint punto) const {
  return FuoriDaiCodici(comandi_.Testo(), specchio_->InByte(cursorForPosition(punto).position()));
}

void txtTCP::dropEvent(QDropEvent* evento) {
  QDragLeaveEvent finito;
  QPlainTextEdit::dragLeaveEvent(&finito);  // what the toolkit shows while something is dragged over the text
  if (!evento->mimeData()->hasText()) return evento->ignore();
  const std::size_t posto = PostoAlPunto(evento->position().toPoint());
  const bool suo = evento->source() == viewport() && evento->dropAction() == Qt::MoveAction;
  if (suo) {
    comandi_.Sposta(posto);
  } else {
    comandi_.Deposita(posto, DaAltrove(evento->mimeData()->text()));
  }
  ensureCursorVisible();
  evento->acceptProposedAction();
  setFocus(Qt::OtherFocusReason);
  emit Attivata(sezione_);
}

}  // namespace parvik
