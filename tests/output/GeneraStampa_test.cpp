#include "output/GeneraStampa.h"

#include <gtest/gtest.h>

#include "output/CatalogoDiProva.h"

namespace parvik::prova {
namespace {

struct Prova {
  std::string_view Testata = "";
  std::string_view Corpo = "";
  std::string_view Piede = "";
  std::int16_t NumSezioni = 3;
  std::int16_t RigheCorpo = 1;
  std::int16_t LineeCorpo = 1;
};

std::string Stampa(const Prova& prova, TipoStampa destinazione = TipoStampa::File) {
  const FlagPerStampe flag = FlagDi({{.Numero = 1}, {.Numero = 2}});
  Raccolta raccolta;
  EXPECT_TRUE(GeneraStampa({.Testi = {prova.Testata, prova.Corpo, prova.Piede},
                            .NumSezioni = prova.NumSezioni,
                            .RigheCorpo = prova.RigheCorpo,
                            .LineeCorpo = prova.LineeCorpo,
                            .Flag = flag},
                           destinazione, raccolta));
  return raccolta.Testo;
}

TEST(GeneraStampa, WritesTheSectionsOneAfterTheOther) {
  EXPECT_EQ(Stampa({.Testata = "t\r\n", .Corpo = "c\r\n", .Piede = "p\r\n"}), "t\r\nc\r\np\r\n");
}

TEST(GeneraStampa, GivesNothingForASectionThatIsOneEmptyLine) {
  EXPECT_EQ(Stampa({.Testata = "\r\n", .Corpo = "\r\n", .Piede = "\r\n", .RigheCorpo = 5}), "");
  EXPECT_EQ(Stampa({.Testata = "\r\n\r\n", .Piede = "\r\n"}), "\r\n\r\n");
}

TEST(GeneraStampa, GivesNothingForAnEmptySection) {
  EXPECT_EQ(Stampa({}), "");
}

TEST(GeneraStampa, DropsALastLineWithoutItsEnd) {
  EXPECT_EQ(Stampa({.Testata = "a\r\nb", .Corpo = "c", .Piede = "\r\nd"}), "a\r\n\r\n");
}

TEST(GeneraStampa, ForgetsADroppedLineBeforeTheNextSection) {
  EXPECT_EQ(Stampa({.Testata = "a", .Corpo = "b\r\nc", .RigheCorpo = 2}), "b\r\nb\r\n");
}

TEST(GeneraStampa, RendersTheTestataAloneForATypeOfOneSection) {
  EXPECT_EQ(Stampa({.Testata = "t\r\n", .Corpo = "c\r\n", .Piede = "p\r\n", .NumSezioni = 1}), "t\r\n");
}

TEST(GeneraStampa, RendersAsManySectionsAsTheTypeHasButNeverMoreThanThree) {
  EXPECT_EQ(Stampa({.Testata = "t\r\n", .Corpo = "c\r\n", .Piede = "p\r\n", .NumSezioni = 2}), "t\r\nc\r\n");
  EXPECT_EQ(Stampa({.Testata = "t\r\n", .Corpo = "c\r\n", .Piede = "p\r\n", .NumSezioni = 9}),
            "t\r\nc\r\np\r\n");
  EXPECT_EQ(Stampa({.Testata = "t\r\n", .Corpo = "c\r\n", .Piede = "p\r\n", .NumSezioni = 0}), "");
  EXPECT_EQ(Stampa({.Testata = "t\r\n", .Corpo = "c\r\n", .Piede = "p\r\n", .NumSezioni = -3}), "");
}

TEST(GeneraStampa, RepeatsTheCorpoAsOftenAsItFitsIntoItsRows) {
  EXPECT_EQ(
      Stampa({.Testata = "t\r\n", .Corpo = "c\r\nd\r\n", .Piede = "p\r\n", .RigheCorpo = 7, .LineeCorpo = 2}),
      "t\r\nc\r\nd\r\nc\r\nd\r\nc\r\nd\r\np\r\n");
}

TEST(GeneraStampa, DoesNotRenderACorpoThatDoesNotFit) {
  EXPECT_EQ(Stampa({.Testata = "t\r\n", .Corpo = "c\r\n", .RigheCorpo = 1, .LineeCorpo = 2}), "t\r\n");
  EXPECT_EQ(Stampa({.Testata = "t\r\n", .Corpo = "c\r\n", .RigheCorpo = 0, .LineeCorpo = 2}), "t\r\n");
  EXPECT_EQ(Stampa({.Testata = "t\r\n", .Corpo = "c\r\n", .RigheCorpo = -4, .LineeCorpo = 2}), "t\r\n");
}

TEST(GeneraStampa, DoesNotRenderACorpoWithoutLines) {
  EXPECT_EQ(Stampa({.Testata = "t\r\n", .Corpo = "c\r\n", .RigheCorpo = 23, .LineeCorpo = 0}), "t\r\n");
  EXPECT_EQ(Stampa({.Testata = "t\r\n", .Corpo = "c\r\n", .RigheCorpo = 23, .LineeCorpo = -1}), "t\r\n");
  EXPECT_EQ(Stampa({.Testata = "t\r\n", .Corpo = "c\r\n", .RigheCorpo = -23, .LineeCorpo = -1}), "t\r\n");
}

TEST(GeneraStampa, CarriesAFlagIntoTheNextRepetitionAndTheNextSection) {
  const std::string corpo =
      "\xAB"
      "P1\xBB"
      "\xAB"
      "F1N\xBB"
      "\r\n";
  EXPECT_EQ(Stampa({.Corpo = corpo,
                    .Piede = "\xAB"
                             "P2\xBB"
                             "\xAB"
                             "P3\xBB"
                             "\r\n",
                    .RigheCorpo = 2}),
            "1\r\n\r\n3\r\n");
}

TEST(GeneraStampa, CarriesTheTextForUnknownCodesThroughTheWholeRun) {
  EXPECT_EQ(Stampa({.Testata = "\xAB"
                               "P7\xBB"
                               "\r\n",
                    .Corpo = "\xAB"
                             "X\xBB"
                             "\r\n",
                    .Piede = "\xAB"
                             "\xBB"
                             "\r\n"}),
            "7\r\n7\r\n7\r\n");
}

TEST(GeneraStampa, LetsACodeRunAcrossALineEnd) {
  EXPECT_EQ(Stampa({.Testata = "a\xAB"
                               "V0;\"x\r\ny\"\xBB"
                               "b\r\n"}),
            "ax\r\nyb\r\n");
  EXPECT_EQ(Stampa({.Testata = "a\xAB"
                               "L1;\r\n2\xBB"
                               "b\r\n"}),
            "ab\r\n");
}

TEST(GeneraStampa, LosesTheRestOfASectionAfterAnUnclosedCode) {
  EXPECT_EQ(Stampa({.Testata = "a\r\nb\xAB"
                               "P1\r\nc\r\n",
                    .Corpo = "d\r\n"}),
            "a\r\nd\r\n");
}

TEST(GeneraStampa, DoesNotEvaluateAnUnclosedCode) {
  EXPECT_EQ(Stampa({.Testata = "\xAB"
                               "P7\xBB"
                               "\r\n\xAB"
                               "F1N",
                    .Corpo = "\xAB"
                             "X\xBB"
                             "\r\n"}),
            "7\r\n7\r\n");
}

TEST(GeneraStampa, TakesAnOpeningDelimiterInsideACodeForContent) {
  EXPECT_EQ(Stampa({.Testata = "\xAB"
                               "P1\xAB"
                               "2\xBB"
                               "\r\n"}),
            "1\xAB"
            "2\r\n");
}

TEST(GeneraStampa, TakesAClosingDelimiterOutsideACodeForText) {
  EXPECT_EQ(Stampa({.Testata = "a\xBB"
                               "b\r\n"}),
            "a\xBB"
            "b\r\n");
}

TEST(GeneraStampa, EndsALineAtEveryCarriageReturn) {
  EXPECT_EQ(Stampa({.Testata = "a\rb\r\nc\r\r\n"}), "a\r\nb\r\nc\r\n\r\n");
}

TEST(GeneraStampa, LeavesALoneLineFeedInItsLine) {
  EXPECT_EQ(Stampa({.Testata = "a\nb\r\n\n\r\n"}), "a\nb\r\n\n\r\n");
}

TEST(GeneraStampa, PassesEveryOtherByteThrough) {
  std::string tutti;
  for (int v = 0; v < 256; ++v) tutti += static_cast<char>(static_cast<unsigned char>(v));
  std::erase_if(tutti, [](char c) { return c == '\r' || c == '\xAB'; });
  EXPECT_EQ(Stampa({.Testata = tutti + "\r\n"}), tutti + "\r\n");
}

TEST(GeneraStampa, NeverLetsAStyleMarkerReachFileOrPrinter) {
  const Prova prova = {.Testata =
                           "a\xAB"
                           "S;GRASSETTO\xBB"
                           "b\xAB"
                           "S;NORMALE\xBB"
                           "c\r\n"};
  EXPECT_EQ(Stampa(prova, TipoStampa::File), "abc\r\n");
  EXPECT_EQ(Stampa(prova, TipoStampa::Ausiliario), "abc\r\n");
  EXPECT_EQ(Stampa(prova, TipoStampa::Anteprima), "aS;GRbS;NOc\r\n");
}

TEST(GeneraStampa, LeavesLiteralTextThatLooksLikeAMarkerInTheFile) {
  EXPECT_EQ(Stampa({.Testata = "S;GRx\r\n"}), "S;GRx\r\n");
}

/// Ends the run after as many pieces as it was told.
class UscitaCheSiStanca final : public UscitaRighe {
 public:
  explicit UscitaCheSiStanca(int pezzi) : rimasti_(pezzi) {}
  bool Righe(std::string_view righe) override {
    Testo += righe;
    return --rimasti_ > 0;
  }
  std::string Testo;

 private:
  int rimasti_;
};

TEST(GeneraStampa, EndsWhereTheOutputEndsIt) {
  const FlagPerStampe flag = FlagDi({{.Numero = 1}});
  const std::string riga = std::string(50'000, 'x') + "\r\n";
  const std::string molte = riga + riga + riga;
  UscitaCheSiStanca uscita(1);
  EXPECT_FALSE(GeneraStampa(
      {.Testi = {molte, molte, molte}, .NumSezioni = 3, .RigheCorpo = 9, .LineeCorpo = 3, .Flag = flag},
      TipoStampa::File, uscita));
  EXPECT_EQ(uscita.Testo, riga + riga);
}

TEST(GeneraStampa, CallsNoOutputForNothing) {
  const FlagPerStampe flag = FlagDi({{.Numero = 1}});
  UscitaCheSiStanca uscita(0);
  EXPECT_TRUE(GeneraStampa(
      {.Testi = {"\r\n", "", "x"}, .NumSezioni = 3, .RigheCorpo = 1, .LineeCorpo = 1, .Flag = flag},
      TipoStampa::File, uscita));
  EXPECT_EQ(uscita.Testo, "");
}

}  // namespace
}  // namespace parvik::prova
