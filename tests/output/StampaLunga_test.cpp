// Runs that write, or read, more than anybody wants.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "output/CatalogoDiProva.h"

namespace parvik::prova {
namespace {

/// Takes every line, and says no to the n-th question whether to go on, or when it has had enough.
class UscitaCheRisponde final : public UscitaRighe {
 public:
  explicit UscitaCheRisponde(std::size_t ultimaDomanda, std::size_t abbastanza = SenzaFine)
      : ultima_(ultimaDomanda), abbastanza_(abbastanza) {}
  bool Righe(std::string_view righe) override {
    Scritti += righe.size();
    PezzoMassimo = std::max(PezzoMassimo, righe.size());
    RigaFinita = righe.ends_with("\r\n");
    return Scritti < abbastanza_;
  }
  bool Continua() override { return ++Domande < ultima_; }

  static constexpr std::size_t SenzaFine = std::numeric_limits<std::size_t>::max();
  std::size_t Domande = 0;
  std::size_t Scritti = 0;
  std::size_t PezzoMassimo = 0;
  bool RigaFinita = true;

 private:
  std::size_t ultima_;
  std::size_t abbastanza_;
};

constexpr std::size_t SenzaFine = UscitaCheRisponde::SenzaFine;

bool StampaCon(UscitaRighe& uscita, std::string_view corpo, std::int16_t volte = 1) {
  const FlagPerStampe flag = FlagDi({{.Numero = 1}});
  const DatiStampa dati{
      .Testi = {"", corpo, ""}, .NumSezioni = 3, .RigheCorpo = volte, .LineeCorpo = 1, .Flag = flag};
  return static_cast<bool>(GeneraStampa(dati, TipoStampa::File, uscita));
}

std::string Ripetuto(std::string_view testo, std::size_t volte) {
  std::string tutto;
  for (std::size_t i = 0; i < volte; ++i) tutto += testo;
  return tutto;
}

const std::string UnMilione =
    "\xAB"
    "L1;1000000\xBB";

TEST(StampaLunga, HandsALongLineOutInPieces) {
  UscitaCheRisponde uscita(SenzaFine);
  EXPECT_TRUE(StampaCon(uscita, "a\r\n" + Ripetuto(UnMilione, 10) + "\r\n", 2));
  EXPECT_EQ(uscita.Scritti, 2 * (3 + 10'000'002U));
  EXPECT_LE(uscita.PezzoMassimo, 3 * PassoStampa);
  EXPECT_TRUE(uscita.RigaFinita);
}

TEST(StampaLunga, HandsALongTextOutInPieces) {
  UscitaCheRisponde uscita(SenzaFine);
  EXPECT_TRUE(StampaCon(uscita, std::string(10'000'000, 'x') + "\r"));
  EXPECT_EQ(uscita.Scritti, 10'000'002U);
  EXPECT_LE(uscita.PezzoMassimo, 3 * PassoStampa);
  EXPECT_TRUE(uscita.RigaFinita);
}

/// A line end inside a code, or behind one that is never closed, ends no line.
TEST(StampaLunga, HandsNothingOutOfALongLineThatDoesNotEnd) {
  for (const std::string_view coda : {"", "\xAB\r\n", "\xAB\r\n\xBB", "\xAB\xBB\xAB\r\n\xAB"}) {
    UscitaCheRisponde uscita(SenzaFine);
    EXPECT_TRUE(StampaCon(uscita, "a\r\n" + Ripetuto(UnMilione, 10) + std::string(coda)));
    EXPECT_EQ(uscita.Scritti, 3U);
    EXPECT_GE(uscita.Domande, 10'000'000 / PassoStampa);
  }
}

TEST(StampaLunga, AsksOnWhileCodesYieldNothing) {
  UscitaCheRisponde uscita(SenzaFine);
  EXPECT_TRUE(StampaCon(uscita, Ripetuto("\xAB"
                                         "F1N\xBB",
                                         1'000'000)));
  EXPECT_EQ(uscita.Scritti, 0U);
  EXPECT_GE(uscita.Domande, 4'000'000 / PassoStampa);
}

TEST(StampaLunga, AsksOnWhileCodesAreSwallowed) {
  UscitaCheRisponde uscita(SenzaFine);
  EXPECT_TRUE(StampaCon(uscita, "\xAB" + std::string(100'000, 'x'), 100));
  EXPECT_EQ(uscita.Domande, 100U);
}

TEST(StampaLunga, DoesNotAskOnAboutShortRuns) {
  UscitaCheRisponde uscita(SenzaFine);
  EXPECT_TRUE(StampaCon(uscita,
                        "a\xAB"
                        "L1;100\xBB"
                        "b\r\n",
                        100));
  EXPECT_EQ(uscita.Domande, 0U);
}

/// The flag of the body hides the first code of the next repetition, so that the first and the second differ.
TEST(StampaLunga, RepeatsABodyAsOftenAsThereAreRows) {
  const std::string corpo =
      "\xAB"
      "P1\xBB"
      "a\xAB"
      "F1N\xBB\r\n";
  Raccolta uscita;
  EXPECT_TRUE(StampaCon(uscita, corpo, 32'767));
  EXPECT_TRUE(uscita.Testo == "1a\r\n" + Ripetuto("a\r\n", 32'766));
}

TEST(StampaLunga, CanBeEndedBetweenTheRepetitionsOfABody) {
  UscitaCheRisponde uscita(SenzaFine, PassoStampa);
  EXPECT_FALSE(StampaCon(uscita, "una riga\r\n", 32'767));
  EXPECT_LE(uscita.Scritti, 2 * PassoStampa);
  UscitaCheRisponde smette(1);
  EXPECT_FALSE(StampaCon(smette, "una riga\r\n", 32'767));
  EXPECT_EQ(smette.Scritti, 0U);
}

/// 100,000 codes of a million characters each: the line would take 100 GB.
TEST(StampaLunga, EndsWithinALineThatTheOutputDoesNotWant) {
  UscitaCheRisponde uscita(SenzaFine, 1'000'000);
  EXPECT_FALSE(StampaCon(uscita, Ripetuto(UnMilione, 100'000) + "\r\n"));
  EXPECT_LE(uscita.Scritti, 1'000'000 + 3 * PassoStampa);
}

TEST(StampaLunga, EndsWithinALineThatNeverEnds) {
  UscitaCheRisponde uscita(20);
  EXPECT_FALSE(StampaCon(uscita, Ripetuto(UnMilione, 100'000)));
  EXPECT_EQ(uscita.Domande, 20U);
  EXPECT_EQ(uscita.Scritti, 0U);
}

TEST(StampaLunga, HandsNoLinesOutAfterItWasEnded) {
  UscitaCheRisponde uscita(1);
  EXPECT_FALSE(StampaCon(uscita, "a whole line\r\n" + UnMilione + "\r\n"));
  EXPECT_EQ(uscita.Scritti, 0U);
}

}  // namespace
}  // namespace parvik::prova
