#include "app/barStrumenti.h"

#include <QKeySequence>
#include <QMainWindow>
#include <array>
#include <optional>

#include "app/qtIconeBarra.h"

namespace parvik {
namespace {

/// In their order; nothing stands for a separator.
constexpr std::array<std::optional<Comando>, 12> Bottoni = {
    Comando::Apri, Comando::Salva, Comando::Stampa, std::nullopt,       Comando::Annulla, Comando::Ripeti,
    std::nullopt,  Comando::Trova, std::nullopt,    Comando::Anteprima, Comando::Misura,  Comando::Verifica};

/// An entry's caption without what is only the menu's, and its key.
QString Detto(const QAction& azione) {
  QString testo = azione.text();
  testo.remove('&').remove("...");
  const QKeySequence tasto = azione.shortcut();
  return tasto.isEmpty() ? testo : testo + " (" + tasto.toString(QKeySequence::NativeText) + ")";
}

}  // namespace

barStrumenti::barStrumenti(const qtMenu& menu, QWidget* padre) : QToolBar("Barra degli strumenti", padre) {
  setObjectName("barStrumenti");
  setAccessibleName("Barra degli strumenti");
  setMovable(false);
  setFloatable(false);
  for (const std::optional<Comando>& comando : Bottoni) {
    if (!comando) {
      addSeparator();
      continue;
    }
    QAction* azione = menu.Azione(*comando);
    azione->setIcon(IconaDi(*comando));
    azione->setIconVisibleInMenu(false);
    addAction(azione);
    azioni_.push_back(azione);
    connect(azione, &QAction::changed, this, [azione] { azione->setToolTip(Detto(*azione)); });
  }
  Aggiorna();
}

void barStrumenti::Aggiorna() {
  for (QAction* azione : azioni_) azione->setToolTip(Detto(*azione));
}

void MostraStrumenti(const Editore& editore, const qtMenu& menu, QMainWindow& finestra,
                     barStrumenti*& barra) {
  const bool visibile = editore.TipoScelto() && editore.Scelte()[Preferenza::BarraStrumenti];
  if (barra == nullptr && visibile) {
    barra = new barStrumenti(menu, &finestra);
    finestra.addToolBar(Qt::TopToolBarArea, barra);
  }
  if (barra == nullptr) return;
  barra->setVisible(visibile);
  barra->Aggiorna();
}

}  // namespace parvik
