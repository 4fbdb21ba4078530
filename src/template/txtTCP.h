// The editor of one section. It asks the key rules (template/TastiSezione.h) what a key does where codes
// stand, and obeys.
#pragma once

#include <QPlainTextEdit>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>

#include "common/Sezione.h"
#include "template/TastiSezione.h"
#include "template/frmColori.h"

namespace parvik {

class txtTCP final : public QPlainTextEdit {
  Q_OBJECT

 public:
  /// What a code is, for the tooltip.
  using Descrizione = std::function<QString(std::string_view contenuto)>;

  txtTCP(Sezione sezione, QWidget* padre);

  /// The text as bytes, lines separated by CR LF.
  std::string Ansi() const;

  struct RigheTesto {
    QString Testo;  // the end of each line a paragraph separator; the text's last line has none
    int Prossima = 0;
    bool Ultime = false;  // nothing follows
    int Edizione = 0;     // another one: the text was changed
  };
  /// Whole lines of the document, from line `prima` (0 the first) on: as many as `massimo` characters hold,
  /// but one at least.
  RigheTesto Righe(int prima, std::size_t massimo) const;

  /// The same as Ansi, for another thread while this one handles events: the text is handed over a little at
  /// a time. Once it was changed on the way, from the start again. What there is when `smetti` was asked for.
  std::string AnsiAPezzi(const std::stop_token& smetti);

  /// Replaces the whole text. No edit of the user's: nothing to undo, and Modificata is not emitted.
  void ImpostaAnsi(std::string_view ansi);

  /// Ends the last line, leaving caret, scroll position and undo history as they are.
  void CompletaUltimaRiga();

  /// Puts a finished code, as bytes with its delimiters, in place of the selection, the caret right behind
  /// it. One step to undo.
  void InserisciCodice(std::string_view codice);

  void ImpostaDescrizione(Descrizione descrizione) { descrizione_ = std::move(descrizione); }

  // Edits that come from neither keyboard nor mouse, under the same rules. Positions are the document's.

  /// Types a text, character by character.
  void Scrivi(const QString& testo);
  /// Puts a whole text in, full stops and codes included.
  void Incolla(QString testo);
  /// Deletes what is selected, as the Delete key does. Without a selection nothing.
  void CancellaSelezione();

 signals:
  /// A key was pressed here (any key), or the text was changed in any other way.
  void Modificata();
  void Attivata(parvik::Sezione sezione);
  /// The selected code (its content, as bytes) is to be opened in its dialog. Handled before the signal
  /// returns.
  void CodiceDaAprire(const std::string& contenuto);
  /// A new variable is to be inserted. Handled before the signal returns.
  void VariabileDaInserire();

 protected:
  bool event(QEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void inputMethodEvent(QInputMethodEvent* evento) override;
  QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* dati) override;
  void focusInEvent(QFocusEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  bool viewportEvent(QEvent* evento) override;

 private:
  EsitoTasto Interroga(TastoSezione tasto) const;
  void Premi(TastoSezione tasto);
  void EseguiConsueta(TastoSezione tasto);
  void ScriviCarattere(QChar carattere);
  void ApriCodice(Selezione codice);
  std::optional<Selezione> CodiceAlPunto(QPoint punto) const;
  void SegnaCodiceAttivo();
  bool MostraDescrizione(QPoint punto, QPoint globale);

  Sezione sezione_;
  frmColori* colori_ = nullptr;
  int edizione_ = 0;  // counts the changes of the document
  Descrizione descrizione_;
};

}  // namespace parvik
