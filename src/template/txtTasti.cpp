#include "template/txtTasti.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>

#include "template/ParoleSezione.h"

namespace parvik {
namespace {

// Two keys of the toolkit's own, which it has on some systems: here on all.
const QKeyCombination CancellaAvanti(Qt::ControlModifier, Qt::Key_D);
const QKeyCombination CancellaFineRiga(Qt::ControlModifier, Qt::Key_K);

struct TastoDiParola {
  QKeySequence::StandardKey Tasto;
  PassoDiParola Passo;
};

constexpr std::array TastiDiParola = {
    TastoDiParola{QKeySequence::MoveToNextWord, {ParolaSeguente, false}},
    TastoDiParola{QKeySequence::MoveToPreviousWord, {ParolaPrecedente, false}},
    TastoDiParola{QKeySequence::SelectNextWord, {ParolaSeguente, true}},
    TastoDiParola{QKeySequence::SelectPreviousWord, {ParolaPrecedente, true}}};

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

/// Alt and the system's key make a command of any other key, whether there is such a command or not.
bool EUnComando(const QKeyEvent& evento) {
  return (evento.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0;
}

}  // namespace

Cursore PassoDiParola::Da(const TestoSezione& testo, Cursore cursore) const {
  const std::size_t posto = Destinazione(testo, cursore.Posto);
  return {.Ancora = Seleziona ? cursore.Ancora : posto, .Posto = posto};
}

std::optional<TastoSezione> TastoDi(const QKeyEvent& evento) {
  if (evento.keyCombination() == CancellaAvanti) return TastoSezione::Canc;
  switch (evento.key()) {
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

std::optional<PassoDiParola> PassoDi(const QKeyEvent& evento) {
  const auto questo = std::ranges::find_if(
      TastiDiParola, [&evento](const TastoDiParola& uno) { return evento.matches(uno.Tasto); });
  if (questo == TastiDiParola.end()) return std::nullopt;
  return questo->Passo;
}

Pressione PressioneDi(const QKeyEvent& evento) {
  return evento.isAutoRepeat() ? Pressione::Ripetuta : Pressione::Prima;
}

bool EUnModificatore(const QKeyEvent& evento) {
  constexpr std::array Modificatori = {
      Qt::Key_Shift,   Qt::Key_Control,    Qt::Key_Alt,         Qt::Key_AltGr,    Qt::Key_Meta,
      Qt::Key_Super_L, Qt::Key_Super_R,    Qt::Key_Hyper_L,     Qt::Key_Hyper_R,  Qt::Key_CapsLock,
      Qt::Key_NumLock, Qt::Key_ScrollLock, Qt::Key_Mode_switch, Qt::Key_Multi_key};
  return std::ranges::find(Modificatori, evento.key()) != Modificatori.end();
}

bool FinisceRiga(const QKeyEvent& evento) {
  return (evento.key() == Qt::Key_Return || evento.key() == Qt::Key_Enter) && !EUnComando(evento);
}

bool ScriveTesto(const QKeyEvent& evento) {
  const bool ctrl = evento.modifiers().testFlag(Qt::ControlModifier);
  if (ctrl != evento.modifiers().testFlag(Qt::AltModifier)) return false;
  if (evento.modifiers().testFlag(Qt::MetaModifier) || evento.text().isEmpty()) return false;
  return evento.text().at(0).category() != QChar::Other_Control;
}

bool CancellaFinoAFineRiga(const QKeyEvent& evento) {
  return evento.keyCombination() == CancellaFineRiga;
}

bool EDelToolkit(const QKeyEvent& evento) {
  return std::ranges::any_of(TastiDelToolkit,
                             [&evento](QKeySequence::StandardKey tasto) { return evento.matches(tasto); });
}

bool EDellaFinestra(const QKeyEvent& evento) {
  if (ScriveTesto(evento)) return false;  // most are, and the toolkit's table is long
  return evento.matches(QKeySequence::Undo) || evento.matches(QKeySequence::Redo) ||
         evento.keyCombination() == QKeyCombination(Qt::ControlModifier, Qt::Key_Y);
}

}  // namespace parvik
