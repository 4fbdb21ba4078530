// From the sections to the preview and back, with real keys and clicks.
#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <QTextCursor>

#include "Finestra.h"
#include "common/qtTesto.h"

namespace parvik {
namespace {

using prova::Finestra;

class AndataRitorno : public testing::Test {
 protected:
  AndataRitorno() {
    finestra_.Scegli(1);
    finestra_.Sezione(0).setPlainText(QString::fromUtf8("ab«V1;3»c\n"));
    finestra_.Sezione(1).setPlainText("corpo\n");
    QString piede;
    for (int i = 0; i < 200; ++i) piede += QStringLiteral("piede %1\n").arg(i);
    finestra_.Sezione(2).setPlainText(piede);
    finestra_.Azione("mnuAnte").trigger();
    finestra_.Azione("mnuAnte").trigger();
    finestra_.Attiva();
    finestra_.Sezione(0).setFocus();
  }

  ricAnte& Pannello() { return finestra_.Anteprima(); }
  std::size_t Posto(const char* parola) { return Pannello().Contenuto().Testo().find(parola); }
  /// The colour behind a character, in a corner where it draws nothing.
  QColor Fondo(std::size_t byte) {
    const QImage immagine = Pannello().viewport()->grab().toImage();
    return immagine.pixelColor(Pannello().RettangoloDi(byte).topLeft() + QPoint(1, 1));
  }
  bool Segnato(std::size_t byte) { return Fondo(byte) != Pannello().palette().color(QPalette::Base); }
  void Aspetta(std::size_t byte, bool segnato) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Segnato(byte) == segnato; })) << byte;
  }
  std::string Selezionato(int sezione) {
    return DaSchermo(finestra_.Sezione(sezione).textCursor().selectedText());
  }
  void CtrlClic(std::size_t byte) {
    QTest::mouseClick(Pannello().viewport(), Qt::LeftButton, Qt::ControlModifier,
                      Pannello().RettangoloDi(byte).center());
  }

  Finestra finestra_;
};

TEST_F(AndataRitorno, WhatTheCodeAtTheCaretPrintsHasABackground) {
  QTest::keyClick(&finestra_.Sezione(0), Qt::Key_Right);
  QTest::keyClick(&finestra_.Sezione(0), Qt::Key_Right);
  for (const std::size_t byte : {2U, 3U, 4U}) Aspetta(byte, true);
  EXPECT_FALSE(Segnato(1));
  EXPECT_FALSE(Segnato(5));
  QTest::keyClick(&finestra_.Sezione(0), Qt::Key_Left);
  Aspetta(1, true);
  EXPECT_FALSE(Segnato(2));
}

TEST_F(AndataRitorno, AllRepetitionsOfTheBodyAreMarked) {
  finestra_.Sezione(1).setFocus();
  const std::size_t prima = Posto("corpo");
  Aspetta(prima, true);
  const std::size_t seconda = Pannello().Contenuto().Testo().find("corpo", prima + 1);
  ASSERT_NE(seconda, std::string_view::npos);
  EXPECT_TRUE(Segnato(seconda));
  EXPECT_FALSE(Segnato(prima + 1));
}

TEST_F(AndataRitorno, WhatWasEditedIsNotMarkedAndTheRestIs) {
  QTest::keyClick(&finestra_.Sezione(0), Qt::Key_Right);
  Aspetta(1, true);
  QTest::keyClicks(&finestra_.Sezione(0), "z");
  Aspetta(1, true);
  QTest::keyClick(&finestra_.Sezione(0), Qt::Key_Left);
  Aspetta(1, false);
  EXPECT_FALSE(Segnato(0));
}

TEST_F(AndataRitorno, TheMarkCanBeReadOnLightAndDark) {
  Aspetta(0, true);
  for (const bool scura : {false, true}) {
    QPalette tavolozza = Pannello().palette();
    tavolozza.setColor(QPalette::Base, scura ? QColor(0x1E, 0x1E, 0x1E) : QColor(Qt::white));
    tavolozza.setColor(QPalette::Text, scura ? QColor(0xF0, 0xF0, 0xF0) : QColor(Qt::black));
    Pannello().setPalette(tavolozza);
    EXPECT_TRUE(Segnato(0)) << scura;
    const int fondo = Fondo(0).lightness();
    EXPECT_GT(std::abs(fondo - tavolozza.color(QPalette::Text).lightness()), 100) << scura;
  }
}

TEST_F(AndataRitorno, F6ScrollsThePaneToWhatStandsAtTheCaret) {
  finestra_.Sezione(2).setFocus();
  QTest::keyClick(&finestra_.Sezione(2), Qt::Key_End, Qt::ControlModifier);
  QTest::keyClick(&finestra_.Sezione(2), Qt::Key_Up);
  Finestra::Calma();
  EXPECT_EQ(Pannello().verticalScrollBar()->value(), 0) << "the preview does not follow by itself";
  QTest::keyClick(&finestra_.Sezione(2), Qt::Key_F6);
  EXPECT_TRUE(Pannello().viewport()->rect().contains(Pannello().RettangoloDi(Posto("piede 199"))));
  EXPECT_TRUE(finestra_.Sezione(2).hasFocus());
}

TEST_F(AndataRitorno, F6DoesNothingWithoutAPreview) {
  finestra_.Azione("mnuAnte").trigger();
  QTest::keyClick(&finestra_.Sezione(0), Qt::Key_F6);
  EXPECT_FALSE(Pannello().isVisible());
  EXPECT_EQ(finestra_.Sezione(0).textCursor().position(), 0);
}

TEST_F(AndataRitorno, CtrlClickInThePaneSelectsTheWholeCodeThatThisComesFrom) {
  finestra_.Sezione(2).setFocus();
  CtrlClic(3);
  EXPECT_TRUE(finestra_.Sezione(0).hasFocus());
  EXPECT_EQ(Selezionato(0), "\xABV1;3\xBB");
  EXPECT_EQ(Pannello().Selezionato(), Selezione()) << "the pane's own caret stays";
}

TEST_F(AndataRitorno, CtrlClickOnLiteralTextPutsTheCaretThere) {
  CtrlClic(Posto("piede 3") + 4);
  EXPECT_TRUE(finestra_.Sezione(2).hasFocus());
  const QTextCursor cursore = finestra_.Sezione(2).textCursor();
  EXPECT_EQ(cursore.blockNumber(), 3);
  EXPECT_EQ(cursore.positionInBlock(), 4);
  EXPECT_FALSE(cursore.hasSelection());
}

TEST_F(AndataRitorno, ADoubleCtrlClickIsTheSame) {
  CtrlClic(3);
  QTest::mouseDClick(Pannello().viewport(), Qt::LeftButton, Qt::ControlModifier,
                     Pannello().RettangoloDi(3).center());
  EXPECT_EQ(Pannello().Selezionato(), Selezione());
}

TEST_F(AndataRitorno, F4InThePaneGoesWhereTheTextAtItsCaretComesFrom) {
  Pannello().Seleziona(Posto("corpo") + 2, Posto("corpo") + 2);
  Pannello().setFocus();
  QTest::keyClick(&Pannello(), Qt::Key_F4);
  EXPECT_TRUE(finestra_.Sezione(1).hasFocus());
  EXPECT_EQ(finestra_.Sezione(1).textCursor().position(), 2);
}

TEST_F(AndataRitorno, F4LeadsNowhereWhereTheTextIsAnotherOne) {
  QTest::keyClick(&finestra_.Sezione(0), Qt::Key_Delete);
  Pannello().Seleziona(0, 0);
  Pannello().setFocus();
  QTest::keyClick(&Pannello(), Qt::Key_F4);
  EXPECT_TRUE(Pannello().hasFocus()) << "its character is gone";
  Pannello().Seleziona(1, 1);
  QTest::keyClick(&Pannello(), Qt::Key_F4);
  EXPECT_TRUE(finestra_.Sezione(0).hasFocus()) << "this one is certain";
  EXPECT_EQ(finestra_.Sezione(0).textCursor().position(), 0);
}

TEST_F(AndataRitorno, TheEndMarkerComesFromNowhere) {
  Pannello().Seleziona(Posto("Fine file"), Posto("Fine file"));
  Pannello().setFocus();
  QTest::keyClick(&Pannello(), Qt::Key_F4);
  EXPECT_TRUE(Pannello().hasFocus());
}

}  // namespace
}  // namespace parvik
