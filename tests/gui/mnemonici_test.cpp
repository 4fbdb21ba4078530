// No two access keys of a menu or a dialog are the same.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <map>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::Trova;

QChar AccessoDi(const QString& didascalia) {
  const QKeySequence tasto = QKeySequence::mnemonic(didascalia);
  return tasto.isEmpty() ? QChar() : QChar(tasto[0].key());
}

/// Those who share one, each with the others.
QStringList Contesi(const QStringList& didascalie) {
  std::map<QChar, QStringList> per;
  for (const QString& didascalia : didascalie)
    if (const QChar accesso = AccessoDi(didascalia); !accesso.isNull()) per[accesso] += didascalia;
  QStringList contesi;
  for (const auto& [accesso, chi] : per)
    if (chi.size() > 1) contesi += chi.join(" = ");
  return contesi;
}

QStringList Voci(const QWidget& menu) {
  QStringList voci;
  for (const QAction* azione : menu.actions()) voci += azione->text().section('\t', 0, 0);
  return voci;
}

QStringList Controlli(const QWidget& dove) {
  QStringList didascalie;
  for (const auto* pulsante : dove.findChildren<QAbstractButton*>())
    if (pulsante->isVisible()) didascalie += pulsante->text();
  for (const auto* etichetta : dove.findChildren<QLabel*>())
    if (etichetta->isVisible() && etichetta->buddy() != nullptr) didascalie += etichetta->text();
  return didascalie;
}

TEST(TastiDAccesso, AreNotSharedInAnyMenu) {
  Finestra finestra;
  finestra.Scegli(1);
  EXPECT_EQ(Contesi(Voci(*finestra->menuBar())), QStringList());
  for (const QMenu* menu : finestra->menuBar()->findChildren<QMenu*>()) {
    // Two entries that people have known by these letters for ever.
    const QStringList attesi =
        menu->objectName() == "mnuComandi" ? QStringList("&Stile carattere = Co&stante") : QStringList();
    EXPECT_EQ(Contesi(Voci(*menu)), attesi) << menu->objectName().toStdString();
  }
}

TEST(TastiDAccesso, AreNotSharedInTheWindow) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuSostituisci").trigger();
  finestra.Azione("mnuVerifica").trigger();
  finestra.Azione("mnuPannelloCampi").trigger();
  EXPECT_EQ(Contesi(Voci(*finestra->menuBar()) + Controlli(*finestra)), QStringList());
}

TEST(TastiDAccesso, AreNotSharedInAnyDialog) {
  Finestra finestra;
  finestra.Scegli(1);
  for (const char* nome : {"mnuInfo", "mnuVar", "mnuFlag", "mnuStile", "mnuLingua", "mnuPagina",
                           "mnuCostante", "mnuComando", "mnuFoglio"}) {
    bool aperto = false;
    prova::NelProssimoDialogo([&](QDialog& dialogo) {
      aperto = true;
      EXPECT_EQ(Contesi(Controlli(dialogo)), QStringList()) << nome;
      QTest::keyClick(&dialogo, Qt::Key_Escape);
    });
    finestra.Azione(nome).trigger();
    finestra.Attiva();
    EXPECT_TRUE(aperto) << nome;
  }
}

}  // namespace
}  // namespace parvik
