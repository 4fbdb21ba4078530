#include "template/txtComposizione.h"

#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

#include "template/txtSpecchio.h"

namespace parvik {
namespace {

QString Composto(const QPlainTextEdit& editor) {
  return editor.textCursor().block().layout()->preeditAreaText();
}

/// The part that the event names from the caret on.
Selezione Nominata(const QInputMethodEvent& evento, const QPlainTextEdit& editor,
                   const txtSpecchio& specchio) {
  const int ultimo = editor.document()->characterCount() - 1;
  const int da = std::clamp(editor.textCursor().position() + evento.replacementStart(), 0, ultimo);
  const int a = std::clamp(da + evento.replacementLength(), da, ultimo);
  const std::size_t inizio = specchio.InByte(da);
  return {.Inizio = inizio, .Lunghezza = specchio.InByte(a) - inizio};
}

}  // namespace

bool Compone(const QPlainTextEdit& editor) {
  return !Composto(editor).isEmpty();
}

Selezione SostituitaDa(const QInputMethodEvent& evento, const QPlainTextEdit& editor,
                       const txtSpecchio& specchio) {
  const QString& composto = evento.preeditString();
  const bool comincia = !composto.isEmpty() && composto != Composto(editor);
  const QTextCursor cursore = editor.textCursor();
  if (comincia && cursore.hasSelection()) return specchio.InByte(cursore).Selezionato();
  return Nominata(evento, editor, specchio);
}

}  // namespace parvik
