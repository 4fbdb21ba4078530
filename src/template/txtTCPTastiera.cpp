// The section editor's keys, what an input method composes, and the clipboard. Whatever takes text away asks
// the key rules first.
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

#include "common/frmTesto.h"
#include "template/ParoleSezione.h"
#include "template/txtTCP.h"
#include "template/txtVeduta.h"

namespace parvik {
namespace {

// Two keys of the toolkit's own, which it has on some systems: here on all.
const QKeyCombination CancellaAvanti(Qt::ControlModifier, Qt::Key_D);
const QKeyCombination CancellaFineRiga(Qt::ControlModifier, Qt::Key_K);

std::optional<TastoSezione> TastoDi(const QKeyEvent& evento) {
  if (evento.keyCombination() == CancellaAvanti) return TastoSezione::Canc;
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

Pressione PressioneDi(const QKeyEvent& evento) {
  return evento.isAutoRepeat() ? Pressione::Ripetuta : Pressione::Prima;
}

/// Alt and the system's key make a command of any other key, whether there is such a command or not.
bool EUnComando(const QKeyEvent& evento) {
  return (evento.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0;
}

bool FinisceRiga(const QKeyEvent& evento) {
  return (evento.key() == Qt::Key_Return || evento.key() == Qt::Key_Enter) && !EUnComando(evento);
}

/// Whether a key event types its text. Ctrl and Alt together may be a third level of the keyboard.
bool ScriveTesto(const QKeyEvent& evento) {
  const bool ctrl = evento.modifiers().testFlag(Qt::ControlModifier);
  if (ctrl != evento.modifiers().testFlag(Qt::AltModifier)) return false;
  if (evento.modifiers().testFlag(Qt::MetaModifier) || evento.text().isEmpty()) return false;
  return evento.text().at(0).category() != QChar::Other_Control;
}

/// A step of the caret by a word.
struct PassoDiParola {
  QKeySequence::StandardKey Tasto;
  std::size_t (*Destinazione)(std::string_view testo, std::size_t cursore);
  QTextCursor::MoveMode Modo;
};

constexpr std::array PassiDiParola = {
    PassoDiParola{QKeySequence::MoveToNextWord, ParolaSeguente, QTextCursor::MoveAnchor},
    PassoDiParola{QKeySequence::MoveToPreviousWord, ParolaPrecedente, QTextCursor::MoveAnchor},
    PassoDiParola{QKeySequence::SelectNextWord, ParolaSeguente, QTextCursor::KeepAnchor},
    PassoDiParola{QKeySequence::SelectPreviousWord, ParolaPrecedente, QTextCursor::KeepAnchor}};

/// The keys that are left to the toolkit: they move, select, copy and undo. Paste comes back here.
constexpr std::array TastiDelToolkit = {QKeySequence::MoveToNextChar,
                                        QKeySequence::MoveToPreviousChar,
                                        QKeySequence::MoveToNextLine,
                                        QKeySequence::MoveToPreviousLine,
                                        QKeySequence::MoveToNextPage,
                                        QKeySequence::MoveToPreviousPage,
                                        QKeySequence::MoveToStartOfLine,
                                        QKeySequence::MoveToEndOfLine,
                                        QKeySequence::MoveToStartOfBlock,
                                        QKeySequence::MoveToEndOfBlock,
                                        QKeySequence::MoveToStartOfDocument,
                                        QKeySequence::MoveToEndOfDocument,
                                        QKeySequence::SelectNextChar,
                                        QKeySequence::SelectPreviousChar,
                                        QKeySequence::SelectNextLine,
                                        QKeySequence::SelectPreviousLine,
                                        QKeySequence::SelectNextPage,
                                        QKeySequence::SelectPreviousPage,
                                        QKeySequence::SelectStartOfLine,
                                        QKeySequence::SelectEndOfLine,
                                        QKeySequence::SelectStartOfBlock,
                                        QKeySequence::SelectEndOfBlock,
                                        QKeySequence::SelectStartOfDocument,
                                        QKeySequence::SelectEndOfDocument,
                                        QKeySequence::SelectAll,
                                        QKeySequence::Copy,
                                        QKeySequence::Paste,
                                        QKeySequence::Undo,
                                        QKeySequence::Redo};

}  // namespace

EsitoTasto txtTCP::Interroga(Selezione selezione, TastoSezione tasto, Pressione pressione) const {
  const int inizio = static_cast<int>(selezione.Inizio);
  const int fine = static_cast<int>(selezione.Fine());
  const Veduta veduta = VedutaIntorno(*document(), inizio, fine);
  EsitoTasto esito = PremiTasto(veduta.Testo, veduta.DaDocumento(inizio, fine), tasto, pressione);
  esito.Nuova = veduta.InDocumento(esito.Nuova);
  return esito;
}

/// What it came to.
AzioneTasto txtTCP::Premi(TastoSezione tasto, Pressione pressione) {
  const EsitoTasto esito = Interroga(Selezionato(), tasto, pressione);
  switch (esito.Azione) {
    case AzioneTasto::Consueta:
      EseguiConsueta(tasto);
      break;
    case AzioneTasto::Nessuna:
      break;
    case AzioneTasto::Allarga:
      Seleziona(esito.Nuova);
      break;
    case AzioneTasto::ApriCodice:
      ApriCodice(esito.Nuova);
      break;
    case AzioneTasto::ApriVariabile:
      emit VariabileDaInserire();
      break;
  }
  return esito.Azione;
}

/// One character, whatever other keys are down: never a word, which could end inside a code.
void txtTCP::EseguiConsueta(TastoSezione tasto) {
  if (tasto == TastoSezione::Backspace) textCursor().deletePreviousChar();
  if (tasto == TastoSezione::Canc) textCursor().deleteChar();
  if (tasto == TastoSezione::Togli) textCursor().removeSelectedText();
  if (tasto == TastoSezione::Spazio) insertPlainText(" ");
  ensureCursorVisible();
}

/// Whether a part of the text may go. One that cuts a code may not, and is selected with the whole of it.
bool txtTCP::LasciaTogliere(Selezione parte, Pressione pressione) {
  if (parte.Lunghezza == 0) return true;
  const EsitoTasto esito = Interroga(parte, TastoSezione::Togli, pressione);
  if (esito.Azione == AzioneTasto::Allarga) Seleziona(esito.Nuova);
  return esito.Azione == AzioneTasto::Consueta;
}

void txtTCP::AllargaSelezione() {
  static_cast<void>(LasciaTogliere(Selezionato(), Pressione::Prima));
}

void txtTCP::ApriCodice(Selezione codice) {
  Seleziona(codice);
  const std::string testo = DaSchermo(textCursor().selectedText());
  const std::string contenuto(ContenutoDi(testo));
  if (Riconosci(contenuto) == TipoCodice::Sconosciuto) return;  // opens nothing, and stays selected
  emit CodiceDaAprire(contenuto);
  if (Selezionato() == codice) Seleziona({.Inizio = codice.Inizio, .Lunghezza = 0});
}

/// False when the rules did not let the selection go.
bool txtTCP::Sostituisci(const QString& testo, Pressione pressione) {
  if (!LasciaTogliere(Selezionato(), pressione)) return false;
  insertPlainText(SoloAnsi(testo));
  return true;
}

/// Whether more may be typed: the text and the selection are what they would be by typing.
bool txtTCP::ScriviCarattere(QChar carattere, Pressione pressione) {
  if (CarattereScartato(carattere.unicode())) return true;
  if (carattere != u' ') return Sostituisci(carattere, pressione);
  const AzioneTasto azione = Premi(TastoSezione::Spazio, pressione);
  return azione == AzioneTasto::Consueta || azione == AzioneTasto::Nessuna;
}

void txtTCP::Scrivi(const QString& testo, Pressione pressione) {
  if (!InUso()) return;
  static_cast<void>(
      std::ranges::all_of(testo, [&](QChar carattere) { return ScriviCarattere(carattere, pressione); }));
  ensureCursorVisible();
}

void txtTCP::Incolla(const QString& testo) {
  if (!InUso()) return;
  static_cast<void>(Sostituisci(QString(testo).replace("\r\n", "\n").replace('\r', '\n'), Pressione::Prima));
}

void txtTCP::Elimina() {
  if (InUso() && textCursor().hasSelection()) Premi(TastoSezione::Togli, Pressione::Prima);
}

void txtTCP::Taglia(Pressione pressione) {
  if (!InUso() || !textCursor().hasSelection()) return;
  if (!LasciaTogliere(Selezionato(), pressione)) return;
  copy();
  EseguiConsueta(TastoSezione::Togli);
}

/// Without a selection, what the caret's line has behind the caret, or the line's end.
void txtTCP::CancellaFinoAFineRiga(Pressione pressione) {
  QTextCursor resto = textCursor();
  if (!resto.hasSelection()) {
    resto.movePosition(resto.atBlockEnd() ? QTextCursor::NextCharacter : QTextCursor::EndOfBlock,
                       QTextCursor::KeepAnchor);
    pressione = Pressione::Prima;  // no selection that a hand has made
  }
  const Selezione parte = {
      .Inizio = static_cast<std::size_t>(resto.selectionStart()),
      .Lunghezza = static_cast<std::size_t>(resto.selectionEnd() - resto.selectionStart())};
  if (!LasciaTogliere(parte, pressione)) return;
  resto.removeSelectedText();
  ensureCursorVisible();
}

bool txtTCP::MuoviDiParola(const QKeyEvent& evento) {
  const auto passo = std::ranges::find_if(
      PassiDiParola, [&evento](const PassoDiParola& uno) { return evento.matches(uno.Tasto); });
  if (passo == PassiDiParola.end()) return false;
  QTextCursor cursore = textCursor();
  const Veduta veduta = VedutaDiRiga(*document(), cursore.position());
  const std::size_t posto = passo->Destinazione(veduta.Testo, veduta.DaDocumento(cursore.position()));
  const int ultimo = document()->characterCount() - 1;
  cursore.setPosition(std::min(veduta.InDocumento(posto), ultimo), passo->Modo);
  setTextCursor(cursore);
  return true;
}

bool txtTCP::TastoDelToolkit(QKeyEvent& evento) {
  const auto preme = [&evento](QKeySequence::StandardKey tasto) { return evento.matches(tasto); };
  if (std::ranges::none_of(TastiDelToolkit, preme)) return false;
  const bool trattenuta = evento.isAutoRepeat() && preme(QKeySequence::Paste) && textCursor().hasSelection();
  if (!trattenuta) QPlainTextEdit::keyPressEvent(&evento);
  return true;
}

void txtTCP::keyPressEvent(QKeyEvent* evento) {
  const Pressione pressione = PressioneDi(*evento);
  if (const auto tasto = TastoDi(*evento)) {
    Premi(*tasto, pressione);
  } else if (FinisceRiga(*evento)) {
    Sostituisci(QStringLiteral("\n"), pressione);
    ensureCursorVisible();
  } else if (ScriveTesto(*evento)) {
    Scrivi(evento->text(), pressione);
  } else if (evento->matches(QKeySequence::Cut)) {
    Taglia(pressione);
  } else if (evento->keyCombination() == CancellaFineRiga) {
    CancellaFinoAFineRiga(pressione);
  } else if (!MuoviDiParola(*evento) && !TastoDelToolkit(*evento)) {
    evento->ignore();  // a Tab too, where there is nowhere to move the focus: templates hold none
  }
}

/// The toolkit takes the selection away as soon as something is composed over it, and what an input method
/// replaces.
bool txtTCP::AccettaComposizione(const QInputMethodEvent& evento) {
  const QTextCursor cursore = textCursor();
  const bool compone = !evento.commitString().isEmpty() ||
                       evento.preeditString() != cursore.block().layout()->preeditAreaText();
  if (compone && !LasciaTogliere(Selezionato(), Pressione::Prima)) return false;
  const int ultimo = document()->characterCount() - 1;
  const int da = std::clamp(cursore.position() + evento.replacementStart(), 0, ultimo);
  const int lungo = std::clamp(evento.replacementLength(), 0, ultimo - da);
  return LasciaTogliere(
      {.Inizio = static_cast<std::size_t>(da), .Lunghezza = static_cast<std::size_t>(lungo)},
      Pressione::Prima);
}

void txtTCP::inputMethodEvent(QInputMethodEvent* evento) {
  evento->accept();
  if (!AccettaComposizione(*evento)) return QGuiApplication::inputMethod()->reset();
  // The base class shows what is being composed; what is finished is typed.
  QInputMethodEvent inCorso(evento->preeditString(), evento->attributes());
  inCorso.setCommitString(QString(), evento->replacementStart(), evento->replacementLength());
  QPlainTextEdit::inputMethodEvent(&inCorso);
  Scrivi(evento->commitString(), Pressione::Prima);
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

}  // namespace parvik
