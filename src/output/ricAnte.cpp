#include "output/ricAnte.h"

#include <QFont>
#include <QKeyEvent>
#include <QPlainTextDocumentLayout>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <memory>

#include "common/frmTesto.h"

namespace parvik {
namespace {

QFont CarattereAnteprima() {
  QFont carattere(QStringList{"Lucida Console", "Liberation Mono", "DejaVu Sans Mono"});
  carattere.setStyleHint(QFont::TypeWriter);
  carattere.setFixedPitch(true);
  carattere.setPointSizeF(Punti(CorpoCarattere::Disegno));
  return carattere;
}

QTextCharFormat FormatoDi(const Aspetto& aspetto) {
  QTextCharFormat formato;
  formato.setFontWeight(aspetto.Grassetto ? QFont::Bold : QFont::Normal);
  formato.setFontItalic(aspetto.Italico);
  formato.setFontUnderline(aspetto.Sottolineato);
  formato.setFontPointSize(Punti(aspetto.Corpo));
  return formato;
}

}  // namespace

ricAnte::ricAnte(QWidget* padre) : QPlainTextEdit(padre) {
  setObjectName("ricAnte");
  setAccessibleName("Anteprima");
  setFont(CarattereAnteprima());
  setLineWrapMode(NoWrap);
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void ricAnte::Mostra(const Anteprima& anteprima) {
  // Filled before it is shown: formatted insertions into a visible document are many times slower.
  auto documento = std::make_unique<QTextDocument>();
  documento->setDocumentLayout(new QPlainTextDocumentLayout(documento.get()));
  documento->setDefaultFont(font());
  documento->setUndoRedoEnabled(false);
  QTextCursor penna(documento.get());
  penna.beginEditBlock();
  const std::string_view testo = anteprima.Testo;
  for (const Tratto& tratto : anteprima.Tratti) {
    penna.insertText(PerSchermo(testo.substr(tratto.Inizio, tratto.Lunghezza)), FormatoDi(tratto.Come));
  }
  penna.endEditBlock();
  documento->setParent(this);  // from now on the pane's own: the one it replaces is deleted with it
  setDocument(documento.release());
  moveCursor(QTextCursor::Start);
}

ricAnte::Posto ricAnte::RigaColonna() const {
  QTextCursor cursore(document());
  cursore.setPosition(textCursor().selectionStart());
  return {.Riga = cursore.blockNumber() + 1, .Colonna = cursore.positionInBlock() + 1};
}

void ricAnte::keyReleaseEvent(QKeyEvent* evento) {
  QPlainTextEdit::keyReleaseEvent(evento);
  const int tasto = evento->key();
  if (tasto == Qt::Key_Left || tasto == Qt::Key_Up || tasto == Qt::Key_Right || tasto == Qt::Key_Down) {
    emit CursoreMosso();
  }
}

void ricAnte::mouseReleaseEvent(QMouseEvent* evento) {
  QPlainTextEdit::mouseReleaseEvent(evento);
  emit CursoreMosso();
}

}  // namespace parvik
