// The section editor's keys, what an input method composes, and the clipboard.
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

#include "common/qtTesto.h"
#include "template/ParoleSezione.h"
#include "template/txtTCP.h"

namespace parvik {
namespace {

// Two keys of the toolkit's own, which it has on some systems: here on all.
const QKeyCombination CancellaAvanti(Qt::ControlModifier, Qt::Key_D);
const QKeyCombination CancellaFineRiga(Qt::ControlModifier, Qt::Key_K);

std::optional<TastoSezione> TastoDi(const QKeyEvent& evento) {
  if (evento.keyCombination() == CancellaAvanti) return TastoSezione::Canc;
  switch (evento.key()) {  // with Shift, Ctrl or Alt they are the same keys
    case Qt::Key_Backspace:
      return TastoSezione::Backspace;
    case Qt::Key_Delete:
      return TastoSezione::Canc;
    case Qt::Key_F4:
      return TastoSezione::F4;
    default:
      return std::nullopt;
  }
}

Pressione PressioneDi(const QKeyEvent& evento) {
  return evento.isAutoRepeat() ? Pressione::Ripetuta : Pressione::Prima;
}

/// Alt and the system's key make a command of any other key, whether there is such a command or not.
bool EUnComando(const QKeyEvent& evento) {
  return (evento.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0;
}

bool FinisceRiga(const QKeyEvent& evento) {
  return (evento.key() == Qt::Key_Return || evento.key() == Qt::Key_Enter) && !EUnComando(evento);
}

/// Whether a key event types its text. Ctrl and Alt together may be a third level of the keyboard.
bool ScriveTesto(const QKeyEvent& evento) {
  const bool ctrl = evento.modifiers().testFlag(Qt::ControlModifier);
  if (ctrl != evento.modifiers().testFlag(Qt::AltModifier)) return false;
  if (evento.modifiers().testFlag(Qt::MetaModifier) || evento.text().isEmpty()) return false;
  return evento.text().at(0).category() != QChar::Other_Control;
}

/// A step of the caret by a word.
struct PassoDiParola {
  QKeySequence::StandardKey Tasto;
  std::size_t (*Destinazione)(const TestoSezione& testo, std::size_t cursore);
  QTextCursor::MoveMode Modo;
};

constexpr std::array PassiDiParola = {
    PassoDiParola{QKeySequence::MoveToNextWord, ParolaSeguente, QTextCursor::MoveAnchor},
    PassoDiParola{QKeySequence::MoveToPreviousWord, ParolaPrecedente, QTextCursor::MoveAnchor},
    PassoDiParola{QKeySequence::SelectNextWord, ParolaSeguente, QTextCursor::KeepAnchor},
    PassoDiParola{QKeySequence::SelectPreviousWord, ParolaPrecedente, QTextCursor::KeepAnchor}};

/// The keys that are left to the toolkit: they move, select and copy. Paste comes back here.
constexpr std::array TastiDelToolkit = {QKeySequence::MoveToNextChar,
                                        QKeySequence::MoveToPreviousChar,
                                        QKeySequence::MoveToNextLine,
                                        QKeySequence::MoveToPreviousLine,
                                        QKeySequence::MoveToNextPage,
                                        QKeySequence::MoveToPreviousPage,
                                        QKeySequence::MoveToStartOfLine,
                                        QKeySequence::MoveToEndOfLine,
                                        QKeySequence::MoveToStartOfBlock,
                                        QKeySequence::MoveToEndOfBlock,
                                        QKeySequence::MoveToStartOfDocument,
                                        QKeySequence::MoveToEndOfDocument,
                                        QKeySequence::SelectNextChar,
                                        QKeySequence::SelectPreviousChar,
                                        QKeySequence::SelectNextLine,
                                        QKeySequence::SelectPreviousLine,
                                        QKeySequence::SelectNextPage,
                                        QKeySequence::SelectPreviousPage,
                                        QKeySequence::SelectStartOfLine,
                                        QKeySequence::SelectEndOfLine,
                                        QKeySequence::SelectStartOfBlock,
                                        QKeySequence::SelectEndOfBlock,
                                        QKeySequence::SelectStartOfDocument,
                                        QKeySequence::SelectEndOfDocument,
                                        QKeySequence::SelectAll,
                                        QKeySequence::Copy,
                                        QKeySequence::Paste};

}  // namespace

void txtTCP::Scrivi(const QString& testo, Pressione pressione) {
  if (!InUso()) return;
  comandi_.Scrivi(DaSchermo(testo), pressione);
  ensureCursorVisible();
}

void txtTCP::Incolla(const QString& testo) {
  if (InUso()) comandi_.Incolla(DaAltrove(testo));
}

void txtTCP::Elimina() {
  if (!InUso()) return;
  comandi_.Elimina();
  ensureCursorVisible();
}

void txtTCP::Taglia(Pressione pressione) {
  const Selezione scelta = comandi_.Selezionato();
  if (!InUso() || scelta.Lunghezza == 0 || !comandi_.LasciaTogliere(scelta, pressione)) return;
  copy();
  comandi_.Togli(scelta);
  ensureCursorVisible();
}

bool txtTCP::MuoviDiParola(const QKeyEvent& evento) {
  const auto passo = std::ranges::find_if(
      PassiDiParola, [&evento](const PassoDiParola& uno) { return evento.matches(uno.Tasto); });
  if (passo == PassiDiParola.end()) return false;
  const Cursore cursore = CursoreAttuale();
  const std::size_t posto = passo->Destinazione(comandi_.Testo(), cursore.Posto);
  Poni({.Ancora = passo->Modo == QTextCursor::KeepAnchor ? cursore.Ancora : posto, .Posto = posto});
  return true;
}

bool txtTCP::TastoDelToolkit(QKeyEvent& evento) {
  const auto preme = [&evento](QKeySequence::StandardKey tasto) { return evento.matches(tasto); };
  if (std::ranges::none_of(TastiDelToolkit, preme)) return false;
  const bool trattenuta = evento.isAutoRepeat() && preme(QKeySequence::Paste) && textCursor().hasSelection();
  if (!trattenuta) QPlainTextEdit::keyPressEvent(&evento);
  return true;
}

void txtTCP::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = PressioneDi(*evento);
  if (const auto tasto = TastoDi(*evento)) {
    comandi_.Premi(*tasto, pressione);
  } else if (FinisceRiga(*evento)) {
    comandi_.VaiACapo(pressione);
  } else if (ScriveTesto(*evento)) {
    Scrivi(evento->text(), pressione);
  } else if (evento->matches(QKeySequence::Cut)) {
    Taglia(pressione);
  } else if (evento->keyCombination() == CancellaFineRiga) {
    comandi_.CancellaFinoAFineRiga(pressione);
  } else {
    // A Tab too, where there is nowhere to move the focus: templates hold none.
    if (!MuoviDiParola(*evento) && !TastoDelToolkit(*evento)) evento->ignore();
    return;
  }
  ensureCursorVisible();
}

/// What is being composed takes the place of the selection, or of what the input method replaces, from the
/// start: the toolkit would take both away by itself. What is finished at once is typed over them.
bool txtTCP::AccettaComposizione(const QInputMethodEvent& evento) {
  const bool compone = !evento.preeditString().isEmpty() &&
                       evento.preeditString() != textCursor().block().layout()->preeditAreaText();
  const int ultimo = document()->characterCount() - 1;
  const int da = std::clamp(textCursor().position() + evento.replacementStart(), 0, ultimo);
  const std::size_t inizio = specchio_->InByte(da);
  const std::size_t fine = specchio_->InByte(std::clamp(da + evento.replacementLength(), da, ultimo));
  const Selezione scelta = compone ? comandi_.Selezionato() : Selezione{};
  const Selezione via =
      scelta.Lunghezza > 0 ? scelta : Selezione{.Inizio = inizio, .Lunghezza = fine - inizio};
  if (!comandi_.LasciaTogliere(via, Pressione::Prima)) return false;
  if (via.Lunghezza > 0) comandi_.Togli(via);
  return true;
}

void txtTCP::inputMethodEvent(QInputMethodEvent* evento) {
  evento->accept();
  if (!AccettaComposizione(*evento)) return QGuiApplication::inputMethod()->reset();
  // The base class shows what is being composed; what is finished is typed.
  QInputMethodEvent inCorso(evento->preeditString(), evento->attributes());
  QPlainTextEdit::inputMethodEvent(&inCorso);
  Scrivi(evento->commitString(), Pressione::Prima);
}

void txtTCP::FinisciComposizione() {
  if (textCursor().block().layout()->preeditAreaText().isEmpty()) return;
  QGuiApplication::inputMethod()->reset();
  QInputMethodEvent niente;
  QPlainTextEdit::inputMethodEvent(&niente);
}

// Not the base class's: it turns the no-break space into a space, and a copy would not be what was copied.
QMimeData* txtTCP::createMimeDataFromSelection() const {
  auto* dati = new QMimeData;  // the caller owns it
  dati->setText(textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n'));
  return dati;
}

void txtTCP::insertFromMimeData(const QMimeData* dati) {
  if (dati->hasText()) Incolla(dati->text());
}

}  // namespace parvik
