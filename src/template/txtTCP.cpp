#include "template/txtTCP.h"

#include <QFocusEvent>
#include <QFontDatabase>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <algorithm>

#include "common/frmTesto.h"
#include "template/txtDisposizione.h"
#include "template/txtVeduta.h"

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

QTextDocument* NuovoDocumento(QObject* padre) {
  auto* documento = new QTextDocument(padre);
  documento->setDocumentLayout(new txtDisposizione(documento));
  return documento;
}

}  // namespace

txtTCP::txtTCP(Sezione sezione, QWidget* padre) : QPlainTextEdit(padre), sezione_(sezione) {
  setDocument(NuovoDocumento(this));
  colori_ = new frmColori(document());
  setObjectName(QStringLiteral("txtTCP_%1").arg(Indice(sezione)));
  setAccessibleName(NomiAccessibili[Indice(sezione)]);
  setLineWrapMode(NoWrap);
  setTabChangesFocus(true);
  colori_->ImpostaTavolozza(palette());
  connect(document(), &QTextDocument::contentsChange, this, [this] { ++edizione_; });
  connect(this, &QPlainTextEdit::textChanged, this, &txtTCP::Modificata);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, &txtTCP::SegnaCodiciAlCursore);
  connect(this, &QPlainTextEdit::textChanged, this, &txtTCP::SegnaCodiciAlCursore);
}

// Not toPlainText: it turns the no-break space into a space.
std::string txtTCP::Ansi() const {
  return DaSchermo(document()->toRawText());
}

txtTCP::RigheTesto txtTCP::Righe(int prima, std::size_t massimo) const {
  RigheTesto righe{.Testo = {}, .Prossima = prima, .Edizione = edizione_};
  QTextBlock riga = document()->findBlockByNumber(prima);
  const auto spazio = static_cast<qsizetype>(massimo);
  while (righe.Prossima == prima || righe.Testo.size() + riga.length() <= spazio) {
    righe.Testo += riga.text();
    ++righe.Prossima;
    riga = riga.next();
    righe.Ultime = !riga.isValid();
    if (righe.Ultime) break;
    righe.Testo += QChar(QChar::ParagraphSeparator);
  }
  return righe;
}

std::string txtTCP::AnsiAPezzi(const std::stop_token& smetti) {
  constexpr std::size_t Pezzo = 128UL * 1024UL;  // characters: well under a millisecond of the window's
  std::string ansi;
  RigheTesto righe;
  while (!righe.Ultime && !smetti.stop_requested()) {
    const int da = righe.Prossima;
    const int edizione = righe.Edizione;
    QMetaObject::invokeMethod(
        this, [&] { righe = Righe(da, Pezzo); }, Qt::BlockingQueuedConnection);
    if (da > 0 && righe.Edizione != edizione) {
      ansi.clear();
      righe = {};
    } else {
      ansi += DaSchermo(righe.Testo);
    }
  }
  return ansi;
}

void txtTCP::ImpostaAnsi(std::string_view ansi) {
  const QSignalBlocker muto(this);
  setPlainText(PerSchermo(ansi));
  SegnaCodiciAlCursore();
}

void txtTCP::CompletaUltimaRiga() {
  const QSignalBlocker muto(this);
  const int ancora = textCursor().anchor();
  const int posizione = textCursor().position();
  QTextCursor fine(document());
  fine.movePosition(QTextCursor::End);
  fine.insertBlock();
  // A caret at the very end was carried along by the new line.
  QTextCursor cursore(document());
  cursore.setPosition(ancora);
  cursore.setPosition(posizione, QTextCursor::KeepAnchor);
  setTextCursor(cursore);
}

void txtTCP::InserisciCodice(std::string_view codice) {
  QTextCursor cursore = textCursor();
  cursore.beginEditBlock();
  cursore.insertText(PerSchermo(codice));
  // A removal at the end of the step: what is typed next would otherwise be joined to the insertion, and one
  // undo would take both.
  cursore.insertText(" ");
  cursore.deletePreviousChar();
  cursore.endEditBlock();
  setTextCursor(cursore);
}

void txtTCP::ImpostaUso(bool inUso) {
  if (inUso == InUso()) return;
  setReadOnly(!inUso);
  setEnabled(inUso);
}

/// Whether an event is one that nothing may come of.
bool txtTCP::Esclude(QEvent& evento) const {
  if (InUso() || !EUnIntervento(evento)) return false;
  evento.ignore();
  return true;
}

void txtTCP::Seleziona(Selezione selezione) {
  QTextCursor cursore(document());
  cursore.setPosition(static_cast<int>(selezione.Inizio));
  cursore.setPosition(static_cast<int>(selezione.Fine()), QTextCursor::KeepAnchor);
  setTextCursor(cursore);
}

Selezione txtTCP::Selezionato() const {
  const QTextCursor cursore = textCursor();
  return {.Inizio = static_cast<std::size_t>(cursore.selectionStart()),
          .Lunghezza = static_cast<std::size_t>(cursore.selectionEnd() - cursore.selectionStart())};
}

bool txtTCP::event(QEvent* evento) {
  if (Esclude(*evento)) return true;
  // Here and not in keyPressEvent, which never sees the keys that move the focus.
  if (evento->type() == QEvent::KeyPress && !EUnModificatore(static_cast<QKeyEvent*>(evento)->key()))
    emit Modificata();
  // Not before it can be seen, as no section can when the program starts: loading a font takes time.
  if (evento->type() == QEvent::Show) setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  return QPlainTextEdit::event(evento);
}

void txtTCP::focusInEvent(QFocusEvent* evento) {
  QPlainTextEdit::focusInEvent(evento);
  if (InUso()) emit Attivata(sezione_);
}

/// Marks the codes that the caret touches. Looks at the caret's line only.
void txtTCP::SegnaCodiciAlCursore() {
  const QTextCursor cursore = textCursor();
  const QTextBlock riga = cursore.block();
  QList<QTextEdit::ExtraSelection> segni;
  for (const PosizioneCodice& codice :
       CodiciAlCursore(Segni(riga), static_cast<std::size_t>(cursore.positionInBlock()))) {
    QTextEdit::ExtraSelection segno;
    segno.cursor = QTextCursor(document());
    segno.cursor.setPosition(riga.position() + static_cast<int>(codice.Inizio));
    segno.cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor,
                              static_cast<int>(codice.Lunghezza));
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
