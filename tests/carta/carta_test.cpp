// The print command in a real window, through the toolkit's print dialog, to a real print server.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "CartaStampata.h"
#include "ColonneStampate.h"
#include "Finestra.h"
#include "common/qtTesto.h"
#include "output/ricAnte.h"

namespace parvik {
namespace {

using prova::CartaStampata;
using prova::Finestra;
using prova::NelProssimoDialogo;
using prova::Parola;
using prova::Trova;
using testing::ElementsAre;

/// In the print dialog: presses the button that prints.
void Stampa(QDialog& dialogo) {
  ASSERT_TRUE(dialogo.inherits("QPrintDialog"));
  auto* pulsanti = dialogo.findChild<QDialogButtonBox*>();
  ASSERT_NE(pulsanti, nullptr);
  EXPECT_EQ(pulsanti->button(QDialogButtonBox::Ok)->text(), "Stam&pa");
  QTest::mouseClick(pulsanti->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

/// Chooses the printer in the destination dialog, then does `compito` in the print dialog.
void StampaConIlMenu(Finestra& finestra, const std::function<void(QDialog&)>& compito = Stampa) {
  NelProssimoDialogo([&compito](QDialog& destinazione) {
    NelProssimoDialogo(compito);
    QTest::keyClick(&destinazione, Qt::Key_Return);
  });
  finestra.Azione("mnuStampa").trigger();
}

/// A one-section template with this text (UTF-8), its preview off.
void Prepara(Finestra& finestra, const char* testo) {
  finestra.Scegli(12);
  finestra.Azione("mnuAnte").trigger();
  ASSERT_FALSE(finestra.Anteprima().isVisible());
  finestra.Sezione(0).setPlainText(testo);
}

QString SenzaSpazi(const QString& testo) {
  return testo.simplified().remove(' ');
}

/// The lines that are not empty, without blanks: blanks and empty lines are places on paper.
QStringList Scritte(const QStringList& righe) {
  QStringList scritte;
  for (const QString& riga : righe) {
    if (!SenzaSpazi(riga).isEmpty()) scritte += SenzaSpazi(riga);
  }
  return scritte;
}

QStringList Mostrate(Finestra& finestra) {
  return PerSchermo(finestra.Anteprima().Contenuto().Testo()).split('\n');
}

QStringList RigheDi(const CartaStampata& carta) {
  QStringList righe;
  for (const QStringList& pagina : carta.Pagine()) righe += pagina;
  return righe;
}

/// The first word of that text on the first page.
Parola Trovata(const CartaStampata& carta, const QString& testo) {
  const auto pagine = carta.Parole();
  for (const Parola& parola : pagine.at(0)) {
    if (parola.Testo == testo) return parola;
  }
  ADD_FAILURE() << testo.toStdString() << " is not on the page";
  return {};
}

TEST(Carta, AnExampleTemplateComesOutLineByLineAsThePreviewShowsIt) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuAnte").trigger();
  finestra.Apri("FATT01.IMG");
  StampaConIlMenu(finestra);
  EXPECT_TRUE(finestra.Anteprima().isVisible()) << "it is turned on to be printed";
  const CartaStampata carta = CartaStampata::Prossima();
  EXPECT_EQ(carta.Titolo(), "FATT01.IMG");
  EXPECT_EQ(carta.Copie(), "1");
  ASSERT_TRUE(Mostrate(finestra).contains("--- Fine file ---"));
  EXPECT_EQ(Scritte(RigheDi(carta)), Scritte(Mostrate(finestra)));
  EXPECT_GT(prova::ConfrontaColonne(carta, finestra.Anteprima().Contenuto()), 100U) << "frames are whole";
}

TEST(Carta, WordsStandInTheColumnsAndLinesOfThePreview) {
  Finestra finestra;
  Prepara(finestra, "uno due      tre\n\n     quattro\ncinque\n");
  StampaConIlMenu(finestra);
  const CartaStampata carta = CartaStampata::Prossima();
  EXPECT_EQ(carta.Titolo(), "Ordavia");
  const Parola uno = Trovata(carta, "uno");
  constexpr double Cella = 6.0;  // points: six tenths of the height of 10
  EXPECT_NEAR(uno.Destra - uno.X, 3 * Cella, 0.2);
  EXPECT_NEAR(Trovata(carta, "due").X, uno.X + 4 * Cella, 0.2);
  EXPECT_NEAR(Trovata(carta, "tre").X, uno.X + 13 * Cella, 0.2);
  EXPECT_NEAR(Trovata(carta, "quattro").X, uno.X + 5 * Cella, 0.2);
  const double riga = Trovata(carta, "cinque").Y - Trovata(carta, "quattro").Y;
  EXPECT_GT(riga, 10.0);
  EXPECT_LT(riga, 14.0);
  EXPECT_NEAR(Trovata(carta, "quattro").Y, uno.Y + 2 * riga, 0.2);
}

TEST(Carta, LooksHaveTheirFontsAndSizes) {
  Finestra finestra;
  Prepara(finestra, "normale\n«S;GR»grassetto«S;NO»\n«S;IT»corsivo\n«S;SO»sottolineato\n«S;CO»compresso\n");
  StampaConIlMenu(finestra);
  const CartaStampata carta = CartaStampata::Prossima();
  EXPECT_THAT(carta.Caratteri(),
              ElementsAre("LiberationMono", "LiberationMono-Bold", "LiberationMono-Italic"));
  EXPECT_EQ(prova::ConfrontaColonne(carta, finestra.Anteprima().Contenuto()), 9U);
  const auto altezza = [&carta](const QString& testo) {
    const Parola parola = Trovata(carta, testo);
    return parola.Fondo - parola.Y;
  };
  EXPECT_NEAR(altezza("grassetto"), 0.975 * altezza("normale"), 0.01)
      << "no style has set a size yet: the pane's own, 9.75";
  EXPECT_NEAR(altezza("corsivo"), 0.975 * altezza("normale"), 0.01);
  EXPECT_NEAR(altezza("compresso"), 0.8 * altezza("normale"), 0.01);
}

TEST(Carta, OnlyTheUnderlinedWordHasALineUnderIt) {
  Finestra finestra;
  Prepara(finestra, "nnnnnnnn\n«S;SO»nnnnnnnm\n");
  StampaConIlMenu(finestra);
  const CartaStampata carta = CartaStampata::Prossima();
  EXPECT_FALSE(carta.ConLineaSotto(Trovata(carta, "nnnnnnnn")));
  EXPECT_TRUE(carta.ConLineaSotto(Trovata(carta, "nnnnnnnm")));
}

TEST(Carta, PagesBreakBetweenLinesAndLoseNone) {
  Finestra finestra;
  QString testo;
  for (int i = 1; i <= 200; ++i) testo += QStringLiteral("riga%1\n").arg(i);
  Prepara(finestra, qPrintable(testo));
  StampaConIlMenu(finestra);
  const CartaStampata carta = CartaStampata::Prossima();
  const auto pagine = carta.Parole();
  ASSERT_EQ(pagine.size(), 3U);
  int numero = 1;
  for (std::size_t i = 0; i < pagine.size(); ++i) {
    double precedente = 0;
    for (const Parola& parola : pagine[i]) {
      if (numero > 200) break;  // the end marker
      EXPECT_EQ(parola.Testo, QStringLiteral("riga%1").arg(numero++));
      EXPECT_GT(parola.Y, precedente);
      EXPECT_GT(parola.Y, 15.0) << "above the paper's margin";
      EXPECT_LT(parola.Y, 842.0 - 18.0 - 10.0) << "cut by the paper's margin";
      precedente = parola.Y;
    }
  }
  EXPECT_EQ(numero, 201);
  EXPECT_EQ(Scritte(RigheDi(carta)), Scritte(Mostrate(finestra)));
}

TEST(Carta, AFormThatIsWiderThanThePageIsMadeSmallerUntilItFits) {
  Finestra finestra;
  Prepara(finestra, qPrintable("|" + QString(118, '-') + "|\ncolonna\n"));
  StampaConIlMenu(finestra);
  const CartaStampata carta = CartaStampata::Prossima();
  EXPECT_EQ(Scritte(RigheDi(carta)), Scritte(Mostrate(finestra)));
  const Parola colonna = Trovata(carta, "colonna");
  constexpr double Utile = 595.0 - 2 * 18.0;  // points between the margins
  EXPECT_NEAR((colonna.Destra - colonna.X) / 7, Utile / 120, 0.03);
}

TEST(Carta, ALineFarWiderThanThePageGoesOnBelowAndLosesNothing) {
  Finestra finestra;
  QString lunga;
  for (int i = 0; i < 50; ++i) lunga += QStringLiteral("%1.").arg(i, 4, 10, QChar('0'));
  Prepara(finestra, qPrintable("prima\n" + lunga + "\ndopo\n"));
  StampaConIlMenu(finestra);
  const CartaStampata carta = CartaStampata::Prossima();
  const QStringList righe = Scritte(RigheDi(carta));
  ASSERT_EQ(righe.size(), 6);
  EXPECT_EQ(righe[0], "prima");
  EXPECT_EQ(righe[1] + righe[2] + righe[3], lunga);
  EXPECT_EQ(righe[4], "dopo");
}

TEST(Carta, APreviewThatIsShownIsPrintedAsItStands) {
  Finestra finestra;
  Prepara(finestra, "prima\n");
  finestra.Azione("mnuAnte").trigger();
  finestra.Sezione(0).setPlainText("dopo\n");
  StampaConIlMenu(finestra);
  EXPECT_EQ(Scritte(RigheDi(CartaStampata::Prossima())).constFirst(), "prima");
}

TEST(Carta, ASelectionIsPrintedAlone) {
  Finestra finestra;
  Prepara(finestra, "uno\ndue tre\nquattro\n");
  finestra.Azione("mnuAnte").trigger();
  ricAnte& pannello = finestra.Anteprima();
  pannello.setFocus();
  for (const Qt::Key tasto : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right}) {
    QTest::keyClick(&pannello, tasto);
  }
  QTest::keyClick(&pannello, Qt::Key_Down, Qt::ShiftModifier);
  StampaConIlMenu(finestra);
  const CartaStampata carta = CartaStampata::Prossima();
  EXPECT_EQ(Scritte(RigheDi(carta)), (QStringList{"tre", "quat"}));
  EXPECT_NEAR(Trovata(carta, "tre").X, Trovata(carta, "quat").X, 0.2) << "from the left margin";
}

TEST(Carta, TextIsBlackOnPaperInADarkDesktopToo) {
  const QPalette chiara = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(30, 30, 30)));
  {
    Finestra finestra;
    Prepara(finestra, "MMMMMMMM\n");
    StampaConIlMenu(finestra);
    const CartaStampata carta = CartaStampata::Prossima();
    EXPECT_LT(carta.PiuScuro(Trovata(carta, "MMMMMMMM")), 40);
  }
  QApplication::setPalette(chiara);
}

/// Chooses a sheet, and so many lines an inch.
void ScegliFoglio(Finestra& finestra, Carta carta, const char* linee) {
  NelProssimoDialogo([carta, linee](QDialog& dialogo) {
    Trova<QComboBox>(dialogo, "cmbCarta")->setCurrentIndex(static_cast<int>(carta));
    Trova<QLineEdit>(dialogo, "txtLinee")->setText(linee);
    QTest::keyClick(&dialogo, Qt::Key_Return);
  });
  finestra.Azione("mnuFoglio").trigger();
}

QString ConRighe(int quante) {
  QString testo;
  for (int i = 1; i <= quante; ++i) testo += QStringLiteral("riga%1\n").arg(i);
  return testo;
}

struct FoglioStampato {
  const char* Nome;
  Carta Quale;
  const char* Linee;
  double Sinistra;  // points
  double Passo;
  std::size_t Righe;  // of the first page

  friend void PrintTo(const FoglioStampato& foglio, std::ostream* uscita) { *uscita << foglio.Nome; }
};

class CartaFoglio : public testing::TestWithParam<FoglioStampato> {};

TEST_P(CartaFoglio, IsWhatThePrintDialogBeginsWith) {
  const FoglioStampato& atteso = GetParam();
  Finestra finestra;
  Prepara(finestra, qPrintable(ConRighe(100)));
  ScegliFoglio(finestra, atteso.Quale, atteso.Linee);
  StampaConIlMenu(finestra);
  const CartaStampata carta = CartaStampata::Prossima();
  EXPECT_EQ(carta.Pagine().at(0).size(), static_cast<qsizetype>(atteso.Righe));
  EXPECT_NEAR(Trovata(carta, "riga1").X, atteso.Sinistra, 0.5);
  EXPECT_NEAR(Trovata(carta, "riga5").Y - Trovata(carta, "riga4").Y, atteso.Passo, 0.1);
  EXPECT_EQ(Scritte(RigheDi(carta)), Scritte(Mostrate(finestra)));
}

// The printer cannot reach 18 points of A5, where the sheet has 14: 559 points are left, at 12 a line.
INSTANTIATE_TEST_SUITE_P(Fogli, CartaFoglio,
                         testing::Values(FoglioStampato{"A5", Carta::A5, "6", 18, 12, 46},
                                         FoglioStampato{"A5_fitto", Carta::A5, "8", 18, 9, 62},
                                         FoglioStampato{"modulo", Carta::Modulo11, "6", 36, 12, 66}),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(Carta, CancelInThePrintDialogPrintsNothingAndShowsNoPreview) {
  Finestra finestra;
  Prepara(finestra, "uno\n");
  StampaConIlMenu(finestra, [](QDialog& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Escape); });
  EXPECT_FALSE(finestra.Anteprima().isVisible());
  EXPECT_TRUE(CartaStampata::Nessuna());
}

}  // namespace
}  // namespace parvik
