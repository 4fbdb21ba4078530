#include <gtest/gtest.h>

#include "supporto/ConNome.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/StampaVariabile.h"

namespace parvik {
namespace {

struct Caso {
  const char* Nome;
  Variabile Formato;
  std::string_view Codice;
};
using prova::PrintTo;

class CostruzioneVariabileTest : public testing::TestWithParam<Caso> {};

TEST_P(CostruzioneVariabileTest, WritesTheGroupsInTheirOrder) {
  EXPECT_EQ(CostruisciVariabile(GetParam().Formato), GetParam().Codice);
}

// clang-format off
const Variabile Testo = {.Descrizione = "", .Intero1 = 12, .Intero2 = 30, .Testo1 = "", .Intero3 = 1, .Intero4 = 0,
                         .Intero5 = 0, .Intero6 = 0, .Intero7 = 0, .Intero8 = 0, .Testo2 = "0", .Testo3 = "0"};
const Variabile Numero = {.Descrizione = "", .Intero1 = 8, .Intero2 = 10, .Testo1 = "", .Intero3 = 0, .Intero4 = 1,
                          .Intero5 = 0, .Intero6 = 0, .Intero7 = 0, .Intero8 = 0, .Testo2 = "0", .Testo3 = "0"};
// clang-format on

template <class Valore>
Variabile Con(Variabile formato, Valore Variabile::*campo, Valore valore) {
  formato.*campo = std::move(valore);
  return formato;
}

Variabile ConInteri(Variabile formato, std::int16_t segno, std::int16_t zero, std::int16_t migliaia) {
  formato.Intero6 = segno;
  formato.Intero7 = zero;
  formato.Intero8 = migliaia;
  return formato;
}

Variabile PiuLinee() {
  Variabile formato = Testo;
  formato.Intero1 = 40;
  formato.Intero2 = 35;
  formato.Intero5 = 3;
  formato.Testo1 = ".";
  return formato;
}

Variabile Tutto() {
  Variabile formato = ConInteri(Numero, 1, 1, 1);
  formato.Intero1 = 25;
  formato.Intero2 = 12;
  formato.Testo1 = "*";
  formato.Testo2 = "2";
  formato.Testo3 = "1";
  return formato;
}

INSTANTIATE_TEST_SUITE_P(
    Casi, CostruzioneVariabileTest,
    testing::Values(Caso{"string", Testo,
                         "\xAB"
                         "V12;30L\xBB"},
                    Caso{"string_of_many_lines", PiuLinee(),
                         "\xAB"
                         "V40,3;35L\".\"\xBB"},
                    Caso{"string_to_the_right", Con(Testo, &Variabile::Intero3, std::int16_t{0}),
                         "\xAB"
                         "V12;30R\xBB"},
                    Caso{"alignment_other_than_1_is_right", Con(Testo, &Variabile::Intero3, std::int16_t{2}),
                         "\xAB"
                         "V12;30R\xBB"},
                    Caso{"string_without_width", Con(Testo, &Variabile::Intero2, std::int16_t{0}),
                         "\xAB"
                         "V12;0L\xBB"},
                    Caso{"string_ignores_the_numeric_switches", ConInteri(Testo, 1, 1, 1),
                         "\xAB"
                         "V12;30L\xBB"},
                    Caso{"string_ignores_the_decimals", Con(Testo, &Variabile::Testo2, std::string("2")),
                         "\xAB"
                         "V12;30L\xBB"},
                    Caso{"fill_of_more_characters", Con(Testo, &Variabile::Testo1, std::string("ab")),
                         "\xAB"
                         "V12;30L\"ab\"\xBB"},
                    Caso{"negative_number", Con(Testo, &Variabile::Intero1, std::int16_t{-3}),
                         "\xAB"
                         "V-3;30L\xBB"},
                    Caso{"largest_number", Con(Testo, &Variabile::Intero1, std::int16_t{32767}),
                         "\xAB"
                         "V32767;30L\xBB"},
                    Caso{"number", Numero,
                         "\xAB"
                         "V8;10R;#;0\xBB"},
                    Caso{"number_with_everything", Tutto(),
                         "\xAB"
                         "V25;12R\"*\";.0,2-;1\xBB"},
                    Caso{"sign_on_the_right", ConInteri(Numero, 1, 0, 0),
                         "\xAB"
                         "V8;10R;#-;0\xBB"},
                    Caso{"zero_visible", ConInteri(Numero, 0, 1, 0),
                         "\xAB"
                         "V8;10R;0;0\xBB"},
                    Caso{"thousands", ConInteri(Numero, 0, 0, 1),
                         "\xAB"
                         "V8;10R;.#;0\xBB"},
                    Caso{"switches_other_than_1_are_off", ConInteri(Numero, 2, -1, 3),
                         "\xAB"
                         "V8;10R;#;0\xBB"},
                    Caso{"any_type_but_0_is_numeric", Con(Numero, &Variabile::Intero4, std::int16_t{-1}),
                         "\xAB"
                         "V8;10R;#;0\xBB"},
                    Caso{"number_to_the_left", Con(Numero, &Variabile::Intero3, std::int16_t{1}),
                         "\xAB"
                         "V8;10L;#;0\xBB"},
                    Caso{"number_with_lines", Con(Numero, &Variabile::Intero5, std::int16_t{2}),
                         "\xAB"
                         "V8,2;10R;#;0\xBB"},
                    Caso{"decimals", Con(Numero, &Variabile::Testo2, std::string("3")),
                         "\xAB"
                         "V8;10R;#,3;0\xBB"},
                    Caso{"euro", Con(Numero, &Variabile::Testo3, std::string("1")),
                         "\xAB"
                         "V8;10R;#;1\xBB"}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(CostruisciVariabile, WritesNoDecimalsGroupForZeroOrEmptyDecimals) {
  EXPECT_EQ(CostruisciVariabile(Con(Numero, &Variabile::Testo2, std::string("0"))),
            "\xAB"
            "V8;10R;#;0\xBB");
  EXPECT_EQ(CostruisciVariabile(Con(Numero, &Variabile::Testo2, std::string())),
            "\xAB"
            "V8;10R;#;0\xBB");
}

TEST(CostruisciVariabile, WritesVariableDecimalsAsACommaAndAnAsterisk) {
  EXPECT_EQ(CostruisciVariabile(Con(Numero, &Variabile::Testo2, std::string("*"))),
            "\xAB"
            "V8;10R;#,*;0\xBB");
}

}  // namespace
}  // namespace parvik
