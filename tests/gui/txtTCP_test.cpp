#include "template/txtTCP.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QTest>

#include "Finestra.h"
#include "common/frmAttesa.h"
#include "common/frmTesto.h"

namespace parvik {
namespace {

TEST(TxtTCP, All256ByteValuesSurviveTheEditor) {
  std::string tutti;
  for (int valore = 0; valore < 256; ++valore) tutti += static_cast<char>(static_cast<unsigned char>(valore));
  tutti += "\r\n";
  txtTCP editor(Sezione::Testata, nullptr);
  editor.ImpostaAnsi(tutti);
  EXPECT_EQ(editor.Ansi(), tutti);
}

TEST(TxtTCP, AnAccessibleNameTellsTheSections) {
  EXPECT_EQ(txtTCP(Sezione::Testata, nullptr).accessibleName(), "Testata");
  EXPECT_EQ(txtTCP(Sezione::Corpo, nullptr).accessibleName(), "Corpo");
  EXPECT_EQ(txtTCP(Sezione::Piede, nullptr).accessibleName(), "Piede");
}

TEST(TxtTCP, TheFontHasOneWidth) {
  txtTCP editor(Sezione::Testata, nullptr);
  editor.show();
  EXPECT_EQ(editor.fontMetrics().horizontalAdvance("iiii"), editor.fontMetrics().horizontalAdvance("MMMM"));
}

TEST(TxtTCP, EveryKeyThatReachesTheSectionIsToldEvenIfItChangesNothing) {
  txtTCP editor(Sezione::Corpo, nullptr);
  const std::vector<QKeyCombination> tasti = {Qt::Key_Left, Qt::Key_Home,         Qt::Key_End,
                                              Qt::Key_Tab,  Qt::Key_Escape,       Qt::Key_F5,
                                              Qt::Key_Menu, Qt::CTRL | Qt::Key_C, Qt::CTRL | Qt::Key_A};
  for (const QKeyCombination tasto : tasti) {
    const QSignalSpy spia(&editor, &txtTCP::Modificata);
    QTest::keyClick(&editor, tasto.key(), tasto.keyboardModifiers());
    EXPECT_EQ(spia.count(), 1) << "key " << tasto.key();
  }
}

TEST(TxtTCP, AModifierIsPartOfTheNextKeyAndIsNotTold) {
  txtTCP editor(Sezione::Corpo, nullptr);
  const QSignalSpy spia(&editor, &txtTCP::Modificata);
  for (const Qt::Key tasto : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta,
                              Qt::Key_Super_L, Qt::Key_CapsLock, Qt::Key_NumLock}) {
    QKeyEvent premuto(QEvent::KeyPress, tasto, Qt::NoModifier);
    QApplication::sendEvent(&editor, &premuto);
  }
  EXPECT_EQ(spia.count(), 0);
}

TEST(TxtTCP, SettingTheTextIsNoEditAndCannotBeUndone) {
  txtTCP editor(Sezione::Corpo, nullptr);
  const QSignalSpy spia(&editor, &txtTCP::Modificata);
  editor.ImpostaAnsi("uno\r\n");
  EXPECT_EQ(spia.count(), 0);
  editor.undo();
  EXPECT_EQ(editor.Ansi(), "uno\r\n");
}

TEST(TxtTCP, CompletingTheLastLineKeepsCaretAndUndoHistory) {
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi("");
  QTest::keyClicks(&editor, "x");
  const QSignalSpy spia(&editor, &txtTCP::Modificata);
  editor.CompletaUltimaRiga();
  EXPECT_EQ(editor.Ansi(), "x\r\n");
  EXPECT_EQ(editor.textCursor().position(), 1);
  EXPECT_EQ(spia.count(), 0);
  editor.undo();
  editor.undo();
  EXPECT_EQ(editor.Ansi(), "");
}

TEST(TxtTCP, WhatHasNoPlaceInATemplateIsAQuestionMarkAtOnce) {
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi("");
  QTest::sendKeyEvent(QTest::Click, &editor, Qt::Key_unknown, QStringLiteral("\u4E2D"), Qt::NoModifier);
  EXPECT_EQ(editor.toPlainText(), "?");
}

TEST(TxtTCP, PastedTextKeepsItsLinesAndLosesWhatTheCodePageDoesNotHave) {
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi("");
  QApplication::clipboard()->setText(QStringLiteral("a\r\nb\rc\n\u4E2D\u20AC"));
  editor.paste();
  EXPECT_EQ(editor.Ansi(), "a\r\nb\r\nc\r\n?\x80");
}

TEST(TxtTCP, WhatIsCopiedAndPastedIsTheSameByteForByte) {
  std::string byte;
  for (int valore = 0; valore < 256; ++valore) byte += static_cast<char>(static_cast<unsigned char>(valore));
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi(byte + "\r\n");
  editor.selectAll();
  editor.copy();
  editor.ImpostaAnsi("");
  editor.paste();
  EXPECT_EQ(editor.Ansi(), byte + "\r\n");
}

TEST(TxtTCP, ComposedTextGoesThroughTheSameDoor) {
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi("");
  const QSignalSpy spia(&editor, &txtTCP::Modificata);
  QInputMethodEvent composto;
  composto.setCommitString(QStringLiteral("\u00E8\u4E2D"));
  QApplication::sendEvent(&editor, &composto);
  EXPECT_EQ(editor.Ansi(), "\xE8?");
  EXPECT_GE(spia.count(), 1);
}

std::string TanteRighe(int quante) {
  std::string righe;
  for (int i = 0; i < quante; ++i)
    righe += "riga " + std::to_string(i) +
             " \xAB"
             "V1;5\xBB\r\n";
  return righe;
}

TEST(TxtTCP, WholeLinesAreGivenAsManyAsFitButOneAtLeast) {
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi("uno\r\ndue\r\ntre");
  const auto righe = [&editor](int prima, std::size_t massimo) {
    const txtTCP::RigheTesto lette = editor.Righe(prima, massimo);
    EXPECT_EQ(lette.Ultime, lette.Prossima == 3);
    return std::pair(DaSchermo(lette.Testo), lette.Prossima);
  };
  EXPECT_EQ(righe(0, 0), std::pair(std::string("uno\r\n"), 1));
  EXPECT_EQ(righe(0, 7), std::pair(std::string("uno\r\n"), 1));
  EXPECT_EQ(righe(0, 8), std::pair(std::string("uno\r\ndue\r\n"), 2));
  EXPECT_EQ(righe(0, 12), std::pair(std::string("uno\r\ndue\r\ntre"), 3));
  EXPECT_EQ(righe(2, 12), std::pair(std::string("tre"), 3));
  editor.ImpostaAnsi("");
  EXPECT_TRUE(editor.Righe(0, 0).Ultime);
}

TEST(TxtTCP, AnotherThreadIsGivenTheSameText) {
  txtTCP editor(Sezione::Corpo, nullptr);
  for (const std::string& testo : {std::string(), std::string("una"), TanteRighe(20'000)}) {
    editor.ImpostaAnsi(testo);
    std::string preso;
    EXPECT_TRUE(
        AttendiLavoro(nullptr, [&](const std::stop_token& smetti) { preso = editor.AnsiAPezzi(smetti); }));
    EXPECT_TRUE(preso == testo) << preso.size() << " of " << testo.size();
  }
}

/// Edits a text between the first lines that it hands over and the second ones.
class Disturbo final : public QObject {
 public:
  explicit Disturbo(txtTCP& editor) : editor_(editor) { editor.installEventFilter(this); }
  int Richieste() const { return richieste_; }

 protected:
  bool eventFilter(QObject*, QEvent* evento) override {
    if (evento->type() == QEvent::MetaCall && ++richieste_ == 2)
      QTextCursor(editor_.document()).insertText("nuovo ");
    return false;
  }

 private:
  txtTCP& editor_;
  int richieste_ = 0;
};

TEST(TxtTCP, ATextThatIsChangedWhileItIsHandedOverIsHandedOverAnew) {
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi(TanteRighe(20'000));
  QCoreApplication::processEvents();  // what the text itself has still to call
  const Disturbo disturbo(editor);
  std::string preso;
  EXPECT_TRUE(
      AttendiLavoro(nullptr, [&](const std::stop_token& smetti) { preso = editor.AnsiAPezzi(smetti); }));
  EXPECT_GT(disturbo.Richieste(), 2);
  EXPECT_TRUE(preso.starts_with("nuovo riga 0 "));
  EXPECT_TRUE(preso == editor.Ansi()) << preso.size();
}

TEST(TxtTCP, HandingATextOverEndsWhenItIsGivenUp) {
  txtTCP editor(Sezione::Corpo, nullptr);
  editor.ImpostaAnsi("una");
  std::stop_source smetti;
  smetti.request_stop();
  EXPECT_EQ(editor.AnsiAPezzi(smetti.get_token()), "");
}

TEST(TxtTCP, AVeryLongTextLooksInANewWidthAsOneOpenedInThatWidth) {
  constexpr QSize Grande(700, 300);
  constexpr QSize Piccola(200, 300);
  const std::string testo = TanteRighe(100'001) + std::string(60, 'm');
  const auto aperta = [&testo](QSize prima, QSize poi) {
    txtTCP editor(Sezione::Corpo, nullptr);
    editor.resize(prima);
    editor.show();
    editor.ImpostaAnsi(testo);
    QCoreApplication::processEvents();
    editor.resize(poi);
    QCoreApplication::processEvents();
    return editor.viewport()->grab().toImage();
  };
  EXPECT_EQ(aperta(Grande, Piccola), aperta(Piccola, Piccola));
  EXPECT_EQ(aperta(Piccola, Grande), aperta(Grande, Grande));
}

}  // namespace
}  // namespace parvik
