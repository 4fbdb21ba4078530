// The context menu of a section: what can be done with what is selected, and with the code there.
#pragma once

#include <QMenu>
#include <QString>
#include <functional>

namespace parvik {

/// What the menu shows.
struct StatoMenuSezione {
  QString Annulla;  // what undoing undoes, "" where it has no name
  QString Ripeti;
  bool PuoAnnullare = false;
  bool PuoRipetere = false;
  bool Scelto = false;  // something is selected
  bool PuoIncollare = false;
  bool Vuota = false;   // there is nothing to select
  QString Codice = {};  // what the code there is; "" where there is none
  bool SiApre = false;  // it has a dialog
};

/// What its entries do.
struct AzioniMenuSezione {
  std::function<void()> Annulla, Ripeti, Taglia, Copia, Incolla, Elimina, SelezionaTutto;
  std::function<void()> ApriCodice, CopiaCodice, FlagDavanti;
};

/// A menu of `padre` that goes when it is closed. Entries have the toolkit's names, where it has such an
/// entry.
QMenu* CreaMenuSezione(const StatoMenuSezione& stato, const AzioniMenuSezione& azioni, QWidget* padre);

/// An entry's caption with its key.
QString ConTasto(const QString& didascalia, const QKeySequence& tasto);

}  // namespace parvik
