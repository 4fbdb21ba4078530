// What a section's editor shows, kept the same as what the document says.
#pragma once

#include <QObject>

#include "template/Documento.h"

class QPlainTextEdit;
class QTextCursor;

namespace parvik {

/// The document's changes come into the toolkit's text. What the toolkit changes there by itself all the same
/// is a change of the user's.
///
/// A byte of the section is a character of the toolkit's text, and a line end, two bytes, is one.
class txtSpecchio final : public QObject, private AscoltatoreDocumento {
  Q_OBJECT

 public:
  /// Both must outlive this; the editor has its text already.
  txtSpecchio(Documento& documento, Sezione sezione, QPlainTextEdit& editor);

  const TestoSezione& Testo() const { return documento_.Testo(sezione_); }

  /// A position of the toolkit's text as a byte, and the way back.
  std::size_t InByte(int posizione) const;
  int InTesto(std::size_t byte) const;
  Cursore InByte(const QTextCursor& cursore) const;
  QTextCursor InTesto(Cursore cursore) const;

  /// Whether a change is just being shown.
  bool AlLavoro() const { return alLavoro_; }

 signals:
  /// Codes that a change was about begin in a line in front of it, this one at the earliest.
  void CodiciCambiati(int primaRiga);

 private:
  void Modificata(const CambiamentoTesto& cambiamento) override;
  void Sostituita(Sezione sezione) override;
  QTextCursor ParteDi(const CambiamentoTesto& cambiamento) const;
  void Mostra(const CambiamentoTesto& cambiamento);
  void Riprendi();

  Documento& documento_;
  Sezione sezione_;
  QPlainTextEdit& editor_;
  bool alLavoro_ = false;
  Documento::Ascolto ascolto_;
};

}  // namespace parvik
