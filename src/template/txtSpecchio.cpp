#include "template/txtSpecchio.h"

#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

#include "common/qtTesto.h"

namespace parvik {
namespace {

/// The position of a byte in the toolkit's version of a text.
int Posizione(const TestoSezione& testo, std::size_t byte) {
  return static_cast<int>(byte - testo.RigaDi(byte));
}

/// The line in which the code begins that has the byte at `posto`; without a code the place's own line.
std::size_t RigaDelCodice(const TestoSezione& testo, std::size_t posto) {
  if (posto == testo.Dimensione()) return testo.RigaDi(posto);
  const Pezzo pezzo = testo.PezzoDi(posto);
  return testo.RigaDi(pezzo.Genere == GenerePezzo::Codice ? pezzo.Inizio : posto);
}

}  // namespace

txtSpecchio::txtSpecchio(Documento& documento, Sezione sezione, QPlainTextEdit& editor)
    : QObject(&editor),
      documento_(documento),
      sezione_(sezione),
      editor_(editor),
      ascolto_(documento.Ascolta(*this)) {
  editor_.setUndoRedoEnabled(false);
  connect(editor_.document(), &QTextDocument::contentsChange, this, [this] {
    if (!alLavoro_) Riprendi();
  });
  Sostituita(sezione);
}

std::size_t txtSpecchio::InByte(int posizione) const {
  const QTextBlock riga = editor_.document()->findBlock(posizione);
  const auto byte = static_cast<std::size_t>(posizione + std::max(riga.blockNumber(), 0));
  return std::min(byte, Testo().Dimensione());  // the toolkit is ahead while it changes the text by itself
}

int txtSpecchio::InTesto(std::size_t byte) const {
  return Posizione(Testo(), byte);
}

Cursore txtSpecchio::InByte(const QTextCursor& cursore) const {
  return {.Ancora = InByte(cursore.anchor()), .Posto = InByte(cursore.position())};
}

QTextCursor txtSpecchio::InTesto(Cursore cursore) const {
  QTextCursor nelTesto(editor_.document());
  nelTesto.setPosition(InTesto(cursore.Ancora));
  nelTesto.setPosition(InTesto(cursore.Posto), QTextCursor::KeepAnchor);
  return nelTesto;
}

void txtSpecchio::Sostituita(Sezione sezione) {
  if (sezione != sezione_) return;
  const QScopedValueRollback lavoro(alLavoro_, true);
  editor_.setPlainText(PerSchermo(Testo().Byte()));
}

void txtSpecchio::Modificata(const CambiamentoTesto& cambiamento) {
  if (cambiamento.Dove != sezione_) return;
  const std::size_t dove = cambiamento.Fatta.Dove;
  if (!alLavoro_) {
    const QScopedValueRollback lavoro(alLavoro_, true);
    Mostra(cambiamento);
  }
  const std::size_t riga = std::min(RigaDelCodice(cambiamento.Prima, dove), RigaDelCodice(Testo(), dove));
  if (riga < Testo().RigaDi(dove)) emit CodiciCambiati(static_cast<int>(riga));
}

/// The part of the toolkit's text that a change replaces. Where it is the editor's selection, or its caret,
/// that is taken: a cursor that is put somewhere works out how far right that is.
QTextCursor txtSpecchio::ParteDi(const CambiamentoTesto& cambiamento) const {
  const int dove = Posizione(cambiamento.Prima, cambiamento.Fatta.Dove);
  const int fine = Posizione(cambiamento.Prima, cambiamento.Fatta.Dove + cambiamento.Fatta.Tolti);
  QTextCursor parte = editor_.textCursor();
  if (parte.selectionStart() == dove && parte.selectionEnd() == fine) return parte;
  parte.setPosition(dove);
  parte.setPosition(fine, QTextCursor::KeepAnchor);
  return parte;
}

void txtSpecchio::Mostra(const CambiamentoTesto& cambiamento) {
  const QTextCursor prima = editor_.textCursor();
  const int ancora = prima.anchor();
  const int posizione = prima.position();
  QTextCursor parte = ParteDi(cambiamento);
  const int dove = parte.selectionStart();
  parte.insertText(PerSchermo(cambiamento.Fatta.Messi));
  if (!cambiamento.DelProgramma || std::max(ancora, posizione) > dove) return;
  QTextCursor rimasto(editor_.document());
  rimasto.setPosition(ancora);
  rimasto.setPosition(posizione, QTextCursor::KeepAnchor);
  editor_.setTextCursor(rimasto);
}

/// A CR that was brought in alone keeps its one place.
void txtSpecchio::Riprendi() {
  const QScopedValueRollback lavoro(alLavoro_, true);
  const QString mostrato = editor_.document()->toRawText().replace(u'\u240D', u'?');
  const Modifica modifica = Differenza(Testo().Byte(), DaSchermo(mostrato));
  documento_.Applica(sezione_, modifica, GenereModifica::Intera,
                     CursoreSu({.Inizio = modifica.Dove, .Lunghezza = modifica.Tolti}));
}

}  // namespace parvik
