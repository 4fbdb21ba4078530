#include "editor/Disposizione.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <ostream>
#include <vector>

#include "supporto/NomeSezione.h"

namespace parvik {

// How GoogleTest writes a place.
static void PrintTo(const Rettangolo& r, std::ostream* flusso) {
  *flusso << "left " << r.Sinistra << ", top " << r.Alto << ", " << r.Larghezza << " x " << r.Altezza;
}

namespace prova {
namespace {

// As designed: sections 375 twips from the left edge, labels 60.
Finestra DiDimensioni(int larghezza, int altezza) {
  Finestra finestra;
  finestra.Larghezza = larghezza;
  finestra.Altezza = altezza;
  finestra.SinistraSezioni = 375;
  finestra.SinistraEtichette = 60;
  return finestra;
}

TEST(Disponi, GivesTheWholeWindowLessTheMarginToASingleSection) {
  const Disposizione d = Disponi(DiDimensioni(9375, 6001));
  EXPECT_EQ((Rettangolo{375, 0, 9000, 6001}), d.Sezioni[0]);
  EXPECT_EQ(std::nullopt, d.Sezioni[1]);
  EXPECT_EQ(std::nullopt, d.Sezioni[2]);
  for (const auto& etichetta : d.Etichette) EXPECT_EQ(std::nullopt, etichetta);
  EXPECT_EQ(std::nullopt, d.StatoAnteprima);
  EXPECT_EQ(std::nullopt, d.Anteprima);
}

TEST(Disponi, GivesTheLeftHalfToASingleSectionAndTheRightOneToThePreview) {
  Finestra finestra = DiDimensioni(9375, 6001);
  finestra.Anteprima = true;
  const Disposizione d = Disponi(finestra);
  EXPECT_EQ((Rettangolo{375, 0, 4500, 6001}), d.Sezioni[0]);
  EXPECT_EQ((Rettangolo{4875, 0, 4500, 255}), d.StatoAnteprima);
  EXPECT_EQ((Rettangolo{4875, 255, 75, 5746}), d.Presa);
  EXPECT_EQ((Rettangolo{4950, 255, 4425, 5746}), d.Anteprima);
}

TEST(Disponi, StacksThreeSectionsOneTwipApartWithTheirLabelsBesideThem) {
  Finestra finestra = DiDimensioni(9375, 6000);
  finestra.TreSezioni = true;
  const Disposizione d = Disponi(finestra);
  EXPECT_EQ((Rettangolo{375, 0, 9000, 2000}), d.Sezioni[0]);
  EXPECT_EQ((Rettangolo{375, 2001, 9000, 2000}), d.Sezioni[1]);
  EXPECT_EQ((Rettangolo{375, 4002, 9000, 2000}), d.Sezioni[2]);
  EXPECT_EQ((Rettangolo{60, 0, 0, 0}), d.Etichette[0]);
  EXPECT_EQ((Rettangolo{60, 2001, 0, 0}), d.Etichette[1]);
  EXPECT_EQ((Rettangolo{60, 4002, 0, 0}), d.Etichette[2]);
  EXPECT_EQ(std::nullopt, d.StatoAnteprima);
  EXPECT_EQ(std::nullopt, d.Anteprima);
}

TEST(Disponi, RoundsAThirdOfTheHeight) {
  struct Caso {
    int Altezza;
    int Terzo;
  };
  for (const Caso caso :
       {Caso{6000, 2000}, Caso{6001, 2000}, Caso{6002, 2001}, Caso{1, 0}, Caso{2, 1}, Caso{0, 0}}) {
    Finestra finestra = DiDimensioni(9375, caso.Altezza);
    finestra.TreSezioni = true;
    const Disposizione d = Disponi(finestra);
    EXPECT_EQ((Rettangolo{375, 0, 9000, caso.Terzo}), d.Sezioni[0]);
    EXPECT_EQ((Rettangolo{375, caso.Terzo + 1, 9000, caso.Terzo}), d.Sezioni[1]);
    EXPECT_EQ((Rettangolo{375, 2 * caso.Terzo + 2, 9000, caso.Terzo}), d.Sezioni[2]);
  }
}

TEST(Disponi, RoundsHalfOfTheWidthToTheEvenNumber) {
  struct Caso {
    int Larghezza;  // less the margin
    int Meta;
  };
  for (const Caso caso : {Caso{9000, 4500}, Caso{9001, 4500}, Caso{9003, 4502}, Caso{1, 0}, Caso{3, 2}}) {
    Finestra finestra = DiDimensioni(375 + caso.Larghezza, 6000);
    finestra.TreSezioni = true;
    finestra.Anteprima = true;
    const Disposizione d = Disponi(finestra);
    for (const auto& sezione : d.Sezioni) EXPECT_EQ(caso.Meta, sezione->Larghezza) << caso.Larghezza;
    EXPECT_EQ((Rettangolo{375 + caso.Meta, 0, caso.Meta, 255}), d.StatoAnteprima);
    const int presa = std::min(75, caso.Meta);
    EXPECT_EQ((Rettangolo{375 + caso.Meta, 255, presa, 5745}), d.Presa);
    EXPECT_EQ((Rettangolo{375 + caso.Meta + presa, 255, caso.Meta - presa, 5745}), d.Anteprima);
  }
}

TEST(Disponi, GivesNoWidthInAMinimisedWindow) {
  for (const bool anteprima : {false, true}) {
    Finestra finestra = DiDimensioni(0, 0);
    finestra.Anteprima = anteprima;
    EXPECT_EQ((Rettangolo{375, 0, 0, 0}), Disponi(finestra).Sezioni[0]);
  }
}

TEST(Disponi, NeverGivesANegativeSize) {
  Finestra finestra = DiDimensioni(100, 100);
  finestra.TreSezioni = true;
  finestra.Anteprima = true;
  const Disposizione d = Disponi(finestra);
  EXPECT_EQ((Rettangolo{375, 0, 0, 33}), d.Sezioni[0]);
  EXPECT_EQ((Rettangolo{375, 0, 0, 255}), d.StatoAnteprima);
  EXPECT_EQ((Rettangolo{375, 255, 0, 0}), d.Anteprima);
}

Finestra ConAnteprima(int larghezza) {
  Finestra finestra = DiDimensioni(larghezza, 6000);
  finestra.Anteprima = true;
  return finestra;
}

TEST(Disponi, ADraggedBoundaryMovesBothColumnsAndLeavesThePreviewsRightEdge) {
  Finestra finestra = ConAnteprima(9375);
  finestra.TreSezioni = true;
  finestra.Divisore = 3000;
  const Disposizione d = Disponi(finestra);
  EXPECT_EQ((Rettangolo{375, 0, 2550, 2000}), d.Sezioni[0]);
  EXPECT_EQ((Rettangolo{375, 2001, 2550, 2000}), d.Sezioni[1]);
  EXPECT_EQ((Rettangolo{375, 4002, 2550, 2000}), d.Sezioni[2]);
  EXPECT_EQ((Rettangolo{60, 2001, 0, 0}), d.Etichette[1]);
  EXPECT_EQ((Rettangolo{2925, 0, 6450, 255}), d.StatoAnteprima);
  EXPECT_EQ((Rettangolo{3000, 255, 6375, 5745}), d.Anteprima);
}

TEST(Disponi, WithoutAPreviewThereIsNoBoundary) {
  Finestra finestra = DiDimensioni(9375, 6001);
  const Disposizione prima = Disponi(finestra);
  finestra.Divisore = 3000;
  EXPECT_EQ(prima, Disponi(finestra));
}

TEST(StatoArea, HasNoSectionWithoutATypeOneByItselfAndThreeWithExactlyThree) {
  const auto inUso = [](std::optional<std::int16_t> numSezioni) {
    const StatoArea stato{.NumSezioni = numSezioni};
    std::vector<Sezione> quali;
    for (const Sezione sezione : TutteLeSezioni)
      if (stato.InUso(sezione)) quali.push_back(sezione);
    return quali;
  };
  EXPECT_EQ(inUso(std::nullopt), std::vector<Sezione>());
  for (const std::int16_t una : std::to_array<std::int16_t>({0, 1, 2, 4}))
    EXPECT_EQ(inUso(una), std::vector{Sezione::Testata}) << una;
  EXPECT_EQ(inUso(3), std::vector(TutteLeSezioni.begin(), TutteLeSezioni.end()));
}

TEST(DivisoreAmmesso, LeavesEachColumnAHundredAndTwentyPixels) {
  const Finestra finestra = ConAnteprima(15375);
  for (const int posto : {450 + 1800, 7000, 15375 - 1800}) EXPECT_EQ(DivisoreAmmesso(finestra, posto), posto);
  for (const int posto : {450 + 1799, 0, -90'000}) EXPECT_EQ(DivisoreAmmesso(finestra, posto), 450 + 1800);
  for (const int posto : {15375 - 1799, 90'000}) EXPECT_EQ(DivisoreAmmesso(finestra, posto), 15375 - 1800);
}

TEST(DivisoreAmmesso, LeavesEachColumnAQuarterOfANarrowWindow) {
  const Finestra finestra = ConAnteprima(4000);
  EXPECT_EQ(DivisoreAmmesso(finestra, 450 + 999), 450 + 1000);
  EXPECT_EQ(DivisoreAmmesso(finestra, 450 + 1000), 450 + 1000);
  EXPECT_EQ(DivisoreAmmesso(finestra, 4000 - 1000), 4000 - 1000);
  EXPECT_EQ(DivisoreAmmesso(finestra, 4000 - 999), 4000 - 1000);
}

TEST(DivisoreAmmesso, IsNowhereInAWindowThatHoldsNoTwoSuchColumns) {
  EXPECT_EQ(DivisoreAmmesso(ConAnteprima(900), 675), 675);
  EXPECT_EQ(DivisoreAmmesso(ConAnteprima(890), 667), std::nullopt);
}

}  // namespace
}  // namespace prova
}  // namespace parvik
