#include "template/txtAccessibile.h"

#include <QTextBlock>
#include <algorithm>

#include "template/txtTCP.h"

namespace parvik {
namespace {

QAccessibleInterface* Crea(const QString& classe, QObject* oggetto) {
  auto* editor = qobject_cast<txtTCP*>(oggetto);
  const bool nostra = editor != nullptr && classe == txtTCP::staticMetaObject.className();
  return nostra ? new txtAccessibile(*editor) : nullptr;  // the toolkit owns it
}

}  // namespace

txtAccessibile::txtAccessibile(txtTCP& editor) : QAccessibleWidget(&editor, QAccessible::EditableText) {}

void txtAccessibile::Registra() {
  QAccessible::installFactory(Crea);
}

txtTCP& txtAccessibile::Editor() const {
  return *static_cast<txtTCP*>(widget());
}

QString txtAccessibile::Testo() const {
  return Editor().document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

void* txtAccessibile::interface_cast(QAccessible::InterfaceType tipo) {
  if (tipo == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (tipo == QAccessible::EditableTextInterface) return static_cast<QAccessibleEditableTextInterface*>(this);
  return QAccessibleWidget::interface_cast(tipo);
}

QAccessible::State txtAccessibile::state() const {
  QAccessible::State stato = QAccessibleWidget::state();
  stato.editable = Editor().InUso();
  stato.readOnly = !Editor().InUso();
  stato.multiLine = true;
  stato.selectableText = true;
  return stato;
}

QString txtAccessibile::text(QAccessible::Text cosa) const {
  return cosa == QAccessible::Value ? Testo() : QAccessibleWidget::text(cosa);
}

void txtAccessibile::selection(int indice, int* inizio, int* fine) const {
  const QTextCursor cursore = Editor().textCursor();
  const bool presente = indice == 0 && cursore.hasSelection();
  *inizio = presente ? cursore.selectionStart() : 0;
  *fine = presente ? cursore.selectionEnd() : 0;
}

int txtAccessibile::selectionCount() const {
  return Editor().textCursor().hasSelection() ? 1 : 0;
}

void txtAccessibile::addSelection(int inizio, int fine) {
  setSelection(0, inizio, fine);
}

void txtAccessibile::removeSelection(int indice) {
  if (indice == 0) Seleziona(cursorPosition(), cursorPosition());
}

void txtAccessibile::setSelection(int indice, int inizio, int fine) {
  if (indice == 0) Seleziona(inizio, fine);
}

void txtAccessibile::Seleziona(int inizio, int fine) {
  const int ultimo = characterCount();
  QTextCursor cursore(Editor().document());
  cursore.setPosition(std::clamp(inizio, 0, ultimo));
  cursore.setPosition(std::clamp(fine, 0, ultimo), QTextCursor::KeepAnchor);
  Editor().setTextCursor(cursore);
}

int txtAccessibile::cursorPosition() const {
  return Editor().textCursor().position();
}

void txtAccessibile::setCursorPosition(int posizione) {
  Seleziona(posizione, posizione);
}

QString txtAccessibile::text(int inizio, int fine) const {
  const int ultimo = fine < 0 ? characterCount() : fine;
  return Testo().mid(inizio, std::max(0, ultimo - inizio));
}

int txtAccessibile::characterCount() const {
  return Editor().document()->characterCount() - 1;
}

QRect txtAccessibile::characterRect(int posizione) const {
  QTextCursor cursore(Editor().document());
  cursore.setPosition(std::clamp(posizione, 0, characterCount()));
  QRect rettangolo = Editor().cursorRect(cursore);
  rettangolo.setWidth(Editor().fontMetrics().horizontalAdvance(u'M'));  // one width for all
  return {Editor().viewport()->mapToGlobal(rettangolo.topLeft()), rettangolo.size()};
}

int txtAccessibile::offsetAtPoint(const QPoint& punto) const {
  return Editor().cursorForPosition(Editor().viewport()->mapFromGlobal(punto)).position();
}

void txtAccessibile::scrollToSubstring(int inizio, int fine) {
  Seleziona(inizio, fine);
  Editor().ensureCursorVisible();
}

/// One look for the whole text, for the colours of codes are decoration, but for what is wrong.
QString txtAccessibile::attributes(int posizione, int* inizio, int* fine) const {
  const bool dentro = posizione >= 0 && posizione <= characterCount();
  *inizio = dentro ? 0 : -1;
  *fine = dentro ? characterCount() : -1;
  return dentro && Editor().Errata(posizione, *inizio, *fine) ? "invalid:true;" : QString();
}

void txtAccessibile::deleteText(int inizio, int fine) {
  if (!Editor().InUso()) return;
  Seleziona(inizio, fine);
  Editor().Elimina();
}

/// A text with line ends or codes in it was not typed.
void txtAccessibile::insertText(int posizione, const QString& testo) {
  if (!Editor().InUso()) return;
  setCursorPosition(posizione);
  const bool incollato = std::ranges::any_of(
      testo, [](QChar c) { return c == u'\u00AB' || c == u'\u00BB' || c == u'\n' || c == u'\r'; });
  if (incollato) {
    Editor().Incolla(testo);
  } else {
    Editor().Scrivi(testo, Pressione::Assistita);
  }
}

/// What takes the place of a text was not typed either.
void txtAccessibile::replaceText(int inizio, int fine, const QString& testo) {
  if (!Editor().InUso()) return;
  Seleziona(inizio, fine);
  Editor().Incolla(testo);
}

}  // namespace parvik
