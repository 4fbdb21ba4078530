#include "template/txtTCP.h"

#include <QFocusEvent>
#include <QFontDatabase>
#include <QResizeEvent>
#include <QTextDocument>
#include <QTextEdit>
#include <algorithm>

#include "template/txtDisposizione.h"

namespace parvik {
namespace {

constexpr std::array<const char*, MaxSezioni> NomiAccessibili = {"Testata", "Corpo", "Piede"};

/// What a person does to a section, or a program on somebody's behalf.
bool EUnIntervento(const QEvent& evento) {
  switch (evento.type()) {
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::ToolTip:
      return true;
    default:
      return evento.isInputEvent();
  }
}

/// Keys that only make another key of the next one.
bool EUnModificatore(int tasto) {
  constexpr std::array Modificatori = {
      Qt::Key_Shift,   Qt::Key_Control,    Qt::Key_Alt,         Qt::Key_AltGr,    Qt::Key_Meta,
      Qt::Key_Super_L, Qt::Key_Super_R,    Qt::Key_Hyper_L,     Qt::Key_Hyper_R,  Qt::Key_CapsLock,
      Qt::Key_NumLock, Qt::Key_ScrollLock, Qt::Key_Mode_switch, Qt::Key_Multi_key};
  return std::ranges::find(Modificatori, tasto) != Modificatori.end();
}

/// The keys that the base class would take from the window's shortcuts although it has nothing to undo.
bool EDellaFinestra(const QKeyEvent& evento) {
  return evento.matches(QKeySequence::Undo) || evento.matches(QKeySequence::Redo) ||
         evento.keyCombination() == QKeyCombination(Qt::ControlModifier, Qt::Key_Y);
}

QTextDocument* NuovoDocumento(QObject* padre) {
  auto* documento = new QTextDocument(padre);
  documento->setDocumentLayout(new txtDisposizione(documento));
  return documento;
}

}  // namespace

txtTCP::txtTCP(Documento& documento, Sezione sezione, QWidget* padre)
    : QPlainTextEdit(padre), documento_(documento), sezione_(sezione), comandi_(documento, sezione, *this) {
  setDocument(NuovoDocumento(this));
  specchio_ = new txtSpecchio(documento, sezione, *this);  // in front of the colours: it knows the text first
  colori_ = new qtColori(document(), *specchio_);
  setObjectName(QStringLiteral("txtTCP_%1").arg(Indice(sezione)));
  setAccessibleName(NomiAccessibili[Indice(sezione)]);
  setLineWrapMode(NoWrap);
  setTabChangesFocus(true);
  colori_->ImpostaTavolozza(palette());
  connect(specchio_, &txtSpecchio::CodiciCambiati, colori_, &qtColori::ColoraDa);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, &txtTCP::CursoreMosso);
  connect(this, &QPlainTextEdit::textChanged, this, &txtTCP::SegnaCodiciAlCursore);
}

void txtTCP::ImpostaUso(bool inUso) {
  if (inUso == InUso()) return;
  setReadOnly(!inUso);
  setEnabled(inUso);
  setUndoRedoEnabled(false);  // the toolkit turns it on: the document undoes
}

/// Whether an event is one that nothing may come of.
bool txtTCP::Esclude(QEvent& evento) const {
  if (InUso() || !EUnIntervento(evento)) return false;
  evento.ignore();
  return true;
}

bool txtTCP::event(QEvent* evento) {
  if (Esclude(*evento)) return true;
  if (evento->type() == QEvent::ShortcutOverride && EDellaFinestra(*static_cast<QKeyEvent*>(evento))) {
    evento->ignore();
    return true;
  }
  // Here and not in keyPressEvent, which never sees the keys that move the focus.
  if (evento->type() == QEvent::KeyPress && !EUnModificatore(static_cast<QKeyEvent*>(evento)->key()))
    emit TastoPremuto();
  // Not before it can be seen, as no section can when the program starts: loading a font takes time.
  if (evento->type() == QEvent::Show) setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  return QPlainTextEdit::event(evento);
}

void txtTCP::focusInEvent(QFocusEvent* evento) {
  QPlainTextEdit::focusInEvent(evento);
  documento_.InterrompiBattitura();
  if (InUso()) emit Attivata(sezione_);
}

void txtTCP::CursoreMosso() {
  if (!specchio_->AlLavoro()) documento_.InterrompiBattitura();
  SegnaCodiciAlCursore();
}

/// Marks the codes that the caret touches.
void txtTCP::SegnaCodiciAlCursore() {
  QList<QTextEdit::ExtraSelection> segni;
  for (const Selezione& codice : CodiciAlCursore(comandi_.Testo(), CursoreAttuale().Posto)) {
    QTextEdit::ExtraSelection segno;
    segno.cursor = specchio_->InTesto(CursoreSu(codice));
    segno.format.setBackground(colori_->FondoCodiceAttivo());
    segni += segno;
  }
  if (!segni.isEmpty() || !extraSelections().isEmpty()) setExtraSelections(segni);
}

void txtTCP::changeEvent(QEvent* evento) {
  QPlainTextEdit::changeEvent(evento);
  if (evento->type() == QEvent::PaletteChange) {
    colori_->ImpostaTavolozza(palette());
    SegnaCodiciAlCursore();
  }
}

/// In another width the base class lays out every line anew, so that the horizontal scroll bar is never
/// longer than it need be. Unwrapped lines look alike in any width: where there are very many, the window
/// comes first.
void txtTCP::resizeEvent(QResizeEvent* evento) {
  constexpr int RigheDisposteSubito = 100'000;
  const bool tante = document()->blockCount() > RigheDisposteSubito;
  QResizeEvent ridotto(evento->size(), tante ? evento->size() : evento->oldSize());
  QPlainTextEdit::resizeEvent(&ridotto);
}

}  // namespace parvik
