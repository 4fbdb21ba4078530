// Columns on paper: every character of every line stands where its column is, whatever looks stand before it.
#include <gtest/gtest.h>

#include <QDir>
#include <QPageLayout>
#include <random>

#include "ColonneStampate.h"
#include "Finestra.h"
#include "PannelloDiProva.h"
#include "StampanteDiProva.h"
#include "output/ricCarta.h"

namespace parvik {
namespace {

using prova::DiProva;
using prova::Finestra;
using prova::PdfStampato;
using prova::StampanteDiProva;

/// Prints, and looks at the words. Returns how many there were.
std::size_t ConfrontaCarta(const TestoAnteprima& testo) {
  StampanteDiProva stampante;
  EXPECT_TRUE(StampaSuCarta(stampante,
                            {.Testo = testo, .Parte = {.Inizio = 0, .Lunghezza = testo.Testo().size()}},
                            [](std::size_t) { return true; }));
  const QRectF utile = stampante.Foglio().pageLayout().paintRect(QPageLayout::Point);
  return prova::ConfrontaColonne(PdfStampato(stampante.Pdf()), testo,
                                 {.Sinistra = utile.left(), .Larghezza = utile.width()});
}

struct Esempio {
  int Tipo;
  const char* Modello;
};

void PrintTo(const Esempio& esempio, std::ostream* uscita) {
  *uscita << esempio.Modello;
}

class ColonneEsempi : public testing::TestWithParam<Esempio> {};

TEST_P(ColonneEsempi, StandOnPaperInTheirColumns) {
  Finestra finestra;
  finestra.Scegli(GetParam().Tipo);
  finestra.Apri(GetParam().Modello);
  finestra.Azione("mnuAnte").trigger();
  EXPECT_GT(ConfrontaCarta(finestra.Anteprima().Contenuto()), 30U);
}

INSTANTIATE_TEST_SUITE_P(
    Carta, ColonneEsempi,
    testing::Values(Esempio{1, "FATT01.IMG"}, Esempio{1, "FATTEST.IMG"}, Esempio{3, "NCRED01.IMG"},
                    Esempio{4, "DDT01.IMG"}, Esempio{5, "ORDCL01.IMG"}, Esempio{7, "PREV01.IMG"},
                    Esempio{8, "RICEV01.IMG"}, Esempio{10, "ESTCL01.IMG"}, Esempio{12, "LIST01.IMG"},
                    Esempio{14, "COLLO01.IMG"}, Esempio{15, "SOLL01.IMG"}),
    [](const auto& esempio) { return QString(esempio.param.Modello).section('.', 0, 0).toStdString(); });

/// Lines of words, blanks and bars, with a style now and then.
std::string ModuloACaso(std::mt19937& caso) {
  const auto fino = [&caso](unsigned a) { return static_cast<unsigned>(caso() % a); };
  constexpr std::array Stili = {"S;NO", "S;GR", "S;IT", "S;SO", "S;CO"};
  constexpr std::string_view Segni = "|abgMWi10,.$-+\xE0\xE8\xB0  ";
  const unsigned larghezza = 20 + fino(150);
  std::string testo;
  for (unsigned riga = 0; riga < 10 + fino(90); ++riga) {
    for (unsigned i = 0; i < fino(larghezza + 1); ++i) {
      if (fino(12) == 0) testo += Stili[fino(Stili.size())];
      testo += Segni[fino(Segni.size())];
    }
    testo += "\r\n";
  }
  return testo;
}

TEST(ColonneCarta, SixtyStyledFormsStandInTheirColumns) {
  for (unsigned seme = 1; seme <= 60; ++seme) {
    SCOPED_TRACE("form " + std::to_string(seme));
    std::mt19937 caso(seme);
    EXPECT_GT(ConfrontaCarta(TestoAnteprima(DiProva(ModuloACaso(caso)))), 5U);
    if (HasFailure()) return;
  }
}

TEST(ColonneCarta, ABarBehindEachLookStandsUnderTheBarOfAPlainLine) {
  const TestoAnteprima testo(
      DiProva("S;NO|2345678|\r\nS;GR|2345678|\r\nS;IT|2345678|\r\nS;SO|2345678|\r\n"
              "S;CO|23456789|S;NO|\r\n"));
  EXPECT_EQ(ConfrontaCarta(testo), 6U);
}

TEST(ColonneCarta, EveryExampleTemplateIsLookedAt) {
  const auto modelli =
      QDir(QString::fromStdString((prova::Esempio() / "D_IMG").string())).entryList({"*.IMG"});
  EXPECT_EQ(modelli.size(), 11);
}

}  // namespace
}  // namespace parvik
