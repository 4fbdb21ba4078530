#include "app/frmParvik.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMenuBar>
#include <QTest>

#include "Finestra.h"
#include "editor/Menu.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::Trova;

QString Etichetta(const VoceMenu& voce) {
  return QString::fromUtf8(voce.Didascalia);
}

TEST(FrmParvik, TheMenuTreeIsTheTableEntryByEntry) {
  Finestra finestra;
  std::vector<std::pair<const QMenu*, qsizetype>> aperti;  // and how many of their entries were seen
  for (const VoceMenu& voce : VociMenu()) {
    if (voce.Genere == GenereVoce::Menu) aperti.clear();
    if (voce.Genere == GenereVoce::Fine) {
      EXPECT_EQ(aperti.back().first->actions().size(), aperti.back().second);
      aperti.pop_back();
      continue;
    }
    const QAction& azione = finestra.Azione(voce.Nome);
    if (voce.Genere != GenereVoce::Menu) {
      EXPECT_EQ(aperti.back().first->actions().at(aperti.back().second++), &azione) << voce.Nome;
    }
    if (voce.Genere == GenereVoce::Menu || voce.Genere == GenereVoce::Sottomenu) {
      aperti.emplace_back(azione.menu(), 0);
      EXPECT_EQ(azione.menu()->objectName(), voce.Nome);
      EXPECT_EQ(azione.menu()->title(), Etichetta(voce));
      continue;
    }
    EXPECT_EQ(azione.isSeparator(), voce.Genere == GenereVoce::Separatore) << voce.Nome;
    EXPECT_EQ(azione.text(), Etichetta(voce));
    EXPECT_EQ(azione.shortcut().toString(QKeySequence::PortableText), voce.Scorciatoia) << voce.Nome;
  }
  EXPECT_EQ(finestra->menuBar()->actions().size(), 5);
}

TEST(FrmParvik, StartsWithoutATypeAndOnlyThreeEntriesUsable) {
  Finestra finestra;
  EXPECT_EQ(finestra->windowTitle(), "Ordavia");
  QStringList usabili;
  bool menuAperto = false;
  for (const VoceMenu& voce : VociMenu()) {
    if (voce.Genere == GenereVoce::Menu) menuAperto = finestra.Azione(voce.Nome).isEnabled();
    if (voce.Genere == GenereVoce::Voce && menuAperto && finestra.Azione(voce.Nome).isEnabled())
      usabili += voce.Nome;
  }
  EXPECT_EQ(usabili, QStringList({"mnuScelta", "mnuInfo", "mnuEsci"}));
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(finestra.Sezione(i).isVisible());
  EXPECT_FALSE(finestra.Anteprima().isVisible());
  EXPECT_FALSE(Trova<QLabel>(*finestra, "lblRighe")->isVisible());
}

TEST(FrmParvik, AThreeSectionTypeShowsThreeSectionsLabelsAndPreview) {
  Finestra finestra;
  finestra.Scegli(1);
  EXPECT_EQ(finestra->windowTitle(), "Ordavia - FATT*.IMG");
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(finestra.Sezione(i).isVisible());
    EXPECT_EQ(finestra.Sezione(i).toPlainText(), "\n");
    EXPECT_TRUE(Trova<QLabel>(*finestra, qPrintable(QStringLiteral("lblTCP_%1").arg(i)))->isVisible());
  }
  EXPECT_TRUE(finestra.Anteprima().isVisible());
  EXPECT_TRUE(finestra.Azione("mnuAnte").isChecked());
  EXPECT_TRUE(finestra.Azione("mnuComando").isEnabled());
  EXPECT_FALSE(finestra.Azione("mnuScelta").isEnabled());
  EXPECT_TRUE(finestra.Sezione(0).hasFocus());
}

TEST(FrmParvik, ASingleSectionTypeShowsOneSectionWithoutLabels) {
  Finestra finestra;
  finestra.Scegli(12);
  EXPECT_TRUE(finestra.Sezione(0).isVisible());
  EXPECT_FALSE(finestra.Sezione(1).isVisible());
  EXPECT_FALSE(finestra.Sezione(2).isVisible());
  EXPECT_FALSE(Trova<QLabel>(*finestra, "lblTCP_0")->isVisible());
  EXPECT_FALSE(finestra.Azione("mnuComando").isEnabled());
  EXPECT_EQ(finestra.Sezione(0).height(), finestra->centralWidget()->height());
}

TEST(FrmParvik, CancellingTheChoiceChangesNothing) {
  Finestra finestra;
  prova::NelProssimoDialogo([](QDialog& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Escape); });
  finestra.Azione("mnuScelta").trigger();
  EXPECT_EQ(finestra->windowTitle(), "Ordavia");
  EXPECT_TRUE(finestra.Azione("mnuScelta").isEnabled());
}

TEST(FrmParvik, TheLayoutFollowsTheWindow) {
  Finestra finestra;
  finestra.Scegli(1);
  for (const QSize dimensione : {QSize(900, 600), QSize(1280, 803), QSize(400, 300)}) {
    finestra->resize(dimensione);
    QCoreApplication::processEvents();
    const QWidget& area = *finestra->centralWidget();
    const QRect testata = finestra.Sezione(0).geometry();
    EXPECT_EQ(testata.top(), 0);
    EXPECT_EQ(testata.width(), finestra.Sezione(2).width());
    EXPECT_NEAR(testata.height(), area.height() / 3.0, 1);
    EXPECT_NEAR(finestra.Sezione(1).y(), testata.bottom() + 1, 1);
    EXPECT_NEAR(finestra.Sezione(2).geometry().bottom() + 1, area.height(), 1);
    EXPECT_EQ(finestra.Anteprima().x(), testata.right() + 1 + 5);  // behind the grip
    EXPECT_EQ(finestra.Anteprima().y(), 17);
    EXPECT_NEAR(finestra.Anteprima().geometry().right() + 1, area.width(), 1);
    EXPECT_EQ(finestra.Anteprima().geometry().bottom() + 1, area.height());
  }
}

TEST(FrmParvik, WithoutPreviewTheSectionsTakeTheWholeWidth) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuAnte").trigger();
  EXPECT_FALSE(finestra.Azione("mnuAnte").isChecked());
  EXPECT_FALSE(finestra.Anteprima().isVisible());
  EXPECT_EQ(finestra.Sezione(0).geometry().right() + 1, finestra->centralWidget()->width());
}

TEST(FrmParvik, TheLabelOfTheSectionWithTheFocusIsRed) {
  Finestra finestra;
  finestra.Scegli(1);
  const auto rosse = [&finestra] {
    QList<int> indici;
    for (int i = 0; i < 3; ++i) {
      const auto* etichetta = Trova<QLabel>(*finestra, qPrintable(QStringLiteral("lblTCP_%1").arg(i)));
      if (etichetta->palette().color(QPalette::WindowText) == QColor(255, 0, 0)) indici += i;
    }
    return indici;
  };
  EXPECT_EQ(rosse(), QList<int>({0}));
  QTest::mouseClick(finestra.Sezione(1).viewport(), Qt::LeftButton);
  EXPECT_EQ(rosse(), QList<int>({1}));
}

/// Whether the leftmost pixels of a label, from its top to its bottom, are the bar of the active one.
bool HaLaBarra(const QLabel& etichetta) {
  const QImage figura = const_cast<QLabel&>(etichetta).grab().toImage();
  const QRgb colore = etichetta.parentWidget()->palette().color(QPalette::WindowText).rgb();
  for (int y = 0; y < figura.height(); ++y) {
    for (int x = 0; x < 2; ++x) {
      if (figura.pixel(x, y) != colore) return false;
    }
  }
  return true;
}

bool HaDelRosso(const QLabel& etichetta) {
  const QImage figura = const_cast<QLabel&>(etichetta).grab().toImage();
  for (int y = 0; y < figura.height(); ++y) {
    for (int x = 3; x < figura.width(); ++x) {
      const QColor colore = figura.pixelColor(x, y);
      if (colore.red() > colore.green() + 60) return true;
    }
  }
  return false;
}

TEST(FrmParvik, TheActiveLabelHasABarBesideItsRedInEveryPalette) {
  Finestra finestra;
  finestra.Scegli(1);
  const auto etichetta = [&finestra](int i) -> const QLabel& {
    return *Trova<QLabel>(*finestra, qPrintable(QStringLiteral("lblTCP_%1").arg(i)));
  };
  QList<QRect> posti;
  for (int i = 0; i < 3; ++i) posti += etichetta(i).geometry();
  for (const QColor& fondo : {QColor(239, 239, 239), QColor(45, 45, 45)}) {
    finestra->setPalette(QPalette(fondo));
    for (const int attiva : {1, 2, 0}) {
      finestra.Sezione(attiva).setFocus();
      for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(HaLaBarra(etichetta(i)), i == attiva) << i << " of " << attiva;
        EXPECT_EQ(HaDelRosso(etichetta(i)), i == attiva) << i << " of " << attiva;
        EXPECT_EQ(etichetta(i).geometry(), posti[i]);
      }
    }
  }
}

TEST(FrmParvik, LabelsHaveNoAccessibleNameOfTheirOwn) {
  Finestra finestra;
  for (const char* nome : {"lblTCP_0", "lblTCP_1", "lblTCP_2", "lblRighe"}) {
    EXPECT_EQ(Trova<QLabel>(*finestra, nome)->accessibleName(), "") << nome;
  }
  EXPECT_EQ(Trova<QLabel>(*finestra, "lblTCP_0")->text(), "T e s t a t a");
  EXPECT_EQ(Trova<QLabel>(*finestra, "lblTCP_1")->text(), "C o r p o");
  EXPECT_EQ(Trova<QLabel>(*finestra, "lblTCP_2")->text(), "P i e d e");
}

TEST(FrmParvik, ALabelStandsOneLetterALine) {
  Finestra finestra;
  finestra.Scegli(1);
  const auto* etichetta = Trova<QLabel>(*finestra, "lblTCP_0");
  EXPECT_GT(etichetta->height(), 6 * etichetta->fontMetrics().height()) << "seven letters, seven lines";
  EXPECT_LE(etichetta->geometry().right(), finestra.Sezione(0).x());
}

TEST(FrmParvik, EntriesThatAreNotBuiltYetDoNothing) {
  Finestra finestra;
  finestra.Scegli(1);
  for (const char* nome : {"mnuStampa"}) {
    finestra.Azione(nome).trigger();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << nome;
    EXPECT_FALSE(finestra.Azione(nome).isChecked()) << nome;
  }
  for (int i = 0; i < 3; ++i) EXPECT_EQ(finestra.Sezione(i).toPlainText(), "\n");
}

}  // namespace
}  // namespace parvik
