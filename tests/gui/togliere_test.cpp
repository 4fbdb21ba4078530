// Every way to take text away from a section goes through the key rules: none leaves half a code.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include "EditorDiProva.h"

namespace parvik {
namespace {

using prova::ConSelezione;
using Editor = prova::EditorDiProva;

void Componi(Editor& editor, const QString& inCorso, const QString& finito = {}) {
  QInputMethodEvent composto(inCorso, {});
  composto.setCommitString(finito);
  QApplication::sendEvent(&editor.Widget(), &composto);
}

/// Takes an entry of the context menu, by the name that the toolkit gives it.
void DalMenu(Editor& editor, const char* voce) {
  QContextMenuEvent evento(QContextMenuEvent::Keyboard, QPoint(2, 2), QPoint(2, 2));
  QApplication::sendEvent(editor.Widget().viewport(), &evento);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  prova::Trova<QAction>(*menu, voce)->trigger();
  menu->close();
}

/// A way to take away what is selected.
struct Modo {
  const char* Nome;
  std::function<void(Editor&)> Togli;
  const char* Resta;  // what has then become of x[ab«V1;2L»]y
};

void PrintTo(const Modo& modo, std::ostream* uscita) {
  *uscita << modo.Nome;
}

class OgniModo : public testing::TestWithParam<Modo> {
 protected:
  OgniModo() { QApplication::clipboard()->setText("zz"); }
};

// clang-format off
INSTANTIATE_TEST_SUITE_P(DiTogliere, OgniModo, testing::Values(
    Modo{"CtrlX", [](Editor& e) { e.Premi(Qt::Key_X, Qt::ControlModifier); }, "x|y"},
    Modo{"Taglia", [](Editor& e) { DalMenu(e, "edit-cut"); }, "x|y"},
    Modo{"Elimina", [](Editor& e) { DalMenu(e, "edit-delete"); }, "x|y"},
    Modo{"CtrlD", [](Editor& e) { e.Premi(Qt::Key_D, Qt::ControlModifier); }, "x|y"},
    Modo{"CtrlK", [](Editor& e) { e.Premi(Qt::Key_K, Qt::ControlModifier); }, "x|y"},
    Modo{"ShiftDelete", [](Editor& e) { e.Premi(Qt::Key_Delete, Qt::ShiftModifier); }, "x|y"},
    Modo{"ALetter", [](Editor& e) { e.Scrivi("q"); }, "xq|y"},
    Modo{"ASpace", [](Editor& e) { e.Premi(Qt::Key_Space); }, "x |y"},
    Modo{"Enter", [](Editor& e) { e.Premi(Qt::Key_Return); }, "x |y"},
    Modo{"CtrlV", [](Editor& e) { e.Premi(Qt::Key_V, Qt::ControlModifier); }, "xzz|y"},
    Modo{"Incolla", [](Editor& e) { DalMenu(e, "edit-paste"); }, "xzz|y"},
    Modo{"ADeadKey", [](Editor& e) { Componi(e, "", QString(QChar(0xE8))); }, "xè|y"},
    Modo{"AnInputMethod", [](Editor& e) { Componi(e, "ka"); }, "x|y"}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

TEST_P(OgniModo, FirstGrowsASelectionThatCutsACodeAndThenTakesItAway) {
  Editor editor("x[ab«V1];2L»y");
  GetParam().Togli(editor);
  EXPECT_EQ(editor.Disegno(), "x[ab«V1;2L»]y");
  GetParam().Togli(editor);
  EXPECT_EQ(editor.Disegno(), GetParam().Resta);
  EXPECT_TRUE(editor.Aperti.empty());
}

TEST_P(OgniModo, TakesWholeCodesAndPlainTextAwayAtOnce) {
  Editor editor("x[ab«V1;2L»]y");
  GetParam().Togli(editor);
  EXPECT_EQ(editor.Disegno(), GetParam().Resta);
}

TEST(Togliere, WhatGrewIsNotOnTheClipboardAndWhatWasCutIs) {
  Editor editor("x[ab«V1];2L»y");
  QApplication::clipboard()->setText("prima");
  editor.Premi(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "prima");
  editor.Premi(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(DaSchermo(QApplication::clipboard()->text()), ConSelezione("ab«V1;2L»").Testo.Byte());
}

TEST(Togliere, CtrlKTakesTheRestOfTheLineAndThenItsEnd) {
  Editor editor("uno|due\ntre");
  EXPECT_EQ(editor.Premi(Qt::Key_K, Qt::ControlModifier).Disegno(), "uno| tre");
  EXPECT_EQ(editor.Premi(Qt::Key_K, Qt::ControlModifier).Disegno(), "uno|tre");
}

TEST(Togliere, CtrlKInsideACodeSelectsItFirst) {
  Editor editor("x«V1|;2L»y\nz");
  EXPECT_EQ(editor.Premi(Qt::Key_K, Qt::ControlModifier).Disegno(), "x[«V1;2L»y] z");
  EXPECT_EQ(editor.Premi(Qt::Key_K, Qt::ControlModifier).Disegno(), "x| z");
}

TEST(Togliere, CtrlDIsTheDeleteKey) {
  EXPECT_EQ(Editor("a|bc").Premi(Qt::Key_D, Qt::ControlModifier).Disegno(), "a|c");
  Editor editor("a|«V1;2L»b");
  editor.Premi(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(editor.Aperti, std::vector<std::string>{"V1;2L"});
}

TEST(Togliere, WhatAnInputMethodReplacesCutsNoCode) {
  Editor editor("a«V1;2L»|");
  QInputMethodEvent sostituito;
  sostituito.setCommitString("z", -3, 3);
  QApplication::sendEvent(&editor.Widget(), &sostituito);
  EXPECT_EQ(editor.Disegno(), "a[«V1;2L»]");
}

TEST(Togliere, AltWithALetterTypesNothing) {
  Editor editor("x[ab]y");
  QTest::sendKeyEvent(QTest::Click, &editor.Widget(), Qt::Key_Q, "q", Qt::AltModifier);
  QTest::sendKeyEvent(QTest::Click, &editor.Widget(), Qt::Key_Q, "q", Qt::MetaModifier);
  EXPECT_EQ(editor.Disegno(), "x[ab]y");
}

TEST(Togliere, AThirdLevelOfTheKeyboardTypes) {
  Editor editor("|");
  QTest::sendKeyEvent(QTest::Click, &editor.Widget(), Qt::Key_At, "@", Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(editor.Disegno(), "@|");
}

TEST(Togliere, ASoftHyphenIsTypedUnderTheSameRules) {
  Editor editor("x[ab«V1];2L»y");
  const QString trattino(QChar(0xAD));
  QTest::sendKeyEvent(QTest::Click, &editor.Widget(), Qt::Key_hyphen, trattino, Qt::NoModifier);
  EXPECT_EQ(editor.Disegno(), "x[ab«V1;2L»]y");
}

TEST(Togliere, EveryEnterIsALineEnd) {
  for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter}) {
    for (const Qt::KeyboardModifier con :
         {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::KeypadModifier}) {
      Editor editor("a|b");
      editor.Premi(tasto, con);
      EXPECT_EQ(editor.Widget().document()->toRawText(), QString("a") + QChar(0x2029) + "b");
    }
  }
}

TEST(Togliere, APastedLineSeparatorIsALineEnd) {
  Editor editor("|");
  QApplication::clipboard()->setText(QString("a") + QChar(0x2028) + "b");
  editor.Widget().paste();
  EXPECT_EQ(editor.Widget().document()->toRawText(), QString("a") + QChar(0x2029) + "b");
}

TEST(TastoTenuto, AutoRepeatStopsAtTheCode) {
  Editor indietro("a«V1;2L»bc|");
  indietro.Premi(Qt::Key_Backspace);
  for (int i = 0; i < 5; ++i) indietro.Tieni(Qt::Key_Backspace);
  EXPECT_EQ(indietro.Disegno(), "a«V1;2L»|");
  Editor avanti("|bc«V1;2L»a");
  avanti.Premi(Qt::Key_Delete);
  for (int i = 0; i < 5; ++i) avanti.Tieni(Qt::Key_Delete);
  EXPECT_EQ(avanti.Disegno(), "|«V1;2L»a");
  EXPECT_TRUE(indietro.Aperti.empty());
  EXPECT_TRUE(avanti.Aperti.empty());
}

TEST(TastoTenuto, OpensNoDialog) {
  Editor editor("a«V1|;2L»b");
  editor.Tieni(Qt::Key_F4).Tieni(Qt::Key_Space, " ").Tieni(Qt::Key_Backspace).Tieni(Qt::Key_Delete);
  EXPECT_TRUE(editor.Aperti.empty());
  EXPECT_EQ(editor.Disegno(), "a«V1|;2L»b");
  EXPECT_EQ(Editor("ab|").Tieni(Qt::Key_F4).Variabili, 0);
}

TEST(TastoTenuto, DoesNotTakeAwayWhatItHasJustMadeGrow) {
  for (const Qt::Key tasto : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Q, Qt::Key_Return}) {
    const QString testo = tasto == Qt::Key_Q ? "q" : "";
    Editor editor("x[ab«V1];2L»y");
    QTest::sendKeyEvent(QTest::Press, &editor.Widget(), tasto, testo, Qt::NoModifier);
    editor.Tieni(tasto, testo).Tieni(tasto, testo);
    EXPECT_EQ(editor.Disegno(), "x[ab«V1;2L»]y") << tasto;
  }
}

TEST(TastoTenuto, DoesNotDeleteACodeOfUnknownKindThatItHasSelected) {
  Editor editor("a«XYZ»|b");
  editor.Premi(Qt::Key_Backspace).Tieni(Qt::Key_Backspace);
  EXPECT_EQ(editor.Disegno(), "a[«XYZ»]b");
}

TEST(TastoTenuto, TypesAndDeletesPlainTextAsUsual) {
  Editor editor("a|");
  editor.Scrivi("b").Tieni(Qt::Key_B, "b").Tieni(Qt::Key_B, "b").Tieni(Qt::Key_Return);
  EXPECT_EQ(editor.Disegno(), "abbb |");
  editor.Premi(Qt::Key_Backspace).Tieni(Qt::Key_Backspace);
  EXPECT_EQ(editor.Disegno(), "abb|");
}

}  // namespace
}  // namespace parvik
