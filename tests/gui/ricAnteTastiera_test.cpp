// Each key of the preview pane, and the keys that are not its own.
#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>
#include <QVBoxLayout>
#include <filesystem>
#include <utility>

#include "PannelloDiProva.h"
#include "supporto/Cartelle.h"

namespace parvik {
namespace {

using prova::Pannello;

constexpr Qt::KeyboardModifiers Ctrl = Qt::ControlModifier;
constexpr std::size_t Cursore = 25;  // in front of "silon"
constexpr std::size_t Ancora = 3;    // on another line
constexpr const char* Testo = "alfa beta gamma\r\ndelta epsilon zeta\r\neta theta iota";

struct Tasto {
  const char* Nome;
  Qt::Key Chiave;
  Qt::KeyboardModifiers Modificatori;
  std::size_t Porta;
};

void PrintTo(const Tasto& tasto, std::ostream* uscita) {
  *uscita << tasto.Nome;
}

class TastoAnteprima : public testing::TestWithParam<Tasto> {
 protected:
  void Premi(Qt::KeyboardModifiers inPiu = {}) {
    pannello_.Premi(GetParam().Chiave, GetParam().Modificatori | inPiu);
  }
  /// The other end of the selection, and the caret.
  std::pair<std::size_t, std::size_t> Estremi() {
    const Selezione scelto = pannello_->Selezionato();
    const std::size_t cursore = pannello_->Cursore();
    return {cursore == scelto.Inizio ? scelto.Fine() : scelto.Inizio, cursore};
  }

  Pannello pannello_{Testo};
};

TEST_P(TastoAnteprima, MovesTheCaret) {
  pannello_->Seleziona(Cursore, Cursore);
  Premi();
  EXPECT_EQ(Estremi(), std::pair(GetParam().Porta, GetParam().Porta));
}

TEST_P(TastoAnteprima, WithShiftSelectsFromTheCaret) {
  pannello_->Seleziona(Cursore, Cursore);
  Premi(Qt::ShiftModifier);
  EXPECT_EQ(Estremi(), std::pair(Cursore, GetParam().Porta));
}

TEST_P(TastoAnteprima, WithShiftExtendsTheSelectionAtTheCaret) {
  pannello_->Seleziona(Ancora, Cursore);
  Premi(Qt::ShiftModifier);
  EXPECT_EQ(Estremi(), std::pair(Ancora, GetParam().Porta));
}

TEST_P(TastoAnteprima, WithoutShiftGivesTheSelectionUp) {
  pannello_->Seleziona(Ancora, Cursore);
  Premi();
  std::size_t porta = GetParam().Porta;
  if (GetParam().Modificatori == Qt::NoModifier && GetParam().Chiave == Qt::Key_Left) porta = Ancora;
  if (GetParam().Modificatori == Qt::NoModifier && GetParam().Chiave == Qt::Key_Right) porta = Cursore;
  EXPECT_EQ(Estremi(), std::pair(porta, porta)) << "left and right stop at its edges";
}

TEST_P(TastoAnteprima, IsThePanesAndNoShortcutOfTheWindow) {
  const auto tasto = GetParam();
  int scorciatoie = 0;
  QShortcut scorciatoia(QKeySequence(QKeyCombination(tasto.Modificatori, tasto.Chiave)), &*pannello_,
                        [&scorciatoie] { ++scorciatoie; });
  pannello_->Seleziona(Cursore, Cursore);
  Premi();
  EXPECT_EQ(scorciatoie, 0);
  EXPECT_EQ(pannello_->Cursore(), tasto.Porta);
}

INSTANTIATE_TEST_SUITE_P(
    RicAnte, TastoAnteprima,
    testing::Values(Tasto{"right", Qt::Key_Right, {}, 26}, Tasto{"left", Qt::Key_Left, {}, 24},
                    Tasto{"word_right", Qt::Key_Right, Ctrl, 31}, Tasto{"word_left", Qt::Key_Left, Ctrl, 23},
                    Tasto{"down", Qt::Key_Down, {}, 45}, Tasto{"up", Qt::Key_Up, {}, 8},
                    Tasto{"page_down", Qt::Key_PageDown, {}, 45}, Tasto{"page_up", Qt::Key_PageUp, {}, 8},
                    Tasto{"home", Qt::Key_Home, {}, 17}, Tasto{"end", Qt::Key_End, {}, 35},
                    Tasto{"start_of_text", Qt::Key_Home, Ctrl, 0},
                    Tasto{"end_of_text", Qt::Key_End, Ctrl, 51}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(RicAnteTasti, CopyAndSelectAllAreThePanesAndNoShortcutsOfTheWindow) {
  Pannello pannello("uno due");
  int scorciatoie = 0;
  QShortcut copia(QKeySequence::Copy, &*pannello, [&scorciatoie] { ++scorciatoie; });
  QShortcut tutto(QKeySequence::SelectAll, &*pannello, [&scorciatoie] { ++scorciatoie; });
  QGuiApplication::clipboard()->setText("altro");
  pannello.Premi(Qt::Key_A, Ctrl);
  EXPECT_EQ(pannello->Selezionato(), (Selezione{0, 7}));
  EXPECT_EQ(pannello->Cursore(), 7U);
  pannello.Premi(Qt::Key_C, Ctrl);
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), "uno due");
  EXPECT_EQ(scorciatoie, 0);
}

/// Keys that the pane leaves to the window.
class Sotto final : public QWidget {
 public:
  QList<int> Premuti;
  QList<int> Rilasciati;

 protected:
  void keyPressEvent(QKeyEvent* evento) override { Premuti += evento->key(); }
  void keyReleaseEvent(QKeyEvent* evento) override { Rilasciati += evento->key(); }
};

TEST(RicAnteTasti, KeysThatAreNotThePanesGoOnToTheWindow) {
  Sotto finestra;
  auto* colonna = new QVBoxLayout(&finestra);
  auto* pannello = new ricAnte(&finestra);
  colonna->addWidget(pannello);
  pannello->Mostra(prova::DiProva("uno due"));
  finestra.show();
  finestra.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
  pannello->setFocus();
  for (const Qt::Key tasto : {Qt::Key_Right, Qt::Key_F5, Qt::Key_X}) QTest::keyClick(pannello, tasto);
  EXPECT_EQ(finestra.Premuti, (QList<int>{Qt::Key_F5, Qt::Key_X}));
  EXPECT_EQ(finestra.Rilasciati, (QList<int>{Qt::Key_Right, Qt::Key_F5, Qt::Key_X}));
}

TEST(RicAnteTasti, AShortcutOfTheWindowThatIsNoKeyOfThePanesWorks) {
  Pannello pannello("uno due");
  int scorciatoie = 0;
  QShortcut salva(QKeySequence("Ctrl+S"), &*pannello, [&scorciatoie] { ++scorciatoie; });
  pannello.Premi(Qt::Key_S, Ctrl);
  EXPECT_EQ(scorciatoie, 1);
}

TEST(RicAnteTasti, WhatIsCopiedIsTextAndNothingElse) {
  Pannello pannello("uno S;GRdue");
  pannello.Premi(Qt::Key_A, Ctrl);
  pannello.Premi(Qt::Key_C, Ctrl);
  const QMimeData* dati = QGuiApplication::clipboard()->mimeData();
  EXPECT_EQ(dati->formats(), QStringList{"text/plain"});
  EXPECT_EQ(dati->data("text/plain"), "uno due");
  EXPECT_EQ(dati->data("text/html"), QByteArray());
}

TEST(RicAnteTasti, WithoutASelectionClipboardNothingIsOfferedToIt) {
  ASSERT_FALSE(QGuiApplication::clipboard()->supportsSelection()) << "this platform was thought to have none";
  Pannello pannello("uno due");
  static int messaggi;  // the handler can hold nothing
  messaggi = 0;
  const QtMessageHandler prima =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++messaggi; });
  pannello.Premi(Qt::Key_A, Ctrl);
  pannello.Premi(Qt::Key_Left, Qt::ShiftModifier);
  qInstallMessageHandler(prima);
  EXPECT_EQ(messaggi, 0) << "the toolkit tells of what it throws away";
}

TEST(RicAnteTasti, APageMovesTheLastLineThatIsWhollySeenToTheTop) {
  Pannello pannello(prova::Ripeti("riga\r\n", 500));
  std::size_t pagina = 0;
  while (pannello->RettangoloDi(6 * (pagina + 1)).bottom() < pannello->viewport()->height()) ++pagina;
  const auto scorse = [&pannello] {
    return static_cast<std::size_t>(pannello->verticalScrollBar()->value());
  };
  pannello.Premi(Qt::Key_Down);
  pannello.Premi(Qt::Key_PageDown);
  EXPECT_EQ(scorse(), pagina);
  EXPECT_EQ(pannello->RigaColonna().Riga, 2 + pagina);
  const std::size_t seconda = scorse();
  pannello.Premi(Qt::Key_PageDown);
  const std::size_t altrettante = scorse() - seconda;
  EXPECT_NEAR(static_cast<double>(altrettante), static_cast<double>(pagina), 1) << "no margin above now";
  EXPECT_EQ(pannello->RigaColonna().Riga, 2 + pagina + altrettante);
  pannello.Premi(Qt::Key_PageUp);
  EXPECT_EQ(scorse(), seconda);
  EXPECT_EQ(pannello->RigaColonna().Riga, 2 + pagina);
}

TEST(RicAnteTasti, InAPaneAsHighAsOneLineAPageIsALine) {
  Pannello pannello("uno\r\ndue\r\ntre\r\n");
  pannello->setMinimumHeight(0);
  pannello->resize(400, pannello->RettangoloDi(0).height() + 8);
  pannello.Premi(Qt::Key_PageDown);
  EXPECT_EQ(pannello->RigaColonna().Riga, 2U);
  pannello.Premi(Qt::Key_PageDown);
  EXPECT_EQ(pannello->RigaColonna().Riga, 3U);
}

TEST(RicAnteTasti, UpAfterSelectAllStartsFromTheTextsEnd) {
  Pannello pannello("uno due\r\nuno due\r\nuno due");
  pannello->Seleziona(1, 1);
  pannello.Premi(Qt::Key_Down);
  pannello.Premi(Qt::Key_A, Ctrl);
  pannello.Premi(Qt::Key_Up);
  EXPECT_EQ(pannello->Cursore(), 16U);
}

// The menu

/// Opens it at a point of the viewport, as the mouse does, or where the keyboard does.
QMenu& ApriMenu(Pannello& pannello, QContextMenuEvent::Reason perche, QPoint punto) {
  QContextMenuEvent evento(perche, punto, pannello->viewport()->mapToGlobal(punto));
  QCoreApplication::sendEvent(pannello->viewport(), &evento);
  QMenu* menu = pannello->findChildren<QMenu*>().last();
  EXPECT_TRUE(menu->isVisible());
  return *menu;
}

TEST(RicAnteMenu, OpensAtTheMouseOrUnderTheCaret) {
  Pannello pannello("uno due\r\nuno due\r\nuno due");
  pannello->Seleziona(12, 12);
  const QPoint punto(150, 120);
  const QPoint colMouse = ApriMenu(pannello, QContextMenuEvent::Mouse, punto).pos();
  EXPECT_EQ(colMouse, pannello->viewport()->mapToGlobal(punto));
  pannello->findChildren<QMenu*>().last()->close();
  const QPoint daTastiera = ApriMenu(pannello, QContextMenuEvent::Keyboard, punto).pos();
  EXPECT_EQ(daTastiera, pannello->viewport()->mapToGlobal(pannello->RettangoloDi(12).bottomLeft()));
}

TEST(RicAnteMenu, GoesWhenItIsClosed) {
  Pannello pannello("uno");
  const QPointer<QMenu> menu = &ApriMenu(pannello, QContextMenuEvent::Mouse, QPoint(5, 5));
  menu->close();
  EXPECT_TRUE(QTest::qWaitFor([&menu] { return menu == nullptr; }));
}

TEST(RicAnteMenu, HasItsEntries) {
  Pannello pannello("uno");
  QStringList voci;
  for (const QAction* voce : ApriMenu(pannello, QContextMenuEvent::Mouse, QPoint(5, 5)).actions())
    voci += voce->text().section('\t', 0, 0) + (voce->isEnabled() ? "" : " (no)");
  EXPECT_EQ(voci, (QStringList{"&Copia (no)", "", "&Seleziona tutto", "&Trova", "&Vai al testo"}));
}

TEST(RicAnteMenu, GoesToTheTextUnderTheMouseOrAtTheCaret) {
  Pannello pannello("uno due");
  std::vector<std::size_t> chiesti;
  QObject::connect(&*pannello, &ricAnte::OrigineChiesta, [&](std::size_t byte) { chiesti.push_back(byte); });
  pannello->Seleziona(5, 5);
  const QPoint suN = pannello->RettangoloDi(1).center();
  ApriMenu(pannello, QContextMenuEvent::Mouse, suN).findChild<QAction*>("go-jump")->trigger();
  pannello->findChildren<QMenu*>().last()->close();
  ApriMenu(pannello, QContextMenuEvent::Keyboard, suN).findChild<QAction*>("go-jump")->trigger();
  EXPECT_EQ(chiesti, (std::vector<std::size_t>{1, 5}));
}

TEST(RicAnteMenu, OfAnEmptyPreviewNothingCanBeSelected) {
  Pannello pannello("");
  for (const QAction* voce : ApriMenu(pannello, QContextMenuEvent::Mouse, QPoint(5, 5)).actions())
    EXPECT_TRUE(voce->isSeparator() || !voce->isEnabled()) << voce->objectName().toStdString();
}

TEST(RicAnteMenu, HasTheIconsOfTheDesktop) {
  const prova::CartellaTemporanea cartella;
  prova::Crea(cartella / "prova/index.theme",
              "[Icon Theme]\nName=prova\nDirectories=16\n\n[16]\nSize=16\nType=Fixed\n");
  QImage immagine(16, 16, QImage::Format_RGB32);
  immagine.fill(Qt::red);
  for (const char* nome : {"edit-copy", "edit-select-all"}) {
    const auto file = cartella / "prova/16" / (std::string(nome) + ".png");
    std::filesystem::create_directories(file.parent_path());
    ASSERT_TRUE(immagine.save(QString::fromStdString(file.string())));
  }
  const QStringList cartelle = QIcon::themeSearchPaths();
  const QString tema = QIcon::themeName();
  QIcon::setThemeSearchPaths({QString::fromStdString(cartella.Percorso().string())});
  QIcon::setThemeName("prova");
  {
    Pannello pannello("uno");
    const QList<QAction*> voci = ApriMenu(pannello, QContextMenuEvent::Mouse, QPoint(5, 5)).actions();
    EXPECT_EQ(voci[0]->icon().name(), "edit-copy");
    EXPECT_EQ(voci[2]->icon().name(), "edit-select-all");
    EXPECT_FALSE(voci[0]->icon().pixmap(16, 16).isNull());
  }
  QIcon::setThemeName(tema);
  QIcon::setThemeSearchPaths(cartelle);
}

}  // namespace
}  // namespace parvik
