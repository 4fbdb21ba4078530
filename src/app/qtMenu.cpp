#include "app/qtMenu.h"

#include <QKeySequence>
#include <QList>
#include <QMenu>
#include <algorithm>

#include "common/qtTesto.h"

namespace parvik {
namespace {

/// The system's own keys for a command, beside those of the table.
QList<QKeySequence> AltriTasti(const VoceMenu& voce) {
  if (voce.Cosa == Comando::Annulla) return QKeySequence::keyBindings(QKeySequence::Undo);
  if (voce.Cosa != Comando::Ripeti) return {};
  return QKeySequence::keyBindings(QKeySequence::Redo) << QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
}

QList<QKeySequence> TastiDi(const VoceMenu& voce) {
  QList<QKeySequence> tasti;
  if (*voce.Scorciatoia != '\0') tasti += QKeySequence(voce.Scorciatoia, QKeySequence::PortableText);
  for (const QKeySequence& altro : AltriTasti(voce))
    if (!tasti.contains(altro)) tasti += altro;
  return tasti;
}

/// Whether a held key goes on with it: no held key opens a dialog.
bool SiTiene(const VoceMenu& voce) {
  return voce.Cosa == Comando::Annulla || voce.Cosa == Comando::Ripeti;
}

/// Undo and redo say what they would do. A key asks for it each time: texts are made for another step only,
/// which the entry remembers, counted from 1.
void Intitola(QAction& azione, const VoceMenu& voce, const StatoMenu& stato) {
  if (voce.Quando != Uso::DaAnnullare && voce.Quando != Uso::DaRipetere) return;
  const int passo =
      static_cast<int>(voce.Quando == Uso::DaAnnullare ? stato.DaAnnullare : stato.DaRipetere) + 1;
  if (azione.data().toInt() == passo) return;
  azione.setData(passo);
  azione.setText(DaUtf8(DidascaliaDi(voce, stato)));
}

}  // namespace

qtMenu::qtMenu(QMenuBar& barra, QWidget& finestra) : QObject(&finestra), finestra_(finestra) {
  for (const VoceMenu& voce : VociMenu()) Metti(barra, voce);
}

void qtMenu::Metti(QMenuBar& barra, const VoceMenu& voce) {
  QAction* azione = nullptr;
  switch (voce.Genere) {
    case GenereVoce::Menu:
      aperti_.clear();
      azione = ApriMenu(barra.addMenu(voce.Didascalia), voce)->menuAction();
      break;
    case GenereVoce::Sottomenu:
      azione = ApriMenu(aperti_.back()->addMenu(voce.Didascalia), voce)->menuAction();
      break;
    case GenereVoce::Fine:
      aperti_.pop_back();
      return;
    case GenereVoce::Voce:
      azione = CreaVoce(voce);
      break;
    case GenereVoce::Separatore:
      azione = aperti_.back()->addSeparator();
      break;
  }
  azione->setObjectName(voce.Nome);
  azioni_.emplace_back(&voce, azione);
}

QMenu* qtMenu::ApriMenu(QMenu* menu, const VoceMenu& voce) {
  menu->setObjectName(voce.Nome);
  aperti_.push_back(menu);
  return menu;
}

QAction* qtMenu::CreaVoce(const VoceMenu& voce) {
  QAction* azione = aperti_.back()->addAction(voce.Didascalia);
  azione->setShortcuts(TastiDi(voce));
  azione->setCheckable(voce.ConSpunta);
  azione->setAutoRepeat(SiTiene(voce));
  azione->setMenuRole(QAction::NoRole);  // the tree stays as it is on every system
  if (voce.Quando == Uso::Sempre) finestra_.addAction(azione);
  if (voce.Cosa)
    connect(azione, &QAction::triggered, this, [this, comando = *voce.Cosa] { emit Scelto(comando); });
  return azione;
}

QAction* qtMenu::Azione(Comando comando) const {
  const auto voce = std::ranges::find(azioni_, comando, [](const auto& una) { return una.first->Cosa; });
  return voce->second;
}

void qtMenu::Aggiorna(const StatoMenu& stato) {
  for (const auto& [voce, azione] : azioni_) {
    Intitola(*azione, *voce, stato);
    azione->setEnabled(Abilitata(*voce, stato));
    if (voce->Cosa) azione->setChecked(Spuntato(*voce->Cosa, stato));
  }
}

}  // namespace parvik
