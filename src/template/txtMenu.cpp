#include "template/txtMenu.h"

#include <QAction>
#include <QIcon>
#include <QKeySequence>

namespace parvik {
namespace {

struct VoceSezione {
  const char* Nome;
  const char* Icona;  // of the desktop's
  QString Didascalia;
  QKeySequence Tasto;
  bool Possibile;
  std::function<void()> Fa;
};

void Metti(QMenu& menu, const VoceSezione& voce) {
  QAction* azione =
      menu.addAction(QIcon::fromTheme(voce.Icona), ConTasto(voce.Didascalia, voce.Tasto), voce.Fa);
  azione->setObjectName(voce.Nome);
  azione->setEnabled(voce.Possibile);
}

QString ConNome(const QString& verbo, const QString& nome) {
  return nome.isEmpty() ? verbo : verbo + " " + nome;
}

/// What is no entry to choose: an ampersand in it is one.
void MettiDetto(QMenu& menu, const QString& detto) {
  QAction* azione = menu.addAction(QString(detto).replace('&', "&&"));
  azione->setObjectName("cheCosaE");
  azione->setEnabled(false);
}

void MettiCodice(QMenu& menu, const StatoMenuSezione& stato, const AzioniMenuSezione& azioni) {
  menu.addSeparator();
  Metti(menu, {"apriCodice", "document-edit", "A&pri codice", QKeySequence(Qt::Key_F4), stato.SiApre,
               azioni.ApriCodice});
  Metti(menu, {"copiaCodice", "", "C&opia codice", {}, true, azioni.CopiaCodice});
  Metti(menu, {"flagDavanti", "", "&Flag davanti...", {}, true, azioni.FlagDavanti});
  MettiDetto(menu, stato.Codice);
}

}  // namespace

QString ConTasto(const QString& didascalia, const QKeySequence& tasto) {
  return tasto.isEmpty() ? didascalia : didascalia + u'\t' + tasto.toString(QKeySequence::NativeText);
}

QMenu* CreaMenuSezione(const StatoMenuSezione& stato, const AzioniMenuSezione& azioni, QWidget* padre) {
  auto* menu = new QMenu(padre);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  Metti(*menu, {"edit-undo", "edit-undo", ConNome("&Annulla", stato.Annulla), QKeySequence::Undo,
                stato.PuoAnnullare, azioni.Annulla});
  Metti(*menu, {"edit-redo", "edit-redo", ConNome("&Ripeti", stato.Ripeti),
                QKeySequence(Qt::CTRL | Qt::Key_Y), stato.PuoRipetere, azioni.Ripeti});
  menu->addSeparator();
  Metti(*menu, {"edit-cut", "edit-cut", "&Taglia", QKeySequence::Cut, stato.Scelto, azioni.Taglia});
  Metti(*menu, {"edit-copy", "edit-copy", "&Copia", QKeySequence::Copy, stato.Scelto, azioni.Copia});
  Metti(*menu,
        {"edit-paste", "edit-paste", "&Incolla", QKeySequence::Paste, stato.PuoIncollare, azioni.Incolla});
  Metti(*menu, {"edit-delete", "edit-delete", "&Elimina", {}, stato.Scelto, azioni.Elimina});
  menu->addSeparator();
  Metti(*menu, {"select-all", "edit-select-all", "&Seleziona tutto", QKeySequence::SelectAll, !stato.Vuota,
                azioni.SelezionaTutto});
  if (!stato.Codice.isEmpty()) MettiCodice(*menu, stato, azioni);
  return menu;
}

}  // namespace parvik
