// What is wrong with the template, in the main window (docs/verifica.md).
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolTip>
#include <QTreeView>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::NelProssimoDialogo;
using prova::Trova;

class ProblemiInFinestra : public testing::Test {
 protected:
  ProblemiInFinestra() {
    finestra_.Scegli(1);
    finestra_.Sezione(0).setPlainText("ab«X»cd\nef «V4;05L»\n");
    finestra_.Sezione(2).setPlainText("«Y»\n");
  }
  void F8(Qt::KeyboardModifiers con = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F8, con);
    Finestra::Calma();
  }
  QDockWidget& Pannello() { return *Trova<QDockWidget>(*finestra_, "pnlProblemi"); }
  QTreeView& Elenco() { return *Trova<QTreeView>(Pannello(), "lstProblemi"); }
  QPushButton& Correggi() { return *Trova<QPushButton>(Pannello(), "cmdCorreggi"); }
  QStringList Righe() {
    QStringList righe;
    const QAbstractItemModel& modello = *Elenco().model();
    for (int riga = 0; riga < modello.rowCount(); ++riga) {
      QStringList celle;
      for (const int colonna : {0, 1, 2, 4}) celle += modello.index(riga, colonna).data().toString();
      righe += celle.join(' ');
    }
    return righe;
  }
  bool Diventano(const QStringList& attese) {
    return QTest::qWaitFor([&] { return Righe() == attese; }, 3000);
  }
  QPlainTextEdit& Testata() { return finestra_.Sezione(0); }

  Finestra finestra_;
};

const QStringList Tutti = {"Errore Testata 1 codice-sconosciuto", "Avviso Testata 2 formato-diverso",
                           "Errore Piede 1 codice-sconosciuto"};

TEST_F(ProblemiInFinestra, F8OpensThePanelBelowTheSections) {
  EXPECT_EQ(finestra_->findChild<QDockWidget*>("pnlProblemi"), nullptr) << "nothing to tell, nothing made";
  F8();
  EXPECT_TRUE(Pannello().isVisible());
  EXPECT_EQ(finestra_->dockWidgetArea(&Pannello()), Qt::BottomDockWidgetArea);
  EXPECT_TRUE(finestra_.Azione("mnuProblemi").isChecked());
  EXPECT_EQ(Righe(), Tutti);
  EXPECT_EQ(Pannello().windowTitle(), "Problemi: 2 errori, 1 avviso");
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return Trova<QLabel>(*finestra_, "lblProblemi")->text() == "2 errori, 1 avviso"; }, 2000));
  QStringList titoli;
  for (int i = 0; i < 5; ++i) titoli += Elenco().model()->headerData(i, Qt::Horizontal).toString();
  EXPECT_EQ(titoli, QStringList({"Livello", "Sezione", "Riga", "Testo", "Regola"}));
  EXPECT_EQ(Elenco().accessibleName(), "Problemi");
}

TEST_F(ProblemiInFinestra, F8AndShiftF8GoFromOneToTheNextAroundTheEnd) {
  F8();
  std::vector<std::pair<QString, int>> posti;
  const auto nota = [&] {
    auto* qui = qobject_cast<QPlainTextEdit*>(QApplication::focusWidget());
    posti.emplace_back(qui->accessibleName(), qui->textCursor().position());
    EXPECT_FALSE(qui->textCursor().hasSelection());
  };
  for (int i = 0; i < 4; ++i) {
    F8();
    nota();
  }
  F8(Qt::ShiftModifier);
  nota();
  EXPECT_EQ(posti, (std::vector<std::pair<QString, int>>{
                       {"Testata", 2}, {"Testata", 11}, {"Piede", 0}, {"Testata", 2}, {"Piede", 0}}));
}

TEST_F(ProblemiInFinestra, EnterOnOnePutsTheCaretThere) {
  F8();
  Elenco().setFocus();
  Elenco().setCurrentIndex(Elenco().model()->index(1, 0));
  QTest::keyClick(&Elenco(), Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), &Testata());
  EXPECT_EQ(Testata().textCursor().position(), 11);
}

TEST_F(ProblemiInFinestra, FollowTheTextAfterAPause) {
  F8();
  Testata().moveCursor(QTextCursor::Start);
  Testata().setFocus();
  QTest::keyClick(&Testata(), Qt::Key_Return);
  EXPECT_EQ(Righe(), Tutti) << "not while keys come";
  EXPECT_TRUE(Diventano({"Errore Testata 2 codice-sconosciuto", "Avviso Testata 3 formato-diverso",
                         "Errore Piede 1 codice-sconosciuto"}));
  finestra_.Sezione(2).setPlainText("\n");
  EXPECT_TRUE(Diventano({"Errore Testata 2 codice-sconosciuto", "Avviso Testata 3 formato-diverso"}));
}

TEST_F(ProblemiInFinestra, FollowALongTemplateToo) {
  F8();
  finestra_.Sezione(2).setPlainText(QString("riga\n").repeated(20'000) + "«Z»\n");
  EXPECT_TRUE(Diventano({Tutti[0], Tutti[1], "Errore Piede 20001 codice-sconosciuto"}));
}

TEST_F(ProblemiInFinestra, CorreggiMendsWhatIsSelectedInOneStep) {
  F8();
  EXPECT_FALSE(Correggi().isEnabled());
  Elenco().setCurrentIndex(Elenco().model()->index(0, 0));
  EXPECT_FALSE(Correggi().isEnabled()) << "there is no one right answer";
  Elenco().selectAll();
  ASSERT_TRUE(Correggi().isEnabled());
  QTest::mouseClick(&Correggi(), Qt::LeftButton);
  EXPECT_EQ(Testata().toPlainText(), "ab«X»cd\nef «V4;5L»\n");
  EXPECT_EQ(Righe(), QStringList({Tutti[0], Tutti[2]})) << "told at once";
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Testata().toPlainText(), "ab«X»cd\nef «V4;05L»\n");
}

TEST_F(ProblemiInFinestra, ThePanelsOwnButtonClosesItAndNothingIsToldAnyMore) {
  F8();
  Pannello().close();
  EXPECT_FALSE(finestra_.Azione("mnuProblemi").isChecked());
  EXPECT_FALSE(Pannello().isVisible());
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return Trova<QLabel>(*finestra_, "lblProblemi")->text().isEmpty(); }, 2000));
  finestra_.Azione("mnuProblemi").trigger();
  EXPECT_TRUE(Pannello().isVisible());
  EXPECT_EQ(Righe(), Tutti);
}

TEST_F(ProblemiInFinestra, ThePanelStandsWhereItWasLeftWhereThatIsKept) {
  F8();
  finestra_->addDockWidget(Qt::LeftDockWidgetArea, &Pannello());
  finestra_.Azione("mnuRicorda").trigger();
  finestra_.Persona().RisponderaSeChiesto(Risposta::No);
  finestra_.Riavvia();
  finestra_.Scegli(1);
  EXPECT_TRUE(Pannello().isVisible());
  EXPECT_EQ(finestra_->dockWidgetArea(&Pannello()), Qt::LeftDockWidgetArea);
}

TEST_F(ProblemiInFinestra, ThePageIsTheUsersOrTheSheets) {
  F8();
  auto& larghezza = *Trova<QLineEdit>(Pannello(), "txtColonne");
  auto& righe = *Trova<QLineEdit>(Pannello(), "txtRighePag");
  larghezza.setFocus();
  QTest::keyClicks(&larghezza, "4");
  EXPECT_TRUE(
      Diventano({Tutti[0], "Avviso Testata 2 riga-lunga", Tutti[1], Tutti[2], "Avviso Piede 1 riga-lunga"}))
      << Righe().join('\n').toStdString();
  NelProssimoDialogo([](QDialog& dialogo) {
    Trova<QComboBox>(dialogo, "cmbCarta")->setCurrentText("Modulo 11 pollici");
    QTest::keyClick(&dialogo, Qt::Key_Return);
  });
  finestra_.Azione("mnuFoglio").trigger();
  finestra_.Attiva();
  EXPECT_FALSE(larghezza.isEnabled());
  EXPECT_FALSE(righe.isEnabled());
  EXPECT_EQ(larghezza.text(), "101");
  EXPECT_EQ(righe.text(), "66");
  EXPECT_TRUE(Diventano(Tutti));
}

TEST_F(ProblemiInFinestra, HaveAWavyLineUnderTheirText) {
  const auto rossi = [&](int posizione) {
    QTextCursor cursore(Testata().document());
    cursore.setPosition(posizione);
    const QRect dove = Testata().cursorRect(cursore);
    const QImage foto = Testata().viewport()->grab().toImage();
    const qreal scala = foto.devicePixelRatio();
    int quanti = 0;
    for (int x = static_cast<int>(dove.left() * scala); x < (dove.left() + 6) * scala; ++x) {
      for (int y = static_cast<int>((dove.bottom() - 3) * scala); y <= (dove.bottom() + 1) * scala; ++y) {
        const QColor colore = foto.pixelColor(x, y);
        quanti += colore.red() > colore.green() + 60 && colore.red() > colore.blue() + 60 ? 1 : 0;
      }
    }
    return quanti;
  };
  Testata().moveCursor(QTextCursor::End);
  const int prima = rossi(3);
  F8();
  EXPECT_GT(rossi(3), prima + 3);
  EXPECT_EQ(rossi(6), 0) << "behind the code";
}

TEST_F(ProblemiInFinestra, AreToldInTheTooltipAndToAssistiveTechnologies) {
  F8();
  QTextCursor cursore(Testata().document());
  cursore.setPosition(3);
  const QPoint punto = Testata().cursorRect(cursore).center() + QPoint(2, 0);
  QHelpEvent aiuto(QEvent::ToolTip, punto, Testata().viewport()->mapToGlobal(punto));
  QApplication::sendEvent(Testata().viewport(), &aiuto);
  EXPECT_TRUE(QToolTip::text().contains("codice di genere sconosciuto")) << QToolTip::text().toStdString();
  auto* testo = QAccessible::queryAccessibleInterface(&Testata())->textInterface();
  int inizio = 0;
  int fine = 0;
  EXPECT_EQ(testo->attributes(3, &inizio, &fine), "invalid:true;");
  EXPECT_EQ(std::pair(inizio, fine), std::pair(2, 5));
  EXPECT_EQ(testo->attributes(6, &inizio, &fine), "");
  EXPECT_EQ(std::pair(inizio, fine), std::pair(5, 11));
  Testata().setTextCursor(cursore);
  EXPECT_TRUE(Testata().accessibleDescription().contains("codice di genere sconosciuto"));
  Testata().moveCursor(QTextCursor::Start);
  EXPECT_EQ(Testata().accessibleDescription(), "");
}

TEST_F(ProblemiInFinestra, OfAnotherTypesTemplateAreHeadedByItsName) {
  finestra_.Persona().Rispondera(Risposta::No);
  finestra_.Apri("DDT01.IMG");
  F8();
  auto& avviso = *Trova<QLabel>(Pannello(), "lblAvviso");
  EXPECT_TRUE(avviso.isVisible());
  EXPECT_EQ(avviso.text(), "Sembra un modello di «Documento di trasporto»");
}

}  // namespace
}  // namespace parvik
