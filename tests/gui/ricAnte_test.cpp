// The preview pane: what it shows, and how it is read with the keyboard and the mouse.
#include "output/ricAnte.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include "PannelloDiProva.h"

namespace parvik {
namespace {

using prova::DiProva;
using prova::Pannello;

const Qt::KeyboardModifiers Maiusc = Qt::ShiftModifier;
const Qt::KeyboardModifiers Ctrl = Qt::ControlModifier;

TEST(RicAnte, HasItsAccessibleName) {
  EXPECT_EQ(ricAnte(nullptr).accessibleName(), "Anteprima");
}

TEST(RicAnte, ShowsTheTextWithoutMarkers) {
  Pannello pannello("aS;GRb\r\nS;ITc\r\n");
  EXPECT_EQ(pannello->Contenuto().Testo(), "ab\r\nc\r\n");
}

TEST(RicAnte, ANewRunReplacesTheTextAndPutsTheCaretAtItsStart) {
  Pannello pannello(prova::Ripeti("uno\r\n", 1000));
  pannello.Premi(Qt::Key_End, Ctrl);
  pannello.Premi(Qt::Key_Left, Maiusc);
  EXPECT_GT(pannello->verticalScrollBar()->value(), 0);
  pannello->Mostra(DiProva(prova::Ripeti("tre\r\n", 1000)));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{0, 0}));
  EXPECT_EQ(pannello->verticalScrollBar()->value(), 0);
}

TEST(RicAnte, ALongerRunKeepsCaretSelectionAndWhatShows) {
  const std::string inizio = prova::Ripeti("uno\r\n", 1000);
  Pannello pannello(inizio);
  pannello->Seleziona(3000, 3005);
  const int riga = pannello->verticalScrollBar()->value();
  const int massimo = pannello->verticalScrollBar()->maximum();
  pannello->Completa(DiProva(inizio + prova::Ripeti("due\r\n", 1000)));
  EXPECT_EQ(pannello->Selezionato(), (Selezione{3000, 5}));
  EXPECT_EQ(pannello->Cursore(), 3005U);
  EXPECT_EQ(pannello->verticalScrollBar()->value(), riga);
  EXPECT_EQ(pannello->verticalScrollBar()->maximum(), massimo + 1000);
}

TEST(RicAnte, ARunWithoutTextEmptiesThePane) {
  Pannello pannello("uno\r\n");
  pannello->Mostra({});
  EXPECT_EQ(pannello->Contenuto().Testo(), "");
  EXPECT_EQ(pannello->verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(pannello->horizontalScrollBar()->maximum(), 0);
  pannello.Premi(Qt::Key_Right);
  pannello.Premi(Qt::Key_Down);
  pannello.Premi(Qt::Key_End, Ctrl);
  EXPECT_EQ(pannello->Cursore(), 0U);
}

TEST(RicAnte, EditingKeysDoNothing) {
  Pannello pannello("uno\r\ndue\r\n");
  pannello->Seleziona(0, 2);
  QTest::keyClicks(&*pannello, "x ");
  for (const Qt::Key tasto : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Insert})
    pannello.Premi(tasto);
  pannello.Premi(Qt::Key_X, Ctrl);
  pannello.Premi(Qt::Key_V, Ctrl);
  EXPECT_EQ(pannello->Contenuto().Testo(), "uno\r\ndue\r\n");
  EXPECT_EQ(pannello->Selezionato(), (Selezione{0, 2}));
}

TEST(RicAnte, LineAndColumnAreThoseOfTheSelectionsStart) {
  Pannello pannello("ab\r\ncd");
  const auto posto = [&pannello] {
    return std::pair(pannello->RigaColonna().Riga, pannello->RigaColonna().Colonna);
  };
  EXPECT_EQ(posto(), std::pair(std::size_t{1}, std::size_t{1}));
  pannello->Seleziona(5, 5);
  EXPECT_EQ(posto(), std::pair(std::size_t{2}, std::size_t{2}));
  pannello->Seleziona(1, 5);
  EXPECT_EQ(posto(), std::pair(std::size_t{1}, std::size_t{2}));
  pannello->Seleziona(3, 3);  // in the line end: the caret stands in front of it
  EXPECT_EQ(posto(), std::pair(std::size_t{1}, std::size_t{3}));
}

// The keyboard

TEST(RicAnteTastiera, ArrowsMoveByCharactersAndTakeALineEndForOne) {
  Pannello pannello("ab\r\nc");
  std::vector<std::size_t> posti;
  for (int i = 0; i < 5; ++i) posti.push_back((pannello.Premi(Qt::Key_Right), pannello->Cursore()));
  EXPECT_EQ(posti, std::vector<std::size_t>({1, 2, 4, 5, 5}));
  posti.clear();
  for (int i = 0; i < 5; ++i) posti.push_back((pannello.Premi(Qt::Key_Left), pannello->Cursore()));
  EXPECT_EQ(posti, std::vector<std::size_t>({4, 2, 1, 0, 0}));
}

TEST(RicAnteTastiera, UpAndDownKeepToTheColumnTheyStartedFrom) {
  Pannello pannello("abcdef\r\nx\r\nabcdef");
  pannello->Seleziona(4, 4);
  pannello.Premi(Qt::Key_Down);
  EXPECT_EQ(pannello->Cursore(), 9U) << "the end of the short line";
  pannello.Premi(Qt::Key_Down);
  EXPECT_EQ(pannello->Cursore(), 15U);
  pannello.Premi(Qt::Key_Down);
  EXPECT_EQ(pannello->Cursore(), 15U) << "there is no further line";
  pannello.Premi(Qt::Key_Left);
  pannello.Premi(Qt::Key_Up);
  pannello.Premi(Qt::Key_Up);
  EXPECT_EQ(pannello->Cursore(), 3U);
}

TEST(RicAnteTastiera, HomeAndEndGoToTheEdgesOfLineAndText) {
  Pannello pannello("ab\r\ncde\r\nf");
  pannello->Seleziona(5, 5);
  pannello.Premi(Qt::Key_Home);
  EXPECT_EQ(pannello->Cursore(), 4U);
  pannello.Premi(Qt::Key_End);
  EXPECT_EQ(pannello->Cursore(), 7U);
  pannello.Premi(Qt::Key_End, Ctrl);
  EXPECT_EQ(pannello->Cursore(), 10U);
  pannello.Premi(Qt::Key_Home, Ctrl);
  EXPECT_EQ(pannello->Cursore(), 0U);
}

TEST(RicAnteTastiera, ShiftSelects) {
  Pannello pannello("uno due\r\ntre\r\nquattro");
  pannello.Premi(Qt::Key_Right, Maiusc);
  EXPECT_EQ(pannello->Selezionato(), (Selezione{0, 1}));
  pannello.Premi(Qt::Key_Right, Ctrl | Maiusc);
  EXPECT_EQ(pannello->Selezionato(), (Selezione{0, 4}));
  pannello.Premi(Qt::Key_Down, Maiusc);
  EXPECT_EQ(pannello->Selezionato(), (Selezione{0, 12}));
  pannello.Premi(Qt::Key_End, Ctrl | Maiusc);
  EXPECT_EQ(pannello->Selezionato(), (Selezione{0, 21}));
  pannello.Premi(Qt::Key_Home, Maiusc);
  EXPECT_EQ(pannello->Selezionato(), (Selezione{0, 14}));
}

TEST(RicAnteTastiera, AnArrowLeavesASelectionAtItsEdge) {
  Pannello pannello("abcdef");
  pannello->Seleziona(1, 4);
  pannello.Premi(Qt::Key_Left);
  EXPECT_EQ(pannello->Selezionato(), (Selezione{1, 0}));
  pannello->Seleziona(4, 1);
  pannello.Premi(Qt::Key_Right);
  EXPECT_EQ(pannello->Selezionato(), (Selezione{4, 0}));
}

TEST(RicAnteTastiera, PagesMoveCaretAndTextTogether) {
  Pannello pannello(prova::Ripeti("riga\r\n", 500));
  pannello.Premi(Qt::Key_Down);
  const std::size_t prima = pannello->RigaColonna().Riga;
  pannello.Premi(Qt::Key_PageDown);
  const int scorse = pannello->verticalScrollBar()->value();
  EXPECT_GT(scorse, 5);
  EXPECT_EQ(pannello->RigaColonna().Riga, prima + static_cast<std::size_t>(scorse));
  pannello.Premi(Qt::Key_PageUp, Maiusc);
  EXPECT_EQ(pannello->verticalScrollBar()->value(), 0);
  EXPECT_EQ(pannello->RigaColonna().Riga, prima);
  EXPECT_EQ(pannello->Selezionato().Lunghezza, 6U * static_cast<std::size_t>(scorse));
}

TEST(RicAnteTastiera, TheCaretStaysInSight) {
  Pannello pannello(prova::Ripeti("riga\r\n", 500) + std::string(500, 'x'));
  pannello.Premi(Qt::Key_End, Ctrl);
  EXPECT_EQ(pannello->verticalScrollBar()->value(), pannello->verticalScrollBar()->maximum());
  EXPECT_TRUE(pannello->viewport()->rect().contains(
      pannello->RettangoloDi(pannello->Cursore()).adjusted(0, 0, -8, 0)));
  pannello.Premi(Qt::Key_Home);
  EXPECT_EQ(pannello->horizontalScrollBar()->value(), 0);
  pannello.Premi(Qt::Key_Home, Ctrl);
  EXPECT_EQ(pannello->verticalScrollBar()->value(), 0);
}

TEST(RicAnteTastiera, TabMovesTheFocusAway) {
  QWidget finestra;
  auto* colonna = new QVBoxLayout(&finestra);
  auto* pannello = new ricAnte(&finestra);
  auto* altro = new QLineEdit(&finestra);
  colonna->addWidget(pannello);
  colonna->addWidget(altro);
  finestra.show();
  finestra.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
  pannello->setFocus();
  QTest::keyClick(pannello, Qt::Key_Tab);
  EXPECT_TRUE(altro->hasFocus());
  QTest::keyClick(altro, Qt::Key_Backtab);
  EXPECT_TRUE(pannello->hasFocus());
}

TEST(RicAnteTastiera, OnlyReleasedArrowsTellThatTheCaretMoved) {
  Pannello pannello("ab\r\ncd");
  QSignalSpy mosso(&*pannello, &ricAnte::CursoreMosso);
  for (const Qt::Key tasto : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) {
    mosso.clear();
    QTest::keyPress(&*pannello, tasto);
    EXPECT_EQ(mosso.count(), 0);
    QTest::keyRelease(&*pannello, tasto);
    EXPECT_EQ(mosso.count(), 1);
  }
  mosso.clear();
  for (const Qt::Key tasto : {Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown, Qt::Key_A}) pannello.Premi(tasto);
  EXPECT_EQ(mosso.count(), 0);
}

// The clipboard

TEST(RicAnteAppunti, CopiesWhatIsSelectedWithLineFeeds) {
  Pannello pannello("uno\xA0S;GRdue\r\ntre\r\n");
  for (const auto& [tasto, modificatore] :
       {std::pair(Qt::Key_C, Ctrl), std::pair(Qt::Key_Insert, Qt::KeyboardModifiers(Ctrl))}) {
    QGuiApplication::clipboard()->setText("altro");
    pannello->Seleziona(3, 11);
    pannello.Premi(tasto, modificatore);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "\u00A0due\ntr");
  }
}

TEST(RicAnteAppunti, WithoutASelectionTheClipboardStaysAsItIs) {
  Pannello pannello("uno");
  QGuiApplication::clipboard()->setText("altro");
  pannello.Premi(Qt::Key_C, Ctrl);
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "altro");
}

TEST(RicAnteAppunti, HoldsWhatWasCopiedAfterTheTextHasChanged) {
  Pannello pannello("uno\r\n");
  pannello.Premi(Qt::Key_A, Ctrl);
  pannello.Premi(Qt::Key_C, Ctrl);
  pannello->Mostra(DiProva("due\r\n"));
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "uno\n");
}

TEST(RicAnteAppunti, TheMenuCopiesAndSelectsAll) {
  Pannello pannello("uno\r\ndue");
  const auto apri = [&pannello] {
    QContextMenuEvent evento(QContextMenuEvent::Keyboard, QPoint(5, 5), pannello->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(pannello->viewport(), &evento);
    return pannello->findChildren<QMenu*>().last();
  };
  QMenu* menu = apri();
  EXPECT_EQ(menu->actions().at(0)->text().toStdString(), "&Copia\tCtrl+C");
  EXPECT_FALSE(menu->actions().at(0)->isEnabled());
  EXPECT_EQ(menu->actions().at(2)->text().toStdString(), "&Seleziona tutto\tCtrl+A");
  menu->actions().at(2)->trigger();
  menu->close();
  EXPECT_EQ(pannello->Selezionato(), (Selezione{0, 8}));
  menu = apri();
  EXPECT_TRUE(menu->actions().at(0)->isEnabled());
  menu->actions().at(0)->trigger();
  menu->close();
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "uno\ndue");
}

TEST(RicAnteVuota, SaysHowItIsFilledWithoutHavingThatAsItsText) {
  ricAnte pannello(nullptr);
  pannello.resize(400, 300);
  const QImage vuota = pannello.grab().toImage();
  EXPECT_TRUE(pannello.accessibleDescription().contains("Stampa"));
  EXPECT_EQ(pannello.Contenuto().Testo(), "");
  pannello.SelezionaTutto();
  EXPECT_EQ(pannello.Selezionato().Lunghezza, 0U);
  pannello.Mostra({.Testo = " ", .Tratti = {}});
  EXPECT_EQ(pannello.accessibleDescription(), "");
  EXPECT_NE(pannello.grab().toImage(), vuota) << "the hint is gone";
  pannello.Mostra({});
  EXPECT_EQ(pannello.grab().toImage(), vuota);
}

}  // namespace
}  // namespace parvik
