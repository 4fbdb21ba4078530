// A template made, saved, reopened and checked code by code with nothing but the keyboard.
#include <gtest/gtest.h>

#include <QListWidget>
#include <QMenu>
#include <QTest>

#include "Finestra.h"
#include "common/qtTesto.h"
#include "tokens/Pezzi.h"

namespace parvik {
namespace {

using prova::Contenuto;
using prova::Finestra;
using prova::NelProssimoDialogo;

/// Opens a top menu by its access key and takes the entry `giu` steps below the first.
void DalMenu(Finestra& finestra, Qt::Key accesso, int giu) {
  finestra.Attiva();
  QTest::keyClick(&*finestra, accesso, Qt::AltModifier);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  for (int i = 0; i < giu; ++i) QTest::keyClick(menu, Qt::Key_Down);
  QTest::keyClick(menu, Qt::Key_Return);
}

/// Tabs on until the control has the focus.
void TabulaFinoA(QDialog& dialogo, const QString& inizioNome) {
  for (int i = 0; i < 30 && !dialogo.focusWidget()->objectName().startsWith(inizioNome); ++i) {
    QTest::keyClick(dialogo.focusWidget(), Qt::Key_Tab);
  }
  ASSERT_TRUE(dialogo.focusWidget()->objectName().startsWith(inizioNome))
      << dialogo.focusWidget()->objectName().toStdString();
}

void Conferma(QDialog& dialogo) {
  QTest::keyClick(&dialogo, Qt::Key_Return);
}

void ScegliStile(Finestra& finestra, int giu) {
  NelProssimoDialogo([giu](QDialog& dialogo) {
    TabulaFinoA(dialogo, "optStile_");
    // The first option of the group has the focus; arrows move on in it.
    for (int i = 0; i < giu; ++i) QTest::keyClick(dialogo.focusWidget(), Qt::Key_Down);
    Conferma(dialogo);
  });
  DalMenu(finestra, Qt::Key_C, 2);
}

/// A variable with a flag in front of it, from F4 in plain text.
void InserisciVariabileConFlag(Finestra& finestra) {
  NelProssimoDialogo([](QDialog& dialogo) {
    TabulaFinoA(dialogo, "cmdFlag");
    NelProssimoDialogo([](QDialog& flag) {
      QTest::keyClick(flag.focusWidget(), Qt::Key_Down);
      Conferma(flag);
    });
    QTest::keyClick(dialogo.focusWidget(), Qt::Key_Return);
    TabulaFinoA(dialogo, "cmdOk");
    Conferma(dialogo);
  });
  QTest::keyClick(&finestra.Sezione(0), Qt::Key_F4);
}

void InserisciCostante(Finestra& finestra, const QString& testo) {
  NelProssimoDialogo([testo](QDialog& dialogo) {
    QTest::keyClicks(dialogo.focusWidget(), testo);
    Conferma(dialogo);
  });
  DalMenu(finestra, Qt::Key_C, 5);
}

void ConfermaDalMenu(Finestra& finestra, int giu) {
  NelProssimoDialogo(Conferma);
  DalMenu(finestra, Qt::Key_C, giu);
}

void ImpostaCorpo(Finestra& finestra) {
  NelProssimoDialogo([](QDialog& dialogo) {
    QTest::keyClicks(dialogo.focusWidget(), "12");
    TabulaFinoA(dialogo, "chkSbarra");
    QTest::keyClick(dialogo.focusWidget(), Qt::Key_Space);
    Conferma(dialogo);
  });
  DalMenu(finestra, Qt::Key_C, 6);
}

void Componi(Finestra& finestra) {
  QPlainTextEdit& testata = finestra.Sezione(0);
  ScegliStile(finestra, 1);
  InserisciVariabileConFlag(finestra);
  ScegliStile(finestra, 0);
  QTest::keyClicks(&testata, " ");
  InserisciCostante(finestra, "Pag. n.");
  ConfermaDalMenu(finestra, 4);  // page number
  QTest::keyClick(&testata, Qt::Key_Return);
  ConfermaDalMenu(finestra, 3);  // language
  finestra.Attiva();
  QTest::keyClick(&testata, Qt::Key_Tab);
  NelProssimoDialogo(Conferma);
  QTest::keyClick(&finestra.Sezione(1), Qt::Key_F4);
  ImpostaCorpo(finestra);
}

constexpr const char* Atteso =
    "\xAE"
    "S;GRASSETTO\xAF\xAE"
    "F2N\xAF\xAE"
    "V1;40L\xAF\xAE"
    "S;NORMALE\xAF \xAE"
    "V0;\"Pag. n.\"\xAF\xAE"
    "P1\xAF\r\n"
    "\xAE"
    "L1;10\xAF\r\n"
    "\xAE"
    "C12;1;C\xAF\r\n"
    "\xAE"
    "V101;3R;#;0\xAF\r\n"
    "\r\n";

class Tastiera : public testing::Test {
 protected:
  /// Saves under a new name and reads it back.
  void SetUp() override {
    NelProssimoDialogo(Conferma);
    DalMenu(finestra_, Qt::Key_F, 0);
    Componi(finestra_);
    finestra_.Attiva();
    finestra_.Persona().Scegliera(File());
    QTest::keyClick(&*finestra_, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    finestra_.Persona().Scegliera(File());
    QTest::keyClick(&*finestra_, Qt::Key_O, Qt::ControlModifier);
  }

  std::filesystem::path File() const { return finestra_.Modello("FATTNUOVA.IMG"); }

  /// Every code of the template in turn: `apri` brings up its dialog, which is confirmed as it is.
  void ConfermaOgniCodice(const std::function<void(QPlainTextEdit&, int inizio, int fine)>& apri) {
    int aperti = 0;
    for (int sezione = 0; sezione < 3; ++sezione) {
      QPlainTextEdit& editor = finestra_.Sezione(sezione);
      editor.setFocus();
      const std::string testo = DaSchermo(editor.toPlainText().replace('\n', ' '));
      LettorePezzi lettore(testo);
      while (const auto pezzo = lettore.Prossimo()) {
        if (pezzo->Genere != GenerePezzo::Codice) continue;
        NelProssimoDialogo([&aperti](QDialog& dialogo) {
          ++aperti;
          Conferma(dialogo);
        });
        apri(editor, static_cast<int>(pezzo->Inizio), static_cast<int>(pezzo->Fine));
        EXPECT_EQ(DaSchermo(editor.toPlainText().replace('\n', ' ')), testo);
      }
    }
    EXPECT_EQ(aperti, 8);
    finestra_.Attiva();
    QTest::keyClick(&*finestra_, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Contenuto(File()), Atteso);
  }

  static void Vai(QPlainTextEdit& editor, int posizione) {
    QTextCursor cursore(editor.document());
    cursore.setPosition(posizione);
    editor.setTextCursor(cursore);
  }

  Finestra finestra_;
};

TEST_F(Tastiera, TheTemplateIsInTheFile) {
  EXPECT_EQ(Contenuto(File()), Atteso);
}

TEST_F(Tastiera, F4InsideEachCodeAndOkLeaveTheFileAsItIs) {
  ConfermaOgniCodice([](QPlainTextEdit& editor, int inizio, int /*fine*/) {
    Vai(editor, inizio + 1);
    QTest::keyClick(&editor, Qt::Key_F4);
  });
}

TEST_F(Tastiera, BackspaceBehindEachCodeAndOkLeaveTheFileAsItIs) {
  ConfermaOgniCodice([](QPlainTextEdit& editor, int /*inizio*/, int fine) {
    Vai(editor, fine);
    QTest::keyClick(&editor, Qt::Key_Backspace);
  });
}

TEST_F(Tastiera, DeleteInFrontOfEachCodeAndOkLeaveTheFileAsItIs) {
  ConfermaOgniCodice([](QPlainTextEdit& editor, int inizio, int /*fine*/) {
    Vai(editor, inizio);
    QTest::keyClick(&editor, Qt::Key_Delete);
  });
}

TEST_F(Tastiera, ADoubleClickOnEachCodeAndOkLeaveTheFileAsItIs) {
  ConfermaOgniCodice([](QPlainTextEdit& editor, int inizio, int /*fine*/) {
    Vai(editor, inizio + 1);
    editor.ensureCursorVisible();
    const QPoint punto = editor.cursorRect().center() + QPoint(3, 0);
    QTest::mouseDClick(editor.viewport(), Qt::LeftButton, {}, punto);
  });
}

}  // namespace
}  // namespace parvik
