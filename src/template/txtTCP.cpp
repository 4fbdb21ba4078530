#include "template/txtTCP.h"

#include <QFocusEvent>
#include <QFontDatabase>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <QTextBlock>

#include "common/frmTesto.h"

namespace parvik {
namespace {

constexpr std::array<const char*, MaxSezioni> NomiAccessibili = {"Testata", "Corpo", "Piede"};

}  // namespace

txtTCP::txtTCP(Sezione sezione, QWidget* padre) : QPlainTextEdit(padre), sezione_(sezione) {
  setObjectName(QStringLiteral("txtTCP_%1").arg(Indice(sezione)));
  setAccessibleName(NomiAccessibili[Indice(sezione)]);
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));  // templates are columns
  setLineWrapMode(NoWrap);
  setTabChangesFocus(true);
  connect(this, &QPlainTextEdit::textChanged, this, &txtTCP::Modificata);
}

// Not toPlainText: it turns the no-break space into a space.
std::string txtTCP::Ansi() const {
  return DaSchermo(document()->toRawText());
}

void txtTCP::ImpostaAnsi(std::string_view ansi) {
  const QSignalBlocker muto(this);
  setPlainText(PerSchermo(ansi));
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

void txtTCP::keyPressEvent(QKeyEvent* evento) {
  emit Modificata();
  const QString scritto = evento->text();
  const QString ammesso = SoloAnsi(scritto);
  if (scritto == ammesso || scritto.isEmpty() || !scritto.at(0).isPrint()) {
    QPlainTextEdit::keyPressEvent(evento);
  } else {
    insertPlainText(ammesso);
  }
}

void txtTCP::inputMethodEvent(QInputMethodEvent* evento) {
  QInputMethodEvent ammesso(evento->preeditString(), evento->attributes());
  ammesso.setCommitString(SoloAnsi(evento->commitString()), evento->replacementStart(),
                          evento->replacementLength());
  QPlainTextEdit::inputMethodEvent(&ammesso);
  evento->setAccepted(ammesso.isAccepted());
}

void txtTCP::insertFromMimeData(const QMimeData* dati) {
  if (!dati->hasText()) return;
  QString testo = dati->text();
  testo.replace("\r\n", "\n").replace('\r', '\n');
  insertPlainText(SoloAnsi(testo));
}

void txtTCP::focusInEvent(QFocusEvent* evento) {
  QPlainTextEdit::focusInEvent(evento);
  emit Attivata(sezione_);
}

}  // namespace parvik
