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

  /// The selection with the whole of the codes that it cuts: what a code may be put in the place of.
  void AllargaSelezione();

  /// Whether the section is one of the template's. Where it is not, it keeps its text, and nothing that a
  /// person does gets to it: no key, no mouse, no paste, no drop, no edit of an assistive technology.
  bool InUso() const { return !isReadOnly(); }
  void ImpostaUso(bool inUso);

  void ImpostaDescrizione(Descrizione descrizione) { descrizione_ = std::move(descrizione); }

  // Edits that come from neither keyboard nor mouse, under the same rules. Positions are the document's.

  /// Types a text, character by character. Ends early where the rules do something else than type.
  void Scrivi(const QString& testo, Pressione pressione);
  /// Puts a whole text in place of the selection, full stops and codes included.
  void Incolla(const QString& testo);
  /// Deletes what is selected.
  void Elimina();
  /// The same, and takes it to the clipboard.
  void Taglia(Pressione pressione = Pressione::Prima);

 signals:
  /// A key was pressed here, any but those that only make another key of the next one, or the text was
  /// changed in any other way.
  void Modificata();
  void Attivata(parvik::Sezione sezione);
  /// The selected code (its content, as bytes) is to be opened in its dialog. Handled before the signal
  /// returns.
  void CodiceDaAprire(const std::string& contenuto);
  /// A new variable is to be inserted. Handled before the signal returns.
  void VariabileDaInserire();

 protected:
  bool event(QEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void focusInEvent(QFocusEvent* evento) override;
  // txtTCPTastiera.cpp
  void keyPressEvent(QKeyEvent* evento) override;
  void inputMethodEvent(QInputMethodEvent* evento) override;
  QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* dati) override;
  // txtTCPMouse.cpp
  bool viewportEvent(QEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void contextMenuEvent(QContextMenuEvent* evento) override;
  void dropEvent(QDropEvent* evento) override;

 private:
  bool Esclude(QEvent& evento) const;
  void Seleziona(Selezione selezione);
  Selezione Selezionato() const;
  void SegnaCodiciAlCursore();

  EsitoTasto Interroga(Selezione selezione, TastoSezione tasto, Pressione pressione) const;
  AzioneTasto Premi(TastoSezione tasto, Pressione pressione);
  bool LasciaTogliere(Selezione parte, Pressione pressione);
  void EseguiConsueta(TastoSezione tasto);
  bool ScriviCarattere(QChar carattere, Pressione pressione);
  bool Sostituisci(const QString& testo, Pressione pressione);
  void CancellaFinoAFineRiga(Pressione pressione);
  bool MuoviDiParola(const QKeyEvent& evento);
  bool TastoDelToolkit(QKeyEvent& evento);
  bool AccettaComposizione(const QInputMethodEvent& evento);
  void ApriCodice(Selezione codice);

  int CarattereAlPunto(QPoint punto) const;
  std::optional<Selezione> CodiceAlPunto(QPoint punto) const;
  Selezione ParolaAlPunto(QPoint punto) const;
  bool MostraDescrizione(QPoint punto, QPoint globale);
  bool TrattieniTrascinamento(const QMouseEvent& evento);
  void EstendiParola(QPoint punto);
  int PostoAlPunto(QPoint punto) const;
  void Deposita(int posto, const QString& testo);
  void Sposta(int posto, const QString& testo);
  void OffriSelezione();

  /// What the left button is about while it is down.
  struct Gesto {
    std::optional<QPoint> Presa;          // on the screen: pressed on the selection, which may be dragged
    std::optional<Selezione> Trattenuta;  // was to be dragged, but cut a code and has grown
    std::optional<Selezione> Parola;      // a double click selected it, and moving on selects by words
  };

  Sezione sezione_;
  frmColori* colori_ = nullptr;
  int edizione_ = 0;  // counts the changes of the document
  Descrizione descrizione_;
  Gesto gesto_;
};

}  // namespace parvik
