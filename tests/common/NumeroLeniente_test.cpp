#include "common/NumeroLeniente.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <limits>
#include <optional>
#include <string>

#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

constexpr double Infinito = std::numeric_limits<double>::infinity();

struct CasoNumero {
  const char* Nome;
  std::string Testo;
  double Atteso;
};
using prova::PrintTo;

class NumeroLenienteTest : public testing::TestWithParam<CasoNumero> {};

TEST_P(NumeroLenienteTest, IsTheLongestNumericPrefix) {
  EXPECT_EQ(GetParam().Atteso, NumeroLeniente(GetParam().Testo));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Casi, NumeroLenienteTest, testing::Values(
    CasoNumero{"empty", "", 0},
    CasoNumero{"spaces_only", "    ", 0},
    CasoNumero{"plain", "42", 42},
    CasoNumero{"leading_zeros", "0012", 12},
    CasoNumero{"leading_spaces", "   12", 12},
    CasoNumero{"trailing_text", "12R", 12},
    CasoNumero{"trailing_separator", "14;CS", 14},
    CasoNumero{"no_digits", "x12", 0},
    CasoNumero{"leading_tab_is_no_space", "\t12", 0},
    CasoNumero{"leading_line_feed_is_no_space", "\n12", 0},
    CasoNumero{"leading_hard_space_is_no_space", "\xA0" "12", 0},
    CasoNumero{"space_ends_the_number", "1 2", 1},
    CasoNumero{"tab_ends_the_number", "1\t2", 1},
    CasoNumero{"nul_ends_the_number", std::string("1\0002", 3), 1},
    CasoNumero{"minus", "-7", -7},
    CasoNumero{"plus", "+7", 7},
    CasoNumero{"spaces_then_minus", "  -7", -7},
    CasoNumero{"sign_alone", "-", 0},
    CasoNumero{"two_signs", "+-7", 0},
    CasoNumero{"space_after_the_sign", "- 7", 0},
    CasoNumero{"point_first", ".7", 0.7},
    CasoNumero{"minus_and_point_first", "-.5", -0.5},
    CasoNumero{"point_last", "5.", 5},
    CasoNumero{"point_alone", ".", 0},
    CasoNumero{"sign_and_point", "-.", 0},
    CasoNumero{"second_point_ends_the_number", "1.2.3", 1.2},
    CasoNumero{"two_points_first", "..5", 0},
    CasoNumero{"comma_is_no_point", "1,5", 1},
    CasoNumero{"no_exponent", "1e5", 1},
    CasoNumero{"no_other_exponent_letter", "1d5", 1},
    CasoNumero{"no_hexadecimal", "&H10", 0},
    CasoNumero{"no_octal", "&O17", 0},
    CasoNumero{"no_c_hexadecimal", "0x10", 0},
    CasoNumero{"no_infinity", "inf", 0},
    CasoNumero{"no_nan", "nan", 0},
    CasoNumero{"sixteen_digits", "9007199254740993", 9007199254740992.0},
    CasoNumero{"thousand_digits", std::string(1000, '9'), Infinito},
    CasoNumero{"minus_thousand_digits", "-" + std::string(1000, '9'), -Infinito},
    CasoNumero{"thousand_zeros_then_a_digit", std::string(1000, '0') + "7", 7},
    CasoNumero{"thousand_zeros_after_the_point", "0." + std::string(1000, '0') + "1", 0},
    CasoNumero{"point_then_thousand_zeros", "." + std::string(1000, '0') + "1", 0},
    CasoNumero{"one_and_thousand_decimals", "1." + std::string(1000, '0'), 1}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

struct CasoIntero {
  const char* Nome;
  std::string Testo;
  std::optional<int> Atteso;  // nullopt: overflow
};

class InteroLenienteTest : public testing::TestWithParam<CasoIntero> {};

TEST_P(InteroLenienteTest, RoundsHalfToEvenAndRefusesWhatSixteenBitsDoNotHold) {
  const Esito<std::int16_t> letto = InteroLeniente(GetParam().Testo);
  ASSERT_EQ(GetParam().Atteso.has_value(), static_cast<bool>(letto));
  if (letto) {
    EXPECT_EQ(*GetParam().Atteso, *letto);
  } else {
    EXPECT_EQ(NumeroErrore::Overflow, letto.Errore());
  }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Casi, InteroLenienteTest, testing::Values(
    CasoIntero{"empty", "", 0},
    CasoIntero{"text", "R", 0},
    CasoIntero{"number_and_text", "12R", 12},
    CasoIntero{"half_down_to_zero", "0.5", 0},
    CasoIntero{"half_up_to_two", "1.5", 2},
    CasoIntero{"half_down_to_two", "2.5", 2},
    CasoIntero{"half_up_to_four", "3.5", 4},
    CasoIntero{"minus_half", "-.5", 0},
    CasoIntero{"minus_one_and_a_half", "-1.5", -2},
    CasoIntero{"minus_two_and_a_half", "-2.5", -2},
    CasoIntero{"more_than_half", "2.500001", 3},
    CasoIntero{"less_than_half", "2.499999", 2},
    CasoIntero{"largest", "32767", 32767},
    CasoIntero{"largest_and_a_bit", "32767.49", 32767},
    CasoIntero{"largest_and_a_half", "32767.5", std::nullopt},
    CasoIntero{"one_too_many", "32768", std::nullopt},
    CasoIntero{"smallest", "-32768", -32768},
    CasoIntero{"smallest_and_a_half", "-32768.5", -32768},
    CasoIntero{"smallest_and_more", "-32768.51", std::nullopt},
    CasoIntero{"one_too_few", "-32769", std::nullopt},
    CasoIntero{"thousand_digits", std::string(1000, '1'), std::nullopt},
    CasoIntero{"minus_thousand_digits", "-" + std::string(1000, '1'), std::nullopt},
    CasoIntero{"thousand_zeros", std::string(1000, '0'), 0}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

struct CasoLunghezza {
  const char* Nome;
  std::string Testo;
  std::size_t Attesa;
};

class LunghezzaLenienteTest : public testing::TestWithParam<CasoLunghezza> {};

TEST_P(LunghezzaLenienteTest, IsRoundedNeverNegativeAndBounded) {
  EXPECT_EQ(GetParam().Attesa, LunghezzaLeniente(GetParam().Testo));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Casi, LunghezzaLenienteTest, testing::Values(
    CasoLunghezza{"empty", "", 0},
    CasoLunghezza{"plain", "40", 40},
    CasoLunghezza{"negative", "-3", 0},
    CasoLunghezza{"minus_half", "-.5", 0},
    CasoLunghezza{"half", "0.5", 0},
    CasoLunghezza{"half_up", "1.5", 2},
    CasoLunghezza{"half_down", "2.5", 2},
    CasoLunghezza{"number_and_text", "12R", 12},
    CasoLunghezza{"beyond_sixteen_bits", "40000", 40000},
    CasoLunghezza{"at_the_bound", "1000000", LunghezzaMassima},
    CasoLunghezza{"beyond_the_bound", "1000001", LunghezzaMassima},
    CasoLunghezza{"thousand_digits", std::string(1000, '9'), LunghezzaMassima},
    CasoLunghezza{"minus_thousand_digits", "-" + std::string(1000, '9'), 0}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

TEST(Cifra, IsOneOfTheTenAndNothingElse) {
  int cifre = 0;
  for (int valore = 0; valore < 256; ++valore) cifre += Cifra(static_cast<char>(valore)) ? 1 : 0;
  EXPECT_EQ(cifre, 10);
  for (const char c : std::string("0123456789")) EXPECT_TRUE(Cifra(c)) << c;
}

TEST(HaNumero, FindsADigitWhereTheReadingsBegin) {
  for (const char* testo : {"7", "  -7x", ".5", "+5.", "0"}) EXPECT_TRUE(HaNumero(testo)) << testo;
  for (const char* testo : {"", " ", "x7", "-", ".", "- 7", "\t7"}) EXPECT_FALSE(HaNumero(testo)) << testo;
}

TEST(EUnNumero, AcceptsNumbersWithSpacesAroundThem) {
  for (const char* testo : {"7", "  7  ", "-7", "+.5", "5.", "0012"}) EXPECT_TRUE(EUnNumero(testo)) << testo;
}

TEST(EUnNumero, RefusesWhatHasNoDigitOrGoesOnAfterTheNumber) {
  for (const char* testo : {"", "   ", "-", ".", "12R", "1 2", "1.2.3", "1e5", "\t7", "7\t"}) {
    EXPECT_FALSE(EUnNumero(testo)) << testo;
  }
}

TEST(InteroLeniente, ReadsBackEverySixteenBitNumberWhateverFollowsIt) {
  EXPECT_TRUE(
      rc::check("number, text that is no part of it", [](std::int16_t numero, const std::string& coda) {
        const Esito<std::int16_t> letto = InteroLeniente(std::to_string(numero) + ";" + coda);
        RC_ASSERT(static_cast<bool>(letto));
        RC_ASSERT(*letto == numero);
      }));
}

}  // namespace
}  // namespace parvik::prova
