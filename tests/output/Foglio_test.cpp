#include "output/Foglio.h"

#include <gtest/gtest.h>

#include <array>

namespace parvik {
namespace {

constexpr double Cella = 21.17;  // of ten points, in tenths of a millimetre

TEST(Foglio, HoldsTheLinesAndColumnsBetweenItsMargins) {
  EXPECT_EQ(PaginaDi(FoglioDi(Carta::Modulo11), Cella), (PaginaFoglio{.Colonne = 101, .Righe = 66}));
  EXPECT_EQ(PaginaDi(FoglioDi(Carta::Modulo12), Cella), (PaginaFoglio{.Colonne = 101, .Righe = 72}));
  EXPECT_EQ(PaginaDi(FoglioDi(Carta::A4), Cella), (PaginaFoglio{.Colonne = 94, .Righe = 67}));
  EXPECT_EQ(PaginaDi(FoglioDi(Carta::A5), Cella), (PaginaFoglio{.Colonne = 65, .Righe = 47}));
}

TEST(Foglio, HoldsMoreOfTighterLines) {
  Foglio foglio = FoglioDi(Carta::Modulo11);
  foglio.LineePerPollice = 8;
  EXPECT_EQ(PaginaDi(foglio, Cella).Righe, 88U);
}

TEST(Foglio, HoldsAColumnHoweverWideItIs) {
  Foglio foglio = FoglioDi(Carta::Personalizzata);
  foglio.Margini[0] = 2049;
  EXPECT_EQ(DifettoDi(foglio), std::nullopt);
  EXPECT_EQ(PaginaDi(foglio, Cella).Colonne, 1U);
}

TEST(Foglio, OfEachPaperHasNothingWrong) {
  for (std::size_t i = 0; i < NomiCarte.size(); ++i)
    EXPECT_EQ(DifettoDi(FoglioDi(static_cast<Carta>(i))), std::nullopt) << NomiCarte[i];
}

TEST(Foglio, TellsWhatIsWrongWithIt) {
  const Foglio buono = FoglioDi(Carta::Personalizzata);
  const auto con = [&](auto cambia) {
    Foglio foglio = buono;
    cambia(foglio);
    return DifettoDi(foglio).value_or("");
  };
  for (const int lato : {-1, 0, 199, 10'001}) {
    EXPECT_EQ(con([&](Foglio& f) { f.Larghezza = lato; }), "La larghezza dev'essere tra 20 e 1000 mm.")
        << lato;
    EXPECT_EQ(con([&](Foglio& f) { f.Altezza = lato; }), "L'altezza dev'essere tra 20 e 1000 mm.") << lato;
  }
  for (const int lato : {200, 10'000}) {
    EXPECT_EQ(con([&](Foglio& f) { f.Larghezza = lato; }), "") << lato;
    EXPECT_EQ(con([&](Foglio& f) { f.Altezza = lato; }), "") << lato;
  }
  for (const int linee : {-1, 0, 25})
    EXPECT_EQ(con([&](Foglio& f) { f.LineePerPollice = linee; }),
              "Le linee per pollice devono essere tra 1 e 24.");
  for (std::size_t m = 0; m < NumMargini; ++m) {
    EXPECT_EQ(con([&](Foglio& f) { f.Margini[m] = -1; }), "I margini devono essere numeri.");
    EXPECT_EQ(con([&](Foglio& f) { f.Margini[m] = 9999; }), "Tra i margini non resta spazio.");
  }
}

TEST(Foglio, NeedsRoomForAColumnsEdgeAndAWholeLineBetweenItsMargins) {
  Foglio foglio = FoglioDi(Carta::Personalizzata);
  foglio.Margini = {1000, 1100, 0, 0};
  EXPECT_EQ(DifettoDi(foglio), "Tra i margini non resta spazio.");
  foglio.Margini = {1000, 1099, 0, 2970 - 43};  // a line is 42.33 tenths high
  EXPECT_EQ(DifettoDi(foglio), std::nullopt);
  foglio.Margini[3] = 2970 - 42;
  EXPECT_EQ(DifettoDi(foglio), "Tra i margini non resta spazio.");
}

TEST(Millimetri, AreReadWithACommaOrAPointAndOneDigitBehindIt) {
  EXPECT_EQ(LeggiMillimetri("210"), 2100);
  EXPECT_EQ(LeggiMillimetri("279,4"), 2794);
  EXPECT_EQ(LeggiMillimetri("279.4"), 2794);
  EXPECT_EQ(LeggiMillimetri("0"), 0);
  EXPECT_EQ(LeggiMillimetri("007,0"), 70);
  EXPECT_EQ(LeggiMillimetri("10000"), 100'000);
}

TEST(Millimetri, AreNothingElse) {
  for (const char* testo : {"", ",", "5,", ",5", "1,25", "1,2,3", "-1", "+1", " 1", "1 ", "a", "10001",
                            "99999999999999999999", "1,-1"})
    EXPECT_EQ(LeggiMillimetri(testo), std::nullopt) << testo;
}

TEST(Millimetri, AreWrittenAsTheyAreRead) {
  EXPECT_EQ(InMillimetri(0), "0");
  EXPECT_EQ(InMillimetri(5), "0,5");
  EXPECT_EQ(InMillimetri(2100), "210");
  EXPECT_EQ(InMillimetri(2794), "279,4");
  for (const int decimi : {0, 1, 10, 127, 10'000}) EXPECT_EQ(LeggiMillimetri(InMillimetri(decimi)), decimi);
}

TEST(Pagine, AreAsManyAsAreBegun) {
  const PaginaFoglio pagina{.Colonne = 80, .Righe = 66};
  EXPECT_EQ(Pagine(0, pagina), 0U);
  EXPECT_EQ(Pagine(1, pagina), 1U);
  EXPECT_EQ(Pagine(66, pagina), 1U);
  EXPECT_EQ(Pagine(67, pagina), 2U);
}

}  // namespace
}  // namespace parvik
