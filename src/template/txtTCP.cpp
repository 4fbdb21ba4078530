#include "template/txtTCP.h"

#include <QFocusEvent>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QResizeEvent>
#include <QTextDocument>
#include <QTextEdit>

#include "common/ParoleComuni.h"
#include "common/qtTesto.h"
#include "editor/Ingrandimento.h"
#include "template/txtComposizione.h"
#include "template/txtDisposizione.h"
#include "template/txtTasti.h"

namespace parvik {
namespace {

/// What a person does to a section, or a program on somebody's behalf.
bool EUnIntervento(const QEvent& evento) {
  switch (evento.type()) {
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::ToolTip:
      return true;
    default:
      return evento.isInputEvent();
  }
}

QTextDocument* NuovoDocumento(QObject* padre) {
  auto* documento = new QTextDocument(padre);
  documento->setDocumentLayout(new txtDisposizione(documento));
  return documento;
}

}  // namespace

txtTCP::txtTCP(Documento& documento, Sezione sezione, QWidget* padre)
    : QPlainTextEdit(padre), documento_(documento), sezione_(sezione), comandi_(documento, sezione, *this) {
  setDocument(NuovoDocumento(this));
  specchio_ = new txtSpecchio(documento, sezione, *this);  // in front of the colours: it knows the text first
  colori_ = new qtColori(document(), *specchio_);
  setObjectName(QStringLiteral("txtTCP_%1").arg(Indice(sezione)));
  setAccessibleName(TitoliSezioni[Indice(sezione)]);
  setLineWrapMode(NoWrap);
  setTabChangesFocus(true);
  colori_->ImpostaTavolozza(palette());
  connect(specchio_, &txtSpecchio::CodiciCambiati, colori_, &qtColori::ColoraDa);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, &txtTCP::CursoreMosso);
  connect(this, &QPlainTextEdit::textChanged, this, &txtTCP::SegnaCodiciAlCursore);
  connect(this, &QPlainTextEdit::textChanged, this, &txtTCP::DescriviCursore);
  connect(document(), &QTextDocument::contentsChange, colori_, &qtColori::Prosegui);
}

void txtTCP::ImpostaUso(bool inUso) {
  if (inUso == InUso()) return;
  setReadOnly(!inUso);
  setEnabled(inUso);
}

void txtTCP::Ingrandisci(int passi) {
  ingrandimento_ = passi;
  if (isVisible()) ImpostaCarattere();
}

void txtTCP::ImpostaCarattere() {
  QFont carattere = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  if (ingrandimento_ != 0)
    carattere.setPointSizeF(PuntiIngranditi(QFontInfo(carattere).pointSizeF(), ingrandimento_));
  setFont(carattere);
}

/// Whether an event is one that nothing may come of.
bool txtTCP::Esclude(QEvent& evento) const {
  if (InUso() || !EUnIntervento(evento)) return false;
  evento.ignore();
  return true;
}

bool txtTCP::event(QEvent* evento) {
  if (Esclude(*evento)) return true;
  const bool tasto = evento->type() == QEvent::ShortcutOverride || evento->type() == QEvent::KeyPress;
  if (tasto && EDellaFinestra(*static_cast<QKeyEvent*>(evento))) {
    evento->ignore();
    return true;
  }
  // Here and not in keyPressEvent, which never sees the keys that move the focus.
  if (tasto && bordo_ && static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Escape) {
    LasciaBordo();
    evento->accept();
    return true;
  }
  if (evento->type() == QEvent::KeyPress && !EUnModificatore(*static_cast<QKeyEvent*>(evento)))
    emit TastoPremuto();
  // Not before it can be seen, as no section can when the program starts: loading a font takes time.
  if (evento->type() == QEvent::Show) ImpostaCarattere();
  return QPlainTextEdit::event(evento);
}

void txtTCP::focusInEvent(QFocusEvent* evento) {
  QPlainTextEdit::focusInEvent(evento);
  documento_.InterrompiBattitura();
  if (InUso()) emit Attivata(sezione_);
}

void txtTCP::CursoreMosso() {
  if (!specchio_->AlLavoro()) documento_.InterrompiBattitura();
  DescriviCursore();
  if (misura_) return TieniFuoriDaiCampi();
  SegnaCodiciAlCursore();
}

/// Marks the codes that the caret touches.
void txtTCP::SegnaCodiciAlCursore() {
  if (misura_) return;  // it draws them by itself
  QList<QTextEdit::ExtraSelection> segni;
  for (const Selezione& codice : CodiciAlCursore(comandi_.Testo(), CursoreAttuale().Posto)) {
    QTextEdit::ExtraSelection segno;
    segno.cursor = specchio_->InTesto(CursoreSu(codice));
    segno.format.setBackground(colori_->FondoCodiceAttivo());
    segni += segno;
  }
  if (!segni.isEmpty() || !extraSelections().isEmpty()) setExtraSelections(segni);
}

void txtTCP::changeEvent(QEvent* evento) {
  QPlainTextEdit::changeEvent(evento);
  if (evento->type() == QEvent::PaletteChange) {
    colori_->ImpostaTavolozza(palette());
    SegnaCodiciAlCursore();
  }
  if (evento->type() == QEvent::FontChange) CambiatoCarattere();
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

void txtTCP::Scrivi(const QString& testo, Pressione pressione) {
  if (!InUso() || testo.isEmpty()) return;
  comandi_.Scrivi(DaSchermo(testo), pressione);
  ensureCursorVisible();
}

void txtTCP::Incolla(const QString& testo) {
  if (InUso()) comandi_.Incolla(DaAltrove(testo));
}

void txtTCP::Elimina() {
  if (!InUso()) return;
  comandi_.Elimina();
  ensureCursorVisible();
}

void txtTCP::Taglia(Pressione pressione) {
  const Selezione scelta = comandi_.Selezionato();
  if (!InUso() || scelta.Lunghezza == 0 || !comandi_.LasciaTogliere(scelta, pressione)) return;
  copy();
  comandi_.Togli(scelta);
  ensureCursorVisible();
}

/// What the keys change, under the rules.
bool txtTCP::EseguiModifica(const QKeyEvent& evento) {
  const Pressione pressione = PressioneDi(evento);
  if (evento.key() == Qt::Key_F4 && ApriCampoDopo()) return true;
  if (const auto tasto = TastoDi(evento)) {
    comandi_.Premi(*tasto, pressione);
  } else if (FinisceRiga(evento)) {
    comandi_.VaiACapo(pressione);
  } else if (ScriveTesto(evento)) {
    Scrivi(evento.text(), pressione);
  } else if (evento.matches(QKeySequence::Cut)) {
    Taglia(pressione);
  } else if (CancellaFinoAFineRiga(evento)) {
    comandi_.CancellaFinoAFineRiga(pressione);
  } else {
    return false;
  }
  ensureCursorVisible();
  return true;
}

/// What moves the caret, selects, copies and pastes.
bool txtTCP::EseguiMovimento(QKeyEvent& evento) {
  if (PassaCampo(evento)) return true;
  if (const auto passo = PassoDi(evento)) {
    Poni(passo->Da(comandi_.Testo(), CursoreAttuale()));
    return true;
  }
  if (!EDelToolkit(evento)) return false;
  const bool trattenuta =
      evento.isAutoRepeat() && evento.matches(QKeySequence::Paste) && textCursor().hasSelection();
  if (!trattenuta) QPlainTextEdit::keyPressEvent(&evento);
  return true;
}

/// A Tab is left, too, where there is nowhere to move the focus: templates hold none.
void txtTCP::keyPressEvent(QKeyEvent* evento) {
  if (!EseguiModifica(*evento) && !EseguiMovimento(*evento)) evento->ignore();
}

void txtTCP::inputMethodEvent(QInputMethodEvent* evento) {
  evento->accept();
  const Selezione via = SostituitaDa(*evento, *this, *specchio_);
  if (!comandi_.LasciaTogliere(via, Pressione::Prima)) return QGuiApplication::inputMethod()->reset();
  if (via.Lunghezza > 0) comandi_.Togli(via);
  // The base class shows what is being composed; what is finished is typed.
  QInputMethodEvent inCorso(evento->preeditString(), evento->attributes());
  QPlainTextEdit::inputMethodEvent(&inCorso);
  Scrivi(evento->commitString(), Pressione::Prima);
}

void txtTCP::FinisciComposizione() {
  if (!Compone(*this)) return;
  QGuiApplication::inputMethod()->reset();
  QInputMethodEvent niente;
  QPlainTextEdit::inputMethodEvent(&niente);
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
