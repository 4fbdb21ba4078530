// Rulers above preview and sections, and the guides that clicks on them set.
#include "common/righello.h"

#include <gtest/gtest.h>

#include <QTest>

#include "Finestra.h"
#include "template/txtTCP.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::Trova;

class Righello : public testing::Test {
 protected:
  Righello() {
    finestra_.Scegli(1);
    finestra_.Attiva();
    finestra_.Apri("FATT01.IMG");
    finestra_.Azione("mnuAnte").trigger();
    if (!finestra_.Anteprima().isVisible()) finestra_.Azione("mnuAnte").trigger();
    finestra_.Azione("mnuRighello").trigger();
  }

  bool Visibile(const char* nome) {
    const auto* trovato = finestra_->findChild<righello*>(nome);
    return trovato != nullptr && trovato->isVisible();
  }
  righello& Quello(const char* nome) { return *Trova<righello>(*finestra_, nome); }
  /// In the middle of a column of the Testata, from 0.
  QPoint NelRighello(int colonna) {
    auto* editor = Trova<txtTCP>(*finestra_, "txtTCP_0");
    QTextCursor inizio(editor->document());
    const qreal cella = QFontMetricsF(editor->font()).horizontalAdvance(u'M');
    return {editor->cursorRect(inizio).left() + static_cast<int>((colonna + 0.5) * cella), 4};
  }

  Finestra finestra_;
};

TEST_F(Righello, StandsAboveThePreviewAndAboveSectionsThatAreShownToMeasure) {
  EXPECT_TRUE(Visibile("righelloAnte"));
  EXPECT_FALSE(Visibile("righello_0"));
  finestra_.Azione("mnuMisura").trigger();
  for (const char* nome : {"righello_0", "righello_1", "righello_2"}) EXPECT_TRUE(Visibile(nome)) << nome;
  finestra_.Azione("mnuRighello").trigger();
  for (const char* nome : {"righelloAnte", "righello_0", "righello_1", "righello_2"})
    EXPECT_FALSE(Visibile(nome)) << nome;
}

TEST_F(Righello, LeavesItsBoxWhereItIsAndTheTextBelowIt) {
  const QRect prima = finestra_.Sezione(0).geometry();
  finestra_.Azione("mnuMisura").trigger();
  EXPECT_EQ(finestra_.Sezione(0).geometry(), prima);
  righello& sopra = Quello("righello_0");
  const QRect vista = finestra_.Sezione(0).findChild<QWidget*>("qt_scrollarea_viewport")->geometry();
  EXPECT_EQ(sopra.geometry().bottom() + 1, vista.top());
  EXPECT_EQ(sopra.geometry().left(), vista.left());
  EXPECT_EQ(sopra.width(), vista.width());
  finestra_.Azione("mnuMisura").trigger();
  EXPECT_EQ(finestra_.Sezione(0).findChild<QWidget*>("qt_scrollarea_viewport")->geometry().top(),
            vista.top() - sopra.height());
}

TEST_F(Righello, HasANameForEachBox) {
  finestra_.Azione("mnuMisura").trigger();
  EXPECT_EQ(Quello("righello_0").accessibleName(), "Righello Testata");
  EXPECT_EQ(Quello("righello_1").accessibleName(), "Righello Corpo");
  EXPECT_EQ(Quello("righello_2").accessibleName(), "Righello Piede");
  EXPECT_EQ(Quello("righelloAnte").accessibleName(), "Righello Anteprima");
}

TEST_F(Righello, AClickSetsAGuideInEveryBoxAndAnotherOneTakesItAway) {
  finestra_.Azione("mnuMisura").trigger();
  QTest::mouseClick(&Quello("righello_0"), Qt::LeftButton, {}, NelRighello(24));
  QTest::mouseClick(&Quello("righello_0"), Qt::LeftButton, {}, NelRighello(4));
  for (const char* nome : {"righelloAnte", "righello_0", "righello_1", "righello_2"})
    EXPECT_EQ(Quello(nome).accessibleDescription(), "Guide alle colonne 5, 25") << nome;
  QTest::mouseClick(&Quello("righello_0"), Qt::LeftButton, {}, NelRighello(24));
  EXPECT_EQ(Quello("righelloAnte").accessibleDescription(), "Guide alle colonne 5");
}

/// The colour in the middle of a column of the Testata's ruler, near its lower edge.
QColor ColoreIn(righello& quello, QPoint dove) {
  const QImage immagine = quello.grab().toImage();
  return immagine.pixelColor(QPoint(dove.x(), quello.height() - 3) * immagine.devicePixelRatio());
}

TEST_F(Righello, HasAMarkEachFiveColumnsANumberEachTenAndTheCaretsColumn) {
  finestra_.Azione("mnuMisura").trigger();
  finestra_.Sezione(0).moveCursor(QTextCursor::Start);
  Finestra::Calma();
  righello& quello = Quello("righello_0");
  const QColor vuoto = quello.palette().color(QPalette::Window);
  EXPECT_EQ(ColoreIn(quello, NelRighello(0)), quello.palette().color(QPalette::Highlight));
  for (const int senza : {1, 3, 5, 9}) EXPECT_EQ(ColoreIn(quello, NelRighello(senza)), vuoto) << senza;
  EXPECT_NE(ColoreIn(quello, NelRighello(4)), vuoto);
  EXPECT_NE(ColoreIn(quello, NelRighello(14)), vuoto);
  const QRect dieci(NelRighello(8).x(), 0, NelRighello(10).x() - NelRighello(8).x(), quello.height() - 2);
  const QImage numero = quello.grab(dieci).toImage();
  bool scritto = false;
  for (int x = 0; x < numero.width(); ++x)
    for (int y = 0; y < numero.height(); ++y) scritto |= numero.pixelColor(x, y) != vuoto;
  EXPECT_TRUE(scritto);
  finestra_.Sezione(0).moveCursor(QTextCursor::End);
  Finestra::Calma();
  EXPECT_EQ(ColoreIn(quello, NelRighello(1)), vuoto);
}

/// Whether a column of pixels of the viewport is all of one colour.
bool LineaIn(QWidget& vista, int x, const QColor& colore) {
  const QImage immagine = vista.grab().toImage();
  const int colonna = static_cast<int>((x + 0.5) * immagine.devicePixelRatio());
  for (int y = 0; y < immagine.height(); ++y)
    if (immagine.pixelColor(colonna, y) != colore) return false;
  return true;
}

TEST_F(Righello, AGuideIsALineThroughTheWholeSectionAtItsColumn) {
  finestra_.Azione("mnuMisura").trigger();
  auto* editor = Trova<txtTCP>(*finestra_, "txtTCP_1");
  const qreal cella = QFontMetricsF(editor->font()).horizontalAdvance(u'M');
  QTextCursor inizio(editor->document());
  const int x = static_cast<int>(editor->document()->documentMargin() + 24 * cella);
  const QColor colore = editor->palette().color(QPalette::Highlight);
  EXPECT_FALSE(LineaIn(*editor->viewport(), x, colore));
  QTest::mouseClick(&Quello("righello_0"), Qt::LeftButton, {}, NelRighello(24));
  EXPECT_TRUE(LineaIn(*editor->viewport(), x, colore));
}

TEST_F(Righello, AGuideIsALineThroughThePreviewAtTheSamePrintedColumn) {
  ASSERT_FALSE(finestra_.Anteprima().Contenuto().Testo().empty());
  righello& sopra = Quello("righelloAnte");
  QTest::mouseClick(&sopra, Qt::LeftButton, {}, QPoint(100, 4));
  const QString descritte = sopra.accessibleDescription();
  const auto colonna = static_cast<std::size_t>(descritte.section(u' ', -1).toInt() - 1);
  const QRect cella = finestra_.Anteprima().RettangoloDi(colonna);  // in the first line
  EXPECT_LE(cella.left(), 100);
  EXPECT_GE(cella.right() + 1, 100);
  EXPECT_TRUE(LineaIn(*finestra_.Anteprima().viewport(), cella.left(),
                      finestra_.Anteprima().palette().color(QPalette::Highlight)));
}

}  // namespace
}  // namespace parvik
