// What comes into the one-line boxes of the dialogs, by every way in, and what of it goes into a code.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>

#include "Maschera.h"
#include "template/frmComando.h"
#include "tokens/frmCostante.h"
#include "tokens/frmFlag.h"
#include "tokens/frmLingua.h"
#include "tokens/frmPagina.h"
#include "tokens/frmStile.h"
#include "tokens/frmVar.h"

namespace parvik {
namespace {

using prova::Apri;
using prova::Casella;
using prova::Codici;
using prova::Conferma;

std::string NessunFlag(QWidget*) {
  return {};
}

struct Via {
  const char* Nome;
  void (*Entra)(QLineEdit&, const QString&);

  friend void PrintTo(const Via& via, std::ostream* uscita) { *uscita << via.Nome; }
};

void Incolla(QLineEdit& casella, const QString& testo) {
  QGuiApplication::clipboard()->setText(testo);
  QTest::keyClick(&casella, Qt::Key_V, Qt::ControlModifier);
}

void Lascia(QLineEdit& casella, const QString& testo) {
  QMimeData dati;
  dati.setText(testo);
  QDragEnterEvent arrivo(QPoint(2, 2), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&casella, &arrivo);
  QDropEvent evento(QPointF(2, 2), Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&casella, &evento);
}

void Componi(QLineEdit& casella, const QString& testo) {
  QInputMethodEvent evento;
  evento.setCommitString(testo);
  QApplication::sendEvent(&casella, &evento);
}

void Batti(QLineEdit& casella, const QString& testo) {
  QTest::sendKeyEvent(QTest::Click, &casella, Qt::Key_unknown, testo, Qt::NoModifier);
}

void ImpostaDaFuori(QLineEdit& casella, const QString& testo) {
  QAccessible::queryAccessibleInterface(&casella)->setText(QAccessible::Value, testo);
}

void InserisciDaFuori(QLineEdit& casella, const QString& testo) {
  auto* interfaccia = QAccessible::queryAccessibleInterface(&casella)->editableTextInterface();
  if (interfaccia != nullptr) interfaccia->insertText(0, testo);
}

void ImpostaDalProgramma(QLineEdit& casella, const QString& testo) {
  casella.setText(testo);
}

class OgniVia : public testing::TestWithParam<Via> {
 protected:
  static void Entra(QLineEdit& casella, const QString& testo) {
    casella.setFocus();
    casella.selectAll();
    GetParam().Entra(casella, testo);
  }
};

TEST_P(OgniVia, ALineEndInAConstantIsASpaceInTheBoxAndInTheCode) {
  for (const char* fine : {"\r\n", "\r", "\n", "\u2028", "\u2029", "\u0085", "\v", "\f", "␍␊", "␍", "␊"}) {
    frmCostante dialogo(nullptr);
    Apri(dialogo);
    Entra(Casella(dialogo, "txtDescri"), QString::fromUtf8("uno%1due").arg(QString::fromUtf8(fine)));
    EXPECT_EQ(Casella(dialogo, "txtDescri").text(), "uno due") << fine;
    EXPECT_EQ(Casella(dialogo, "txtCost").text(), "«V0;\"uno due\"»") << fine;
    EXPECT_EQ(Conferma(dialogo), Codici({ConDelimitatori("V0;\"uno due\"")})) << fine;
  }
}

TEST_P(OgniVia, DelimitersDoNotComeIntoAConstant) {
  frmCostante dialogo(nullptr);
  Apri(dialogo);
  Entra(Casella(dialogo, "txtDescri"), "«a»");
  EXPECT_EQ(Casella(dialogo, "txtDescri").text(), "a");
  EXPECT_EQ(Conferma(dialogo), Codici({ConDelimitatori("V0;\"a\"")}));
}

TEST_P(OgniVia, WhatTheHostCannotPrintIsAQuestionMarkInTheBox) {
  frmCostante dialogo(nullptr);
  Apri(dialogo);
  Entra(Casella(dialogo, "txtDescri"), "10 € – Ω 😀");
  EXPECT_EQ(Casella(dialogo, "txtDescri").text(), "10 € – ? ?");
  EXPECT_EQ(Conferma(dialogo), Codici({ConDelimitatori("V0;\"10 \x80 \x96 ? ?\"")}));
}

TEST_P(OgniVia, TheFillOfAVariableIsOneCharacterThatIsNoLineEndAndNoDelimiter) {
  for (const auto& [testo, riempimento] :
       {std::pair("\u2028", " "), {"«", ""}, {"»*", "*"}, {"␊", " "}, {"Ω", "?"}, {"ab", "a"}}) {
    frmVar dialogo({{"Cliente", 12, 30, "", 1, 0, 0, 0, 0, 0, "0", "0"}}, NessunFlag, nullptr);
    Apri(dialogo);
    Entra(Casella(dialogo, "txtCar"), testo);
    EXPECT_EQ(Casella(dialogo, "txtCar").text(), riempimento) << testo;
    const std::string apici = *riempimento == '\0' ? "" : std::string("\"") + riempimento + "\"";
    EXPECT_EQ(Conferma(dialogo), Codici({ConDelimitatori("V12;30L" + apici)})) << testo;
  }
}

/// Whatever comes in, and into whichever box: the boxes hold one line, and the codes no line end and no
/// delimiter of their own.
void AttendiUnaRigaSola(QDialog& dialogo) {
  Apri(dialogo);
  for (QLineEdit* casella : dialogo.findChildren<QLineEdit*>()) {
    casella->setFocus();
    casella->selectAll();
    OgniVia::GetParam().Entra(*casella, "1\r\n«2»␍\n3");
    EXPECT_FALSE(casella->text().contains(u'\n') || casella->text().contains(u'\r'))
        << casella->objectName().toStdString();
  }
}

void AttendiCodiciInteri(frmCodice& dialogo) {
  AttendiUnaRigaSola(dialogo);
  for (const std::string& codice : Conferma(dialogo)) {
    EXPECT_EQ(codice.find_first_of("\r\n\xAB\xBB", 1), codice.size() - 1) << codice;
  }
}

TEST_P(OgniVia, NoBoxOfAnyDialogTakesALineEnd) {
  const std::vector<Variabile> variabili = {{"Cliente", 12, 30, "", 1, 0, 3, 0, 0, 0, "0", "0"},
                                            {"Totale", 8, 10, "", 0, 1, 0, 1, 0, 1, "2", "1"}};
  for (const char* codice : {"V12;30L", "V8;10R;#,2;0"}) {
    frmVar dialogo(variabili, NessunFlag, nullptr);
    dialogo.Mostra(codice);
    AttendiCodiciInteri(dialogo);
  }
  frmFlag flag({{"Estero", 7, "S"}}, nullptr);
  AttendiCodiciInteri(flag);
  frmCostante costante(nullptr);
  AttendiCodiciInteri(costante);
  frmLingua lingua(nullptr);
  AttendiCodiciInteri(lingua);
  frmPagina pagina(nullptr);
  AttendiCodiciInteri(pagina);
  frmStile stile(nullptr);
  stile.Mostra("S;GRASSETTO");
  AttendiCodiciInteri(stile);
  frmComando comando({}, 3, nullptr);
  AttendiUnaRigaSola(comando);
}

INSTANTIATE_TEST_SUITE_P(Vie, OgniVia,
                         testing::Values(Via{"paste", Incolla}, Via{"drop", Lascia},
                                         Via{"input_method", Componi}, Via{"keys", Batti},
                                         Via{"assistive_value", ImpostaDaFuori},
                                         Via{"assistive_insertion", InserisciDaFuori},
                                         Via{"program", ImpostaDalProgramma}),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

}  // namespace
}  // namespace parvik
