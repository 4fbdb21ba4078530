// The tool bar, and the keys of commands, in the main window (docs/menus.md).
#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::Trova;

QToolButton& Pulsante(Finestra& finestra, const char* nome) {
  auto& barra = *Trova<QToolBar>(*finestra, "barStrumenti");
  return *qobject_cast<QToolButton*>(barra.widgetForAction(&finestra.Azione(nome)));
}

TEST(BarraStrumenti, ComesWithADocumentType) {
  Finestra finestra;
  EXPECT_EQ(finestra->findChild<QToolBar*>("barStrumenti"), nullptr);
  finestra.Scegli(1);
  EXPECT_TRUE(Trova<QToolBar>(*finestra, "barStrumenti")->isVisible());
  finestra.Azione("mnuNuovo").trigger();
  EXPECT_FALSE(Trova<QToolBar>(*finestra, "barStrumenti")->isVisible());
}

TEST(BarraStrumenti, HasPicturesNamesAndTooltipsWithTheKey) {
  Finestra finestra;
  finestra.Scegli(1);
  const std::vector<std::pair<const char*, QString>> attesi = {{"mnuApri", "Apri (Ctrl+O)"},
                                                               {"mnuSalva", "Salva (Ctrl+S)"},
                                                               {"mnuStampa", "Stampa (Ctrl+P)"},
                                                               {"mnuAnnulla", "Annulla (Ctrl+Z)"},
                                                               {"mnuRipeti", "Ripeti (Ctrl+Y)"},
                                                               {"mnuTrova", "Trova (Ctrl+F)"},
                                                               {"mnuAnte", "Anteprima (F5)"},
                                                               {"mnuMisura", "Campi a misura (F7)"},
                                                               {"mnuVerifica", "Verifica modello (F8)"}};
  for (const auto& [nome, detto] : attesi) {
    const QToolButton& pulsante = Pulsante(finestra, nome);
    EXPECT_EQ(pulsante.toolTip(), detto);
    EXPECT_FALSE(pulsante.icon().pixmap(16, 16).isNull()) << nome;
    EXPECT_FALSE(
        QAccessible::queryAccessibleInterface(&Pulsante(finestra, nome))->text(QAccessible::Name).isEmpty());
    EXPECT_FALSE(finestra.Azione(nome).isIconVisibleInMenu()) << nome;
  }
}

TEST(BarraStrumenti, FollowsWhatIsPossible) {
  Finestra finestra;
  finestra.Scegli(1);
  EXPECT_FALSE(Pulsante(finestra, "mnuAnnulla").isEnabled());
  QTest::keyClicks(&finestra.Sezione(0), "a");
  EXPECT_TRUE(Pulsante(finestra, "mnuAnnulla").isEnabled());
  EXPECT_EQ(Pulsante(finestra, "mnuAnnulla").toolTip(), "Annulla battitura (Ctrl+Z)");
  QTest::mouseClick(&Pulsante(finestra, "mnuAnnulla"), Qt::LeftButton);
  EXPECT_EQ(finestra.Sezione(0).toPlainText(), "\n");
  EXPECT_TRUE(Pulsante(finestra, "mnuAnte").isChecked());
  QTest::mouseClick(&Pulsante(finestra, "mnuAnte"), Qt::LeftButton);
  EXPECT_FALSE(finestra.Anteprima().isVisible());
  EXPECT_TRUE(finestra.Sezione(0).hasFocus()) << "a button takes no focus";
}

TEST(TastiDeiComandi, OpenTheirDialogs) {
  Finestra finestra;
  finestra.Scegli(1);
  const std::vector<std::pair<Qt::Key, std::string>> attesi = {
      {Qt::Key_1, "frmVar"},    {Qt::Key_2, "frmFlag"},   {Qt::Key_3, "frmStile"},
      {Qt::Key_4, "frmLingua"}, {Qt::Key_5, "frmPagina"}, {Qt::Key_6, "frmCostante"},
      {Qt::Key_7, "frmComando"}};
  for (const auto& [tasto, nome] : attesi) {
    std::string aperto;
    prova::NelProssimoDialogo([&aperto](QDialog& dialogo) {
      aperto = dialogo.objectName().toStdString();
      QTest::keyClick(&dialogo, Qt::Key_Escape);
    });
    QTest::keyClick(&finestra.Sezione(0), tasto, Qt::ControlModifier);
    finestra.Attiva();
    EXPECT_EQ(aperto, nome);
  }
}

}  // namespace
}  // namespace parvik
