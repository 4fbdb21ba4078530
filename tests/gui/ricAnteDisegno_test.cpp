// What the preview pane paints: everything that shows, and nothing else however large the text is.
#include <gtest/gtest.h>

#include <QPicture>
#include <QScrollBar>
#include <QTest>

#include "PannelloDiProva.h"

namespace parvik {
namespace {

using prova::Pannello;
using prova::Ripeti;

/// How many bytes of drawing commands it takes to paint the pane once.
unsigned int Comandi(ricAnte& pannello) {
  QPicture quadro;
  QPainter pittore(&quadro);
  pannello.viewport()->render(&pittore, QPoint(), QRegion(), {});
  pittore.end();
  return quadro.size();
}

QImage Immagine(ricAnte& pannello) {
  return pannello.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

int PixelDi(const QImage& immagine, QRect dove, const QColor& colore) {
  int quanti = 0;
  dove = dove.intersected(immagine.rect());
  for (int y = dove.top(); y <= dove.bottom(); ++y) {
    for (int x = dove.left(); x <= dove.right(); ++x) quanti += immagine.pixelColor(x, y) == colore ? 1 : 0;
  }
  return quanti;
}

/// More than a screenful of this size ever takes: a recording keeps the outline of each character.
constexpr unsigned int Schermata = 1'000'000;

TEST(RicAnteDisegno, AMillionLinesTakeNoMoreThanAFewToPaint) {
  const auto conRighe = [](std::size_t righe) {
    Pannello pannello(Ripeti("Totale $$$$$$$$\r\n", righe));
    return std::pair(Comandi(*pannello), pannello->verticalScrollBar()->maximum());
  };
  const auto [comandi, massimo] = conRighe(100);
  EXPECT_GT(comandi, 1000U);
  EXPECT_EQ(conRighe(1'000'000), std::pair(comandi, massimo + 999'900));
}

TEST(RicAnteDisegno, TheEndOfAMillionLinesIsPaintedAlone) {
  Pannello pannello(Ripeti("Totale $$$$$$$$\r\n", 1'000'000));
  pannello.Premi(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(pannello->RigaColonna().Riga, 1'000'001U);
  const unsigned int comandi = Comandi(*pannello);
  EXPECT_GT(comandi, 1000U);
  EXPECT_LT(comandi, Schermata);
}

TEST(RicAnteDisegno, ALineOfFiftyMillionCharactersIsPaintedWhereItShowsOnly) {
  constexpr std::size_t Lunghezza = 50'000'000;
  Pannello pannello("prima\r\n" + std::string(Lunghezza, 'x') + "\r\nultima");
  const unsigned int inizio = Comandi(*pannello);
  EXPECT_GT(inizio, 500U);
  EXPECT_LT(inizio, Schermata);
  pannello.Premi(Qt::Key_Down);
  pannello.Premi(Qt::Key_End);
  EXPECT_EQ(pannello->Cursore(), 7 + Lunghezza);
  EXPECT_TRUE(pannello->viewport()->rect().contains(pannello->RettangoloDi(pannello->Cursore()).topLeft()));
  EXPECT_LT(Comandi(*pannello), Schermata);
  const QImage immagine = Immagine(*pannello);
  const QRect ultimo = pannello->RettangoloDi(pannello->Cursore() - 1);
  const QColor fondo = pannello->palette().color(QPalette::Base);
  EXPECT_LT(PixelDi(immagine, ultimo, fondo), ultimo.width() * ultimo.height()) << "the last x is there";
}

TEST(RicAnteDisegno, ALineOfAMillionLooksIsPaintedWhereItShowsOnly) {
  Pannello pannello(Ripeti("S;GRaS;ITb", 1'000'000));
  EXPECT_EQ(pannello->Contenuto().Tratti().size(), 2'000'000U);
  EXPECT_LT(Comandi(*pannello), Schermata);
  pannello.Premi(Qt::Key_End);
  EXPECT_LT(Comandi(*pannello), Schermata);
}

TEST(RicAnteDisegno, TheSelectionHasThePalettesColours) {
  Pannello pannello("abcdef\r\nghi");
  const QColor evidenza = pannello->palette().color(QPalette::Active, QPalette::Highlight);
  EXPECT_EQ(PixelDi(Immagine(*pannello), pannello->viewport()->rect(), evidenza), 0);
  pannello->Seleziona(1, 9);
  const QImage immagine = Immagine(*pannello);
  EXPECT_GT(PixelDi(immagine, pannello->RettangoloDi(2), evidenza), 20);
  EXPECT_EQ(PixelDi(immagine, pannello->RettangoloDi(0).adjusted(0, 0, -1, 0), evidenza), 0);
  EXPECT_GT(PixelDi(immagine, pannello->RettangoloDi(6).adjusted(1, 1, -1, -1), evidenza), 20)
      << "the line end";
  EXPECT_GT(PixelDi(immagine, pannello->RettangoloDi(8), evidenza), 20);
  EXPECT_EQ(PixelDi(immagine, pannello->RettangoloDi(9).adjusted(1, 0, 0, 0), evidenza), 0);
}

TEST(RicAnteDisegno, WithoutTheFocusTheSelectionHasTheInactiveColours) {
  Pannello pannello("abcdef");
  QPalette tavolozza = pannello->palette();
  tavolozza.setColor(QPalette::Inactive, QPalette::Highlight, QColor(1, 200, 3));
  pannello->setPalette(tavolozza);
  pannello->Seleziona(0, 6);
  EXPECT_EQ(PixelDi(Immagine(*pannello), pannello->viewport()->rect(), QColor(1, 200, 3)), 0);
  pannello->clearFocus();
  EXPECT_GT(PixelDi(Immagine(*pannello), pannello->viewport()->rect(), QColor(1, 200, 3)), 100);
}

TEST(RicAnteDisegno, TextAndBackgroundFollowThePalette) {
  Pannello pannello("||||");
  QPalette scura = pannello->palette();
  scura.setColor(QPalette::Base, QColor(10, 20, 30));
  scura.setColor(QPalette::Text, QColor(240, 230, 220));
  pannello->setPalette(scura);
  pannello->clearFocus();
  const QImage immagine = Immagine(*pannello);
  EXPECT_EQ(immagine.pixelColor(200, 200), QColor(10, 20, 30));
  const QRect testo = pannello->RettangoloDi(0).united(pannello->RettangoloDi(3));
  EXPECT_LT(PixelDi(immagine, testo, QColor(10, 20, 30)), testo.width() * testo.height());
  EXPECT_EQ(PixelDi(immagine, immagine.rect(), Qt::black), 0);
}

TEST(RicAnteDisegno, TheCaretShowsWithTheFocusOnly) {
  Pannello pannello("");
  const QColor testo = pannello->palette().color(QPalette::Text);
  const QRect posto = pannello->RettangoloDi(0);
  pannello.Premi(Qt::Key_Home);
  EXPECT_EQ(PixelDi(Immagine(*pannello), pannello->viewport()->rect(), testo), posto.height());
  pannello->clearFocus();
  EXPECT_EQ(PixelDi(Immagine(*pannello), pannello->viewport()->rect(), testo), 0);
}

TEST(RicAnteDisegno, TheLastLineCanBeScrolledWhollyIntoSight) {
  Pannello pannello(Ripeti("S;COpiccola\r\nS;NOnormale\r\n", 200) + "ultima");
  pannello->verticalScrollBar()->setValue(pannello->verticalScrollBar()->maximum());
  const QRect ultima = pannello->RettangoloDi(pannello->Contenuto().Testo().size());
  EXPECT_LE(ultima.bottom() + 1, pannello->viewport()->height());
  EXPECT_GT(ultima.bottom() + 2 * ultima.height(), pannello->viewport()->height()) << "nor more than needed";
}

TEST(RicAnteDisegno, TheWidestLineCanBeScrolledWhollyIntoSight) {
  Pannello pannello("corta\r\n" + std::string(200, 'x') + "\r\ncorta");
  pannello->horizontalScrollBar()->setValue(pannello->horizontalScrollBar()->maximum());
  const int destra = pannello->RettangoloDi(207).left();
  EXPECT_LE(destra, pannello->viewport()->width() - 1);
  EXPECT_GT(destra, pannello->viewport()->width() - 20);
}

}  // namespace
}  // namespace parvik
