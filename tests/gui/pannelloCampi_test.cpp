// The panel of fields, in the main window (docs/pannello-campi.md).
#include <gtest/gtest.h>

#include <QAccessible>
#include <QDockWidget>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::NelProssimoDialogo;
using prova::Trova;

class PannelloCampi : public testing::Test {
 protected:
  PannelloCampi() {
    finestra_.Scegli(1);
    finestra_.Sezione(0).setPlainText("ab«V15;40L»cd\n");
    finestra_.Sezione(2).setPlainText("«L5;20»«V0;\"Totale\"»«V15;9R»\n");
    finestra_->findChild<QPlainTextEdit*>("txtTCP_0")->setFocus();
  }
  void Commuta() {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    Finestra::Calma();
  }
  QDockWidget& Pannello() { return *Trova<QDockWidget>(*finestra_, "pnlCampi"); }
  QLineEdit& Filtro() { return *Trova<QLineEdit>(Pannello(), "txtFiltro"); }
  QTreeView& Elenco() { return *Trova<QTreeView>(Pannello(), "lstCampi"); }
  QAbstractItemModel& Modello() { return *Elenco().model(); }
  QPlainTextEdit& Testata() { return finestra_.Sezione(0); }
  QString Testo() { return Testata().toPlainText(); }
  static QWidget* Fuoco() { return QApplication::focusWidget(); }

  QStringList Gruppi() {
    QStringList gruppi;
    for (int g = 0; g < Modello().rowCount(); ++g) gruppi += Modello().index(g, 0).data().toString();
    return gruppi;
  }
  QStringList Voci(int gruppo) {
    QStringList voci;
    const QModelIndex padre = Modello().index(gruppo, 0);
    for (int v = 0; v < Modello().rowCount(padre); ++v)
      voci += Modello().index(v, 0, padre).data().toString();
    return voci;
  }
  QModelIndex Voce(const char* gruppo, const char* nome, int colonna = 0) {
    const auto g = static_cast<int>(Gruppi().indexOf(gruppo));
    const auto v = static_cast<int>(Voci(g).indexOf(nome));
    EXPECT_GE(v, 0) << nome;
    return Modello().index(v, colonna, Modello().index(g, 0));
  }
  QString Scelta() { return Elenco().currentIndex().data().toString(); }
  /// The caret of the Testata behind "ab".
  void DopoAb() {
    QTextCursor cursore(Testata().document());
    cursore.setPosition(2);
    Testata().setTextCursor(cursore);
  }
  /// The next dialog's code, told by its box of that name; OK closes it, or Escape.
  void AspettaDialogo(const char* casella, bool ok) {
    titolo_.clear();
    NelProssimoDialogo([this, casella, ok](QDialog& dialogo) {
      titolo_ = dialogo.windowTitle() + ": " + Trova<QLineEdit>(dialogo, casella)->text();
      if (ok) return QTest::mouseClick(Trova<QPushButton>(dialogo, "cmdOk"), Qt::LeftButton);
      QTest::keyClick(&dialogo, Qt::Key_Escape);
    });
  }

  Finestra finestra_;
  QString titolo_;
};

TEST_F(PannelloCampi, ComesByItsKeyOnTheLeftWithTheFocusInTheFilterAndGoesByIt) {
  EXPECT_EQ(finestra_->findChild<QDockWidget*>("pnlCampi"), nullptr) << "nothing wanted, nothing made";
  Commuta();
  EXPECT_TRUE(Pannello().isVisible());
  EXPECT_EQ(finestra_->dockWidgetArea(&Pannello()), Qt::LeftDockWidgetArea);
  EXPECT_EQ(Pannello().allowedAreas(), Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
  EXPECT_TRUE(finestra_.Azione("mnuPannelloCampi").isChecked());
  EXPECT_EQ(Fuoco(), &Filtro());
  EXPECT_EQ(Pannello().accessibleName(), "Pannello campi");
  EXPECT_EQ(Filtro().accessibleName(), "Filtro");
  EXPECT_EQ(Elenco().accessibleName(), "Campi");
  Commuta();
  EXPECT_FALSE(Pannello().isVisible());
  EXPECT_FALSE(finestra_.Azione("mnuPannelloCampi").isChecked());
  EXPECT_EQ(Fuoco(), &Testata());
}

TEST_F(PannelloCampi, ItsOwnButtonTurnsItOff) {
  Commuta();
  Pannello().close();
  EXPECT_FALSE(finestra_.Azione("mnuPannelloCampi").isChecked());
  Commuta();
  EXPECT_TRUE(Pannello().isVisible());
}

TEST_F(PannelloCampi, ListsWhatTheActiveSectionOffersInGroups) {
  Commuta();
  EXPECT_EQ(Gruppi(), QStringList({"Variabili", "Flag", "Stili", "Lingua", "Costanti", "Numero pagina"}));
  EXPECT_EQ(Voci(0).first(), "Ragione sociale ditta");
  EXPECT_EQ(Voci(1).last(), "Su tutte le pagine");
  EXPECT_EQ(Voci(3), QStringList({"Voce 5", "nuova voce..."}));
  EXPECT_EQ(Voci(4), QStringList({"Totale", "nuova voce..."}));
  EXPECT_EQ(Voci(5), QStringList({"nuova voce..."}));
  finestra_.Sezione(1).setFocus();
  EXPECT_EQ(Voci(0).first(), "Numero riga");
}

TEST_F(PannelloCampi, MarksAndCountsWhatTheTemplateUses) {
  Commuta();
  EXPECT_EQ(Voce("Variabili", "Ragione sociale", 1).data().toString(), "V15");
  EXPECT_EQ(Voce("Variabili", "Ragione sociale", 2).data().toString(), "• 2");
  EXPECT_EQ(Voce("Variabili", "CAP", 2).data().toString(), "");
  EXPECT_EQ(Voce("Variabili", "Ragione sociale").data(Qt::AccessibleDescriptionRole).toString(),
            "2 volte nel modello");
  EXPECT_EQ(Voce("Variabili", "Ragione sociale").data(Qt::ToolTipRole).toString(),
            "Variabile 15 · Ragione sociale · 40 caratteri a sinistra\nStringa\nCodice: «V15;40L»\n"
            "Sezioni: Testata\nNel modello: 2 volte (Testata 1, Piede 1)");
}

TEST_F(PannelloCampi, CountsAnewAfterAPause) {
  Commuta();
  Elenco().setCurrentIndex(Voce("Variabili", "CAP"));
  Testata().setFocus();
  QTest::keyClick(&Testata(), Qt::Key_End, Qt::ControlModifier);
  Testata().insertPlainText("«V18;5L»");
  EXPECT_EQ(Voce("Variabili", "CAP", 2).data().toString(), "") << "not while keys come";
  EXPECT_TRUE(QTest::qWaitFor([&] { return Voce("Variabili", "CAP", 2).data().toString() == "• 1"; }, 3000));
  EXPECT_EQ(Scelta(), "CAP") << "what was chosen stays so";
}

TEST_F(PannelloCampi, CountsALongTemplateToo) {
  Commuta();
  Testata().setPlainText(QString("«V18;5L»\n").repeated(20'000));
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return Voce("Variabili", "CAP", 2).data().toString() == "• 20000"; }, 5000));
}

TEST_F(PannelloCampi, FiltersByWordsInAnyOrderAndByNumberTheBestFirst) {
  Commuta();
  QTest::keyClicks(&Filtro(), "sociale ragione");
  EXPECT_EQ(Voci(0),
            QStringList({"Ragione sociale ditta", "Ragione sociale ditta (seconda riga)", "Ragione sociale",
                         "Ragione sociale (seconda riga)", "Destinazione: ragione sociale"}));
  EXPECT_EQ(Gruppi(), QStringList({"Variabili", "Flag"}));
  Filtro().setText("v18");
  EXPECT_EQ(Gruppi(), QStringList({"Variabili"}));
  EXPECT_EQ(Scelta(), "CAP") << "the best one is chosen";
  EXPECT_EQ(Filtro().accessibleDescription(), "CAP, variabile 18");
  Filtro().setText("LOCALITA");
  EXPECT_EQ(Scelta(), "Località ditta");
}

TEST_F(PannelloCampi, SaysThatNothingWasFound) {
  Commuta();
  auto& nessuno = *Trova<QLabel>(Pannello(), "lblNessunCampo");
  EXPECT_FALSE(nessuno.isVisible());
  for (const char* testo : {"zzz", "Ω"}) {
    Filtro().setText(testo);
    EXPECT_TRUE(nessuno.isVisible());
    EXPECT_EQ(nessuno.text(), "Nessun campo trovato");
    EXPECT_EQ(Filtro().accessibleDescription(), "Nessun campo trovato");
    QTest::keyClick(&Filtro(), Qt::Key_Return);
    QTest::keyClick(&Filtro(), Qt::Key_Down);
    EXPECT_EQ(Fuoco(), &Filtro());
  }
  Filtro().clear();
  EXPECT_FALSE(nessuno.isVisible());
}

TEST_F(PannelloCampi, EscapeClearsTheFilterAndThenGivesTheFocusBack) {
  Commuta();
  QTest::keyClicks(&Filtro(), "cap");
  QTest::keyClick(&Filtro(), Qt::Key_Escape);
  EXPECT_EQ(Filtro().text(), "");
  EXPECT_EQ(Fuoco(), &Filtro());
  QTest::keyClick(&Filtro(), Qt::Key_Escape);
  EXPECT_EQ(Fuoco(), &Testata());
  EXPECT_TRUE(Pannello().isVisible());
}

TEST_F(PannelloCampi, DownGoesIntoTheListAndWhatIsTypedThereGoesToTheFilter) {
  Commuta();
  QTest::keyClick(&Filtro(), Qt::Key_Down);
  EXPECT_EQ(Fuoco(), &Elenco());
  EXPECT_EQ(Scelta(), "Ragione sociale ditta");
  QTest::keyClick(&Elenco(), Qt::Key_Down);
  EXPECT_EQ(Scelta(), "Ragione sociale ditta (seconda riga)");
  QTest::keyClick(&Elenco(), Qt::Key_C);
  EXPECT_EQ(Fuoco(), &Filtro());
  QTest::keyClicks(Fuoco(), "ap");
  EXPECT_EQ(Filtro().text(), "cap");
  QTest::keyClick(&Filtro(), Qt::Key_Down);
  QTest::keyClick(&Elenco(), Qt::Key_Up);
  EXPECT_EQ(Scelta(), "Variabili") << "the heading can be heard";
  QTest::keyClick(&Elenco(), Qt::Key_Return);
  EXPECT_EQ(Testo(), "ab«V15;40L»cd\n") << "and not inserted";
  QTest::keyClick(&Elenco(), Qt::Key_Up);
  EXPECT_EQ(Fuoco(), &Filtro());
}

TEST_F(PannelloCampi, EnterInsertsTheDefaultCodeAtTheCaretInOneStep) {
  DopoAb();
  Commuta();
  QTest::keyClicks(&Filtro(), "v13");
  QTest::keyClick(&Filtro(), Qt::Key_Return);
  EXPECT_EQ(Testo(), "ab«V13;16R;.0,2;1»«V15;40L»cd\n");
  EXPECT_EQ(Fuoco(), &Testata());
  EXPECT_EQ(Testata().textCursor().position(), 18);
  finestra_.Azione("mnuAnnulla").trigger();
  EXPECT_EQ(Testo(), "ab«V15;40L»cd\n");
}

TEST_F(PannelloCampi, ADoubleClickInsertsAndASingleOneDoesNot) {
  DopoAb();
  Commuta();
  const QModelIndex cap = Voce("Variabili", "CAP");
  Elenco().scrollTo(cap);
  const QPoint punto = Elenco().visualRect(cap).center();
  QTest::mouseClick(Elenco().viewport(), Qt::LeftButton, {}, punto);
  EXPECT_EQ(Testo(), "ab«V15;40L»cd\n");
  QTest::mouseDClick(Elenco().viewport(), Qt::LeftButton, {}, punto);
  EXPECT_EQ(Testo(), "ab«V18;5L»«V15;40L»cd\n");
  EXPECT_EQ(Fuoco(), &Testata());
}

TEST_F(PannelloCampi, ASelectionIsReplacedWithTheWholeOfTheCodesThatItCuts) {
  QTextCursor cursore(Testata().document());
  cursore.setPosition(1);
  cursore.setPosition(5, QTextCursor::KeepAnchor);
  Testata().setTextCursor(cursore);
  Commuta();
  QTest::keyClicks(&Filtro(), "v18");
  QTest::keyClick(&Filtro(), Qt::Key_Return);
  EXPECT_EQ(Testo(), "a«V18;5L»cd\n");
}

TEST_F(PannelloCampi, CtrlEnterOpensTheDialogOnItAndReplacesNothing) {
  DopoAb();
  Commuta();
  QTest::keyClicks(&Filtro(), "v18");
  AspettaDialogo("txtVar", true);
  QTest::keyClick(&Filtro(), Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(titolo_, "Assegnazione variabile: «V18;5L»");
  EXPECT_EQ(Testo(), "ab«V18;5L»«V15;40L»cd\n");
  finestra_.Attiva();
  Commuta();
  Commuta();
  Filtro().setText("grassetto");
  AspettaDialogo("txtStile", false);
  QTest::keyClick(&Filtro(), Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
  EXPECT_EQ(titolo_, "Stile carattere: «S;GRASSETTO»");
  EXPECT_EQ(Testo(), "ab«V18;5L»«V15;40L»cd\n") << "Cancel inserts nothing";
}

TEST_F(PannelloCampi, EnterOnWhatTheCatalogueDoesNotKnowOpensItsDialog) {
  DopoAb();
  Commuta();
  const auto premi = [&](const char* gruppo, const char* nome, const char* casella) {
    Elenco().setFocus();
    Elenco().setCurrentIndex(Voce(gruppo, nome));
    AspettaDialogo(casella, false);
    QTest::keyClick(&Elenco(), Qt::Key_Return);
    finestra_.Attiva();
    return titolo_;
  };
  EXPECT_EQ(premi("Lingua", "Voce 5", "txtLingua"), "Assegnazione Lingua: «L5;20»");
  EXPECT_EQ(premi("Lingua", "nuova voce...", "txtLingua"), "Assegnazione Lingua: «L1;10»");
  EXPECT_EQ(premi("Costanti", "Totale", "txtCost"), "Assegnazione costante: «V0;\"Totale\"»");
  EXPECT_EQ(premi("Costanti", "nuova voce...", "txtCost"), "Assegnazione costante: ");
  EXPECT_EQ(premi("Numero pagina", "nuova voce...", "txtPag"), "Numerazione Pagina: «P1»");
  EXPECT_EQ(Testo(), "ab«V15;40L»cd\n");
}

TEST_F(PannelloCampi, TheListsContextMenuInsertsAndOpensTheDialog) {
  DopoAb();
  Commuta();
  const QModelIndex totale = Voce("Costanti", "Totale");
  Elenco().scrollTo(totale);
  emit Elenco().customContextMenuRequested(Elenco().visualRect(totale).center());
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QStringList voci;
  for (const QAction* voce : menu->actions()) voci += voce->text();
  EXPECT_EQ(voci, QStringList({"&Inserisci", "Apri &maschera..."}));
  QTest::keyClick(menu, Qt::Key_I);
  EXPECT_EQ(Testo(), "ab«V0;\"Totale\"»«V15;40L»cd\n");
}

TEST_F(PannelloCampi, WhatIsDroppedLandsAtThePlaceButNeverInACode) {
  Commuta();
  const QModelIndex cap = Voce("Variabili", "CAP");
  EXPECT_TRUE(cap.flags().testFlag(Qt::ItemIsDragEnabled));
  EXPECT_FALSE(Voce("Lingua", "nuova voce...").flags().testFlag(Qt::ItemIsDragEnabled));
  EXPECT_FALSE(Modello().index(0, 0).flags().testFlag(Qt::ItemIsDragEnabled));
  const std::unique_ptr<QMimeData> dati(Modello().mimeData({cap}));
  EXPECT_EQ(dati->text(), "«V18;5L»");
  const auto deposita = [&](int posizione) {
    QTextCursor cursore(Testata().document());
    cursore.setPosition(posizione);
    const QPoint punto = Testata().cursorRect(cursore).center();
    QDragEnterEvent entra(punto, Qt::CopyAction, dati.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Testata().viewport(), &entra);
    QDropEvent lascia(punto, Qt::CopyAction, dati.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Testata().viewport(), &lascia);
  };
  deposita(1);
  EXPECT_EQ(Testo(), "a«V18;5L»b«V15;40L»cd\n");
  deposita(13);
  EXPECT_EQ(Testo(), "a«V18;5L»b«V15;40L»«V18;5L»cd\n") << "behind the code";
  EXPECT_EQ(Fuoco(), &Testata());
}

TEST_F(PannelloCampi, IsHiddenWithoutATypeAndFollowsTheNextOne) {
  Commuta();
  finestra_.Persona().RisponderaSeChiesto(Risposta::No);
  finestra_.Azione("mnuNuovo").trigger();
  EXPECT_FALSE(Pannello().isVisible());
  EXPECT_TRUE(finestra_.Azione("mnuPannelloCampi").isChecked());
  finestra_.Scegli(12);
  EXPECT_TRUE(Pannello().isVisible());
  EXPECT_EQ(Voci(0).size(), 34);
  EXPECT_EQ(Voci(4), QStringList({"nuova voce..."}));
}

TEST_F(PannelloCampi, StandsWhereItWasLeftWhereThatIsKept) {
  Commuta();
  finestra_->addDockWidget(Qt::RightDockWidgetArea, &Pannello());
  finestra_.Azione("mnuRicorda").trigger();
  finestra_.Persona().RisponderaSeChiesto(Risposta::No);
  finestra_.Riavvia();
  finestra_.Scegli(1);
  EXPECT_TRUE(Pannello().isVisible());
  EXPECT_EQ(finestra_->dockWidgetArea(&Pannello()), Qt::RightDockWidgetArea);
  EXPECT_EQ(Fuoco(), &Testata()) << "nobody has asked for it now";
}

TEST_F(PannelloCampi, TellsAssistiveTechnologiesHeadingsEntriesAndCounts) {
  Commuta();
  auto* elenco = QAccessible::queryAccessibleInterface(&Elenco());
  QStringList nomi;
  QStringList descrizioni;
  for (int i = 0; i < elenco->childCount() && nomi.size() < 60; ++i) {
    QAccessibleInterface* cella = elenco->child(i);
    if (cella == nullptr) continue;
    nomi += cella->text(QAccessible::Name);
    descrizioni += cella->text(QAccessible::Description);
  }
  EXPECT_TRUE(nomi.contains("Variabili"));
  EXPECT_TRUE(nomi.contains("Ragione sociale"));
  EXPECT_TRUE(nomi.contains("V15"));
  EXPECT_TRUE(nomi.contains("2 volte nel modello")) << nomi.join('|').toStdString();
  EXPECT_TRUE(descrizioni.contains("2 volte nel modello"));
}

}  // namespace
}  // namespace parvik
