#include "output/MettiStili.h"

#include <gtest/gtest.h>

#include "output/Leggibile.h"
#include "supporto/ConNome.h"
#include "supporto/RiferimentoStili.h"

namespace parvik::prova {
namespace {

struct Caso {
  const char* Nome;
  std::string_view Testo;
  std::string_view Atteso;
};

using prova::PrintTo;

class MettiStiliTest : public testing::TestWithParam<Caso> {};

TEST_P(MettiStiliTest, TurnsMarkersIntoLooks) {
  EXPECT_EQ(ConStili(std::string(GetParam().Testo)), GetParam().Atteso);
}

/// So that the rows below are those of the rules, not those of the program.
TEST_P(MettiStiliTest, AgreesWithTheRulesWordForWord) {
  const TestoConAspetti riferimento = StiliDiRiferimento(std::string(GetParam().Testo));
  std::string testo(GetParam().Testo);
  const std::vector<Tratto> tratti = MettiStili(testo);
  EXPECT_EQ(testo, riferimento.Testo);
  EXPECT_TRUE(AspettiPerByte(testo, tratti) == riferimento.Aspetti);
}

std::string NomeDi(const testing::TestParamInfo<Caso>& caso) {
  return caso.param.Nome;
}

INSTANTIATE_TEST_SUITE_P(
    Stili, MettiStiliTest,
    testing::Values(
        Caso{"no_text", "", ""}, Caso{"no_marker", "abc", "abc"},
        Caso{"in_the_middle", "aS;GRb", "a<GR>b</GR>"}, Caso{"at_the_start", "S;GRa", "<GR>a</GR>"},
        Caso{"bold_and_back", "S;GRTotaleS;NO 12,00", "<GR>Totale</GR> 12,00"},
        Caso{"all_five", "S;NOaS;GRbS;COcS;ITdS;SOe", "a<GR>b</GR><CO>c</CO><IT>d</IT><SO>e</SO>"},
        Caso{"any_case", "S;gRaS;nob", "<GR>a</GR>b"}, Caso{"small_s_is_no_marker", "as;GRb", "as;GRb"},
        Caso{"unknown_style_leaves_the_look", "aS;XYb", "a<?>b</?>"},
        Caso{"unknown_style_between", "S;GRaS;XYbS;NOc", "<GR>a</GR><?>b</?>c"},
        Caso{"over_line_ends", "a\r\nS;ITb\r\nc\r\n", "a¶<IT>b¶c¶</IT>"}),
    NomeDi);

INSTANTIATE_TEST_SUITE_P(
    Margini, MettiStiliTest,
    testing::Values(Caso{"marker_at_the_end", "abS;GR", "ab"}, Caso{"nothing_but_a_marker", "S;GR", ""},
                    Caso{"marker_cut_to_three", "abS;G", "ab"}, Caso{"marker_cut_to_two", "abS;", "ab"},
                    Caso{"two_together", "S;GRS;ITa", "<IT>a</IT>"},
                    Caso{"three_together", "xS;GRS;ITS;COa", "x<CO>a</CO>"},
                    Caso{"letter_S_alone", "aS", "aS"}, Caso{"separator_alone", ";", ";"},
                    Caso{"line_end_as_style", "aS;\r\nb", "a<?>b</?>"},
                    Caso{"one_letter_then_a_line_end", "aS;G\r\nb", "a<?>\nb</?>"}),
    NomeDi);

// A marker removed may make a new one of its neighbours, and a marker may begin inside another.
INSTANTIATE_TEST_SUITE_P(Sovrapposti, MettiStiliTest,
                         testing::Values(Caso{"marker_in_a_marker", "S;S;GRx", "<?>GRx</?>"},
                                         Caso{"one_letter_and_a_marker", "S;GS;ITx", "<?>;ITx</?>"},
                                         Caso{"neighbours_make_a_marker", "SS;GR;xy", ""},
                                         Caso{"neighbours_make_a_bold_one", "aSS;IT;GRxy", "a<GR>xy</GR>"}),
                         NomeDi);

TEST(Aspetto, OfAStyleSwitchesTheOthersOff) {
  const Aspetto tutto{
      .Grassetto = true, .Italico = true, .Sottolineato = true, .Corpo = CorpoCarattere::Compresso};
  EXPECT_EQ(tutto.Con(Stile::Normale), (Aspetto{.Corpo = CorpoCarattere::Normale}));
  EXPECT_EQ(tutto.Con(Stile::Grassetto), (Aspetto{.Grassetto = true, .Corpo = CorpoCarattere::Compresso}));
  EXPECT_EQ(tutto.Con(Stile::Compresso), (Aspetto{.Corpo = CorpoCarattere::Compresso}));
  EXPECT_EQ(tutto.Con(Stile::Italico), (Aspetto{.Italico = true, .Corpo = CorpoCarattere::Compresso}));
  EXPECT_EQ(tutto.Con(Stile::Sottolineato),
            (Aspetto{.Sottolineato = true, .Corpo = CorpoCarattere::Compresso}));
  EXPECT_EQ(Aspetto().Con(Stile::Compresso), (Aspetto{.Corpo = CorpoCarattere::Compresso}));
  EXPECT_EQ(Aspetto().Con(Stile::Grassetto), (Aspetto{.Grassetto = true}));
}

TEST(Punti, AreThoseOfTheThreeSizes) {
  EXPECT_EQ(Punti(CorpoCarattere::Disegno), 9.75);
  EXPECT_EQ(Punti(CorpoCarattere::Normale), 10.0);
  EXPECT_EQ(Punti(CorpoCarattere::Compresso), 8.0);
}

}  // namespace
}  // namespace parvik::prova
