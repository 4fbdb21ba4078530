#include "tokens/TrovaVoce.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "supporto/ConNome.h"
#include "tokens/Generatori.h"

namespace parvik::prova {
namespace {

constexpr std::array<std::string_view, 4> Quattro = {"Numero fattura", "Data fattura", "Totale", "Note"};

TEST(TrovaVoce, TakesTheFirstEntryAfterTheSelectedOne) {
  EXPECT_EQ(TrovaVoce(Quattro, 0, "fattura"), 1U);
  EXPECT_EQ(TrovaVoce(Quattro, 0, "t"), 1U);
  EXPECT_EQ(TrovaVoce(Quattro, 1, "t"), 2U);
}

TEST(TrovaVoce, GoesOnFromTheFirstEntryPastTheEnd) {
  EXPECT_EQ(TrovaVoce(Quattro, 2, "fattura"), 0U);
}

TEST(TrovaVoce, WrapsWhenTheLastEntryIsSelected) {
  EXPECT_EQ(TrovaVoce(Quattro, 3, "Totale"), 2U);
  EXPECT_EQ(TrovaVoce(Quattro, 3, "Numero"), 0U);
}

TEST(TrovaVoce, TestsTheSelectedEntryLast) {
  EXPECT_EQ(TrovaVoce(Quattro, 1, "fattura"), 0U);
  EXPECT_EQ(TrovaVoce(Quattro, 1, "Data"), 1U);
  EXPECT_EQ(TrovaVoce(Quattro, 3, "Note"), 3U);
}

TEST(TrovaVoce, FindsNothingWhereNoEntryHasTheText) {
  EXPECT_EQ(TrovaVoce(Quattro, 0, "sconto"), std::nullopt);
  EXPECT_EQ(TrovaVoce(Quattro, 3, "Totale fattura"), std::nullopt);
  EXPECT_EQ(TrovaVoce({}, 0, "Totale"), std::nullopt);
}

TEST(TrovaVoce, TreatsSpacesAsText) {
  EXPECT_EQ(TrovaVoce(Quattro, 0, "a f"), 1U);
  EXPECT_EQ(TrovaVoce(Quattro, 0, " Totale"), std::nullopt);
}

struct Caso {
  const char* Nome;
  std::string_view Voce;
  std::string_view Cercato;
  bool Trovata;
};
using prova::PrintTo;

class SenzaBadareAlleMaiuscole : public testing::TestWithParam<Caso> {};

TEST_P(SenzaBadareAlleMaiuscole, ComparesSmallLetters) {
  const std::array<std::string_view, 1> voci = {GetParam().Voce};
  EXPECT_EQ(TrovaVoce(voci, 0, GetParam().Cercato).has_value(), GetParam().Trovata);
}

INSTANTIATE_TEST_SUITE_P(TrovaVoce, SenzaBadareAlleMaiuscole,
                         testing::Values(Caso{"capitals_sought", "partita iva", "PARTITA IVA", true},
                                         Caso{"capitals_listed", "PARTITA IVA", "partita", true},
                                         Caso{"the_ends_of_the_alphabet", "AZ", "az", true},
                                         Caso{"beside_the_alphabet", "@[", "`{", false},
                                         Caso{"an_accented_capital", "QUANTIT\xC0", "quantit\xE0", true},
                                         Caso{"an_accented_capital_sought", "unit\xE0", "UNIT\xC0", true},
                                         Caso{"the_last_accented_capital", "\xDE", "\xFE", true},
                                         Caso{"multiplied_is_not_divided", "\xD7", "\xF7", false},
                                         Caso{"sharp_s_has_no_capital", "\xDF", "\xFF", false},
                                         Caso{"s_with_caron", "\x8A", "\x9A", true},
                                         Caso{"ligature_oe", "\x8C", "\x9C", true},
                                         Caso{"z_with_caron", "\x8E", "\x9E", true},
                                         Caso{"y_with_diaeresis", "\x9F", "\xFF", true},
                                         Caso{"an_accent_is_a_difference", "quantit\xE0", "quantita", false}),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(TrovaVoce, LooksAtEveryEntryInTheOrderOfTheList) {
  EXPECT_TRUE(rc::check([] {
    const auto testi = *rc::gen::nonEmpty(rc::gen::container<std::vector<std::string>>(
        rc::gen::container<std::string>(rc::gen::element('a', 'b'))));
    const std::vector<std::string_view> voci(testi.begin(), testi.end());
    const auto selezionata = *rc::gen::inRange<std::size_t>(0, voci.size());
    const auto cercato = *rc::gen::container<std::string>(rc::gen::element('a', 'b'));
    std::vector<std::size_t> ordine;
    for (std::size_t i = selezionata + 1; i < voci.size(); ++i) ordine.push_back(i);
    for (std::size_t i = 0; i <= selezionata; ++i) ordine.push_back(i);
    const auto prima = std::ranges::find_if(
        ordine, [&](std::size_t voce) { return voci[voce].find(cercato) != std::string_view::npos; });
    const auto trovata = TrovaVoce(voci, selezionata, cercato);
    RC_ASSERT(trovata.has_value() == (prima != ordine.end()));
    if (trovata) RC_ASSERT(*trovata == *prima);
  }));
}

constexpr std::array Numeri = {10, 105, 5, 1050};

TEST(TrovaNumero, PrefersTheVeryNumberToOneThatHasItAsAPart) {
  EXPECT_EQ(TrovaNumero(Numeri, 0, "105"), 1U);
  EXPECT_EQ(TrovaNumero(Numeri, 1, "105"), 1U) << "and not the next one, 1050";
  EXPECT_EQ(TrovaNumero(Numeri, 0, "V5"), 2U);
}

TEST(TrovaNumero, GoesOnFromTheSelectedOneAroundTheEnd) {
  EXPECT_EQ(TrovaNumero(Numeri, 0, "50"), 3U);
  EXPECT_EQ(TrovaNumero(Numeri, 3, "0"), 0U);
}

TEST(TrovaNumero, FindsNothingByWordsThatAreNoNumber) {
  for (const char* cercato : {"", " ", "cliente", "105 cliente", "7", "f105"})
    EXPECT_EQ(TrovaNumero(Numeri, 0, cercato), std::nullopt) << cercato;
  EXPECT_EQ(TrovaNumero({}, 0, "1"), std::nullopt);
}

TEST(SiTrova, IsWhatOneOfTheTwoSearchesCouldComeTo) {
  EXPECT_TRUE(SiTrova("Ragione sociale", 15, "SOCIALE"));
  EXPECT_TRUE(SiTrova("Ragione sociale", 15, "v15"));
  EXPECT_TRUE(SiTrova("Ragione sociale", 15, " "));
  EXPECT_FALSE(SiTrova("Sconto", 15, " "));
  EXPECT_FALSE(SiTrova("Ragione sociale", 15, "sociale ragione"));
  EXPECT_FALSE(SiTrova("Ragione sociale", 15, "16"));
}

}  // namespace
}  // namespace parvik::prova
