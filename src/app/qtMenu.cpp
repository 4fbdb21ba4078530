#include "app/qtMenu.h"

#include <QMenu>

namespace parvik {

qtMenu::qtMenu(QMenuBar& barra, QObject* padre) : QObject(padre) {
  QMenu* menu = nullptr;
  for (const VoceMenu& voce : VociMenu()) {
    if (voce.Genere == GenereVoce::Menu) {
      menu = barra.addMenu(voce.Didascalia);
      menu->setObjectName(voce.Nome);
    }
    QAction* azione = voce.Genere == GenereVoce::Menu         ? menu->menuAction()
                      : voce.Genere == GenereVoce::Separatore ? menu->addSeparator()
                                                              : CreaVoce(*menu, voce);
    azione->setObjectName(voce.Nome);
    azioni_.emplace_back(&voce, azione);
  }
}

QAction* qtMenu::CreaVoce(QMenu& menu, const VoceMenu& voce) {
  QAction* azione = menu.addAction(voce.Didascalia);
  azione->setShortcut(QKeySequence(voce.Scorciatoia, QKeySequence::PortableText));
  azione->setCheckable(voce.ConSpunta);
  azione->setAutoRepeat(false);          // a held key opens no dialog
  azione->setMenuRole(QAction::NoRole);  // the tree stays as it is on every system
  if (voce.Cosa)
    connect(azione, &QAction::triggered, this, [this, comando = *voce.Cosa] { emit Scelto(comando); });
  return azione;
}

void qtMenu::Aggiorna(const StatoMenu& stato) {
  for (const auto& [voce, azione] : azioni_) {
    azione->setEnabled(Abilitata(*voce, stato));
    if (voce->Cosa) azione->setChecked(Spuntato(*voce->Cosa, stato));
  }
}

}  // namespace parvik
