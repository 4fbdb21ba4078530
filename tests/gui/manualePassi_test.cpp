// docs/manuale/colonna-sconto.md: its steps, done with keys, end as the page says.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <algorithm>

#include "Finestra.h"
#include "docs/Manuale.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::Trova;

class ColonnaSconto : public testing::Test {
 protected:
  ColonnaSconto() {
    finestra_.Scegli(1);
    finestra_.Apri("FATT01.IMG");
    QTest::keyClick(&Testata(), Qt::Key_F7);
  }
  QPlainTextEdit& Testata() { return finestra_.Sezione(0); }
  QPlainTextEdit& Corpo() { return finestra_.Sezione(1); }
  QPlainTextEdit& Piede() { return finestra_.Sezione(2); }

  void Vai(QPlainTextEdit& sezione, int posto) {
    QTextCursor qui = sezione.textCursor();
    qui.setPosition(posto);
    sezione.setTextCursor(qui);
    sezione.setFocus();
  }
  /// Five characters less in the column of the description, the new column behind that of the discount.
  void Riga(QPlainTextEdit& sezione, int riga, const QString& nuova) {
    constexpr int InDescrizione = 40;
    constexpr int DopoSconto = 79;
    const int inizio = sezione.document()->findBlockByNumber(riga).position();
    Vai(sezione, inizio + DopoSconto);
    QTest::keyClicks(&sezione, nuova);
    Vai(sezione, inizio + InDescrizione);
    for (int i = 0; i < 5; ++i) QTest::keyClick(&sezione, Qt::Key_Delete);
  }
  int Dove(const QString& testo, int da = 0) {
    return static_cast<int>(Corpo().toPlainText().indexOf(testo, da));
  }
  QStringList Problemi() {
    const QAbstractItemModel& elenco = *Trova<QTreeView>(*finestra_, "lstProblemi")->model();
    QStringList problemi;
    for (int i = 0; i < elenco.rowCount(); ++i)
      problemi += elenco.index(i, 1).data().toString() + " " + elenco.index(i, 4).data().toString();
    return problemi;
  }

  Finestra finestra_;
};

TEST_F(ColonnaSconto, IsThereAfterTheStepsOfThePage) {
  QTest::keyClick(&Testata(), Qt::Key_F8);
  Trova<QCheckBox>(*finestra_, "chkCornici")->click();
  const QStringList dellEsempio(4, "Piede cornice");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Problemi() == dellEsempio; }));

  const int titolo = Testata().document()->blockCount() - 4;
  Riga(Testata(), titolo, "+----");
  Riga(Testata(), titolo + 1, "|Sc2%");
  Riga(Testata(), titolo + 2, "+----");

  Vai(Corpo(), Dove("\u00ABV105"));
  prova::NelProssimoDialogo([](QDialog& variabile) {
    Trova<QLineEdit>(variabile, "txtLungh")->setText("24");
    QTest::keyClick(&variabile, Qt::Key_Return);
  });
  QTest::keyClick(&Corpo(), Qt::Key_F4);
  finestra_.Attiva();

  Vai(Corpo(), Dove("\u00BB", Dove("\u00ABV113")) + 1);
  QTest::keyClicks(&Corpo(), "|");
  prova::NelProssimoDialogo([](QDialog& variabile) {
    auto& cerca = *Trova<QLineEdit>(variabile, "txtTrova");
    cerca.setFocus();
    QTest::keyClicks(&cerca, "secondo");
    QTest::keyClick(&cerca, Qt::Key_Return);
    Trova<QLineEdit>(variabile, "txtLungh")->setText("4");
    Trova<QCheckBox>(variabile, "chkDecimali")->click();
    QTest::mouseClick(Trova<QPushButton>(variabile, "cmdOk"), Qt::LeftButton);
  });
  QTest::keyClick(&Corpo(), Qt::Key_1, Qt::ControlModifier);
  finestra_.Attiva();

  Riga(Piede(), 0, "+----");

  QStringList righe = Testata().toPlainText().split('\n').mid(titolo, 3);
  const auto pagina =
      std::ranges::find(prova::PagineManuale(), "colonna-sconto.md", &prova::PaginaManuale::Nome);
  ASSERT_NE(pagina, prova::PagineManuale().end());
  EXPECT_NE(pagina->Testo.find("\n" + righe.join('\n').toStdString() + "\n"), std::string::npos)
      << righe.join('\n').toStdString();
  EXPECT_NE(Dove("\u00ABV105;24L\".\"\u00BB|"), -1);
  EXPECT_NE(Dove("\u00ABV113;4R;#;0\u00BB|\u00ABV114;4R;#;0\u00BB|\u00ABV117"), -1);
  QTest::keyClick(&Testata(), Qt::Key_F8);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Problemi() == dellEsempio; }));
}

}  // namespace
}  // namespace parvik
