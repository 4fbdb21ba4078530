// The rules of the marker's line, of the body and of the file as a whole.
#include <gtest/gtest.h>

#include "supporto/ConNome.h"
#include "verifica/DiProva.h"

namespace parvik::prova {
namespace {

struct Caso {
  const char* Nome;
  int Tipo;
  const char* File;
  const char* Trovati;
};
using prova::PrintTo;

class RegoleDelMarcatoreTest : public testing::TestWithParam<Caso> {};

TEST_P(RegoleDelMarcatoreTest, FindWhatIsWrongAtItsPlace) {
  EXPECT_EQ(Trova(GetParam().File, GetParam().Tipo), GetParam().Trovati) << GetParam().File;
}

INSTANTIATE_TEST_SUITE_P(
    Riga, RegoleDelMarcatoreTest,
    testing::Values(
        Caso{"in_order", 1, "t¶<C4;1;CS>¶c¶p¶", ""}, Caso{"negative", 1, "t¶<C-4;-1;>¶p¶", ""},
        Caso{"empty_file", 1, "", ""}, Caso{"missing", 1, "t¶u¶", "1:1 marcatore-mancante"},
        Caso{"missing_in_an_empty_line", 1, "¶", "1:1 marcatore-mancante"},
        Caso{"in_the_first_line", 1, "<C4;1;>¶c¶p¶", "1:1 marcatore-in-prima-riga"},
        Caso{"in_the_first_line_with_more", 1, "<C4;1;>x¶c¶",
             "1:1 codice-incompleto, 1:1 marcatore-mancante"},
        Caso{"in_the_first_line_and_later", 1, "<C4;1;>¶<C4;1;>¶c¶", "1:1 marcatore-in-prima-riga"},
        Caso{"malformed", 1, "t¶a <C4;1>¶c¶", "2:3 marcatore-malformato"},
        Caso{"malformed_with_a_space", 1, "t¶<C 4;1;>¶c¶", "2:1 marcatore-malformato"},
        Caso{"malformed_with_a_plus", 1, "t¶<C+4;1;>¶c¶", "2:1 marcatore-malformato"},
        Caso{"malformed_switches", 1, "t¶<C4;1;SC>¶c¶", "2:1 marcatore-malformato"},
        Caso{"malformed_without_end", 1, "t¶<C4;1;¶c¶", "2:1 marcatore-malformato"},
        Caso{"malformed_older_constant", 1, "t¶<C0;\"x\">¶c¶", "2:1 marcatore-malformato"},
        Caso{"text_in_front", 1, "t¶ <C4;1;>¶c¶", "2:2 marcatore-ambiguo"},
        Caso{"text_behind", 1, "t¶<C4;1;>x¶c¶", "2:1 marcatore-ambiguo"},
        Caso{"whole_but_not_at_the_first_opening", 1, "t¶<Cx> <C4;1;>¶c¶", "2:1 marcatore-malformato"},
        Caso{"later_line", 1, "t¶<C4;1;>¶<C4;1;>¶p¶<C1;2;S>¶",
             "3:1 marcatore-ambiguo, 5:1 marcatore-ambiguo"},
        Caso{"later_line_with_more_is_a_code", 1, "t¶<C4;1;>¶c¶<C4;1;> ¶", "4:1 codice-incompleto"},
        Caso{"after_a_lone_lf_is_no_line", 1, "t¶<C4;1;>¶x\n<C4;1;>¶", "3:3 codice-incompleto"},
        Caso{"later_line_after_a_malformed_one", 1, "t¶<C4;x;>¶c¶<C4;1;>¶",
             "2:1 marcatore-malformato, 4:1 marcatore-ambiguo"},
        Caso{"later_line_after_one_with_more", 1, "t¶<C4;1;> ¶c¶<C4;1;>¶",
             "2:1 marcatore-ambiguo, 4:1 codice-incompleto"},
        Caso{"later_line_is_not_examined_for_codes", 1, "t¶<C4;1;>¶<F14N>c¶<C4;1;>¶<P1>¶",
             "3:1 flag-senza-effetto, 4:1 marcatore-ambiguo"},
        Caso{"one_section", 2, "t¶<C4;1;>¶c¶", "2:1 codice-incompleto"},
        Caso{"one_section_in_the_first_line", 2, "<C4;1;>¶c¶", "1:1 codice-incompleto"}),
    [](const auto& riga) { return std::string(riga.param.Nome); });

INSTANTIATE_TEST_SUITE_P(
    Incerte, RegoleDelMarcatoreTest,
    testing::Values(
        Caso{"all_sections_without_a_marker", 1, "<V1;30L><V11;16L><V22;12L><F14N><P1><V99;1L>¶",
             "1:1 marcatore-mancante, 1:37 variabile-sconosciuta"},
        Caso{"all_sections_with_the_marker_first", 1, "<C4;1;>¶<V22;12L>¶", "1:1 marcatore-in-prima-riga"},
        Caso{"all_sections_with_a_marker_first_and_another_one", 1, "<C4;1;>¶<C4;1;>¶<V1;30L>¶",
             "1:1 marcatore-in-prima-riga"},
        Caso{"all_sections_with_a_malformed_marker", 1, "<V22;12L>¶<C4;1>¶<V1;30L>¶",
             "2:1 marcatore-malformato"},
        Caso{"formats_of_all_sections", 1, "<V022;12L>¶", "1:1 formato-diverso, 1:1 marcatore-mancante"},
        Caso{"no_body_lines_asked_of_a_malformed_marker", 1, "t¶<C4;9>¶c¶", "2:1 marcatore-malformato"},
        Caso{"no_silent_body_of_a_malformed_marker", 1, "t¶<C0;1>¶c¶", "2:1 marcatore-malformato"},
        Caso{"beyond_16_bits_all_the_same", 1, "t¶<C40000;1>¶<V99;1L>¶",
             "2:1 marcatore-malformato, 2:1 righe-corpo"}),
    [](const auto& riga) { return std::string(riga.param.Nome); });

INSTANTIATE_TEST_SUITE_P(
    Corpo, RegoleDelMarcatoreTest,
    testing::Values(Caso{"more_lines_than_follow", 1, "t¶<C4;3;>¶c¶d¶", "2:1 righe-corpo"},
                    Caso{"as_many_as_follow", 1, "t¶<C4;2;>¶c¶d¶", ""},
                    Caso{"lines_and_nothing_follows", 1, "t¶<C4;1;>¶", "2:1 righe-corpo"},
                    Caso{"at_the_markers_opening", 1, "t¶ab<C4;3;>¶c¶",
                         "2:3 marcatore-ambiguo, 2:3 righe-corpo"},
                    Caso{"rows_beyond_16_bits", 1, "t¶<C32768;1;>¶<V99;1L>¶", "2:1 righe-corpo"},
                    Caso{"lines_beyond_16_bits", 1, "<V99;1L>¶<C1;-32769;>¶<V99;1L>¶",
                         "1:1 variabile-sconosciuta, 2:1 righe-corpo"},
                    Caso{"not_printed", 1, "t¶<C0;1;>¶c¶", "2:1 corpo-non-stampato"},
                    Caso{"not_printed_of_two_lines", 1, "t¶<C1;2;>¶¶ x¶", "2:1 corpo-non-stampato"},
                    Caso{"printed", 1, "t¶<C2;2;>¶¶x¶", ""}, Caso{"without_text", 1, "t¶<C1;2;>¶  ¶¶", ""},
                    Caso{"more_lines_excludes_not_printed", 1, "t¶<C0;3;>¶c¶", "2:1 righe-corpo"}),
    [](const auto& riga) { return std::string(riga.param.Nome); });

INSTANTIATE_TEST_SUITE_P(
    FiniRiga, RegoleDelMarcatoreTest,
    testing::Values(Caso{"lf_alone", 1, "t\n<C4;1;>\nc\n", "1:1 fine-riga-lf"},
                    Caso{"lf_alone_is_not_checked_further", 2, "<V99;1L>\n", "1:1 fine-riga-lf"},
                    Caso{"one_cr_is_enough", 2, "a\nb\rc", ""}, Caso{"no_line_end_at_all", 2, "abc", ""},
                    Caso{"cr_ends_a_line", 2, "a\r<X>\r\r<X>",
                         "2:1 codice-sconosciuto, 4:1 codice-sconosciuto"},
                    Caso{"a_lone_lf_is_a_column", 2, "a\nb<X>¶", "1:4 codice-sconosciuto"},
                    Caso{"cr_before_a_marker", 1, "t\r<C4;1;>\r<X>\r<X>",
                         "3:1 codice-sconosciuto, 4:1 codice-sconosciuto"}),
    [](const auto& riga) { return std::string(riga.param.Nome); });

TEST(RegoleDelMarcatore, CallAMarkerInATypeOfOneSectionByItsName) {
  const std::vector<Rilievo> rilievi = Rilievi("<C4;1;CS>¶<C4;1;> ¶", 2);
  ASSERT_EQ(rilievi.size(), 2U);
  EXPECT_EQ(rilievi[0].Testo, "marcatore in un tipo a sezione unica");
  EXPECT_EQ(rilievi[1].Testo, "«C4;1;»: il testo della costante non è fra virgolette");
}

TEST(RegoleDelMarcatore, GivePlacesInTheFileAndInTheSection) {
  const std::vector<Rilievo> rilievi = Rilievi("a¶b¶<C4;2;>¶c¶d <X>¶e¶ <X>¶");
  ASSERT_EQ(Elenco(rilievi), "5:3 codice-sconosciuto, 7:2 codice-sconosciuto");
  EXPECT_EQ(rilievi[0].Dove, Sezione::Corpo);
  EXPECT_EQ(rilievi[0].Inizio, 5U);
  EXPECT_EQ(rilievi[0].Lunghezza, 3U);
  EXPECT_EQ(rilievi[1].Dove, Sezione::Piede);
  EXPECT_EQ(rilievi[1].Inizio, 4U);
}

}  // namespace
}  // namespace parvik::prova
