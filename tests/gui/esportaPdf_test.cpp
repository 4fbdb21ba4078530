// "Esporta PDF..." through the window: the document, read back.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPageLayout>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <map>

#include "ColonneStampate.h"
#include "Finestra.h"
#include "StampanteDiProva.h"
#include "common/FileDiProva.h"
#include "common/qtTesto.h"
#include "output/qtFoglio.h"
#include "output/ricCarta.h"
#include "supporto/ConNome.h"

namespace parvik {
namespace {

using prova::Contenuto;
using prova::Finestra;
using prova::NelProssimoDialogo;
using prova::Parola;
using prova::PdfStampato;
using prova::Trova;

constexpr double PuntiPerMillimetro = 72 / 25.4;

class EsportaPdf : public testing::Test {
 protected:
  std::filesystem::path File() const { return finestra_.Cartella() / "D_STM" / "uscita.pdf"; }
  PdfStampato Esporta() {
    finestra_.Persona().Scegliera(File());
    finestra_.Azione("mnuEsportaPdf").trigger();
    return PdfStampato(QString::fromStdString(File().string()));
  }
  /// A template of one section with this text.
  void Scrivi(const QString& testo) {
    finestra_.Scegli(12);
    finestra_.Sezione(0).setPlainText(testo);
  }
  void ScegliFoglio(Carta carta, const std::map<const char*, const char*>& caselle = {}) {
    NelProssimoDialogo([&](QDialog& dialogo) {
      Trova<QComboBox>(dialogo, "cmbCarta")->setCurrentIndex(static_cast<int>(carta));
      for (const auto& [nome, testo] : caselle) Trova<QLineEdit>(dialogo, nome)->setText(testo);
      QTest::keyClick(&dialogo, Qt::Key_Return);
    });
    finestra_.Azione("mnuFoglio").trigger();
    finestra_.Attiva();
  }
  static QString ConRighe(int quante) {
    QString testo;
    for (int i = 1; i <= quante; ++i) testo += QStringLiteral("riga%1\n").arg(i);
    return testo;
  }

  Finestra finestra_;
};

/// Prints what the pane shows, the end marker included, on paper like that of the export.
std::vector<std::vector<Parola>> SuCarta(const TestoAnteprima& testo, const Foglio& foglio, double passo) {
  prova::StampanteDiProva stampante;
  stampante.Foglio().setPageLayout(CartaDi(foglio));
  EXPECT_TRUE(StampaSuCarta(
      stampante,
      {.Testo = testo, .Parte = {.Inizio = 0, .Lunghezza = testo.Testo().size()}, .PassoRiga = passo},
      [](std::size_t) { return true; }));
  return PdfStampato(stampante.Pdf()).Parole();
}

void TogliFine(std::vector<std::vector<Parola>>& pagine) {
  for (const char* parola : {"---", "file", "Fine", "---"}) {
    ASSERT_FALSE(pagine.back().empty());
    ASSERT_EQ(pagine.back().back().Testo, parola);
    pagine.back().pop_back();
  }
  if (pagine.back().empty()) pagine.pop_back();
}

void Confronta(const std::vector<std::vector<Parola>>& esportate,
               const std::vector<std::vector<Parola>>& stampate) {
  ASSERT_EQ(esportate.size(), stampate.size());
  for (std::size_t p = 0; p < stampate.size(); ++p) {
    ASSERT_EQ(esportate[p].size(), stampate[p].size()) << "page " << p + 1;
    for (std::size_t i = 0; i < stampate[p].size(); ++i) {
      EXPECT_EQ(esportate[p][i].Testo, stampate[p][i].Testo);
      EXPECT_NEAR(esportate[p][i].X, stampate[p][i].X, 0.001);
      EXPECT_NEAR(esportate[p][i].Y, stampate[p][i].Y, 0.001);
    }
  }
}

struct Esempio {
  const char* Nome;
  int Tipo;
  Carta SuFoglio;
};
using prova::PrintTo;

class EsportaEsempi : public EsportaPdf, public testing::WithParamInterface<Esempio> {};

TEST_P(EsportaEsempi, HasTheWordsOfThePaperInTheSamePlacesButTheEndMarker) {
  const Esempio& esempio = GetParam();
  finestra_.Scegli(esempio.Tipo);
  finestra_.Apri((std::string(esempio.Nome, 6) + ".IMG").c_str());
  if (esempio.SuFoglio != Carta::Nessuna) ScegliFoglio(esempio.SuFoglio);
  const PdfStampato pdf = Esporta();
  finestra_.Azione("mnuAnte").trigger();
  const Carta carta = esempio.SuFoglio == Carta::Nessuna ? Carta::A4 : esempio.SuFoglio;
  const double passo = esempio.SuFoglio == Carta::Nessuna ? 0 : PassoRigaDi(FoglioDi(carta));
  auto attese = SuCarta(finestra_.Anteprima().Contenuto(), FoglioDi(carta), passo);
  ASSERT_NO_FATAL_FAILURE(TogliFine(attese));
  EXPECT_GT(attese.at(0).size(), 30U);
  Confronta(pdf.Parole(), attese);
}

INSTANTIATE_TEST_SUITE_P(Carta, EsportaEsempi,
                         testing::Values(Esempio{"FATT01", 1, Carta::Nessuna},
                                         Esempio{"FATT01_A5", 1, Carta::A5},
                                         Esempio{"FATT01_modulo", 1, Carta::Modulo12},
                                         Esempio{"LIST01", 12, Carta::Nessuna}),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

TEST_F(EsportaPdf, TheTextCanBeReadLineByLine) {
  Scrivi("perch\u00E9 \u20AC 12,50\n\n\u00ABS;GR\u00BBgrassetto\u00ABS;NO\u00BB \u00ABV1;5\u00BB|\nfine\n");
  const auto pagine = Esporta().Pagine();
  ASSERT_EQ(pagine.size(), 1U);
  EXPECT_EQ(pagine[0], (QStringList{"perch\u00E9 \u20AC 12,50", "", "grassetto $$$$$|", "fine"}));
}

TEST_F(EsportaPdf, TheDocumentBringsItsFontsAndSaysWhatItIs) {
  finestra_.Scegli(1);
  finestra_.Apri("FATT01.IMG");
  const PdfStampato pdf = Esporta();
  EXPECT_TRUE(pdf.CaratteriIncorporati());
  EXPECT_EQ(pdf.Detto("Title"), "FATT01.IMG");
  EXPECT_EQ(pdf.Detto("Creator"), "Ordavia");
  EXPECT_EQ(finestra_.Persona().Richieste.back().NomeProposto, "FATT01.pdf");
  EXPECT_FALSE(finestra_.Anteprima().isVisible()) << "opening turned it off";
}

TEST_F(EsportaPdf, ItNeedsNoPrintModuleAndNoPrinter) {
  std::filesystem::remove(finestra_.ModuloStampa());
  Scrivi("uno\n");
  EXPECT_EQ(Esporta().Pagine().at(0), QStringList{"uno"});
  EXPECT_TRUE(finestra_.Persona().Messaggi.empty());
}

TEST_F(EsportaPdf, WithoutASheetThePaperIsA4) {
  Scrivi("uno\n");
  const QSizeF carta = Esporta().Dimensione();
  EXPECT_NEAR(carta.width(), 210 * PuntiPerMillimetro, 0.5);
  EXPECT_NEAR(carta.height(), 297 * PuntiPerMillimetro, 0.5);
}

TEST_F(EsportaPdf, ASheetIsThePaperAndLinesStandAtItsDistance) {
  Scrivi(ConRighe(100));
  ScegliFoglio(Carta::A5, {{"txtLinee", "8"}});
  const PdfStampato pdf = Esporta();
  EXPECT_NEAR(pdf.Dimensione().width(), 148 * PuntiPerMillimetro, 0.5);
  EXPECT_NEAR(pdf.Dimensione().height(), 210 * PuntiPerMillimetro, 0.5);
  const auto parole = pdf.Parole();
  ASSERT_EQ(parole.size(), 2U);
  EXPECT_EQ(parole[0].size(), 63U) << "200 mm at 8 lines an inch";
  EXPECT_NEAR(parole[0][0].X, 5 * PuntiPerMillimetro, 0.2);
  EXPECT_NEAR(parole[0][1].Y - parole[0][0].Y, 9, 0.1);
}

TEST_F(EsportaPdf, ASheetOfOnesOwnThatIsWiderThanHighStaysSo) {
  Scrivi("uno\n");
  ScegliFoglio(Carta::Personalizzata, {{"txtLargh", "300"}, {"txtAlt", "100,5"}});
  const QSizeF carta = Esporta().Dimensione();
  EXPECT_NEAR(carta.width(), 300 * PuntiPerMillimetro, 0.5);
  EXPECT_NEAR(carta.height(), 100.5 * PuntiPerMillimetro, 0.5);
}

TEST_F(EsportaPdf, AFormThatFillsItsPageHasNoEmptyPageBehindIt) {
  Scrivi(ConRighe(66));
  ScegliFoglio(Carta::Modulo11);
  const auto pagine = Esporta().Pagine();
  ASSERT_EQ(pagine.size(), 1U);
  EXPECT_EQ(pagine[0].size(), 66);
}

TEST_F(EsportaPdf, PagesEndWhereThePaneShowsItWhateverIsRounded) {
  Scrivi(ConRighe(100));
  // 26 lines at 5 an inch are 374.4 points: the toolkit's paper is a whole number of them.
  ScegliFoglio(Carta::Personalizzata, {{"txtLargh", "120"},
                                       {"txtAlt", "132,1"},
                                       {"txtLinee", "5"},
                                       {"txtMargine_2", "0"},
                                       {"txtMargine_3", "0"}});
  const auto parole = Esporta().Parole();
  ASSERT_EQ(parole.size(), 4U);
  EXPECT_EQ(parole[0].size(), 26U);
  EXPECT_EQ(parole[2].size(), 26U);
}

TEST_F(EsportaPdf, AFolderThatTakesNoFileIsToldAndTheOldDocumentStaysWhole) {
  if (!prova::UtenteComune().Comune()) GTEST_SKIP() << "root cannot become anybody else";
  Scrivi("uno\n");
  prova::Crea(File(), "vecchio");
  const std::filesystem::path cartella = File().parent_path();
  std::filesystem::permissions(finestra_.Cartella().parent_path(), std::filesystem::perms{0755});
  std::filesystem::permissions(File(), std::filesystem::perms{0444});
  std::filesystem::permissions(cartella, std::filesystem::perms{0555});
  finestra_.Persona().Scegliera(File());
  finestra_.Persona().Rispondera(Risposta::Si);
  finestra_.Persona().Rispondera(Risposta::Ok);
  {
    const prova::UtenteComune utente;
    finestra_.Azione("mnuEsportaPdf").trigger();
  }
  std::filesystem::permissions(cartella, std::filesystem::perms{0755});
  EXPECT_EQ(finestra_.Persona().Messaggi.back().Testo,
            TestoErrore(NumeroErrore::AutorizzazioneNegata) + "\r\n" + File().string());
  EXPECT_EQ(Contenuto(File()), "vecchio");
}

TEST_F(EsportaPdf, ALongOneSaysSoAndWhenItIsGivenUpNothingIsWritten) {
  finestra_.Scegli(12);
  QString riga = QString(90, 'x') + '\n';
  finestra_.Sezione(0).setPlainText(riga.repeated(60'000));
  const auto prima = prova::Nomi(File().parent_path());
  QString testo;
  NelProssimoDialogo([&](QDialog& attesa) {
    testo = attesa.objectName() + ": " + qobject_cast<QProgressDialog*>(&attesa)->labelText();
    QTest::mouseClick(attesa.findChild<QPushButton*>(), Qt::LeftButton);
  });
  finestra_.Persona().Scegliera(File());
  finestra_.Azione("mnuEsportaPdf").trigger();
  EXPECT_EQ(testo, "frmEsportaPdf: Esportazione in corso...");
  EXPECT_EQ(prova::Nomi(File().parent_path()), prima);
  EXPECT_TRUE(finestra_.Persona().Messaggi.empty());
}

}  // namespace
}  // namespace parvik
