#include "template/txtTCP.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <functional>
#include <vector>

#include "Finestra.h"
#include "common/qtTesto.h"

namespace parvik {
namespace {

/// A document, and the editor of one of its sections.
struct Banco {
  static constexpr Sezione Quale = Sezione::Corpo;

  explicit Banco(std::string_view testo = {}) { Modello.Imposta(Quale, testo); }
  std::string Testo() const { return Modello.Testo(Quale).Byte(); }

  Documento Modello;
  txtTCP Editor{Modello, Quale, nullptr};
};

TEST(TxtTCP, All256ByteValuesSurviveTheEditor) {
  std::string tutti;
  for (int valore = 0; valore < 256; ++valore) tutti += static_cast<char>(static_cast<unsigned char>(valore));
  tutti += "\r\n";
  Banco banco(tutti);
  EXPECT_EQ(DaSchermo(banco.Editor.document()->toRawText()), banco.Testo());
  // The one CR that was alone is a whole line end.
  EXPECT_EQ(banco.Testo(), ConFiniRiga(tutti));
  EXPECT_EQ(banco.Testo().size(), tutti.size() + 1);
}

TEST(TxtTCP, AnAccessibleNameTellsTheSections) {
  Documento modello;
  EXPECT_EQ(txtTCP(modello, Sezione::Testata, nullptr).accessibleName(), "Testata");
  EXPECT_EQ(txtTCP(modello, Sezione::Corpo, nullptr).accessibleName(), "Corpo");
  EXPECT_EQ(txtTCP(modello, Sezione::Piede, nullptr).accessibleName(), "Piede");
}

TEST(TxtTCP, TheFontHasOneWidth) {
  Banco banco;
  txtTCP& editor = banco.Editor;
  editor.show();
  EXPECT_EQ(editor.fontMetrics().horizontalAdvance("iiii"), editor.fontMetrics().horizontalAdvance("MMMM"));
}

TEST(TxtTCP, EveryKeyThatReachesTheSectionIsToldEvenIfItChangesNothing) {
  Banco banco;
  txtTCP& editor = banco.Editor;
  const std::vector<QKeyCombination> tasti = {Qt::Key_Left, Qt::Key_Home,         Qt::Key_End,
                                              Qt::Key_Tab,  Qt::Key_Escape,       Qt::Key_F5,
                                              Qt::Key_Menu, Qt::CTRL | Qt::Key_C, Qt::CTRL | Qt::Key_A};
  for (const QKeyCombination tasto : tasti) {
    const QSignalSpy spia(&editor, &txtTCP::TastoPremuto);
    QTest::keyClick(&editor, tasto.key(), tasto.keyboardModifiers());
    EXPECT_EQ(spia.count(), 1) << "key " << tasto.key();
  }
}

TEST(TxtTCP, AModifierIsPartOfTheNextKeyAndIsNotTold) {
  Banco banco;
  txtTCP& editor = banco.Editor;
  const QSignalSpy spia(&editor, &txtTCP::TastoPremuto);
  for (const Qt::Key tasto : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta,
                              Qt::Key_Super_L, Qt::Key_CapsLock, Qt::Key_NumLock}) {
    QKeyEvent premuto(QEvent::KeyPress, tasto, Qt::NoModifier);
    QApplication::sendEvent(&editor, &premuto);
  }
  EXPECT_EQ(spia.count(), 0);
}

TEST(TxtTCP, SettingTheTextIsNoEditAndCannotBeUndone) {
  Banco banco("uno\r\n");
  EXPECT_EQ(banco.Editor.toPlainText(), "uno\n");
  EXPECT_FALSE(banco.Modello.Stato().Modificato);
  EXPECT_FALSE(banco.Modello.PuoAnnullare());
  banco.Editor.undo();
  EXPECT_EQ(banco.Testo(), "uno\r\n");
}

TEST(TxtTCP, CompletingTheLastLineKeepsTheCaretAndIsAStepOfItsOwn) {
  Banco banco;
  QTest::keyClicks(&banco.Editor, "x");
  banco.Modello.Stato().Modificato = false;
  banco.Modello.CompletaUltimaRiga(banco.Quale);
  EXPECT_EQ(banco.Testo(), "x\r\n");
  EXPECT_EQ(banco.Editor.toPlainText(), "x\n");
  EXPECT_EQ(banco.Editor.textCursor().position(), 1);
  EXPECT_FALSE(banco.Modello.Stato().Modificato);
  banco.Modello.Annulla();
  EXPECT_EQ(banco.Testo(), "x");
  banco.Modello.Annulla();
  EXPECT_EQ(banco.Testo(), "");
  EXPECT_EQ(banco.Editor.toPlainText(), "");
}

TEST(TxtTCP, WhatHasNoPlaceInATemplateIsAQuestionMarkAtOnce) {
  Banco banco;
  txtTCP& editor = banco.Editor;
  QTest::sendKeyEvent(QTest::Click, &editor, Qt::Key_unknown, QStringLiteral("\u4E2D"), Qt::NoModifier);
  EXPECT_EQ(editor.toPlainText(), "?");
}

TEST(TxtTCP, PastedTextKeepsItsLinesAndLosesWhatTheCodePageDoesNotHave) {
  Banco banco;
  txtTCP& editor = banco.Editor;
  QApplication::clipboard()->setText(QStringLiteral("a\r\nb\rc\n\u4E2D\u20AC"));
  editor.paste();
  EXPECT_EQ(banco.Testo(), "a\r\nb\r\nc\r\n?\x80");
}

TEST(TxtTCP, WhatIsCopiedAndPastedIsTheSameByteForByte) {
  std::string byte;
  for (int valore = 0; valore < 256; ++valore)
    if (valore != '\r') byte += static_cast<char>(static_cast<unsigned char>(valore));
  Banco banco(byte + "\r\n");
  txtTCP& editor = banco.Editor;
  editor.selectAll();
  editor.copy();
  banco.Modello.Imposta(banco.Quale, "");
  editor.paste();
  EXPECT_EQ(banco.Testo(), byte + "\r\n");
}

TEST(TxtTCP, ComposedTextGoesThroughTheSameDoor) {
  Banco banco;
  txtTCP& editor = banco.Editor;
  QInputMethodEvent composto;
  composto.setCommitString(QStringLiteral("\u00E8\u4E2D"));
  QApplication::sendEvent(&editor, &composto);
  EXPECT_EQ(banco.Testo(), "\xE8?");
  EXPECT_TRUE(banco.Modello.Stato().Modificato);
}

std::string TanteRighe(int quante) {
  std::string righe;
  for (int i = 0; i < quante; ++i)
    righe += "riga " + std::to_string(i) +
             " \xAB"
             "V1;5\xBB\r\n";
  return righe;
}

TEST(TxtTCP, ACaretBehindWhatTheProgramInsertsGoesAlongAndOneInFrontStays) {
  Banco banco("abcdef\r\n");
  banco.Editor.Poni({.Ancora = 5, .Posto = 5});
  banco.Modello.Rileggi(Banco::Quale, "xabcdef\r\n");
  EXPECT_EQ(banco.Editor.CursoreAttuale(), (Cursore{.Ancora = 6, .Posto = 6}));
  banco.Editor.Poni({.Ancora = 0, .Posto = 0});
  banco.Modello.Rileggi(Banco::Quale, "yxabcdef\r\n");
  EXPECT_EQ(banco.Editor.CursoreAttuale(), (Cursore{.Ancora = 0, .Posto = 0}));
}

TEST(TxtTCP, KeepsNoHistoryBesideTheDocuments) {
  Banco banco("ab");
  QTest::keyClick(&banco.Editor, Qt::Key_X);
  EXPECT_FALSE(banco.Editor.document()->isUndoAvailable());
  EXPECT_FALSE(banco.Editor.isUndoRedoEnabled());
  banco.Modello.Imposta(Banco::Quale, "another text\r\n");
  QTest::keyClick(&banco.Editor, Qt::Key_X);
  EXPECT_FALSE(banco.Editor.document()->isUndoAvailable());
  EXPECT_FALSE(banco.Editor.isUndoRedoEnabled());
  banco.Editor.ImpostaUso(false);
  banco.Editor.ImpostaUso(true);
  QTest::keyClick(&banco.Editor, Qt::Key_X);
  EXPECT_FALSE(banco.Editor.document()->isUndoAvailable());
  EXPECT_FALSE(banco.Editor.isUndoRedoEnabled());
}

TEST(TxtTCP, CopyingAndSelectingAllLeaveWhatIsInSight) {
  Banco banco(TanteRighe(200));
  banco.Editor.resize(400, 200);
  banco.Editor.show();
  QScrollBar& barra = *banco.Editor.verticalScrollBar();
  for (const Qt::Key tasto : {Qt::Key_C, Qt::Key_A}) {
    banco.Editor.moveCursor(QTextCursor::Start);
    barra.setValue(100);
    QTest::keyClick(&banco.Editor, tasto, Qt::ControlModifier);
    EXPECT_EQ(barra.value(), 100) << "key " << tasto;
  }
}

TEST(TxtTCP, AnInputMethodThatHasNothingToSayLeavesWhatIsInSight) {
  Banco banco(TanteRighe(200));
  banco.Editor.resize(400, 200);
  banco.Editor.show();
  banco.Editor.verticalScrollBar()->setValue(100);
  QInputMethodEvent niente;
  QApplication::sendEvent(&banco.Editor, &niente);
  EXPECT_EQ(banco.Editor.verticalScrollBar()->value(), 100);
}

TEST(TxtTCP, ChangingTheTextAndMovingBringTheCaretIntoSight) {
  Banco banco(TanteRighe(200));
  banco.Editor.resize(400, 200);
  banco.Editor.show();
  QScrollBar& barra = *banco.Editor.verticalScrollBar();
  QApplication::clipboard()->setText("zz");
  const std::vector<std::function<void()>> modi = {
      [&] { QTest::keyClick(&banco.Editor, Qt::Key_X); },
      [&] { QTest::keyClick(&banco.Editor, Qt::Key_Return); },
      [&] { QTest::keyClick(&banco.Editor, Qt::Key_Delete); },
      [&] { QTest::keyClick(&banco.Editor, Qt::Key_K, Qt::ControlModifier); },
      [&] { QTest::keyClick(&banco.Editor, Qt::Key_V, Qt::ControlModifier); },
      [&] { QTest::keyClick(&banco.Editor, Qt::Key_Right, Qt::ControlModifier); },
      [&] { banco.Editor.Taglia(); },
      [&] { banco.Editor.Elimina(); }};
  for (std::size_t i = 0; i < modi.size(); ++i) {
    banco.Editor.Poni({.Ancora = 0, .Posto = i < 6 ? 0U : 2U});
    barra.setValue(100);
    modi[i]();
    EXPECT_TRUE(banco.Editor.viewport()->rect().contains(banco.Editor.cursorRect().center())) << i;
  }
}

TEST(TxtTCP, AVeryLongTextLooksInANewWidthAsOneOpenedInThatWidth) {
  constexpr QSize Grande(700, 300);
  constexpr QSize Piccola(200, 300);
  const std::string testo = TanteRighe(100'001) + std::string(60, 'm');
  const auto aperta = [&testo](QSize prima, QSize poi) {
    Banco banco;
    txtTCP& editor = banco.Editor;
    editor.resize(prima);
    editor.show();
    banco.Modello.Imposta(banco.Quale, testo);
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
