// The main window's menus: built from the table, wired to the commands, and asked again after each change.
#include <QMenuBar>
#include <algorithm>
#include <string_view>

#include "app/frmParvik.h"
#include "editor/Menu.h"

namespace parvik {
namespace {

/// The keys of undo and redo on every system, beside those that it has itself.
QList<QKeySequence> TastiSempreValidi(QKeySequence::StandardKey tasti) {
  if (tasti == QKeySequence::Undo) return {QKeySequence(Qt::CTRL | Qt::Key_Z)};
  return {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)};
}

}  // namespace

void frmParvik::CreaMenu() {
  QMenu* menu = nullptr;
  for (const VoceMenu& voce : VociMenu()) {
    QAction* azione = nullptr;
    if (voce.Genere == GenereVoce::Menu) {
      menu = menuBar()->addMenu(voce.Didascalia);
      menu->setObjectName(voce.Nome);
      azione = menu->menuAction();
    } else if (voce.Genere == GenereVoce::Separatore) {
      azione = menu->addSeparator();
    } else {
      azione = menu->addAction(voce.Didascalia);
      azione->setShortcut(QKeySequence(voce.Scorciatoia, QKeySequence::PortableText));
      azione->setCheckable(voce.ConSpunta);
      azione->setAutoRepeat(false);          // a held key opens no dialog
      azione->setMenuRole(QAction::NoRole);  // the tree stays as it is on every system
    }
    azione->setObjectName(voce.Nome);
    azioni_.insert(voce.Nome, azione);
  }
}

/// What cannot be used does nothing, however it was called.
void frmParvik::CollegaMenu() {
  const auto collega = [this](const char* nome, auto comando) {
    const auto voce = std::ranges::find(VociMenu(), std::string_view(nome), &VoceMenu::Nome);
    connect(azioni_.value(nome), &QAction::triggered, this, [this, voce, comando] {
      if (Abilitata(*voce, editore_.PerMenu())) comando();
    });
  };
  collega("mnuScelta", [this] { ScegliTipo(0); });
  collega("mnuNuovo", [this] { editore_.Nuovo(); });
  collega("mnuApri", [this] { editore_.Apri(); });
  collega("mnuSalva", [this] { editore_.Salva(); });
  collega("mnuSalvaNome", [this] { editore_.SalvaConNome(); });
  collega("mnuStampa", [this] { editore_.Stampa(); });
  collega("mnuInfo", [this] { MostraInformazioni(); });
  collega("mnuEsci", [this] { close(); });
  collega("mnuAnte", [this] { editore_.CommutaAnteprima(); });
  collega("mnuVar", [this] { maschere_.ApriForm(TipoCodice::Variabile); });
  collega("mnuFlag", [this] { maschere_.ApriForm(TipoCodice::Flag); });
  collega("mnuStile", [this] { maschere_.ApriForm(TipoCodice::Stile); });
  collega("mnuLingua", [this] { maschere_.ApriForm(TipoCodice::Lingua); });
  collega("mnuPagina", [this] { maschere_.ApriForm(TipoCodice::Pagina); });
  collega("mnuCostante", [this] { maschere_.ApriForm(TipoCodice::Costante); });
  collega("mnuComando", [this] { maschere_.ApriComando(); });
  collega("mnuRighe", [this] { editore_.CommutaRighe(); });
  collega("mnuSettaFlag", [this] { editore_.CommutaSettaFlag(); });
}

/// Undo and redo, over all sections.
void frmParvik::CreaPassi() {
  CollegaPasso(QKeySequence::Undo, "mnuAnnulla", &frmParvik::Annulla);
  CollegaPasso(QKeySequence::Redo, "mnuRipeti", &frmParvik::Ripeti);
}

void frmParvik::CollegaPasso(QKeySequence::StandardKey tasti, const char* nome,
                             void (frmParvik::*comando)()) {
  auto* azione = new QAction(this);
  azione->setObjectName(nome);
  QList<QKeySequence> tutti = QKeySequence::keyBindings(tasti);
  for (const QKeySequence& altro : TastiSempreValidi(tasti))
    if (!tutti.contains(altro)) tutti += altro;
  azione->setShortcuts(tutti);
  addAction(azione);
  connect(azione, &QAction::triggered, this, comando);
}

void frmParvik::Annulla() {
  if (!editore_.TipoScelto()) return;
  for (txtTCP* sezione : sezioni_) sezione->FinisciComposizione();
  editore_.Annulla();
}

void frmParvik::Ripeti() {
  if (!editore_.TipoScelto()) return;
  for (txtTCP* sezione : sezioni_) sezione->FinisciComposizione();
  editore_.Ripeti();
}

void frmParvik::AggiornaMenu() {
  for (const VoceMenu& voce : VociMenu())
    azioni_.value(voce.Nome)->setEnabled(Abilitata(voce, editore_.PerMenu()));
  azioni_.value("mnuAnte")->setChecked(editore_.AnteSpuntata());
  azioni_.value("mnuRighe")->setChecked(editore_.Totali().has_value());
  azioni_.value("mnuSettaFlag")->setChecked(editore_.SettaFlagSpuntata());
}

}  // namespace parvik
