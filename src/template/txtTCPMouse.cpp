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
#include <QTextBlock>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "common/frmTesto.h"
#include "template/ParoleSezione.h"
#include "template/txtTCP.h"
#include "template/txtVeduta.h"

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
void Ricollega(QMenu& menu, const char* nome, txtTCP* editor, Comando comando) {
  auto* voce = menu.findChild<QAction*>(nome, Qt::FindDirectChildrenOnly);
  if (voce == nullptr) return;
  voce->disconnect();
  QObject::connect(voce, &QAction::triggered, editor, comando);
}

}  // namespace

/// The position of the character drawn at `punto` of the viewport; behind the end of a line, the line's end.
int txtTCP::CarattereAlPunto(QPoint punto) const {
  QTextCursor cursore = cursorForPosition(punto);
  // The nearest place of the caret is behind the character where its right half was hit.
  if (punto.x() < cursorRect(cursore).left() && !cursore.atBlockStart())
    cursore.movePosition(QTextCursor::PreviousCharacter);
  return cursore.position();
}

std::optional<Selezione> txtTCP::CodiceAlPunto(QPoint punto) const {
  const int posizione = CarattereAlPunto(punto);
  const QTextBlock riga = document()->findBlock(posizione);
  if (posizione == riga.position() + riga.length() - 1) return std::nullopt;  // behind the end: no character
  const Veduta veduta = VedutaIntorno(*document(), posizione, posizione + 1);
  const auto codice = CodiceSotto(veduta.Testo, veduta.DaDocumento(posizione));
  if (!codice) return std::nullopt;
  return veduta.InDocumento({.Inizio = codice->Inizio, .Lunghezza = codice->Lunghezza});
}

Selezione txtTCP::ParolaAlPunto(QPoint punto) const {
  const int posizione = CarattereAlPunto(punto);
  const Veduta veduta = VedutaDiRiga(*document(), posizione);
  return veduta.InDocumento(ParolaSotto(veduta.Testo, veduta.DaDocumento(posizione)));
}

bool txtTCP::viewportEvent(QEvent* evento) {
  if (Esclude(*evento)) return true;
  if (evento->type() != QEvent::ToolTip) return QPlainTextEdit::viewportEvent(evento);
  const auto* aiuto = static_cast<QHelpEvent*>(evento);
  if (!MostraDescrizione(aiuto->pos(), aiuto->globalPos())) QToolTip::hideText();
  return true;
}

bool txtTCP::MostraDescrizione(QPoint punto, QPoint globale) {
  const auto codice = descrizione_ ? CodiceAlPunto(punto) : std::nullopt;
  if (!codice) return false;
  QTextCursor cursore(document());
  cursore.setPosition(static_cast<int>(codice->Inizio));
  cursore.setPosition(static_cast<int>(codice->Fine()), QTextCursor::KeepAnchor);
  const std::string testo = DaSchermo(cursore.selectedText());
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
  if (LasciaTogliere(Selezionato(), Pressione::Prima)) return false;
  gesto_.Trattenuta = Selezionato();
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
  const bool indietro = ultima.Inizio < prima.Inizio;
  QTextCursor cursore(document());
  cursore.setPosition(static_cast<int>(indietro ? prima.Fine() : prima.Inizio));
  cursore.setPosition(static_cast<int>(indietro ? ultima.Inizio : std::max(prima.Fine(), ultima.Fine())),
                      QTextCursor::KeepAnchor);
  setTextCursor(cursore);
  ensureCursorVisible();
}

void txtTCP::mouseReleaseEvent(QMouseEvent* evento) {
  const Gesto gesto = std::exchange(gesto_, {});
  if (evento->button() == Qt::MiddleButton && Selezioni() != nullptr)
    return Deposita(PostoAlPunto(evento->pos()), Selezioni()->text(QClipboard::Selection));
  QPlainTextEdit::mouseReleaseEvent(evento);
  if (gesto.Trattenuta) Seleziona(*gesto.Trattenuta);
  if (gesto.Parola) OffriSelezione();
}

void txtTCP::mouseDoubleClickEvent(QMouseEvent* evento) {
  const bool sinistro = evento->button() == Qt::LeftButton;
  if (const auto codice = sinistro ? CodiceAlPunto(evento->pos()) : std::nullopt) return ApriCodice(*codice);
  QPlainTextEdit::mouseDoubleClickEvent(evento);
  if (!sinistro) return;
  gesto_.Parola = ParolaAlPunto(evento->pos());
  Seleziona(*gesto_.Parola);
}

/// To whoever takes the system's selection, as the toolkit does with the selections that it makes itself.
void txtTCP::OffriSelezione() {
  if (Selezioni() != nullptr && textCursor().hasSelection())
    Selezioni()->setMimeData(createMimeDataFromSelection(), QClipboard::Selection);
}

void txtTCP::contextMenuEvent(QContextMenuEvent* evento) {
  QMenu* menu = createStandardContextMenu(evento->pos());
  Ricollega(*menu, "edit-cut", this, [this] { Taglia(); });
  Ricollega(*menu, "edit-delete", this, [this] { Elimina(); });
  for (QAction* voce : menu->actions())
    if (voce->menu() != nullptr) menu->removeAction(voce);  // characters that no template holds
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->popup(evento->globalPos());
}

int txtTCP::PostoAlPunto(QPoint punto) const {
  const int posto = cursorForPosition(punto).position();
  const Veduta veduta = VedutaIntorno(*document(), posto, posto);
  return veduta.InDocumento(FuoriDaiCodici(veduta.Testo, veduta.DaDocumento(posto)));
}

void txtTCP::Deposita(int posto, const QString& testo) {
  Seleziona({.Inizio = static_cast<std::size_t>(posto), .Lunghezza = 0});
  Incolla(testo);
  ensureCursorVisible();
}

/// The selection to another place of the same text, in one step to undo.
void txtTCP::Sposta(int posto, const QString& testo) {
  QTextCursor via = textCursor();
  if (posto >= via.selectionStart() && posto <= via.selectionEnd()) return;  // where it is
  if (!LasciaTogliere(Selezionato(), Pressione::Prima)) return;
  QTextCursor meta(document());
  meta.setPosition(posto);
  via.beginEditBlock();
  via.removeSelectedText();
  Deposita(meta.position(), testo);
  via.endEditBlock();
}

void txtTCP::dropEvent(QDropEvent* evento) {
  QDragLeaveEvent finito;
  QPlainTextEdit::dragLeaveEvent(&finito);  // what the toolkit shows while something is dragged over the text
  if (!evento->mimeData()->hasText()) return evento->ignore();
  const int posto = PostoAlPunto(evento->position().toPoint());
  const bool suo = evento->source() == viewport() && evento->dropAction() == Qt::MoveAction;
  if (suo) {
    Sposta(posto, evento->mimeData()->text());
  } else {
    Deposita(posto, evento->mimeData()->text());
  }
  evento->acceptProposedAction();
  setFocus(Qt::OtherFocusReason);
  emit Attivata(sezione_);
}

}  // namespace parvik
