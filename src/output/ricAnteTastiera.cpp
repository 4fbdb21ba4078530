// The keyboard, the clipboard and the menu of the preview pane.
#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <algorithm>

#include "common/qtTesto.h"
#include "output/ricAnte.h"

namespace parvik {
namespace {

/// Converts when it is asked: a selection may be as large as the preview, and is offered whenever it changes.
class DatiTesto final : public QMimeData {
 public:
  DatiTesto(std::shared_ptr<const TestoAnteprima> testo, Selezione parte)
      : testo_(std::move(testo)), parte_(parte) {}

  QStringList formats() const override { return {QStringLiteral("text/plain")}; }

 protected:
  QVariant retrieveData(const QString& formato, QMetaType tipo) const override {
    if (!hasFormat(formato)) return QMimeData::retrieveData(formato, tipo);
    return PerSchermo(testo_->Testo().substr(parte_.Inizio, parte_.Lunghezza));
  }

 private:
  std::shared_ptr<const TestoAnteprima> testo_;
  Selezione parte_;
};

struct Tasto {
  QKeySequence::StandardKey Muove;
  QKeySequence::StandardKey Seleziona;
  ricAnte::Movimento Dove;
};

constexpr std::array Tasti = {
    Tasto{QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar, ricAnte::Movimento::CarattereDopo},
    Tasto{QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar,
          ricAnte::Movimento::CarattereDavanti},
    Tasto{QKeySequence::MoveToNextWord, QKeySequence::SelectNextWord, ricAnte::Movimento::ParolaDopo},
    Tasto{QKeySequence::MoveToPreviousWord, QKeySequence::SelectPreviousWord,
          ricAnte::Movimento::ParolaDavanti},
    Tasto{QKeySequence::MoveToNextLine, QKeySequence::SelectNextLine, ricAnte::Movimento::RigaSotto},
    Tasto{QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine, ricAnte::Movimento::RigaSopra},
    Tasto{QKeySequence::MoveToNextPage, QKeySequence::SelectNextPage, ricAnte::Movimento::PaginaSotto},
    Tasto{QKeySequence::MoveToPreviousPage, QKeySequence::SelectPreviousPage,
          ricAnte::Movimento::PaginaSopra},
    Tasto{QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine, ricAnte::Movimento::InizioRiga},
    Tasto{QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine, ricAnte::Movimento::TermineRiga},
    Tasto{QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument,
          ricAnte::Movimento::InizioTesto},
    Tasto{QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument,
          ricAnte::Movimento::FineTesto},
};

const Tasto* TastoDi(const QKeyEvent& evento) {
  const auto tasto = std::ranges::find_if(
      Tasti, [&evento](const Tasto& t) { return evento.matches(t.Muove) || evento.matches(t.Seleziona); });
  return tasto == Tasti.end() ? nullptr : tasto;
}

/// The words that the toolkit's own text fields have.
QString Voce(const char* testo, QKeySequence::StandardKey tasto) {
  return QCoreApplication::translate("QWidgetTextControl", testo) + u'\t' +
         QKeySequence(tasto).toString(QKeySequence::NativeText);
}

}  // namespace

bool ricAnte::Riconosce(const QKeyEvent& evento) {
  return evento.matches(QKeySequence::Copy) || evento.matches(QKeySequence::SelectAll) ||
         TastoDi(evento) != nullptr;
}

void ricAnte::keyPressEvent(QKeyEvent* evento) {
  if (evento->matches(QKeySequence::Copy)) {
    Copia();
  } else if (evento->matches(QKeySequence::SelectAll)) {
    SelezionaTutto();
  } else if (const Tasto* tasto = TastoDi(*evento)) {
    Muovi(tasto->Dove, evento->matches(tasto->Seleziona));
  } else {
    evento->ignore();
  }
}

void ricAnte::keyReleaseEvent(QKeyEvent* evento) {
  QAbstractScrollArea::keyReleaseEvent(evento);
  const int tasto = evento->key();
  if (tasto == Qt::Key_Left || tasto == Qt::Key_Up || tasto == Qt::Key_Right || tasto == Qt::Key_Down) {
    emit CursoreMosso();
  }
}

void ricAnte::Muovi(Movimento dove, bool seleziona) {
  const bool verticale = dove == Movimento::RigaSopra || dove == Movimento::RigaSotto ||
                         dove == Movimento::PaginaSopra || dove == Movimento::PaginaSotto;
  if (!verticale) xVoluta_.reset();
  const std::size_t cursore = verticale ? InVerticale(dove) : InOrizzontale(dove, seleziona);
  Imposta(seleziona ? ancora_ : cursore, cursore);
  Rivela(cursore_);
  OffriSelezione();
}

std::size_t ricAnte::InOrizzontale(Movimento dove, bool seleziona) const {
  const Selezione scelto = Selezionato();
  const bool lascia = !seleziona && scelto.Lunghezza > 0;  // goes to an edge of what was selected
  switch (dove) {
    case Movimento::CarattereDopo:
      return lascia ? scelto.Fine() : CarattereDopo(*testo_, cursore_);
    case Movimento::CarattereDavanti:
      return lascia ? scelto.Inizio : CarattereDavanti(*testo_, cursore_);
    case Movimento::ParolaDopo:
      return ParolaDopo(*testo_, cursore_);
    case Movimento::ParolaDavanti:
      return ParolaDavanti(*testo_, cursore_);
    case Movimento::InizioRiga:
      return testo_->InizioRiga(testo_->RigaDi(cursore_));
    case Movimento::TermineRiga:
      return testo_->TermineRiga(testo_->RigaDi(cursore_));
    case Movimento::FineTesto:
      return testo_->Testo().size();
    default:
      return 0;
  }
}

/// Keeps to the x where the first of a row of vertical movements started. At the first and last line it
/// stays.
std::size_t ricAnte::InVerticale(Movimento dove) {
  const bool pagina = dove == Movimento::PaginaSopra || dove == Movimento::PaginaSotto;
  const bool sopra = dove == Movimento::RigaSopra || dove == Movimento::PaginaSopra;
  const std::size_t riga = testo_->RigaDi(cursore_);
  const auto prima = static_cast<std::size_t>(verticalScrollBar()->value());
  const std::size_t righe = pagina ? std::max<std::size_t>(Veduta().UltimaRigaIntera() - prima, 1) : 1;
  const std::size_t nuova =
      sopra ? riga - std::min(riga, righe) : std::min(riga + righe, testo_->NumRighe() - 1);
  if (!xVoluta_) xVoluta_ = XDi(*testo_, riga, cursore_ - testo_->InizioRiga(riga), *celle_);
  if (pagina) {
    const int passo = static_cast<int>(righe);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + (sopra ? -passo : passo));
  }
  return testo_->InizioRiga(nuova) + ColonnaVicina(*testo_, nuova, *xVoluta_, *celle_);
}

void ricAnte::SelezionaTutto() {
  xVoluta_.reset();
  Imposta(0, testo_->Testo().size());  // what shows stays
  OffriSelezione();
}

void ricAnte::Copia() const {
  if (ancora_ == cursore_) return;
  QGuiApplication::clipboard()->setMimeData(new DatiTesto(testo_, Selezionato()));  // it takes it over
}

/// To whoever pastes with the middle button, where there is such a thing.
void ricAnte::OffriSelezione() const {
  QClipboard* appunti = QGuiApplication::clipboard();
  if (!appunti->supportsSelection() || ancora_ == cursore_) return;
  appunti->setMimeData(new DatiTesto(testo_, Selezionato()), QClipboard::Selection);
}

void ricAnte::contextMenuEvent(QContextMenuEvent* evento) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QAction* copia = menu->addAction(QIcon::fromTheme("edit-copy"), Voce("&Copy", QKeySequence::Copy), this,
                                   &ricAnte::Copia);
  copia->setObjectName("edit-copy");
  copia->setEnabled(ancora_ != cursore_);
  menu->addSeparator();
  QAction* tutto =
      menu->addAction(QIcon::fromTheme("edit-select-all"), Voce("Select All", QKeySequence::SelectAll), this,
                      &ricAnte::SelezionaTutto);
  tutto->setObjectName("select-all");
  tutto->setEnabled(!testo_->Testo().empty());
  const bool daTastiera = evento->reason() == QContextMenuEvent::Keyboard;
  const QPoint alCursore = viewport()->mapToGlobal(RettangoloDi(cursore_).bottomLeft());
  menu->popup(daTastiera ? alCursore : evento->globalPos());
}

}  // namespace parvik
