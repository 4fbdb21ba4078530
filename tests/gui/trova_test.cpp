// Find and replace, in the main window (docs/ricerca.md).
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolBar>

#include "Finestra.h"
#include "app/qtEspressione.h"
#include "output/ricAnte.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::Trova;

class TrovaInFinestra : public testing::Test {
 protected:
  TrovaInFinestra() {
    finestra_.Scegli(1);
    finestra_.Sezione(0).setPlainText("cliente «V4;30L»\nCliente «V5;29L»\n");
    finestra_.Sezione(2).setPlainText("il cliente\n");
  }
  void Premi(Qt::Key tasto, Qt::KeyboardModifiers con = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), tasto, con);
    Finestra::Calma();
  }
  void Scrivi(const char* nome, const QString& testo) {
    auto& casella = *Trova<QLineEdit>(*finestra_, nome);
    casella.setFocus();
    casella.selectAll();
    QTest::keyClicks(&casella, testo);
    Finestra::Calma();
  }
  void Spunta(const char* nome) {
    QTest::mouseClick(Trova<QCheckBox>(*finestra_, nome), Qt::LeftButton, {}, QPoint(8, 8));
    Finestra::Calma();
  }
  void Clicca(const char* nome) {
    QTest::mouseClick(Trova<QAbstractButton>(*finestra_, nome), Qt::LeftButton);
    Finestra::Calma();
  }
  void Ambito(const char* quale) {
    Trova<QComboBox>(*finestra_, "cmbAmbito")->setCurrentText(quale);
    Finestra::Calma();
  }
  QToolBar& Barra() { return *Trova<QToolBar>(*finestra_, "barTrova"); }
  QString Esito() { return Trova<QLabel>(*finestra_, "lblEsito")->text(); }
  bool Diventa(const QString& esito) {
    return QTest::qWaitFor([&] { return Esito() == esito; }, 5000);
  }
  QPlainTextEdit& Testata() { return finestra_.Sezione(0); }
  QString Scelto(int sezione) { return finestra_.Sezione(sezione).textCursor().selectedText(); }

  Finestra finestra_;
};

TEST_F(TrovaInFinestra, CtrlFOpensTheBarAndTypingCounts) {
  EXPECT_EQ(finestra_->findChild<QToolBar*>("barTrova"), nullptr) << "made when it is asked for";
  Premi(Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(Barra().isVisible());
  EXPECT_TRUE(Trova<QLineEdit>(*finestra_, "txtCerca")->hasFocus());
  EXPECT_FALSE(Trova<QLineEdit>(*finestra_, "txtSost")->isVisible());
  EXPECT_FALSE(Trova<QPushButton>(*finestra_, "cmdSucc")->isEnabled());
  Scrivi("txtCerca", "cliente");
  EXPECT_EQ(Esito(), "2 risultati");
  EXPECT_TRUE(Trova<QPushButton>(*finestra_, "cmdSucc")->isEnabled());
  EXPECT_EQ(Scelto(0), "") << "nothing moves before it is asked to";
  Spunta("chkMaiusc");
  EXPECT_EQ(Esito(), "1 risultato");
}

TEST_F(TrovaInFinestra, EnterGoesToTheNextAndShiftEnterBack) {
  Premi(Qt::Key_F, Qt::ControlModifier);
  Scrivi("txtCerca", "cliente");
  Premi(Qt::Key_Return);
  EXPECT_EQ(Esito(), "1 di 2");
  EXPECT_EQ(Scelto(0), "cliente");
  Premi(Qt::Key_Return);
  EXPECT_EQ(Scelto(0), "Cliente");
  Premi(Qt::Key_Return);
  EXPECT_EQ(Esito(), "1 di 2, ripreso dall'inizio");
  Premi(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(Esito(), "2 di 2, ripreso dalla fine");
  EXPECT_TRUE(Trova<QLineEdit>(*finestra_, "txtCerca")->hasFocus());
  Premi(Qt::Key_Escape);
  EXPECT_FALSE(Barra().isVisible());
  EXPECT_TRUE(Testata().hasFocus());
  EXPECT_EQ(Scelto(0), "Cliente");
}

TEST_F(TrovaInFinestra, F3GoesOnFromTheSection) {
  EXPECT_FALSE(finestra_.Azione("mnuTrovaSucc").isEnabled());
  Premi(Qt::Key_F, Qt::ControlModifier);
  Scrivi("txtCerca", "cliente");
  EXPECT_TRUE(finestra_.Azione("mnuTrovaSucc").isEnabled());
  Premi(Qt::Key_Escape);
  Premi(Qt::Key_F3);
  EXPECT_TRUE(Testata().hasFocus());
  EXPECT_EQ(Scelto(0), "cliente");
  Premi(Qt::Key_F3);
  EXPECT_EQ(Scelto(0), "Cliente");
  Premi(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(Scelto(0), "cliente");
  EXPECT_TRUE(Barra().isVisible()) << "it tells what was found";
  EXPECT_EQ(Esito(), "1 di 2");
}

TEST_F(TrovaInFinestra, GoesThroughAllSections) {
  Premi(Qt::Key_F, Qt::ControlModifier);
  Scrivi("txtCerca", "cliente");
  Ambito("Tutte");
  EXPECT_EQ(Esito(), "3 risultati");
  for (int i = 0; i < 3; ++i) Premi(Qt::Key_F3);
  EXPECT_EQ(Scelto(2), "cliente");
  Premi(Qt::Key_Escape);
  EXPECT_TRUE(finestra_.Sezione(2).hasFocus());
}

TEST_F(TrovaInFinestra, LooksForWhatIsSelected) {
  Testata().setFocus();
  QTextCursor cursore = Testata().textCursor();
  cursore.setPosition(0);
  cursore.setPosition(4, QTextCursor::KeepAnchor);
  Testata().setTextCursor(cursore);
  Premi(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(Trova<QLineEdit>(*finestra_, "txtCerca")->text(), "clie");
  EXPECT_EQ(Trova<QLineEdit>(*finestra_, "txtCerca")->selectedText(), "clie");
  EXPECT_EQ(Esito(), "2 risultati");
}

TEST_F(TrovaInFinestra, FindsTextOrCodesAlone) {
  Premi(Qt::Key_F, Qt::ControlModifier);
  Scrivi("txtCerca", "4");
  EXPECT_EQ(Esito(), "1 risultato");
  Spunta("chkTesto");
  EXPECT_EQ(Esito(), "Nessun risultato");
  Spunta("chkCodici");
  EXPECT_FALSE(Trova<QCheckBox>(*finestra_, "chkTesto")->isChecked());
  EXPECT_EQ(Esito(), "1 risultato");
  Premi(Qt::Key_F3);
  EXPECT_EQ(Scelto(0), "«V4;30L»");
}

TEST_F(TrovaInFinestra, CtrlHReplaces) {
  Premi(Qt::Key_H, Qt::ControlModifier);
  EXPECT_TRUE(Trova<QLineEdit>(*finestra_, "txtSost")->isVisible());
  Scrivi("txtCerca", "cliente");
  Scrivi("txtSost", "ditta");
  Premi(Qt::Key_Return);
  EXPECT_EQ(Esito(), "1 di 2");
  Premi(Qt::Key_Return);
  EXPECT_EQ(Testata().toPlainText(), "ditta «V4;30L»\nCliente «V5;29L»\n");
  EXPECT_EQ(Esito(), "1 di 1");
  Ambito("Tutte");
  Clicca("cmdSostTutto");
  EXPECT_EQ(Esito(), "2 sostituzioni");
  EXPECT_EQ(Testata().toPlainText(), "ditta «V4;30L»\nditta «V5;29L»\n");
  EXPECT_EQ(finestra_.Sezione(2).toPlainText(), "il ditta\n");
  Testata().setFocus();
  Premi(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Testata().toPlainText(), "ditta «V4;30L»\nCliente «V5;29L»\n");
  EXPECT_EQ(finestra_.Sezione(2).toPlainText(), "il cliente\n");
}

TEST_F(TrovaInFinestra, ChangesCodes) {
  Premi(Qt::Key_H, Qt::ControlModifier);
  Spunta("chkCodici");
  Scrivi("txtCerca", "V5");
  EXPECT_FALSE(Trova<QLineEdit>(*finestra_, "txtSost")->placeholderText().isEmpty());
  Trova<QLineEdit>(*finestra_, "txtSost")->setText("larghezza 29 → 32");
  Clicca("cmdSostTutto");
  EXPECT_EQ(Esito(), "1 codice cambiato");
  EXPECT_EQ(Testata().toPlainText(), "cliente «V4;30L»\nCliente «V5;32L»\n");
}

TEST_F(TrovaInFinestra, RefusesWhatNoTemplateCanHold) {
  Premi(Qt::Key_H, Qt::ControlModifier);
  Scrivi("txtCerca", "cliente");
  for (const auto& [scritto, detto] :
       {std::pair("日", "La sostituzione ha caratteri che nessun modello può contenere"),
        std::pair("«", "« e » racchiudono i codici: una sostituzione non può metterne")}) {
    Trova<QLineEdit>(*finestra_, "txtSost")->setText(scritto);
    Clicca("cmdSostTutto");
    EXPECT_EQ(Esito(), detto);
  }
  EXPECT_EQ(Testata().toPlainText(), "cliente «V4;30L»\nCliente «V5;29L»\n");
  Trova<QLineEdit>(*finestra_, "txtCerca")->setText("日");
  EXPECT_EQ(Esito(), "Nessun risultato");
}

TEST_F(TrovaInFinestra, KnowsExpressions) {
  Premi(Qt::Key_H, Qt::ControlModifier);
  Spunta("chkRegex");
  Scrivi("txtCerca", "^(c\\w+)");
  EXPECT_TRUE(Diventa("2 risultati"));
  Scrivi("txtSost", "[\\1]");
  Clicca("cmdSostTutto");
  EXPECT_EQ(Testata().toPlainText(), "[cliente] «V4;30L»\n[Cliente] «V5;29L»\n");
  Scrivi("txtCerca", "a(");
  EXPECT_TRUE(Diventa("Espressione non valida (carattere 3)")) << Esito().toStdString();
}

TEST_F(TrovaInFinestra, GoesOnFromOneMatchOfAnExpressionToTheNext) {
  Premi(Qt::Key_H, Qt::ControlModifier);
  Spunta("chkRegex");
  Scrivi("txtCerca", "[Cc]l\\w+");
  EXPECT_TRUE(Diventa("2 risultati"));
  Scrivi("txtSost", "ditta");
  Clicca("cmdSost");
  EXPECT_EQ(Esito(), "1 di 2") << "it only goes there";
  Clicca("cmdSost");
  EXPECT_EQ(Esito(), "1 di 1");
  EXPECT_EQ(Scelto(0), "Cliente");
  Clicca("cmdSost");
  EXPECT_EQ(Esito(), "Nessun risultato");
  EXPECT_EQ(Testata().toPlainText(), "ditta «V4;30L»\nditta «V5;29L»\n");
}

TEST_F(TrovaInFinestra, SaysNothingOfATextThatIsOther) {
  Premi(Qt::Key_F, Qt::ControlModifier);
  Scrivi("txtCerca", "cliente");
  for (int i = 0; i < 3; ++i) Premi(Qt::Key_Return);
  EXPECT_EQ(Esito(), "1 di 2, ripreso dall'inizio");
  Testata().setFocus();
  QTest::keyClick(&Testata(), Qt::Key_X);
  EXPECT_TRUE(Diventa("1 risultato")) << Esito().toStdString();
}

TEST_F(TrovaInFinestra, KeepsItsScopeWhenItIsAskedForOnceMore) {
  Premi(Qt::Key_F, Qt::ControlModifier);
  Ambito("Anteprima");
  Trova<QLineEdit>(*finestra_, "txtCerca")->setFocus();
  Premi(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(Trova<QComboBox>(*finestra_, "cmbAmbito")->currentText(), "Anteprima");
}

TEST_F(TrovaInFinestra, TakesNoSelectionForAnExpression) {
  Premi(Qt::Key_F, Qt::ControlModifier);
  Spunta("chkRegex");
  Scrivi("txtCerca", "x+");
  Testata().setFocus();
  Testata().selectAll();
  QTextCursor cursore = Testata().textCursor();
  cursore.setPosition(0);
  cursore.setPosition(4, QTextCursor::KeepAnchor);
  Testata().setTextCursor(cursore);
  Premi(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(Trova<QLineEdit>(*finestra_, "txtCerca")->text(), "x+");
}

TEST_F(TrovaInFinestra, GivesARunawayExpressionUp) {
  Testata().setPlainText(QString(5000, u'a') + "b\n");
  Premi(Qt::Key_F, Qt::ControlModifier);
  Spunta("chkRegex");
  Trova<QLineEdit>(*finestra_, "txtCerca")->setText("(a+a+)+$");
  EXPECT_TRUE(Diventa("Espressione troppo complessa: ricerca interrotta dopo un secondo"))
      << Esito().toStdString();
}

TEST_F(TrovaInFinestra, LooksThroughThePreviewWhereOneIs) {
  finestra_.Anteprima().setFocus();
  ASSERT_TRUE(finestra_.Anteprima().hasFocus());
  finestra_.Azione("mnuAnte").trigger();
  finestra_.Azione("mnuAnte").trigger();
  finestra_.Anteprima().setFocus();
  Premi(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(Trova<QComboBox>(*finestra_, "cmbAmbito")->currentText(), "Anteprima");
  EXPECT_FALSE(Trova<QCheckBox>(*finestra_, "chkCodici")->isEnabled());
  Scrivi("txtCerca", "cliente");
  EXPECT_EQ(Esito(), "3 risultati");
  Premi(Qt::Key_Return);
  EXPECT_EQ(finestra_.Anteprima().Scelta().TestoSelezionato(), "cliente");
  Premi(Qt::Key_Escape);
  EXPECT_TRUE(finestra_.Anteprima().hasFocus());
}

TEST_F(TrovaInFinestra, MarksAllAndTheCurrentOneApart) {
  const auto foto = [this] { return Testata().viewport()->grab().toImage(); };
  Testata().setFocus();
  Premi(Qt::Key_F, Qt::ControlModifier);
  const QImage senza = foto();
  Scrivi("txtCerca", "e");
  const QImage segnate = foto();
  EXPECT_NE(senza, segnate);
  Premi(Qt::Key_Escape);
  Testata().clearFocus();
  EXPECT_NE(foto(), segnate) << "the marks go with the bar";
}

TEST_F(TrovaInFinestra, GoesAwayWithTheType) {
  Premi(Qt::Key_F, Qt::ControlModifier);
  Scrivi("txtCerca", "cliente");
  finestra_.Persona().Rispondera(Risposta::No);
  finestra_.Azione("mnuNuovo").trigger();
  EXPECT_FALSE(Barra().isVisible());
  EXPECT_FALSE(finestra_.Azione("mnuTrovaSucc").isEnabled());
}

TEST_F(TrovaInFinestra, HasNamesForEverything) {
  Premi(Qt::Key_H, Qt::ControlModifier);
  const auto nome = [this](const char* di) {
    return QAccessible::queryAccessibleInterface(Trova<QWidget>(*finestra_, di))->text(QAccessible::Name);
  };
  EXPECT_EQ(nome("barTrova"), "Trova");
  EXPECT_EQ(nome("txtCerca"), "Testo da trovare");
  EXPECT_EQ(nome("txtSost"), "Sostituisci con");
  EXPECT_EQ(nome("chkMaiusc"), "Maiuscole/minuscole");
  EXPECT_EQ(nome("chkParola"), "Parola intera");
  EXPECT_EQ(nome("chkTesto"), "Solo testo");
  EXPECT_EQ(nome("chkCodici"), "Solo codici");
  EXPECT_EQ(nome("chkRegex"), "Espressione regolare");
  EXPECT_EQ(nome("cmdChiudi"), "Chiudi");
}

TEST(EspressioneDelToolkit, KnowsLettersWordsAndGroups) {
  const auto trova = [](const Criterio& criterio, std::string_view testo) -> std::string {
    const auto espressione = qtEspressione::Compila(criterio);
    if (!espressione) return "!" + espressione.Errore();
    (*espressione)->Leggi(testo);
    if ((*espressione)->Trova(0, testo.size()) != EsitoConfronto::Trovata) return "-";
    const Selezione tutta = (*espressione)->Gruppi().front();
    return std::string(testo.substr(tutta.Inizio, tutta.Lunghezza));
  };
  EXPECT_EQ(trova({.Testo = "\\w+", .Espressione = true}, "\xE0\xC8z!"), "\xE0\xC8z");
  EXPECT_EQ(trova({.Testo = "è", .Espressione = true}, "\xC8"), "\xC8");
  EXPECT_EQ(trova({.Testo = "è", .Maiuscole = true, .Espressione = true}, "\xC8"), "-");
  EXPECT_EQ(trova({.Testo = "a|ab", .Parola = true, .Espressione = true}, "ab"), "ab");
  EXPECT_EQ(trova({.Testo = "\\t", .Espressione = true}, "a\tb"), "\t");
  EXPECT_EQ(trova({.Testo = "\u20AC", .Espressione = true}, "\x80"), "\x80");
  EXPECT_EQ(trova({.Testo = "[", .Espressione = true}, "a").substr(0, 23), "!Espressione non valida");
}

}  // namespace
}  // namespace parvik
