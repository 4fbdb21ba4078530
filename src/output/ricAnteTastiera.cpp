// The keyboard and the menu of the preview pane.
#include <QAction>
#include <QContextMenuEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
#include <algorithm>
#include <array>

#include "output/ricAnte.h"
#include "output/ricAppunti.h"
#include "template/txtMenu.h"

namespace parvik {
namespace {

struct Tasto {
  QKeySequence::StandardKey Muove;
  QKeySequence::StandardKey Seleziona;
  Movimento Dove;
};

constexpr std::array Tasti = {
    Tasto{QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar, Movimento::CarattereDopo},
    Tasto{QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar, Movimento::CarattereDavanti},
    Tasto{QKeySequence::MoveToNextWord, QKeySequence::SelectNextWord, Movimento::ParolaDopo},
    Tasto{QKeySequence::MoveToPreviousWord, QKeySequence::SelectPreviousWord, Movimento::ParolaDavanti},
    Tasto{QKeySequence::MoveToNextLine, QKeySequence::SelectNextLine, Movimento::RigaSotto},
    Tasto{QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine, Movimento::RigaSopra},
    Tasto{QKeySequence::MoveToNextPage, QKeySequence::SelectNextPage, Movimento::PaginaSotto},
    Tasto{QKeySequence::MoveToPreviousPage, QKeySequence::SelectPreviousPage, Movimento::PaginaSopra},
    Tasto{QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine, Movimento::InizioRiga},
    Tasto{QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine, Movimento::TermineRiga},
    Tasto{QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument, Movimento::InizioTesto},
    Tasto{QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument, Movimento::FineTesto},
};

const Tasto* TastoDi(const QKeyEvent& evento) {
  const auto tasto = std::ranges::find_if(
      Tasti, [&evento](const Tasto& t) { return evento.matches(t.Muove) || evento.matches(t.Seleziona); });
  return tasto == Tasti.end() ? nullptr : tasto;
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
  } else if (evento->key() == Qt::Key_F4 && evento->modifiers() == Qt::NoModifier) {
    emit OrigineChiesta(Cursore());
  } else if (const Tasto* tasto = TastoDi(*evento)) {
    const bool seleziona = evento->matches(tasto->Seleziona);
    Muovi(tasto->Dove, seleziona ? ModoMovimento::Seleziona : ModoMovimento::Muove);
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

void ricAnte::Muovi(Movimento dove, ModoMovimento modo) {
  const bool pagina = dove == Movimento::PaginaSopra || dove == Movimento::PaginaSotto;
  const int righe = pagina ? RighePerPagina() : 1;
  const SelezioneAnteprima prima = scelta_;
  scelta_.Muovi(dove, modo,
                {.PerPagina = static_cast<std::size_t>(righe),
                 .XDi = [this](std::size_t riga,
                               std::size_t colonna) { return XDi(Contenuto(), riga, colonna, *celle_); },
                 .ColonnaVicina = [this](std::size_t riga,
                                         qreal x) { return ColonnaVicina(Contenuto(), riga, x, *celle_); }});
  if (pagina) Scorri(dove == Movimento::PaginaSopra ? -righe : righe, 0);
  MostraMossa(prima);
  Rivela(Cursore());
  OffriSelezione();
}

/// How many lines show whole, without the last one, which the next page begins with.
int ricAnte::RighePerPagina() const {
  const auto prima = static_cast<std::size_t>(verticalScrollBar()->value());
  return static_cast<int>(std::max<std::size_t>(Veduta().UltimaRigaIntera() - prima, 1));
}

void ricAnte::SelezionaTutto() {
  const SelezioneAnteprima prima = scelta_;
  scelta_.SelezionaTutto();
  MostraMossa(prima);  // what shows stays
  OffriSelezione();
}

void ricAnte::Copia() const {
  MettiNegliAppunti(scelta_, QClipboard::Clipboard);
}

/// To whoever pastes with the middle button, where there is such a thing.
void ricAnte::OffriSelezione() const {
  MettiNegliAppunti(scelta_, QClipboard::Selection);
}

void ricAnte::contextMenuEvent(QContextMenuEvent* evento) {
  const bool daTastiera = evento->reason() == QContextMenuEvent::Keyboard;
  const std::size_t byte = daTastiera ? Cursore() : CarattereA(evento->pos());
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto metti = [&](const char* nome, const QString& didascalia, bool possibile, auto azione) {
    QAction* voce = menu->addAction(QIcon::fromTheme(nome), didascalia, this, azione);
    voce->setObjectName(nome);
    voce->setEnabled(possibile);
  };
  const bool piena = !Contenuto().Testo().empty();
  metti("edit-copy", ConTasto("&Copia", QKeySequence::Copy), Selezionato().Lunghezza > 0, &ricAnte::Copia);
  menu->addSeparator();
  metti("edit-select-all", ConTasto("&Seleziona tutto", QKeySequence::SelectAll), piena,
        &ricAnte::SelezionaTutto);
  metti("edit-find", ConTasto("&Trova", QKeySequence::Find), piena, &ricAnte::RicercaChiesta);
  metti("go-jump", ConTasto("&Vai al testo", QKeySequence(Qt::Key_F4)), piena,
        [this, byte] { emit OrigineChiesta(byte); });
  const QPoint alCursore = viewport()->mapToGlobal(RettangoloDi(Cursore()).bottomLeft());
  menu->popup(daTastiera ? alCursore : evento->globalPos());
}

}  // namespace parvik
