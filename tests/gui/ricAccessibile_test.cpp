// The preview pane through the toolkit's accessible interface.
#include "output/ricAccessibile.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTextEdit>

#include "PannelloDiProva.h"

namespace parvik {
namespace {

using prova::DiProva;
using prova::Pannello;

class RicAccessibile : public testing::Test {
 protected:
  static void SetUpTestSuite() { ricAccessibile::Registra(); }

  QAccessibleInterface& Accessibile() { return *QAccessible::queryAccessibleInterface(&*pannello_); }
  QAccessibleTextInterface& Testo() { return *Accessibile().textInterface(); }

  std::string Intorno(int posizione, QAccessible::TextBoundaryType unita) {
    int inizio = 0;
    int fine = 0;
    const QString testo = Testo().textAtOffset(posizione, unita, &inizio, &fine);
    EXPECT_EQ(Testo().text(inizio, fine), testo);
    return testo.toStdString();
  }

  Pannello pannello_{"uno due\r\ntreS;GR quattro\r\n"};  // 8 + 12 characters
};

TEST_F(RicAccessibile, IsAReadOnlyTextOfSeveralLines) {
  EXPECT_EQ(Accessibile().role(), QAccessible::EditableText);
  EXPECT_EQ(Accessibile().text(QAccessible::Name), "Anteprima");
  const QAccessible::State stato = Accessibile().state();
  EXPECT_TRUE(stato.readOnly);
  EXPECT_TRUE(stato.multiLine);
  EXPECT_TRUE(stato.selectableText);
  EXPECT_TRUE(stato.focusable);
  EXPECT_TRUE(stato.focused);
  EXPECT_FALSE(stato.editable);
}

TEST_F(RicAccessibile, TheTextHasOneCharacterForALineEnd) {
  EXPECT_EQ(Testo().characterCount(), 20);
  EXPECT_EQ(Testo().text(0, -1), "uno due\ntre quattro\n");
  EXPECT_EQ(Testo().text(4, 11), "due\ntre");
  EXPECT_EQ(Testo().text(18, 500), "o\n");
  EXPECT_EQ(Accessibile().text(QAccessible::Value), "uno due\ntre quattro\n");
}

TEST_F(RicAccessibile, TheCaretIsReadAndMoved) {
  pannello_->Seleziona(9, 9);
  EXPECT_EQ(Testo().cursorPosition(), 8);
  Testo().setCursorPosition(10);
  EXPECT_EQ(pannello_->Cursore(), 11U);
  Testo().setCursorPosition(-3);
  EXPECT_EQ(pannello_->Cursore(), 0U);
  Testo().setCursorPosition(500);
  EXPECT_EQ(pannello_->Cursore(), 22U);
}

TEST_F(RicAccessibile, TheSelectionIsReadMadeAndRemoved) {
  EXPECT_EQ(Testo().selectionCount(), 0);
  Testo().addSelection(4, 9);
  EXPECT_EQ(pannello_->Selezionato(), (Selezione{4, 6}));
  EXPECT_EQ(Testo().selectionCount(), 1);
  int inizio = -1;
  int fine = -1;
  Testo().selection(0, &inizio, &fine);
  EXPECT_EQ(std::pair(inizio, fine), std::pair(4, 9));
  Testo().setSelection(0, 1, 2);
  EXPECT_EQ(pannello_->Selezionato(), (Selezione{1, 1}));
  Testo().removeSelection(0);
  EXPECT_EQ(pannello_->Selezionato(), (Selezione{2, 0}));
}

TEST_F(RicAccessibile, GivesCharactersWordsAndLines) {
  EXPECT_EQ(Intorno(7, QAccessible::CharBoundary), "\n");
  EXPECT_EQ(Intorno(5, QAccessible::WordBoundary), "due");
  EXPECT_EQ(Intorno(3, QAccessible::WordBoundary), " ");
  EXPECT_EQ(Intorno(5, QAccessible::LineBoundary), "uno due\n");
  EXPECT_EQ(Intorno(8, QAccessible::LineBoundary), "tre quattro\n");
  EXPECT_EQ(Intorno(20, QAccessible::LineBoundary), "");
  EXPECT_EQ(Intorno(5, QAccessible::NoBoundary), "uno due\ntre quattro\n");
}

TEST_F(RicAccessibile, GivesWhatStandsInFrontAndBehind) {
  int inizio = 0;
  int fine = 0;
  EXPECT_EQ(Testo().textBeforeOffset(9, QAccessible::LineBoundary, &inizio, &fine), "uno due\n");
  EXPECT_EQ(std::pair(inizio, fine), std::pair(0, 8));
  EXPECT_EQ(Testo().textAfterOffset(2, QAccessible::LineBoundary, &inizio, &fine), "tre quattro\n");
  EXPECT_EQ(std::pair(inizio, fine), std::pair(8, 20));
  EXPECT_EQ(Testo().textBeforeOffset(2, QAccessible::LineBoundary, &inizio, &fine), "");
  EXPECT_EQ(Testo().textAfterOffset(20, QAccessible::CharBoundary, &inizio, &fine), "");
  EXPECT_EQ(Testo().textBeforeOffset(8, QAccessible::CharBoundary, &inizio, &fine), "\n");
}

TEST_F(RicAccessibile, APointAndACharacterFindEachOther) {
  for (const int posizione : {0, 5, 8, 18}) {
    const QRect rettangolo = Testo().characterRect(posizione);
    EXPECT_FALSE(rettangolo.isEmpty());
    EXPECT_EQ(Testo().offsetAtPoint(rettangolo.center()), posizione);
  }
}

TEST_F(RicAccessibile, ALineThatDoesNotShowIsScrolledToAndNothingIsSelected) {
  pannello_->Mostra(DiProva(prova::Ripeti("riga\r\n", 300)));
  const QRect prima = Testo().characterRect(1000);
  EXPECT_GT(prima.top(), pannello_->viewport()->mapToGlobal(QPoint(0, pannello_->height())).y());
  Testo().scrollToSubstring(1000, 1003);
  const QRect dopo = Testo().characterRect(1000);
  EXPECT_TRUE(
      QRect(pannello_->viewport()->mapToGlobal(QPoint(0, 0)), pannello_->viewport()->size()).contains(dopo));
  EXPECT_EQ(pannello_->Selezionato(), (Selezione{0, 0}));
}

TEST_F(RicAccessibile, TellsTheLookOfEachRun) {
  int inizio = 0;
  int fine = 0;
  const QString prima = Testo().attributes(2, &inizio, &fine);
  EXPECT_EQ(std::pair(inizio, fine), std::pair(0, 11));
  EXPECT_TRUE(prima.contains("font-size:10pt;font-weight:normal;font-style:normal;")) << prima.toStdString();
  const QString dopo = Testo().attributes(12, &inizio, &fine);
  EXPECT_EQ(std::pair(inizio, fine), std::pair(11, 20));
  EXPECT_TRUE(dopo.contains("font-size:9.75pt;font-weight:bold;font-style:normal;")) << dopo.toStdString();
}

/// What a text field of the toolkit's own tells of a character of that format.
QString DelToolkit(const QTextCharFormat& formato) {
  QTextEdit campo;
  campo.textCursor().insertText("a", formato);
  int inizio = 0;
  int fine = 0;
  return QAccessible::queryAccessibleInterface(&campo)->textInterface()->attributes(0, &inizio, &fine);
}

TEST_F(RicAccessibile, TellsALineUnderTextAsTheToolkitsOwnTextFieldsDo) {
  pannello_->Mostra(DiProva("aS;SObS;NOc"));
  const auto sottolineato = [](const QString& attributi) {
    QStringList trovati;
    for (const QString& attributo : attributi.split(';')) {
      if (attributo.startsWith("text-underline")) trovati += attributo;
    }
    trovati.sort();
    return trovati;
  };
  QTextCharFormat formato;
  formato.setFontUnderline(true);
  const QStringList attesi = sottolineato(DelToolkit(formato));
  EXPECT_EQ(attesi.size(), 2) << attesi.join(' ').toStdString();
  int inizio = 0;
  int fine = 0;
  EXPECT_EQ(sottolineato(Testo().attributes(1, &inizio, &fine)), attesi);
  EXPECT_EQ(std::pair(inizio, fine), std::pair(1, 2));
  for (const int posizione : {0, 2}) {
    EXPECT_EQ(sottolineato(Testo().attributes(posizione, &inizio, &fine)),
              sottolineato(DelToolkit(QTextCharFormat())))
        << posizione;
  }
}

TEST_F(RicAccessibile, PositionsInAHugeTextCostNoWalkThroughIt) {
  constexpr int Righe = 1'000'000;
  pannello_->Mostra(DiProva(prova::Ripeti("abc\r\n", Righe)));
  EXPECT_EQ(Testo().characterCount(), 4 * Righe);
  for (int posizione = 0; posizione < 4 * Righe; posizione += 997) {
    Testo().setCursorPosition(posizione);
    ASSERT_EQ(Testo().cursorPosition(), posizione);
    ASSERT_EQ(Intorno(posizione, QAccessible::LineBoundary), "abc\n");
  }
}

}  // namespace
}  // namespace parvik
