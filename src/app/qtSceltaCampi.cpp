#include "app/qtSceltaCampi.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "common/qtCampi.h"
#include "common/qtTesto.h"

namespace parvik {
namespace {

constexpr const char* NessunCampo = "Nessun campo trovato";

bool EInvio(const QKeyEvent& tasto) {
  return tasto.key() == Qt::Key_Return || tasto.key() == Qt::Key_Enter;
}

/// What a box would take, pressed elsewhere.
bool SiScrive(const QKeyEvent& tasto) {
  constexpr auto Comandi = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if ((tasto.modifiers() & Comandi) != 0) return false;
  return tasto.key() == Qt::Key_Backspace || (!tasto.text().isEmpty() && tasto.text().at(0).isPrint());
}

}  // namespace

qtSceltaCampi::qtSceltaCampi(Editore& editore, QLineEdit& casella, QTreeView& elenco, QLabel& nessuno,
                             Come come)
    : QObject(&elenco),
      casella_(casella),
      elenco_(elenco),
      nessuno_(nessuno),
      come_(come),
      modello_(editore, this) {
  UnaRiga(casella_);
  casella_.installEventFilter(this);
  casella_.setToolTip("Parole in qualunque ordine, o un numero");
  nessuno_.setText(NessunCampo);
  nessuno_.hide();
  PreparaElenco();
  connect(&casella_, &QLineEdit::textChanged, this, &qtSceltaCampi::Filtra);
}

void qtSceltaCampi::PreparaElenco() {
  elenco_.setModel(&modello_);
  elenco_.installEventFilter(this);
  elenco_.setHeaderHidden(true);
  elenco_.setRootIsDecorated(false);
  elenco_.setItemsExpandable(false);
  elenco_.setExpandsOnDoubleClick(false);
  elenco_.setIndentation(elenco_.fontMetrics().horizontalAdvance(u'n'));
  elenco_.setUniformRowHeights(true);
  elenco_.setAllColumnsShowFocus(true);
  elenco_.setEditTriggers(QAbstractItemView::NoEditTriggers);
  elenco_.setTabKeyNavigation(false);
  elenco_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  elenco_.header()->setStretchLastSection(false);
  elenco_.header()->setMinimumSectionSize(1);
  elenco_.header()->setSectionResizeMode(QHeaderView::Fixed);
  elenco_.header()->setSectionResizeMode(qtElencoCampi::Nome, QHeaderView::Stretch);
  elenco_.header()->resizeSection(qtElencoCampi::Numero, elenco_.fontMetrics().horizontalAdvance("V00000"));
  elenco_.header()->resizeSection(qtElencoCampi::Volte,
                                  elenco_.fontMetrics().horizontalAdvance("\u2022 0000"));
  if (come_ == Come::SoloCasella) {
    elenco_.setFocusPolicy(Qt::NoFocus);
  } else {
    elenco_.setDragEnabled(true);
    elenco_.setDragDropMode(QAbstractItemView::DragOnly);
  }
  connect(&elenco_, &QTreeView::doubleClicked, this, &qtSceltaCampi::Usa);
  connect(elenco_.selectionModel(), &QItemSelectionModel::currentChanged, this, &qtSceltaCampi::Descrivi);
}

void qtSceltaCampi::Rinnova() {
  const std::optional<VoceInseribile> prima = Scelta() != nullptr ? std::optional(*Scelta()) : std::nullopt;
  const int altezza = elenco_.verticalScrollBar()->value();
  if (!modello_.Rinnova()) return;
  MostraTutto();
  if (prima) elenco_.setCurrentIndex(modello_.PostoDi(*prima));
  elenco_.verticalScrollBar()->setValue(altezza);
  Descrivi();
}

void qtSceltaCampi::Azzera() {
  casella_.clear();
  elenco_.setCurrentIndex({});
  elenco_.scrollToTop();
}

/// The best one is chosen at once; without words nobody has asked for any.
void qtSceltaCampi::Filtra() {
  modello_.Filtra(casella_.text());
  MostraTutto();
  elenco_.setCurrentIndex(casella_.text().trimmed().isEmpty() ? QModelIndex() : modello_.Accanto({}, 0));
  elenco_.scrollToTop();
  Descrivi();
}

void qtSceltaCampi::MostraTutto() {
  for (int gruppo = 0; gruppo < modello_.rowCount(); ++gruppo)
    elenco_.setFirstColumnSpanned(gruppo, {}, true);
  elenco_.expandAll();
  nessuno_.setVisible(modello_.Vuoto());
}

/// For those who hear what is chosen, or that there is nothing, while they type.
void qtSceltaCampi::Descrivi() {
  const VoceInseribile* scelta = Scelta();
  QString detto = scelta != nullptr ? DaUtf8(DettaInFrase(*scelta)) : QString();
  if (modello_.Vuoto()) detto = NessunCampo;
  casella_.setAccessibleDescription(detto);
}

/// A copy: what is done with it may change what is offered.
void qtSceltaCampi::Conferma(bool conMaschera) {
  const VoceInseribile* scelta = Scelta();
  if (scelta == nullptr) return;
  const VoceInseribile voce = *scelta;
  emit Confermata(voce, conMaschera || voce.Nuova());
}

/// Fields of which the catalogue says nothing have their dialog for it.
void qtSceltaCampi::Usa() {
  if (const VoceInseribile* scelta = Scelta()) Conferma(ConMaschera(*scelta));
}

bool qtSceltaCampi::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress) return QObject::eventFilter(oggetto, evento);
  auto& tasto = static_cast<QKeyEvent&>(*evento);
  if (PremutoComune(tasto)) return true;
  return oggetto == &casella_ ? PremutoInCasella(tasto) : PremutoInElenco(tasto);
}

/// A held Enter inserts once.
bool qtSceltaCampi::PremutoComune(const QKeyEvent& tasto) {
  const Qt::KeyboardModifiers con = tasto.modifiers() & ~Qt::KeypadModifier;
  if (EInvio(tasto)) {
    const bool agisce = !tasto.isAutoRepeat() && (con == Qt::NoModifier || con == Qt::ControlModifier);
    if (agisce) con == Qt::ControlModifier ? ApriMaschera() : Usa();
    return true;
  }
  if (tasto.key() != Qt::Key_Escape || con != Qt::NoModifier) return false;
  if (come_ == Come::SoloCasella || casella_.text().isEmpty()) {
    emit Lasciata();
  } else {
    casella_.clear();
  }
  return true;
}

/// How many entries a key moves by; 0 of those that do not.
int qtSceltaCampi::PassiDi(const QKeyEvent& tasto) const {
  const int riga = std::max(1, elenco_.sizeHintForRow(0));
  const int pagina = std::max(1, elenco_.viewport()->height() / riga - 1);
  switch (tasto.key()) {
    case Qt::Key_Up:
      return -1;
    case Qt::Key_Down:
      return 1;
    case Qt::Key_PageUp:
      return -pagina;
    case Qt::Key_PageDown:
      return pagina;
    default:
      return 0;
  }
}

bool qtSceltaCampi::PremutoInCasella(const QKeyEvent& tasto) {
  if ((tasto.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  const int passi = PassiDi(tasto);
  if (passi == 0) return false;
  if (come_ == Come::SoloCasella) {
    elenco_.setCurrentIndex(modello_.Accanto(elenco_.currentIndex(), passi));
  } else if (passi > 0 && !modello_.Vuoto()) {
    if (Scelta() == nullptr) elenco_.setCurrentIndex(modello_.Accanto({}, 0));
    elenco_.setFocus(Qt::OtherFocusReason);
  }
  return true;
}

/// Above the first heading there is the box.
bool qtSceltaCampi::PremutoInElenco(QKeyEvent& tasto) {
  const QModelIndex qui = elenco_.currentIndex();
  const bool inCima = tasto.key() == Qt::Key_Up && !elenco_.indexAbove(qui).isValid();
  const bool siScrive = SiScrive(tasto);
  if (!inCima && !siScrive) return false;
  casella_.setFocus(Qt::OtherFocusReason);
  if (siScrive) QCoreApplication::sendEvent(&casella_, &tasto);
  return true;
}

}  // namespace parvik
