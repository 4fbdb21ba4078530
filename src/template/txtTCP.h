// The editor of one section.
#pragma once

#include <QPlainTextEdit>
#include <string>
#include <string_view>

#include "common/Sezione.h"

namespace parvik {

class txtTCP final : public QPlainTextEdit {
  Q_OBJECT

 public:
  txtTCP(Sezione sezione, QWidget* padre);

  /// The text as bytes, lines separated by CR LF.
  std::string Ansi() const;

  /// Replaces the whole text. No edit of the user's: nothing to undo, and Modificata is not emitted.
  void ImpostaAnsi(std::string_view ansi);

  /// Ends the last line, leaving caret, scroll position and undo history as they are.
  void CompletaUltimaRiga();

 signals:
  /// A key was pressed here (any key), or the text was changed in any other way.
  void Modificata();
  void Attivata(parvik::Sezione sezione);

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
  void inputMethodEvent(QInputMethodEvent* evento) override;
  void insertFromMimeData(const QMimeData* dati) override;
  void focusInEvent(QFocusEvent* evento) override;

 private:
  Sezione sezione_;
};

}  // namespace parvik
