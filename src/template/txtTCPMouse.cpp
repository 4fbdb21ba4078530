// The section editor's mouse: codes under the pointer, words, dragging and dropping, the context menu.
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QStringList>
#include <QToolTip>
#include <utility>

#include "common/qtTesto.h"
#include "template/txtTCP.h"
#include "tokens/Codice.h"

namespace parvik {
namespace {

/// The clipboard of what is selected, where the system has one, and what the middle button brings.
QClipboard* Selezioni() {
  QClipboard* appunti = QGuiApplication::clipboard();
  return appunti->supportsSelection() ? appunti : nullptr;
}

}  // namespace

bool txtTCP::viewportEvent(QEvent* evento) {
  if (Esclude(*evento)) return true;
  if (evento->type() != QEvent::ToolTip) return QPlainTextEdit::viewportEvent(evento);
  const auto* aiuto = static_cast<QHelpEvent*>(evento);
  if (!MostraDescrizione(aiuto->pos(), aiuto->globalPos())) QToolTip::hideText();
  return true;
}

bool txtTCP::MostraDescrizione(QPoint punto, QPoint globale) {
  QStringList detti;
  const auto codice = CodiceA(punto);
  const auto byte = codice ? std::nullopt : Punti().ByteA(punto);
  if (codice && descrizione_) detti += descrizione_(ContenutoDi(comandi_.Testo().Byte(*codice)));
  if (codice || byte) {
    for (const OndaTesto& onda : OndeIn(codice ? *codice : Selezione{.Inizio = *byte, .Lunghezza = 1}))
      detti += onda.Detto;
  }
  if (detti.isEmpty()) return false;
  QToolTip::showText(globale, PerSuggerimento(detti.join(u'\n')), viewport());
  return true;
}

void txtTCP::mousePressEvent(QMouseEvent* evento) {
  if (PremiBordo(*evento)) return;
  const QTextCursor prima = textCursor();
  gesti_ = {};
  QPlainTextEdit::mousePressEvent(evento);
  const QTextCursor dopo = textCursor();
  // A press on the selection leaves it as it is, for it may be dragged.
  const bool rimasta = prima.hasSelection() && prima.anchor() == dopo.anchor() && prima == dopo;
  if (evento->button() == Qt::LeftButton && !evento->modifiers().testFlag(Qt::ShiftModifier) && rimasta)
    gesti_.Afferra(evento->globalPosition().toPoint());
}

void txtTCP::mouseMoveEvent(QMouseEvent* evento) {
  if (MuoviBordo(*evento)) return;
  const bool sinistro = evento->buttons().testFlag(Qt::LeftButton);
  if (sinistro && gesti_.Trattiene(evento->globalPosition().toPoint(), comandi_)) return;
  if (!sinistro || !gesti_.AParole()) return QPlainTextEdit::mouseMoveEvent(evento);
  Poni(gesti_.FinoA(Punti().ParolaA(evento->pos())));
  ensureCursorVisible();
}

void txtTCP::mouseReleaseEvent(QMouseEvent* evento) {
  if (RilasciaBordo(*evento)) return;
  const txtGesti gesti = std::exchange(gesti_, {});
  if (evento->button() == Qt::MiddleButton && Selezioni() != nullptr) {
    const QString testo = Selezioni()->text(QClipboard::Selection);
    return comandi_.Deposita(Punti().PostoFuoriA(evento->pos()), DaAltrove(testo));
  }
  QPlainTextEdit::mouseReleaseEvent(evento);
  if (gesti.Trattenuta()) Poni(CursoreSu(*gesti.Trattenuta()));
  if (gesti.AParole()) OffriSelezione();
}

void txtTCP::mouseDoubleClickEvent(QMouseEvent* evento) {
  const bool sinistro = evento->button() == Qt::LeftButton;
  if (const auto codice = sinistro ? CodiceA(evento->pos()) : std::nullopt)
    return comandi_.ApriCodice(*codice);
  QPlainTextEdit::mouseDoubleClickEvent(evento);
  if (!sinistro) return;
  const Selezione parola = Punti().ParolaA(evento->pos());
  gesti_.IniziaAParole(parola);
  Poni(CursoreSu(parola));
}

/// To whoever takes the system's selection, as the toolkit does with the selections that it makes itself.
void txtTCP::OffriSelezione() {
  if (Selezioni() != nullptr && textCursor().hasSelection())
    Selezioni()->setMimeData(createMimeDataFromSelection(), QClipboard::Selection);
}

/// Where the mouse is, or at the caret.
void txtTCP::contextMenuEvent(QContextMenuEvent* evento) {
  const bool daTastiera = evento->reason() == QContextMenuEvent::Keyboard;
  const auto alCursore = CodiciAlCursore(comandi_.Testo(), CursoreAttuale().Posto);
  const auto codice = !daTastiera         ? CodiceA(evento->pos())
                      : alCursore.empty() ? std::nullopt
                                          : std::optional(alCursore.back());
  QMenu* menu = CreaMenuSezione(PerMenu(codice), DalMenu(codice), this);
  menu->popup(daTastiera ? viewport()->mapToGlobal(cursorRect().bottomLeft()) : evento->globalPos());
}

StatoMenuSezione txtTCP::PerMenu(const std::optional<Selezione>& codice) const {
  StatoMenuSezione stato{.Annulla = DaUtf8(NomeModifica(documento_.GenereDaAnnullare())),
                         .Ripeti = DaUtf8(NomeModifica(documento_.GenereDaRipetere())),
                         .PuoAnnullare = documento_.PuoAnnullare(),
                         .PuoRipetere = documento_.PuoRipetere(),
                         .Scelto = comandi_.Selezionato().Lunghezza > 0,
                         .PuoIncollare = canPaste(),
                         .Vuota = comandi_.Testo().Dimensione() == 0};
  if (!codice) return stato;
  const std::string contenuto(ContenutoDi(comandi_.Testo().Byte(*codice)));
  stato.Codice = descrizione_ ? descrizione_(contenuto) : QString();
  stato.SiApre = Riconosci(contenuto) != TipoCodice::Sconosciuto;
  return stato;
}

AzioniMenuSezione txtTCP::DalMenu(const std::optional<Selezione>& codice) {
  AzioniMenuSezione azioni{.Annulla = [this] { emit DaAnnullare(); },
                           .Ripeti = [this] { emit DaRipetere(); },
                           .Taglia = [this] { Taglia(); },
                           .Copia = [this] { copy(); },
                           .Incolla = [this] { paste(); },
                           .Elimina = [this] { Elimina(); },
                           .SelezionaTutto = [this] { selectAll(); },
                           .ApriCodice = {},
                           .CopiaCodice = {},
                           .FlagDavanti = {}};
  if (!codice) return azioni;
  azioni.ApriCodice = [this, codice = *codice] { comandi_.ApriCodice(codice); };
  azioni.CopiaCodice = [testo = PerSchermo(comandi_.Testo().Byte(*codice))] {
    QGuiApplication::clipboard()->setText(testo);
  };
  azioni.FlagDavanti = [this, davanti = codice->Inizio] {
    Poni({.Ancora = davanti, .Posto = davanti});
    emit FlagDaInserire();
  };
  return azioni;
}

void txtTCP::dropEvent(QDropEvent* evento) {
  QDragLeaveEvent finito;
  QPlainTextEdit::dragLeaveEvent(&finito);  // what the toolkit shows while something is dragged over the text
  if (!evento->mimeData()->hasText()) return evento->ignore();
  const std::size_t posto = Punti().PostoFuoriA(evento->position().toPoint());
  const bool suo = evento->source() == viewport() && evento->dropAction() == Qt::MoveAction;
  if (suo) {
    comandi_.Sposta(posto);
  } else {
    comandi_.Deposita(posto, DaAltrove(evento->mimeData()->text()));
  }
  ensureCursorVisible();
  evento->acceptProposedAction();
  setFocus(Qt::OtherFocusReason);
  emit Attivata(sezione_);
}

}  // namespace parvik
