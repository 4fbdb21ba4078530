// The style pass does what its rules say word for word, on soups of markers that overlap, touch and are cut.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "output/Leggibile.h"
#include "supporto/RiferimentoStili.h"

namespace parvik::prova {
namespace {

rc::Gen<std::string> Zuppa(std::vector<std::string> pezzi) {
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(std::move(pezzi))),
                      [](const std::vector<std::string>& scelti) {
                        std::string testo;
                        for (const std::string& pezzo : scelti) testo += pezzo;
                        return testo;
                      });
}

void UgualeAlRiferimento(const std::string& originale) {
  const TestoConAspetti riferimento = StiliDiRiferimento(originale);
  std::string testo = originale;
  const std::vector<Tratto> tratti = MettiStili(testo);
  RC_ASSERT(testo == riferimento.Testo);
  RC_ASSERT(AspettiPerByte(testo, tratti) == riferimento.Aspetti);
  RC_ASSERT(!testing::Test::HasFailure());
}

TEST(ProprietaStili, HoldForMarkersInText) {
  EXPECT_TRUE(rc::check([] {
    UgualeAlRiferimento(*Zuppa({"S;GR", "S;NO", "S;CO", "S;it", "S;So", "S;XY", "a", "Totale ", "\r\n"}));
  }));
}

TEST(ProprietaStili, HoldForMarkersThatOverlap) {
  EXPECT_TRUE(rc::check([] {
    UgualeAlRiferimento(*Zuppa({"S", ";", "S;", "S;G", "S;GR", "R", "IT", "SS;GR;xy", "x"}));
  }));
}

TEST(ProprietaStili, HoldForNothingButTheLettersOfMarkers) {
  EXPECT_TRUE(rc::check([] { UgualeAlRiferimento(*Zuppa({"S", ";", "O", "C"})); }));
  EXPECT_TRUE(rc::check([] { UgualeAlRiferimento(*Zuppa({"S", ";"})); }));
}

/// Every text of up to ten of the three letters that matter: S, the separator and one that is neither.
TEST(ProprietaStili, HoldForEveryShortTextOfThreeLetters) {
  constexpr std::size_t MassimaLunghezza = 9;
  constexpr std::string_view Lettere = "S;O";
  std::size_t quanti = 1;
  for (std::size_t lunghezza = 0; lunghezza <= MassimaLunghezza; ++lunghezza, quanti *= Lettere.size()) {
    for (std::size_t n = 0; n < quanti; ++n) {
      std::string testo;
      for (std::size_t resto = n; testo.size() < lunghezza; resto /= Lettere.size())
        testo += Lettere[resto % 3];
      const TestoConAspetti riferimento = StiliDiRiferimento(testo);
      std::string reso = testo;
      const std::vector<Tratto> tratti = MettiStili(reso);
      ASSERT_EQ(reso, riferimento.Testo) << testo;
      ASSERT_TRUE(AspettiPerByte(reso, tratti) == riferimento.Aspetti) << testo;
    }
  }
}

}  // namespace
}  // namespace parvik::prova
