// The rules of flags: what they govern.
#include <gtest/gtest.h>

#include "supporto/ConNome.h"
#include "verifica/DiProva.h"

namespace parvik::prova {
namespace {

struct Caso {
  const char* Nome;
  const char* Testata;
  const char* Trovati;
};
using prova::PrintTo;

class RegoleDeiFlagTest : public testing::TestWithParam<Caso> {};

TEST_P(RegoleDeiFlagTest, FindWhatIsWrongAtItsPlace) {
  EXPECT_EQ(TrovaInTestata(GetParam().Testata), GetParam().Trovati) << GetParam().Testata;
}

INSTANTIATE_TEST_SUITE_P(
    Casi, RegoleDeiFlagTest,
    testing::Values(
        Caso{"text_between", "<F3N> a <V1;30L>", ""},
        Caso{"no_code_behind", "<V1;30L><F3N> a", "1:9 flag-senza-effetto"},
        Caso{"no_code_behind_any_of_two", "<F3N><F4S>", "1:1 flag-senza-effetto, 1:6 flag-senza-effetto"},
        Caso{"only_the_last_counts", "<F3N><F4S><F97N><V1;30L>",
             "1:1 flag-senza-effetto, 1:6 flag-senza-effetto"},
        Caso{"an_unknown_flag_between", "<F3N><F55N><V1;30L>", "1:6 flag-sconosciuto"},
        Caso{"an_unknown_flag_and_nothing", "<F55N>", "1:1 flag-sconosciuto"},
        Caso{"an_incomplete_flag_has_no_flag_finding", "<F3x>¶<S;GRASSETTO>", "1:1 codice-incompleto"},
        Caso{"an_incomplete_flag_without_number_between", "<F3N><FN><V1;30L>", "1:6 codice-incompleto"},
        Caso{"an_incomplete_flag_of_the_type_behind", "<F3N><F4x><V1;30L>",
             "1:1 flag-senza-effetto, 1:6 codice-incompleto"},
        Caso{"a_flag_of_another_section", "<F14N>", "1:1 flag-di-altra-sezione, 1:1 flag-senza-effetto"},
        Caso{"a_flag_of_another_section_behind", "<F3N><F14N><V1;30L>",
             "1:1 flag-senza-effetto, 1:6 flag-di-altra-sezione"},
        Caso{"the_code_is_on_a_later_line", "<F3N>¶a¶<V1;30L>", "1:1 flag-su-altra-riga"},
        Caso{"only_the_last_of_two_governs_a_later_line", "<F3N><F4S>¶<V1;30L>",
             "1:1 flag-senza-effetto, 1:6 flag-su-altra-riga"},
        Caso{"the_code_is_on_the_same_line_as_the_last_flag", "<F3N>¶<F4S><V1;30L>",
             "1:1 flag-senza-effetto"},
        Caso{"the_code_is_a_style", "<F3N><S;GRASSETTO><V1;30L>", "1:1 flag-su-stile"},
        Caso{"the_code_is_a_style_on_a_later_line", "<F3N>¶<S;GRASSETTO>",
             "1:1 flag-su-altra-riga, 1:1 flag-su-stile"},
        Caso{"an_incomplete_style_is_a_style", "<F3N><S;FIRMA>", "1:1 flag-su-stile, 1:6 codice-incompleto"},
        Caso{"a_broken_style_is_none", "<F3N><S;GR¶>", "1:6 codice-su-piu-righe"},
        Caso{"a_broken_code_is_a_code", "<F3N>¶<V1¶>", "1:1 flag-su-altra-riga, 2:1 codice-su-piu-righe"},
        Caso{"a_broken_flag_is_a_code", "<F3N><F4¶S>", "1:6 codice-su-piu-righe"},
        Caso{"an_opening_is_a_code", "<F3N> <V1", "1:7 codice-non-chiuso"},
        Caso{"an_opening_on_a_later_line", "<F3N>¶<V1", "1:1 flag-su-altra-riga, 2:1 codice-non-chiuso"},
        Caso{"a_code_with_an_opening_inside", "<F3N> <V1<", "1:7 codice-non-chiuso"},
        Caso{"an_unknown_code_is_a_code", "<F3N><X>", "1:6 codice-sconosciuto"},
        Caso{"a_lone_lf_ends_no_line", "<F3N>\n<V1;30L>", ""}),
    [](const auto& riga) { return std::string(riga.param.Nome); });

TEST(RegoleDeiFlag, LookNoFurtherThanTheSection) {
  EXPECT_EQ(Trova("<F3N>¶<C4;1;>¶<V11;16L><F14N>¶<S;GRASSETTO>¶"),
            "1:1 flag-senza-effetto, 3:10 flag-senza-effetto");
}

TEST(RegoleDeiFlag, KnowANumberBelowZero) {
  EXPECT_EQ(Trova("<F-8N><P1>¶", 2), "");
  EXPECT_EQ(Trova("<F-9N><P1>¶", 2), "1:1 flag-sconosciuto");
}

TEST(RegoleDeiFlag, SayWhenNoCodeFollowsInTheSection) {
  const std::vector<Rilievo> senza = Rilievi(ConTestata("<F3N>"));
  const std::vector<Rilievo> altro = Rilievi(ConTestata("<F3N><F4N><P1>"));
  ASSERT_EQ(senza.size(), 1U);
  ASSERT_EQ(altro.size(), 1U);
  EXPECT_EQ(senza[0].Testo,
            "«F3N»: nessun codice lo segue nella sezione: governa il primo codice della sezione seguente");
  EXPECT_EQ(altro[0].Testo, "«F3N»: un altro flag lo segue prima del codice: vale solo l'ultimo");
}

}  // namespace
}  // namespace parvik::prova
