#include "common/qtFiltro.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <algorithm>
#include <limits>
#include <utility>

namespace parvik {
namespace {

/// Whether a key writes its text. Control with a letter does not, whatever text comes with it; with Alt it
/// may be the third level of a keyboard.
bool Scrive(const QKeyEvent& tasto) {
  const bool comando = (tasto.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier;
  return !comando && !tasto.text().isEmpty() && tasto.text().front().isPrint();
}

/// Shift+Insert pastes the clipboard, and with Control what is selected elsewhere.
QClipboard::Mode AppuntiDi(const QKeyEvent& tasto) {
  const bool selezione =
      tasto.key() == Qt::Key_Insert && tasto.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
  return selezione ? QClipboard::Selection : QClipboard::Clipboard;
}

}  // namespace

qtFiltro::qtFiltro(QLineEdit& campo, int massimo, Regola regola)
    : QValidator(&campo), campo_(campo), massimo_(massimo), regola_(std::move(regola)), prima_(campo.text()) {
  campo.setMaxLength(std::numeric_limits<int>::max());  // the filter counts
  campo.setValidator(this);
  campo.installEventFilter(this);
  connect(&campo, &QLineEdit::textChanged, this, [this](const QString& testo) { prima_ = testo; });
}

bool qtFiltro::eventFilter(QObject* oggetto, QEvent* evento) {
  switch (evento->type()) {
    case QEvent::KeyPress:
      return Tasto(*static_cast<QKeyEvent*>(evento));
    case QEvent::InputMethod:
      Componi(*static_cast<QInputMethodEvent*>(evento));
      break;
    case QEvent::Drop:
      return Lascia(*static_cast<QDropEvent*>(evento));
    case QEvent::MouseButtonRelease:
      return static_cast<QMouseEvent*>(evento)->button() == Qt::MiddleButton && IncollaSelezione();
    case QEvent::ContextMenu:
      return ApriMenu(*static_cast<QContextMenuEvent*>(evento));
    default:
      break;
  }
  return QValidator::eventFilter(oggetto, evento);
}

/// A key that writes nothing must not remove the selection either.
bool qtFiltro::Tasto(const QKeyEvent& tasto) {
  if (tasto.matches(QKeySequence::Paste)) return Incolla(AppuntiDi(tasto));
  if (!Scrive(tasto)) return false;
  const QString ammesso = EntranoAlCursore(tasto.text());
  if (ammesso == tasto.text()) return false;
  if (!ammesso.isEmpty()) campo_.insert(ammesso);
  return true;
}

bool qtFiltro::Incolla(QClipboard::Mode appunti) {
  const QString testo = QGuiApplication::clipboard()->text(appunti);
  const QString ammesso = EntranoAlCursore(testo);
  if (ammesso == testo) return false;
  if (ammesso.isEmpty()) return true;
  ChiudiPasso();
  campo_.insert(ammesso);
  ChiudiPasso();
  return true;
}

bool qtFiltro::IncollaSelezione() {
  if (!QGuiApplication::clipboard()->supportsSelection()) return false;
  campo_.deselect();
  return Incolla(QClipboard::Selection);
}

bool qtFiltro::Lascia(QDropEvent& evento) {
  QMimeData ammesso;
  ammesso.setText(Entrano(evento.mimeData()->text(), campo_.text().size()));
  if (ammesso.text() == evento.mimeData()->text()) return false;
  QDropEvent pulito(evento.position(), evento.possibleActions(), &ammesso, evento.buttons(),
                    evento.modifiers());
  pulito.setDropAction(evento.dropAction());
  static_cast<QObject&>(campo_).event(&pulito);
  evento.setDropAction(pulito.dropAction());
  evento.setAccepted(pulito.isAccepted());
  return true;
}

/// The toolkit's menu, but for how it pastes. Its entries are told apart by their captions alone.
bool qtFiltro::ApriMenu(const QContextMenuEvent& evento) {
  QMenu* menu = campo_.createStandardContextMenu();
  for (const QAction* voce : menu->actions()) {
    if (!voce->text().startsWith(QLineEdit::tr("&Paste"))) continue;
    voce->disconnect(&campo_);
    connect(voce, &QAction::triggered, this, [this] {
      if (!Incolla(QClipboard::Clipboard)) campo_.paste();
    });
  }
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->popup(evento.globalPos());
  return true;
}

void qtFiltro::Componi(QInputMethodEvent& evento) const {
  evento.setCommitString(EntranoAlCursore(evento.commitString()), evento.replacementStart(),
                         evento.replacementLength());
}

/// A caret that moves ends a step of undo. So does the removal of a selection.
void qtFiltro::ChiudiPasso() {
  if (campo_.hasSelectedText()) return;
  const int qui = campo_.cursorPosition();
  campo_.setCursorPosition(qui == 0 ? 1 : qui - 1);
  campo_.setCursorPosition(qui);
}

QValidator::State qtFiltro::validate(QString& testo, int& cursore) const {
  if (massimo_ == 0) testo = comeSta_;
  // The toolkit's redo may hand over a caret behind the text's end.
  cursore = std::min(cursore, static_cast<int>(testo.size()));
  if (testo == prima_ || testo == comeSta_) return Acceptable;
  // What came in ends at the caret; the texts on both sides of it were there.
  const QStringView finoAlCursore = QStringView(testo).first(cursore);
  const QString dopo = testo.mid(cursore);
  const qsizetype inizio = InizioComune(finoAlCursore, dopo.size());
  const QString dentro = testo.left(inizio);
  const QString entrato = finoAlCursore.sliced(inizio).toString();
  const QString ammesso = Entrano(entrato, inizio + dopo.size());
  const bool rifiutato = ammesso.isEmpty() && !entrato.isEmpty();
  testo = rifiutato ? prima_ : dentro + ammesso + dopo;
  cursore = static_cast<int>(inizio + ammesso.size());
  return Acceptable;
}

/// What of `nuovo` may stand beside the `resto` characters that stay. A text that was too long from the start
/// may only get shorter.
QString qtFiltro::Entrano(const QString& nuovo, qsizetype resto) const {
  const qsizetype limite = std::max<qsizetype>(massimo_, prima_.size() - 1);
  return regola_(nuovo).left(std::max<qsizetype>(limite - resto, 0));
}

/// What of `nuovo` may come in at the caret, in the place of what is selected.
QString qtFiltro::EntranoAlCursore(const QString& nuovo) const {
  return Entrano(nuovo, campo_.text().size() - campo_.selectedText().size());
}

/// How many characters of `testo` stood at the start of the text before, in front of its last `dopo` ones.
qsizetype qtFiltro::InizioComune(QStringView testo, qsizetype dopo) const {
  const qsizetype fine = std::min(testo.size(), std::max<qsizetype>(prima_.size() - dopo, 0));
  return std::mismatch(testo.begin(), testo.begin() + fine, prima_.begin()).first - testo.begin();
}

}  // namespace parvik
