#include "template/txtTCP.h"

#include <QFocusEvent>
#include <QFontDatabase>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolTip>
#include <vector>

#include "common/Delimitatori.h"
#include "common/frmTesto.h"
#include "template/txtDisposizione.h"

namespace parvik {
namespace {

constexpr std::array<const char*, MaxSezioni> NomiAccessibili = {"Testata", "Corpo", "Piede"};

/// A part of the text as the key rules look at it: delimiters as their bytes, everything else a filler. One
/// byte a character of the document, the ends of lines included.
struct Veduta {
  std::string Testo;
  int Base = 0;  // the document's position of the first byte

  Selezione DaDocumento(int inizio, int fine) const {
    return {.Inizio = static_cast<std::size_t>(inizio - Base),
            .Lunghezza = static_cast<std::size_t>(fine - inizio)};
  }
  Selezione InDocumento(Selezione selezione) const {
    return {.Inizio = selezione.Inizio + static_cast<std::size_t>(Base), .Lunghezza = selezione.Lunghezza};
  }
};

std::string Segni(const QTextBlock& riga) {
  constexpr char Altro = ' ';
  std::string segni;
  for (const QChar c : riga.text()) {
    segni += c == u'\u00AB' ? DelimApertura : c == u'\u00BB' ? DelimChiusura : Altro;
  }
  return segni + Altro;  // the line's end
}

bool HaDelimitatori(std::string_view segni) {
  return segni.find(DelimApertura) != std::string_view::npos ||
         segni.find(DelimChiusura) != std::string_view::npos;
}

/// The lines in front of `riga`, back to the nearest one with a delimiter; nearest first.
std::vector<std::string> RigheDavanti(QTextBlock& riga) {
  std::vector<std::string> righe;
  while (riga.previous().isValid() && (righe.empty() || !HaDelimitatori(righe.back()))) {
    riga = riga.previous();
    righe.push_back(Segni(riga));
  }
  return righe;
}

/// The text from the nearest delimiter in front of the selection, or the start, to the nearest closing
/// delimiter behind it, or the end, in whole lines: as far as any code at the selection can reach.
Veduta VedutaIntorno(const QTextDocument& documento, int inizio, int fine) {
  QTextBlock prima = documento.findBlock(inizio);
  QTextBlock ultima = prima;
  std::string testo = Segni(prima);
  int base = prima.position();
  // The character next to the selection may be a closing delimiter itself: its opening one is wanted too.
  const int davantiFinoA = std::max(0, inizio - base - 1);
  if (!HaDelimitatori(std::string_view(testo).substr(0, static_cast<std::size_t>(davantiFinoA)))) {
    std::string davanti;
    const std::vector<std::string> righe = RigheDavanti(prima);
    for (auto riga = righe.rbegin(); riga != righe.rend(); ++riga) davanti += *riga;
    testo.insert(0, davanti);
    base = prima.position();
  }
  // A line is added only when the part after the selection is still without a closing delimiter.
  std::size_t cercato = static_cast<std::size_t>(fine - base);
  while (testo.size() <= cercato || testo.find(DelimChiusura, cercato) == std::string::npos) {
    if (!ultima.next().isValid()) break;
    cercato = std::max(cercato, testo.size());
    ultima = ultima.next();
    testo += Segni(ultima);
  }
  return {.Testo = std::move(testo), .Base = base};
}

std::optional<TastoSezione> TastoDi(const QKeyEvent& evento) {
  switch (evento.key()) {  // with Shift, Ctrl or Alt they are the same keys
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

/// Whether a key event types its text. Ctrl alone makes a command of a key; with Alt it may be a third level.
bool ScriveTesto(const QKeyEvent& evento) {
  const bool comando =
      evento.modifiers().testFlag(Qt::ControlModifier) && !evento.modifiers().testFlag(Qt::AltModifier);
  return !comando && !evento.text().isEmpty() && evento.text().at(0).isPrint();
}

void Seleziona(QPlainTextEdit& editor, Selezione selezione) {
  QTextCursor cursore(editor.document());
  cursore.setPosition(static_cast<int>(selezione.Inizio));
  cursore.setPosition(static_cast<int>(selezione.Fine()), QTextCursor::KeepAnchor);
  editor.setTextCursor(cursore);
}

Selezione SelezioneDi(const QTextCursor& cursore) {
  return {.Inizio = static_cast<std::size_t>(cursore.selectionStart()),
          .Lunghezza = static_cast<std::size_t>(cursore.selectionEnd() - cursore.selectionStart())};
}

/// What a tooltip would take for mark-up is the catalogue's or the user's own text.
QString ComeTestoSemplice(const QString& testo) {
  return Qt::mightBeRichText(testo) ? "<p>" + testo.toHtmlEscaped() + "</p>" : testo;
}

QTextDocument* NuovoDocumento(QObject* padre) {
  auto* documento = new QTextDocument(padre);
  documento->setDocumentLayout(new txtDisposizione(documento));
  return documento;
}

}  // namespace

txtTCP::txtTCP(Sezione sezione, QWidget* padre) : QPlainTextEdit(padre), sezione_(sezione) {
  setDocument(NuovoDocumento(this));
  colori_ = new frmColori(document());
  setObjectName(QStringLiteral("txtTCP_%1").arg(Indice(sezione)));
  setAccessibleName(NomiAccessibili[Indice(sezione)]);
  setLineWrapMode(NoWrap);
  setTabChangesFocus(true);
  colori_->ImpostaTavolozza(palette());
  connect(document(), &QTextDocument::contentsChange, this, [this] { ++edizione_; });
  connect(this, &QPlainTextEdit::textChanged, this, &txtTCP::Modificata);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, &txtTCP::SegnaCodiceAttivo);
  connect(this, &QPlainTextEdit::textChanged, this, &txtTCP::SegnaCodiceAttivo);
}

// Not toPlainText: it turns the no-break space into a space.
std::string txtTCP::Ansi() const {
  return DaSchermo(document()->toRawText());
}

txtTCP::RigheTesto txtTCP::Righe(int prima, std::size_t massimo) const {
  RigheTesto righe{.Testo = {}, .Prossima = prima, .Edizione = edizione_};
  QTextBlock riga = document()->findBlockByNumber(prima);
  const auto spazio = static_cast<qsizetype>(massimo);
  while (righe.Prossima == prima || righe.Testo.size() + riga.length() <= spazio) {
    righe.Testo += riga.text();
    ++righe.Prossima;
    riga = riga.next();
    righe.Ultime = !riga.isValid();
    if (righe.Ultime) break;
    righe.Testo += QChar(QChar::ParagraphSeparator);
  }
  return righe;
}

std::string txtTCP::AnsiAPezzi(const std::stop_token& smetti) {
  constexpr std::size_t Pezzo = 128UL * 1024UL;  // characters: well under a millisecond of the window's
  std::string ansi;
  RigheTesto righe;
  while (!righe.Ultime && !smetti.stop_requested()) {
    const int da = righe.Prossima;
    const int edizione = righe.Edizione;
    QMetaObject::invokeMethod(
        this, [&] { righe = Righe(da, Pezzo); }, Qt::BlockingQueuedConnection);
    if (da > 0 && righe.Edizione != edizione) {
      ansi.clear();
      righe = {};
    } else {
      ansi += DaSchermo(righe.Testo);
    }
  }
  return ansi;
}

void txtTCP::ImpostaAnsi(std::string_view ansi) {
  const QSignalBlocker muto(this);
  setPlainText(PerSchermo(ansi));
  SegnaCodiceAttivo();
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

void txtTCP::InserisciCodice(std::string_view codice) {
  QTextCursor cursore = textCursor();
  cursore.beginEditBlock();
  cursore.insertText(PerSchermo(codice));
  // A removal at the end of the step: what is typed next would otherwise be joined to the insertion, and one
  // undo would take both.
  cursore.insertText(" ");
  cursore.deletePreviousChar();
  cursore.endEditBlock();
  setTextCursor(cursore);
}

EsitoTasto txtTCP::Interroga(TastoSezione tasto) const {
  const QTextCursor cursore = textCursor();
  const int inizio = cursore.selectionStart();
  const int fine = cursore.selectionEnd();
  const Veduta veduta = VedutaIntorno(*document(), inizio, fine);
  EsitoTasto esito = PremiTasto(veduta.Testo, veduta.DaDocumento(inizio, fine), tasto);
  esito.Nuova = veduta.InDocumento(esito.Nuova);
  return esito;
}

void txtTCP::Premi(TastoSezione tasto) {
  const EsitoTasto esito = Interroga(tasto);
  switch (esito.Azione) {
    case AzioneTasto::Consueta:
      EseguiConsueta(tasto);
      break;
    case AzioneTasto::Nessuna:
      break;
    case AzioneTasto::Allarga:
      Seleziona(*this, esito.Nuova);
      break;
    case AzioneTasto::ApriCodice:
      ApriCodice(esito.Nuova);
      break;
    case AzioneTasto::ApriVariabile:
      emit VariabileDaInserire();
      break;
  }
}

/// One character, whatever other keys are down: never a word, which could end inside a code.
void txtTCP::EseguiConsueta(TastoSezione tasto) {
  if (tasto == TastoSezione::Backspace) textCursor().deletePreviousChar();
  if (tasto == TastoSezione::Canc) textCursor().deleteChar();
  if (tasto == TastoSezione::Spazio) insertPlainText(" ");
  ensureCursorVisible();
}

void txtTCP::ApriCodice(Selezione codice) {
  Seleziona(*this, codice);
  const std::string testo = DaSchermo(textCursor().selectedText());
  const std::string contenuto(ContenutoDi(testo));
  if (Riconosci(contenuto) == TipoCodice::Sconosciuto) return;  // opens nothing, and stays selected
  emit CodiceDaAprire(contenuto);
  if (SelezioneDi(textCursor()) == codice) Seleziona(*this, {.Inizio = codice.Inizio, .Lunghezza = 0});
}

void txtTCP::ScriviCarattere(QChar carattere) {
  if (CarattereScartato(carattere.unicode())) return;
  if (carattere == u' ') {
    Premi(TastoSezione::Spazio);
  } else {
    insertPlainText(SoloAnsi(carattere));
  }
}

void txtTCP::Scrivi(const QString& testo) {
  for (const QChar carattere : testo) ScriviCarattere(carattere);
}

void txtTCP::CancellaSelezione() {
  if (textCursor().hasSelection()) Premi(TastoSezione::Canc);
}

bool txtTCP::event(QEvent* evento) {
  // Here and not in keyPressEvent, which never sees the keys that move the focus.
  if (evento->type() == QEvent::KeyPress) emit Modificata();
  // Not before it can be seen, as no section can when the program starts: loading a font takes time.
  if (evento->type() == QEvent::Show) setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  return QPlainTextEdit::event(evento);
}

void txtTCP::keyPressEvent(QKeyEvent* evento) {
  if (const auto tasto = TastoDi(*evento)) {
    Premi(*tasto);
  } else if (ScriveTesto(*evento)) {
    Scrivi(evento->text());
    ensureCursorVisible();
  } else if (evento->key() == Qt::Key_Tab || evento->key() == Qt::Key_Backtab) {
    evento->ignore();  // templates hold no tabs, even where there is nowhere to move the focus
  } else {
    QPlainTextEdit::keyPressEvent(evento);
  }
}

void txtTCP::inputMethodEvent(QInputMethodEvent* evento) {
  // The base class shows what is being composed; what is finished is typed.
  QInputMethodEvent inCorso(evento->preeditString(), evento->attributes());
  inCorso.setCommitString(QString(), evento->replacementStart(), evento->replacementLength());
  QPlainTextEdit::inputMethodEvent(&inCorso);
  Scrivi(evento->commitString());
  evento->accept();
}

void txtTCP::Incolla(QString testo) {
  testo.replace("\r\n", "\n").replace('\r', '\n');
  insertPlainText(SoloAnsi(testo));
}

// Not the base class's: it turns the no-break space into a space, and a copy would not be what was copied.
QMimeData* txtTCP::createMimeDataFromSelection() const {
  auto* dati = new QMimeData;  // the caller owns it
  dati->setText(textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n'));
  return dati;
}

void txtTCP::insertFromMimeData(const QMimeData* dati) {
  if (dati->hasText()) Incolla(dati->text());
}

void txtTCP::focusInEvent(QFocusEvent* evento) {
  QPlainTextEdit::focusInEvent(evento);
  emit Attivata(sezione_);
}

/// The code whose character is drawn at `punto` of the viewport.
std::optional<Selezione> txtTCP::CodiceAlPunto(QPoint punto) const {
  QTextCursor cursore = cursorForPosition(punto);
  if (punto.x() < cursorRect(cursore).left()) cursore.movePosition(QTextCursor::PreviousCharacter);
  // Behind the end of a line there is no character.
  if (cursore.atBlockEnd()) return std::nullopt;
  const Veduta veduta = VedutaIntorno(*document(), cursore.position(), cursore.position() + 1);
  const auto codice = CodiceSotto(veduta.Testo, static_cast<std::size_t>(cursore.position() - veduta.Base));
  if (!codice) return std::nullopt;
  return veduta.InDocumento({.Inizio = codice->Inizio, .Lunghezza = codice->Lunghezza});
}

void txtTCP::mouseDoubleClickEvent(QMouseEvent* evento) {
  const auto codice = evento->button() == Qt::LeftButton ? CodiceAlPunto(evento->pos()) : std::nullopt;
  if (codice) {
    ApriCodice(*codice);
  } else {
    QPlainTextEdit::mouseDoubleClickEvent(evento);
  }
}

bool txtTCP::viewportEvent(QEvent* evento) {
  if (evento->type() != QEvent::ToolTip) return QPlainTextEdit::viewportEvent(evento);
  const auto* aiuto = static_cast<QHelpEvent*>(evento);
  if (!MostraDescrizione(aiuto->pos(), aiuto->globalPos())) QToolTip::hideText();
  return true;
}

bool txtTCP::MostraDescrizione(QPoint punto, QPoint globale) {
  const auto codice = descrizione_ ? CodiceAlPunto(punto) : std::nullopt;
  if (!codice) return false;
  QTextCursor cursore(document());
  cursore.setPosition(static_cast<int>(codice->Inizio));
  cursore.setPosition(static_cast<int>(codice->Fine()), QTextCursor::KeepAnchor);
  const std::string testo = DaSchermo(cursore.selectedText());
  QToolTip::showText(globale, ComeTestoSemplice(descrizione_(ContenutoDi(testo))), viewport());
  return true;
}

/// Marks the code that the caret stands in. Looks at the caret's line only.
void txtTCP::SegnaCodiceAttivo() {
  const QTextCursor cursore = textCursor();
  const auto codice =
      CodiceIntorno(Segni(cursore.block()), static_cast<std::size_t>(cursore.positionInBlock()));
  QList<QTextEdit::ExtraSelection> segni;
  if (codice) {
    QTextEdit::ExtraSelection segno;
    segno.cursor = QTextCursor(document());
    segno.cursor.setPosition(cursore.block().position() + static_cast<int>(codice->Inizio));
    segno.cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor,
                              static_cast<int>(codice->Lunghezza));
    segno.format.setBackground(colori_->FondoCodiceAttivo());
    segni += segno;
  }
  if (!segni.isEmpty() || !extraSelections().isEmpty()) setExtraSelections(segni);
}

void txtTCP::changeEvent(QEvent* evento) {
  QPlainTextEdit::changeEvent(evento);
  if (evento->type() == QEvent::PaletteChange) {
    colori_->ImpostaTavolozza(palette());
    SegnaCodiceAttivo();
  }
}

/// In another width the base class lays out every line anew, so that the horizontal scroll bar is never
/// longer than it need be. Unwrapped lines look alike in any width: where there are very many, the window
/// comes first.
void txtTCP::resizeEvent(QResizeEvent* evento) {
  constexpr int RigheDisposteSubito = 100'000;
  const bool tante = document()->blockCount() > RigheDisposteSubito;
  QResizeEvent ridotto(evento->size(), tante ? evento->size() : evento->oldSize());
  QPlainTextEdit::resizeEvent(&ridotto);
}

}  // namespace parvik
