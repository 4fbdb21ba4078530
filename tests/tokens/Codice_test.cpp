#include "tokens/Codice.h"

#include <gtest/gtest.h>

#include "supporto/ConNome.h"

namespace parvik {

// Printed by name when a test fails.
static void PrintTo(TipoCodice tipo, std::ostream* uscita) {
  constexpr const char* Nomi[] = {"Sconosciuto", "Variabile", "Costante", "Flag",
                                  "Stile",       "Lingua",    "Pagina"};
  *uscita << Nomi[static_cast<std::size_t>(tipo)];
}

namespace {

struct CasoGenere {
  const char* Nome;
  std::string_view Contenuto;
  TipoCodice Atteso;
};
using prova::PrintTo;

class GenereTest : public testing::TestWithParam<CasoGenere> {};

TEST_P(GenereTest, IsToldByTheLeadingText) {
  EXPECT_EQ(Riconosci(GetParam().Contenuto), GetParam().Atteso);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, GenereTest,
    testing::Values(CasoGenere{"variable", "V12;30L", TipoCodice::Variabile},
                    CasoGenere{"variable_of_many_lines", "V40,3;35L\".\"", TipoCodice::Variabile},
                    CasoGenere{"constant", "V0;\"Totale documento\"", TipoCodice::Costante},
                    CasoGenere{"constant_without_text", "V0;", TipoCodice::Costante},
                    CasoGenere{"variable_with_a_leading_zero", "V01;10L", TipoCodice::Variabile},
                    CasoGenere{"variable_zero_with_lines", "V0,2;10L", TipoCodice::Variabile},
                    CasoGenere{"variable_00", "V00;10L", TipoCodice::Variabile},
                    CasoGenere{"variable_zero_after_a_space", "V 0;10L", TipoCodice::Variabile},
                    CasoGenere{"letter_V_alone", "V", TipoCodice::Variabile},
                    CasoGenere{"V0_alone", "V0", TipoCodice::Variabile},
                    CasoGenere{"flag", "F3S", TipoCodice::Flag},
                    CasoGenere{"style", "S;GRASSETTO", TipoCodice::Stile},
                    CasoGenere{"language", "L5;20", TipoCodice::Lingua},
                    CasoGenere{"page", "P1", TipoCodice::Pagina},
                    CasoGenere{"letter_C", "C\"x\"", TipoCodice::Costante},
                    CasoGenere{"empty", "", TipoCodice::Sconosciuto},
                    CasoGenere{"small_letter", "v12;30L", TipoCodice::Sconosciuto},
                    CasoGenere{"small_letter_of_a_constant", "v0;\"x\"", TipoCodice::Sconosciuto},
                    CasoGenere{"leading_space", " V12;30L", TipoCodice::Sconosciuto},
                    CasoGenere{"digit", "12", TipoCodice::Sconosciuto},
                    CasoGenere{"accented_letter", "\xC8", TipoCodice::Sconosciuto},
                    CasoGenere{"other_letter", "X;1", TipoCodice::Sconosciuto}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(Riconosci, TakesV0SemicolonForAConstantAndNeverForAVariable) {
  EXPECT_EQ(Riconosci("V0;\"x\""), TipoCodice::Costante);
  EXPECT_EQ(Riconosci("V01;10L"), TipoCodice::Variabile);
}

TEST(ConDelimitatori, PutsTheTwoDelimitersAroundTheContent) {
  EXPECT_EQ(ConDelimitatori("P1"),
            "\xAB"
            "P1\xBB");
  EXPECT_EQ(ConDelimitatori(""), "\xAB\xBB");
}

TEST(ContenutoDi, IsWhatStandsBetweenTheDelimiters) {
  EXPECT_EQ(ContenutoDi("\xAB"
                        "P1\xBB"),
            "P1");
  EXPECT_EQ(ContenutoDi("\xAB\xBB"), "");
}

}  // namespace
}  // namespace parvik
