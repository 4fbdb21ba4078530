// Sections shown to measure: where the fields stand, where the caret can, what keys and mouse do there.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <QClipboard>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

#include "SezioniAMisura.h"
#include "output/StampaCasuale.h"
#include "supporto/ConNome.h"

namespace parvik {
namespace {

using prova::SezioniAMisura;

TEST(CampiAMisura, StandAsFarRightAsTheyPrint) {
  SezioniAMisura sezioni("Cliente: «V1;29L».«V5;12R;#;0»|fine\n");
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 0, 9), 9);
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 0, 17), 38);
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 0, 18), 39);
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 0, 30), 51);
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 0, 34), 55);
}

TEST(CampiAMisura, StandWhereTheirCodesWouldWhenTheyAreSwitchedOff) {
  SezioniAMisura sezioni("«V1;29L»x|\n");
  sezioni.Accendi(false);
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 0, 8), 8);
  EXPECT_FALSE(sezioni.Editor().document()->firstBlock().layout()->formats().isEmpty());  // the colours
}

/// Every line of every section, each place outside the fields in its column.
void StannoNelleColonne(SezioniAMisura& sezioni) {
  for (const Sezione sezione : TutteLeSezioni) {
    for (std::size_t riga = 0; riga < sezioni.Modello.Testo(sezione).Righe(); ++riga) {
      std::size_t colonna = 0;
      for (const PezzoMisurato& pezzo : sezioni.Campi.Riga(sezione, riga).Pezzi) {
        const qreal vista = sezioni.Colonna(sezione, static_cast<int>(riga), pezzo.Parte.Inizio);
        RC_ASSERT(std::abs(vista - static_cast<qreal>(colonna)) < 1e-6);
        colonna += pezzo.Celle();
      }
    }
  }
}

std::string CasualeSenzaMorbide() {
  std::string testo = ConFiniRiga(*prova::TestoCasuale());
  std::ranges::replace(testo, '\xAD', '-');
  return testo;
}

TEST(CampiAMisura, OfRandomTemplatesStandInTheColumnsThatTheyAreMeasuredIn) {
  SezioniAMisura sezioni;
  EXPECT_TRUE(rc::check([&sezioni] {
    for (const Sezione sezione : TutteLeSezioni) sezioni.Modello.Imposta(sezione, CasualeSenzaMorbide());
    SezioniAMisura::Aspetta();
    StannoNelleColonne(sezioni);
  }));
}

TEST(CampiAMisura, StayInTheirColumnsThroughEveryChange) {
  SezioniAMisura sezioni;
  EXPECT_TRUE(rc::check([&sezioni] {
    for (const Sezione sezione : TutteLeSezioni) sezioni.Modello.Imposta(sezione, CasualeSenzaMorbide());
    SezioniAMisura::Aspetta();
    for (int volta = 0; volta < 3; ++volta) {
      const Sezione dove = *rc::gen::element(Sezione::Testata, Sezione::Corpo, Sezione::Piede);
      const TestoSezione& testo = sezioni.Modello.Testo(dove);
      const std::size_t riga = *rc::gen::inRange<std::size_t>(0, testo.Righe());
      const Selezione parte = testo.Riga(riga);
      const std::size_t dentro = *rc::gen::inRange<std::size_t>(0, parte.Lunghezza + 1);
      const std::size_t tolti = *rc::gen::inRange<std::size_t>(0, parte.Lunghezza - dentro + 1);
      sezioni.Modello.Applica(dove,
                              {.Dove = parte.Inizio + dentro, .Tolti = tolti, .Messi = CasualeSenzaMorbide()},
                              GenereModifica::Intera, {});
      StannoNelleColonne(sezioni);  // at once: nobody waits for it
    }
  }));
}

TEST(CampiAMisura, StandInTheirColumnsBesideCharactersOfOtherFonts) {
  SezioniAMisura sezioni;
  std::string testo;
  for (int byte = 1; byte < 256; ++byte) {
    const auto c = static_cast<char>(byte);
    if (c != '\r' && c != '\xAB' && c != '\xBB') testo += c;
  }
  sezioni.Modello.Imposta(Sezione::Testata, testo +
                                                "\xAB"
                                                "V1;5L\xBB"
                                                "x\r\n");
  SezioniAMisura::Aspetta();
  const auto quanti = static_cast<double>(testo.size());
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 0, testo.size()), quanti);
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 0, testo.size() + 7), quanti + 5);
}

TEST(CampiAMisura, AFalseFlagTakesTheCellsOfTheNextCode) {
  SezioniAMisura sezioni("|«F1N»«V1;5L»a\n«F1N»\n«V1;5L»b\n");
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 0, 12), 0);
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 2, 7), 0);
  sezioni.Flag.SettaNumero(1, true);
  sezioni.Campi.AggiornaFlag(false);
  sezioni.Editor().Rimisura();
  SezioniAMisura::Aspetta();
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 0, 12), 5);
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 2, 7), 5);
}

TEST(CampiAMisura, WhatRepeatsACodeOfSeveralLinesFollowsAChangeInTheMiddleOfIt) {
  SezioniAMisura sezioni("«V0;\"a\n|b\nc\"»«»x\n");
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 2, 5), 3 + 7);
  QTest::keyClicks(&sezioni.Editor(), "zz");
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 2, 5), 3 + 9);
}

TEST(CampiAMisura, AFlagAtTheEndOfASectionHidesTheFirstCodeOfTheNextAtOnce) {
  SezioniAMisura sezioni("«V1;5L»|\n");
  sezioni.Modello.Imposta(Sezione::Corpo,
                          "\r\n\xAB"
                          "V1;5L\xBB\r\n");
  SezioniAMisura::Aspetta();
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Corpo, 1, 7), 5);
  sezioni.Editor().Incolla("\u00ABF1N\u00BB");
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Corpo, 1, 7), 0);
}

struct CasoTasto {
  const char* Nome;
  const char* Prima;
  Qt::Key Tasto;
  Qt::KeyboardModifiers Con;
  const char* Dopo;
};

using prova::PrintTo;

class CampiTasti : public testing::TestWithParam<CasoTasto> {};

TEST_P(CampiTasti, MoveTheCaret) {
  const CasoTasto& caso = GetParam();
  SezioniAMisura sezioni(caso.Prima);
  sezioni.Premi(caso.Tasto, caso.Con);
  EXPECT_EQ(sezioni.Disegno(), caso.Dopo);
}

INSTANTIATE_TEST_SUITE_P(
    CampiAMisura, CampiTasti,
    testing::Values(
        CasoTasto{"RightOverAField", "a|«V1;5L»b\n", Qt::Key_Right, {}, "a«V1;5L»|b\n"},
        CasoTasto{"LeftOverAField", "a«V1;5L»|b\n", Qt::Key_Left, {}, "a|«V1;5L»b\n"},
        CasoTasto{"RightOverAFlag", "a|«F1N»«V1;5L»b\n", Qt::Key_Right, {}, "a«F1N»|«V1;5L»b\n"},
        CasoTasto{"ShiftRightSelectsAField", "a|«V1;5L»b\n", Qt::Key_Right, Qt::ShiftModifier,
                  "a[«V1;5L»]b\n"},
        CasoTasto{"ShiftLeftSelectsAField", "a«V1;5L»|b\n", Qt::Key_Left, Qt::ShiftModifier, "a[«V1;5L»]b\n"},
        CasoTasto{"RightOverALetter", "|ab\n", Qt::Key_Right, {}, "a|b\n"},
        CasoTasto{"RightLeavesASelectionAtItsEnd", "[a]«V1;5L»b\n", Qt::Key_Right, {}, "a|«V1;5L»b\n"},
        CasoTasto{
            "DownToTheNearerEndOfAField", "abcd|ef\n«V1;5L»b\n", Qt::Key_Down, {}, "abcdef\n«V1;5L»|b\n"},
        CasoTasto{"UpToTheNearerEndOfAField", "«V1;9L»b\na|bcd\n", Qt::Key_Up, {}, "|«V1;9L»b\nabcd\n"},
        CasoTasto{"RightInACodeThatIsNotClosed", "|«V1\n", Qt::Key_Right, {}, "«|V1\n"}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(CampiAMisura, ACaretThatStoodInACodeGoesToItsNearerEnd) {
  SezioniAMisura sezioni("«V1;5|L»b\n");
  EXPECT_EQ(sezioni.Disegno(), "«V1;5L»|b\n");
}

TEST(CampiAMisura, F4OpensTheFieldBehindTheCaret) {
  SezioniAMisura sezioni("a|«V1;5L»«V2;5L»b\n");
  sezioni.Premi(Qt::Key_F4);
  EXPECT_EQ(sezioni.Aperti, std::vector<std::string>{"V1;5L"});
  sezioni.Premi(Qt::Key_Right).Premi(Qt::Key_F4);
  EXPECT_EQ(sezioni.Aperti.back(), "V2;5L");
  sezioni.Premi(Qt::Key_Right).Premi(Qt::Key_F4);
  EXPECT_EQ(sezioni.Aperti.size(), 2U);
  EXPECT_EQ(sezioni.Variabili, 1);
}

TEST(CampiAMisura, AClickInAFieldPutsTheCaretAtItsNearerEnd) {
  SezioniAMisura sezioni("|a«V1;20L»b\n");
  QTest::mouseClick(sezioni.Editor().viewport(), Qt::LeftButton, {}, sezioni.Punto(0, 4.5));
  EXPECT_EQ(sezioni.Disegno(), "a|«V1;20L»b\n");
  QTest::mouseClick(sezioni.Editor().viewport(), Qt::LeftButton, {}, sezioni.Punto(0, 17.5));
  EXPECT_EQ(sezioni.Disegno(), "a«V1;20L»|b\n");
}

TEST(CampiAMisura, ADoubleClickOpensAFieldAndTheMarkOfAFlag) {
  SezioniAMisura sezioni("|abc«F1N»«V1;5L»def«V2;20L»\n");
  QTest::mouseDClick(sezioni.Editor().viewport(), Qt::LeftButton, {}, sezioni.Punto(0, 20.5));
  EXPECT_EQ(sezioni.Aperti, std::vector<std::string>{"V2;20L"});
  QTest::mouseDClick(sezioni.Editor().viewport(), Qt::LeftButton, {}, sezioni.Punto(0, 3));
  EXPECT_EQ(sezioni.Aperti.back(), "F1N");
}

TEST(CampiAMisura, TypingUndoingAndCopyingKnowNothingOfIt) {
  SezioniAMisura sezioni("a|«V1;5L»b\n");
  QTest::keyClicks(&sezioni.Editor(), "xy");
  EXPECT_EQ(sezioni.Disegno(), "axy|«V1;5L»b\n");
  sezioni.Editor().selectAll();
  sezioni.Editor().copy();
  EXPECT_EQ(QApplication::clipboard()->text(), "axy\u00ABV1;5L\u00BBb\n");
  sezioni.Editor().Poni(sezioni.Modello.Annulla().Dentro);
  EXPECT_EQ(sezioni.Disegno(), "a|«V1;5L»b\n");
  EXPECT_EQ(sezioni.Editor().toPlainText(), "a\u00ABV1;5L\u00BBb\n");
}

TEST(CampiAMisura, SwitchingAndMovingLeaveTheTemplateUnmodified) {
  SezioniAMisura sezioni("a|«V1;5L»b\n");
  QTest::mouseClick(sezioni.Editor().viewport(), Qt::LeftButton, {}, sezioni.Punto(0, 3));
  sezioni.Accendi(false);
  sezioni.Accendi(true);
  EXPECT_FALSE(sezioni.Modello.Stato().Modificato);
}

/// The right edge of the field of 20 cells behind an "a", taken with the mouse.
class BordoCampo : public testing::Test {
 protected:
  void Vai(double celle) {
    QTest::mouseMove(sezioni_.Editor().viewport(), sezioni_.Punto(0, celle));
    QMouseEvent mossa(QEvent::MouseMove, sezioni_.Punto(0, celle),
                      sezioni_.Editor().viewport()->mapToGlobal(sezioni_.Punto(0, celle)), Qt::NoButton, giu_,
                      {});
    QApplication::sendEvent(sezioni_.Editor().viewport(), &mossa);
  }
  void Premi(double celle) {
    Vai(celle);
    QTest::mousePress(sezioni_.Editor().viewport(), Qt::LeftButton, {}, sezioni_.Punto(0, celle));
    giu_ = Qt::LeftButton;
  }
  void Rilascia(double celle) {
    QTest::mouseRelease(sezioni_.Editor().viewport(), Qt::LeftButton, {}, sezioni_.Punto(0, celle));
    giu_ = Qt::NoButton;
  }
  Qt::CursorShape Puntatore() { return sezioni_.Editor().viewport()->cursor().shape(); }

  SezioniAMisura sezioni_{"a«V1;20L\".\"»b«V0;\"costante\"»|\n"};
  Qt::MouseButtons giu_ = Qt::NoButton;
};

TEST_F(BordoCampo, ShowsThatItCanBeDragged) {
  Vai(21);
  EXPECT_EQ(Puntatore(), Qt::SplitHCursor);
  Vai(10);
  EXPECT_EQ(Puntatore(), Qt::IBeamCursor);
  Vai(30);  // of a constant
  EXPECT_EQ(Puntatore(), Qt::IBeamCursor);
}

TEST_F(BordoCampo, DraggedGivesTheCodeItsWidthInOneStep) {
  Premi(21);
  Vai(23);
  Vai(26);
  Rilascia(26);
  EXPECT_EQ(sezioni_.Editor().toPlainText(), "a\u00ABV1;25L\".\"\u00BBb\u00ABV0;\"costante\"\u00BB\n");
  EXPECT_TRUE(sezioni_.Modello.Stato().Modificato);
  EXPECT_DOUBLE_EQ(sezioni_.Colonna(Sezione::Testata, 0, 13), 27);
  sezioni_.Modello.Annulla();
  EXPECT_EQ(sezioni_.Editor().toPlainText(), "a\u00ABV1;20L\".\"\u00BBb\u00ABV0;\"costante\"\u00BB\n");
  EXPECT_FALSE(sezioni_.Modello.PuoAnnullare());
}

TEST_F(BordoCampo, GivenUpOrPutBackChangesNothing) {
  Premi(21);
  Vai(26);
  QTest::keyClick(&sezioni_.Editor(), Qt::Key_Escape);
  Rilascia(26);
  Premi(21);
  Vai(26);
  Vai(21);
  Rilascia(21);
  EXPECT_FALSE(sezioni_.Modello.Stato().Modificato);
  EXPECT_FALSE(sezioni_.Modello.PuoAnnullare());
}

TEST_F(BordoCampo, NeverComesCloserThanOneCell) {
  Premi(21);
  Vai(0);
  Rilascia(0);
  EXPECT_TRUE(sezioni_.Editor().toPlainText().startsWith("a\u00ABV1;1L\".\"\u00BBb"));
}

/// The colour in the middle of a cell's upper edge, below a frame of a pixel.
QColor ColoreIn(SezioniAMisura& sezioni, int riga, double celle) {
  const QPoint punto = sezioni.Punto(riga, celle);
  const int alto =
      sezioni.Editor().cursorRect(QTextCursor(sezioni.Editor().document()->findBlockByNumber(riga))).top();
  const QImage immagine = sezioni.Editor().viewport()->grab().toImage();
  return immagine.pixelColor(QPointF(punto.x(), alto + 2).toPoint() * immagine.devicePixelRatio());
}

TEST(CampiAMisura, AreDrawnInTheColourOfTheirKindOverAllTheirCells) {
  SezioniAMisura sezioni("ab«V1;20L»cd«V0;\"  \"»\n|\n");
  const QColor vuoto = sezioni.Editor().palette().color(QPalette::Base);
  const QColor variabile = ColoreIn(sezioni, 0, 3.5);
  EXPECT_NE(variabile, vuoto);
  EXPECT_EQ(ColoreIn(sezioni, 0, 21.5), variabile);
  EXPECT_EQ(ColoreIn(sezioni, 0, 1.5), vuoto);
  EXPECT_EQ(ColoreIn(sezioni, 0, 22.5), vuoto);
  EXPECT_NE(ColoreIn(sezioni, 0, 25), variabile);
  EXPECT_NE(ColoreIn(sezioni, 0, 25), vuoto);
}

/// How many pixels of a line are drawn in that colour, exactly.
int Quanti(SezioniAMisura& sezioni, int riga, const QColor& colore) {
  const QImage immagine = sezioni.Editor().viewport()->grab().toImage();
  const QRect posto =
      sezioni.Editor().cursorRect(QTextCursor(sezioni.Editor().document()->findBlockByNumber(riga)));
  const qreal scala = immagine.devicePixelRatio();
  int quanti = 0;
  for (int y = static_cast<int>(posto.top() * scala); y < posto.bottom() * scala; ++y)
    for (int x = 0; x < immagine.width(); ++x) quanti += immagine.pixelColor(x, y) == colore ? 1 : 0;
  return quanti;
}

TEST(CampiAMisura, AFlagIsAMarkInItsColourAndHollowWhereItHides) {
  SezioniAMisura sezioni("a«F2N»b\na«F1N»b\nab\n|\n");
  const QColor flag = sezioni.Editor().document()->findChild<qtColori*>()->Colore(TipoCodice::Flag);
  EXPECT_GT(Quanti(sezioni, 0, flag), Quanti(sezioni, 1, flag));
  EXPECT_EQ(Quanti(sezioni, 2, flag), 0);
  sezioni.Campi.AggiornaFlag(true);
  sezioni.Editor().Rimisura();
  SezioniAMisura::Aspetta();
  EXPECT_EQ(Quanti(sezioni, 0, flag), Quanti(sezioni, 1, flag));
}

TEST(CampiAMisura, AMarkBehindTheCaretLeavesTheFieldBesideItLegible) {
  SezioniAMisura sezioni("«S;GR»«V1;20L»|\n|\n");
  sezioni.Editor().moveCursor(QTextCursor::End);
  const QColor campo = ColoreIn(sezioni, 0, 0.5);
  EXPECT_NE(campo, sezioni.Editor().palette().color(QPalette::Base));
  sezioni.Editor().moveCursor(QTextCursor::Start);
  EXPECT_EQ(ColoreIn(sezioni, 0, 0.5), campo);
}

TEST(CampiAMisura, TellInATooltipWhatTheyAreAndSoDoTheirMarks) {
  SezioniAMisura sezioni("abc«F2N»def«V2;20L»|\n");
  sezioni.Editor().ImpostaDescrizione([](std::string_view contenuto) { return DaUtf8(contenuto); });
  const auto detto = [&](double celle) {
    const QPoint punto = sezioni.Punto(0, celle);
    QHelpEvent aiuto(QEvent::ToolTip, punto, sezioni.Editor().viewport()->mapToGlobal(punto));
    QApplication::sendEvent(sezioni.Editor().viewport(), &aiuto);
    return QToolTip::isVisible() ? QToolTip::text().toStdString() : std::string();
  };
  EXPECT_EQ(detto(20), "V2;20L");
  EXPECT_EQ(detto(3), "F2N");
}

TEST(CampiAMisura, ACodeOfTwoLinesStaysTextInTheColourOfItsKind) {
  SezioniAMisura sezioni("a«V0;\"WWWWWWWW\nWWWWWWWW\"»b\n|\n");
  const QColor costante = sezioni.Editor().document()->findChild<qtColori*>()->Colore(TipoCodice::Costante);
  EXPECT_GT(Quanti(sezioni, 0, costante), 0);
  EXPECT_GT(Quanti(sezioni, 1, costante), 0);
  EXPECT_EQ(Quanti(sezioni, 2, costante), 0);
}

TEST(CampiAMisura, BehindTheCaretIsMarkedAndASelectedOneIsSelectedWhole) {
  SezioniAMisura sezioni("«V1;20L»«V2;20L»x|\n");
  const QColor campo = ColoreIn(sezioni, 0, 3.5);
  EXPECT_EQ(ColoreIn(sezioni, 0, 23.5), campo);
  sezioni.Premi(Qt::Key_Home);
  EXPECT_NE(ColoreIn(sezioni, 0, 3.5), campo);
  EXPECT_EQ(ColoreIn(sezioni, 0, 23.5), campo);
  sezioni.Premi(Qt::Key_Right, Qt::ShiftModifier);
  const QColor evidenza = ColoreIn(sezioni, 0, 3.5);
  EXPECT_EQ(ColoreIn(sezioni, 0, 18.5), evidenza);
  EXPECT_EQ(ColoreIn(sezioni, 0, 23.5), campo);
}

TEST(CampiAMisura, TooManyToMeasureAtOnceShowAtOnceWhereTheyCanBeSeen) {
  SezioniAMisura sezioni;
  sezioni.Accendi(false);
  std::string testo;
  for (int riga = 0; riga < 20'000; ++riga)
    testo +=
        "\xAB"
        "V1;29L\xBB"
        "x\r\n";
  sezioni.Modello.Imposta(Sezione::Testata, testo);
  sezioni.Editor().MostraAMisura(&sezioni.Campi, sezioni.Lettore());
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 0, 8), 29);
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 19'000, 8), 8);
  sezioni.Editor().verticalScrollBar()->setValue(19'000);
  EXPECT_DOUBLE_EQ(sezioni.Colonna(Sezione::Testata, 19'000, 8), 29);
  EXPECT_TRUE(QTest::qWaitFor([&] { return sezioni.Colonna(Sezione::Testata, 15'000, 8) == 29; }, 20'000));
}

}  // namespace
}  // namespace parvik
