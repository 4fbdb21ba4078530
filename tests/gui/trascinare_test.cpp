// The section editor's mouse: words, dragging, dropping, and which half of a character was hit.
#include <gtest/gtest.h>

#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include "EditorDiProva.h"

namespace parvik {
namespace {

using prova::ConSelezione;
using Editor = prova::EditorDiProva;

void Lascia(Editor& editor, int posizione, const QString& testo) {
  QMimeData dati;
  dati.setText(testo);
  const QPoint punto = editor.Punto(posizione);
  QDragEnterEvent entra(punto, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(editor.Widget().viewport(), &entra);
  QDropEvent lasciato(punto, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(editor.Widget().viewport(), &lasciato);
}

void Trascina(Editor& editor, QPoint da, QPoint a) {
  QWidget* dove = editor.Widget().viewport();
  QTest::mousePress(dove, Qt::LeftButton, {}, da);
  for (int passo = 1; passo <= 5; ++passo) {
    const QPoint punto = da + (a - da) * passo / 5;
    QMouseEvent mosso(QEvent::MouseMove, punto, dove->mapToGlobal(punto), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(dove, &mosso);
  }
  QTest::mouseRelease(dove, Qt::LeftButton, {}, a);
}

TEST(Lasciare, InsideACodeGoesBehindIt) {
  Editor editor("a«V1;2L»b|");
  editor.Mostra();
  Lascia(editor, 3, "zz");
  EXPECT_EQ(editor.Disegno(), "a«V1;2L»zz|b");
}

TEST(Lasciare, InPlainTextGoesWhereThePointerIs) {
  Editor editor("abc«V1;2L»|");
  editor.Mostra();
  Lascia(editor, 1, "z\nz");
  EXPECT_EQ(editor.Disegno(), "az z|bc«V1;2L»");
}

TEST(Lasciare, MakesTheSectionTheActiveOne) {
  Editor editor("abc|");
  editor.Mostra();
  const QSignalSpy attivata(&editor.Widget(), &txtTCP::Attivata);
  Lascia(editor, 1, "z");
  EXPECT_GE(attivata.count(), 1);
}

TEST(Trascinare, ASelectionThatCutsACodeOnlyGrows) {
  Editor editor("x[ab«V1];2L»y lontano");
  editor.Mostra();
  Trascina(editor, editor.Punto(2), editor.Punto(16));
  EXPECT_EQ(editor.Disegno(), "x[ab«V1;2L»]y lontano");
}

TEST(Trascinare, AClickOnTheSelectionStillPutsTheCaretThere) {
  Editor editor("x[ab«V1];2L»y lontano");
  editor.Mostra();
  QTest::mouseClick(editor.Widget().viewport(), Qt::LeftButton, {}, editor.Punto(2));
  EXPECT_EQ(editor.Disegno(), "xa|b«V1;2L»y lontano");
}

TEST(Trascinare, OutsideTheSelectionSelectsAsUsual) {
  Editor editor("x[ab]cd lontano");
  editor.Mostra();
  Trascina(editor, editor.Punto(7, 0.1), editor.Punto(11, 0.1));
  EXPECT_EQ(editor.Disegno(), "xabcd l[onta]no");
}

TEST(DoppioClic, BesideACodeDoesNotReachIntoIt) {
  for (const int posizione : {0, 2}) {
    Editor editor("abc«V1;2L»def|");
    editor.Mostra();
    QTest::mouseDClick(editor.Widget().viewport(), Qt::LeftButton, {}, editor.Punto(posizione));
    EXPECT_EQ(editor.Disegno(), "[abc]«V1;2L»def");
  }
  Editor dietro("abc«V1;2L»def|");
  dietro.Mostra();
  QTest::mouseDClick(dietro.Widget().viewport(), Qt::LeftButton, {}, dietro.Punto(10));
  EXPECT_EQ(dietro.Disegno(), "abc«V1;2L»[def]");
  EXPECT_TRUE(dietro.Aperti.empty());
}

TEST(DoppioClic, BehindTheEndOfALineThatEndsWithACodeSelectsNothing) {
  Editor editor("abc «V1;2L»|");
  editor.Mostra();
  QTest::mouseDClick(editor.Widget().viewport(), Qt::LeftButton, {}, editor.Punto(11) + QPoint(60, 0));
  EXPECT_EQ(editor.Disegno(), "abc «V1;2L»|");
}

TEST(DoppioClic, DraggedOnSelectsWholeWordsAndWholeCodes) {
  Editor editor("uno due«V1;2L»tre quattro|");
  editor.Mostra();
  QWidget* dove = editor.Widget().viewport();
  const auto muovi = [&](int posizione) {
    const QPoint punto = editor.Punto(posizione);
    QMouseEvent mosso(QEvent::MouseMove, punto, dove->mapToGlobal(punto), Qt::NoButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(dove, &mosso);
    return editor.Disegno();
  };
  QTest::mousePress(dove, Qt::LeftButton, {}, editor.Punto(5));
  QTest::mouseRelease(dove, Qt::LeftButton, {}, editor.Punto(5));
  QMouseEvent doppio(QEvent::MouseButtonDblClick, editor.Punto(5), dove->mapToGlobal(editor.Punto(5)),
                     Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(dove, &doppio);
  EXPECT_EQ(editor.Disegno(), "uno [due]«V1;2L»tre quattro");
  EXPECT_EQ(muovi(10), "uno [due«V1;2L»]tre quattro");
  EXPECT_EQ(muovi(15), "uno [due«V1;2L»tre] quattro");
  EXPECT_EQ(muovi(1), "[uno due]«V1;2L»tre quattro");
  QTest::mouseRelease(dove, Qt::LeftButton, {}, editor.Punto(1));
  EXPECT_EQ(editor.Disegno(), "[uno due]«V1;2L»tre quattro");
}

TEST(DoppioClic, OnTheRightHalfOfADelimiterIsOnTheDelimiter) {
  for (const int posizione : {1, 7}) {
    Editor editor("a«V1;2L»b|");
    editor.Mostra();
    QTest::mouseDClick(editor.Widget().viewport(), Qt::LeftButton, {}, editor.Punto(posizione, 0.8));
    EXPECT_EQ(editor.Aperti, std::vector<std::string>{"V1;2L"}) << posizione;
  }
  Editor davanti("a«V1;2L»b|");
  davanti.Mostra();
  QTest::mouseDClick(davanti.Widget().viewport(), Qt::LeftButton, {}, davanti.Punto(0, 0.8));
  EXPECT_TRUE(davanti.Aperti.empty()) << "the right half of the character in front of the code";
  EXPECT_EQ(davanti.Disegno(), "[a]«V1;2L»b");
}

struct Passo {
  const char* Nome;
  const char* Prima;
  Qt::Key Tasto;
  Qt::KeyboardModifiers Con;
  const char* Dopo;
};

void PrintTo(const Passo& passo, std::ostream* uscita) {
  *uscita << passo.Nome;
}

class AParole : public testing::TestWithParam<Passo> {};

constexpr auto Ctrl = Qt::ControlModifier;
constexpr auto CtrlShift = Qt::ControlModifier | Qt::ShiftModifier;

// clang-format off
INSTANTIATE_TEST_SUITE_P(Tasti, AParole, testing::Values(
    Passo{"right_over_a_code", "|«V1;2L»abc", Qt::Key_Right, Ctrl, "«V1;2L»|abc"},
    Passo{"right_over_a_code_and_blanks", "|«V1;2L»  abc", Qt::Key_Right, Ctrl, "«V1;2L»  |abc"},
    Passo{"right_up_to_a_code", "|abc«V1;2L»", Qt::Key_Right, Ctrl, "abc|«V1;2L»"},
    Passo{"right_from_inside_a_code", "«V|1;2L»abc", Qt::Key_Right, Ctrl, "«V1;2L»|abc"},
    Passo{"left_over_a_code", "abc«V1;2L»|", Qt::Key_Left, Ctrl, "abc|«V1;2L»"},
    Passo{"left_over_blanks_and_a_code", "abc«V1;2L»  |x", Qt::Key_Left, Ctrl, "abc|«V1;2L»  x"},
    Passo{"left_up_to_a_code", "«V1;2L»abc|", Qt::Key_Left, Ctrl, "«V1;2L»|abc"},
    Passo{"left_from_inside_a_code", "abc«V1|;2L»", Qt::Key_Left, Ctrl, "abc|«V1;2L»"},
    Passo{"selecting_right_over_a_code", "ab|«V1;2L»c", Qt::Key_Right, CtrlShift, "ab[«V1;2L»]c"},
    Passo{"selecting_left_over_a_code", "ab«V1;2L»|c", Qt::Key_Left, CtrlShift, "ab[«V1;2L»]c"},
    Passo{"selecting_up_to_a_code", "|ab«V1;2L»c", Qt::Key_Right, CtrlShift, "[ab]«V1;2L»c"},
    Passo{"right_at_the_end_of_a_line", "ab|\ncd", Qt::Key_Right, Ctrl, "ab |cd"},
    Passo{"left_at_the_start_of_a_line", "ab\n|cd", Qt::Key_Left, Ctrl, "ab| cd"},
    Passo{"right_at_the_end", "ab|", Qt::Key_Right, Ctrl, "ab|"},
    Passo{"left_at_the_start", "|ab", Qt::Key_Left, Ctrl, "|ab"},
    Passo{"right_over_a_code_of_two_lines", "a|«V1\n;2L»b", Qt::Key_Right, Ctrl, "a«V1 ;2L»|b"}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

TEST_P(AParole, ACodeIsOneWord) {
  EXPECT_EQ(Editor(GetParam().Prima).Premi(GetParam().Tasto, GetParam().Con).Disegno(), GetParam().Dopo);
}

}  // namespace
}  // namespace parvik
