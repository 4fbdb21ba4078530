// The section editor under the key rules: real keys sent to the real widget.
#include "supporto/Tasti.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QTest>

#include "EditorDiProva.h"

namespace parvik {
namespace {

using prova::ConSelezione;
using Editor = prova::EditorDiProva;

TEST(Tasti, BackspaceAtTheVeryStartOfASectionDoesNothing) {
  EXPECT_EQ(Editor("|abc").Premi(Qt::Key_Backspace).Disegno(), "|abc");
}

TEST(Tasti, BackspaceDeletesASelectedCode) {
  EXPECT_EQ(Editor("a[«ABC»]b").Premi(Qt::Key_Backspace).Disegno(), "a|b");
}

TEST(Tasti, BackspaceOnASelectionWithoutTheOpeningDelimiterLooksTheCodeUp) {
  Editor editor("x«[ABC»]y");
  editor.Premi(Qt::Key_Backspace);
  EXPECT_EQ(editor.Testo(), ConSelezione("x«ABC»y").Testo.Byte());
}

TEST(Tasti, AFullStopCannotBeTyped) {
  EXPECT_EQ(Editor("|").Scrivi("a.b").Disegno(), "ab|");
  Editor tastierino("|");
  QTest::keyClick(&tastierino.Widget(), Qt::Key_Period, Qt::KeypadModifier);
  EXPECT_EQ(tastierino.Disegno(), "|");
}

TEST(Tasti, ACodeBringsItsFullStopIn) {
  Editor editor("a|b");
  editor.Inserisci("«V8;9R;.0,2;0»");
  EXPECT_EQ(editor.Disegno(), "a«V8;9R;.0,2;0»|b");
}

TEST(Tasti, ASpaceInsideACodeOpensTheCodeAndElsewhereIsTyped) {
  Editor editor("«V1|;2L» ");
  editor.Premi(Qt::Key_Space);
  EXPECT_EQ(editor.Disegno(), "|«V1;2L» ");
  EXPECT_EQ(editor.Aperti, std::vector<std::string>{"V1;2L"});
  EXPECT_EQ(Editor("a|b").Premi(Qt::Key_Space).Disegno(), "a |b");
}

TEST(Tasti, PressingLeftIsToldAsAnEdit) {
  Editor editor("ab|c");
  const QSignalSpy spia(&editor.Widget(), &txtTCP::TastoPremuto);
  editor.Premi(Qt::Key_Left);
  EXPECT_EQ(spia.count(), 1);
  EXPECT_EQ(editor.Disegno(), "a|bc");
}

TEST(Tasti, InsertingACodePutsTheCaretBehindItAndReplacesTheSelection) {
  Editor senza("ab|cd");
  senza.Inserisci("«X»");
  EXPECT_EQ(senza.Disegno(), "ab«X»|cd");
  Editor con("a[bc]d");
  con.Inserisci("«X»");
  EXPECT_EQ(con.Disegno(), "a«X»|d");
}

TEST(Tasti, AnInsertedCodeIsOneStepToUndoAndNeverHalfOfIt) {
  Editor editor("a[bc]d");
  editor.Scrivi("xy");
  editor.Inserisci("«V1;2L»");
  editor.Scrivi("z");
  editor.Annulla();
  EXPECT_EQ(editor.Testo(), ConSelezione("axy«V1;2L»d").Testo.Byte());
  editor.Annulla();
  EXPECT_EQ(editor.Testo(), "axyd");
}

TEST(Tasti, CancelledBackspacePutsTheCaretInFrontOfTheCode) {
  Editor editor("a«V1;2L»|b");
  editor.Premi(Qt::Key_Backspace);
  EXPECT_EQ(editor.Disegno(), "a|«V1;2L»b");
  EXPECT_EQ(editor.Aperti, std::vector<std::string>{"V1;2L"});
}

TEST(Tasti, ACodeOfUnknownKindStaysSelectedAndASecondKeyDeletesIt) {
  Editor editor("a«XYZ»|b");
  editor.Premi(Qt::Key_Backspace);
  EXPECT_EQ(editor.Disegno(), "a[«XYZ»]b");
  EXPECT_TRUE(editor.Aperti.empty());
  EXPECT_EQ(editor.Premi(Qt::Key_Backspace).Disegno(), "a|b");
}

TEST(Tasti, WhatTheDialogGivesTakesThePlaceOfTheCode) {
  Editor editor("a«V1|;2L»b");
  QObject::connect(&editor.Widget(), &txtTCP::CodiceDaAprire, &editor.Widget(),
                   [&editor] { editor.Inserisci("«V2;9R»"); });
  editor.Premi(Qt::Key_F4);
  EXPECT_EQ(editor.Disegno(), "a«V2;9R»|b");
}

TEST(Tasti, F4OutsideACodeAsksForANewVariable) {
  Editor editor("ab|«V1»");
  editor.Premi(Qt::Key_F4);
  EXPECT_EQ(editor.Variabili, 1);
  EXPECT_EQ(editor.Disegno(), "ab|«V1»");
}

TEST(Tasti, DeleteRemovesTheCharacterBehindTheCaretAndLeavesTheCaret) {
  EXPECT_EQ(Editor("a|bc").Premi(Qt::Key_Delete).Disegno(), "a|c");
  EXPECT_EQ(Editor("«A»b|cd").Premi(Qt::Key_Delete).Disegno(), "«A»b|d");
}

TEST(Tasti, DeleteOnALineEndJoinsTheLines) {
  EXPECT_EQ(Editor("ab|\ncd").Premi(Qt::Key_Delete).Disegno(), "ab|cd");
}

TEST(Tasti, ModifiersMakeNoDifferenceToDeletingKeys) {
  EXPECT_EQ(Editor("uno due|").Premi(Qt::Key_Backspace, Qt::ControlModifier).Disegno(), "uno du|");
  EXPECT_EQ(Editor("|uno due").Premi(Qt::Key_Delete, Qt::ControlModifier).Disegno(), "|no due");
  Editor editor("a«V1»|");
  editor.Premi(Qt::Key_Backspace, Qt::ShiftModifier);
  EXPECT_EQ(editor.Aperti, std::vector<std::string>{"V1"});
}

TEST(Tasti, HalfACodeInTheSelectionGrowsToTheWholeBeforeItIsDeleted) {
  Editor editor("x[ab«V1];2L»y");
  editor.Premi(Qt::Key_Delete);
  EXPECT_EQ(editor.Disegno(), "x[ab«V1;2L»]y");
  EXPECT_EQ(editor.Premi(Qt::Key_Delete).Disegno(), "x|y");
}

TEST(Tasti, TabMovesTheFocusAndTypesNothing) {
  Editor editor("a|b");
  const QSignalSpy spia(&editor.Widget(), &txtTCP::TastoPremuto);
  EXPECT_EQ(editor.Premi(Qt::Key_Tab).Disegno(), "a|b");
  EXPECT_EQ(spia.count(), 1);
}

TEST(Tasti, ComposedTextObeysTheSameRules) {
  Editor editor("«V1|»a");
  QInputMethodEvent composto;
  composto.setCommitString(QStringLiteral("è. "));
  QApplication::sendEvent(&editor.Widget(), &composto);
  EXPECT_EQ(editor.Testo(),
            "\xAB"
            "V1\xE8\xBB"
            "a");
  EXPECT_EQ(editor.Aperti, std::vector<std::string>{"V1\xE8"});
}

TEST(Tasti, ADoubleClickOnACodeOpensItAndElsewhereSelectsAWord) {
  Editor editor("parola «V1;2L» fine|");
  editor.Widget().resize(400, 100);
  editor.Widget().show();
  const auto punto = [&editor](int posizione) {
    QTextCursor cursore(editor.Widget().document());
    cursore.setPosition(posizione);
    return editor.Widget().cursorRect(cursore).center() + QPoint(3, 0);
  };
  for (const int posizione : {7, 9, 13}) {  // the opening delimiter, the middle, the closing delimiter
    editor.Aperti.clear();
    QTest::mouseDClick(editor.Widget().viewport(), Qt::LeftButton, {}, punto(posizione));
    EXPECT_EQ(editor.Aperti, std::vector<std::string>{"V1;2L"}) << posizione;
  }
  editor.Aperti.clear();
  QTest::mouseDClick(editor.Widget().viewport(), Qt::LeftButton, {}, punto(2));
  EXPECT_TRUE(editor.Aperti.empty());
  EXPECT_EQ(editor.Widget().textCursor().selectedText(), "parola");
}

std::vector<std::string> Segnati(Editor& editor) {
  std::vector<std::string> segnati;
  for (const QTextEdit::ExtraSelection& segno : editor.Widget().extraSelections())
    segnati.push_back(DaSchermo(segno.cursor.selectedText()));
  return segnati;
}

TEST(Tasti, TheCodeUnderTheCaretIsMarkedAsAUnit) {
  Editor editor("ab «V1|;2L» cd");
  EXPECT_EQ(Segnati(editor), std::vector{ConSelezione("«V1;2L»").Testo.Byte()});
  editor.Premi(Qt::Key_Home);
  EXPECT_TRUE(Segnati(editor).empty());
}

TEST(Tasti, ACodeIsMarkedWithTheCaretDirectlyInFrontOfItOrBehindItToo) {
  for (const char* disegno : {"ab|«V1;2L»cd", "ab«V1;2L»|cd", "ab«|V1;2L»cd", "ab«V1;2L|»cd"}) {
    Editor editor(disegno);
    EXPECT_EQ(Segnati(editor), std::vector{ConSelezione("«V1;2L»").Testo.Byte()}) << disegno;
  }
  for (const char* disegno : {"a|b«V1;2L»cd", "ab«V1;2L»c|d"}) {
    Editor editor(disegno);
    EXPECT_TRUE(Segnati(editor).empty()) << disegno;
  }
  Editor fra("«V1»|«V2»");
  EXPECT_EQ(Segnati(fra),
            (std::vector{ConSelezione("«V1»").Testo.Byte(), ConSelezione("«V2»").Testo.Byte()}));
}

struct Passo {
  Qt::Key Tasto;
  TastoSezione Regola;
  Qt::KeyboardModifiers Con = {};
};

TEST(TastiProprieta, WidgetAndRulesAgreeAtEveryStep) {
  EXPECT_TRUE(rc::check([] {
    std::string disegno;
    for (const int pezzo : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 8))) {
      const char* const pezzi[] = {"«V1;2L»", "«XY»", "«»", "\n", "«", "»", "ab", " "};
      disegno += pezzi[pezzo];
    }
    Editor editor(disegno.c_str());
    prova::BancoSezione banco(editor.NelModello());
    for (int passo = 0; passo < 40; ++passo) {
      if (*rc::gen::inRange(0, 3) == 0) {
        const TestoSezione& testo = banco.Testo();
        const auto posto = [&testo] {
          const Selezione riga = testo.Riga(*rc::gen::inRange<std::size_t>(0, testo.Righe()));
          return riga.Inizio + *rc::gen::inRange<std::size_t>(0, riga.Lunghezza + 1);
        };
        const Cursore cursore{.Ancora = posto(), .Posto = posto()};
        editor.Widget().Poni(cursore);
        banco.Veduta().Poni(cursore);
      }
      const int scelta = *rc::gen::inRange(0, 8);
      if (scelta < 5) {
        const Passo passi[] = {{Qt::Key_Backspace, TastoSezione::Backspace},
                               {Qt::Key_Delete, TastoSezione::Canc},
                               {Qt::Key_F4, TastoSezione::F4},
                               {Qt::Key_Space, TastoSezione::Spazio},
                               {Qt::Key_X, TastoSezione::Togli, Qt::ControlModifier}};
        editor.Premi(passi[scelta].Tasto, passi[scelta].Con);
        banco.Comandi().Premi(passi[scelta].Regola, Pressione::Prima);
      } else if (scelta < 7) {
        editor.Scrivi(scelta == 5 ? "q" : ".");
        banco.Comandi().Scrivi(scelta == 5 ? "q" : ".", Pressione::Prima);
      } else {
        editor.Premi(Qt::Key_Return);
        banco.Comandi().VaiACapo(Pressione::Prima);
      }
      RC_ASSERT(editor.NelModello() == banco.Testo());
      RC_ASSERT(editor.Widget().CursoreAttuale().Selezionato() == banco.Selezionato());
      RC_ASSERT(DaSchermo(editor.Widget().document()->toRawText()) == banco.Testo().Byte());
    }
  }));
}

}  // namespace
}  // namespace parvik
