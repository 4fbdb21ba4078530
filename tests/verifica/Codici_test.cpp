// The rules of single codes.
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

class RegoleDeiCodiciTest : public testing::TestWithParam<Caso> {};

TEST_P(RegoleDeiCodiciTest, FindWhatIsWrongAtItsPlace) {
  EXPECT_EQ(TrovaInTestata(GetParam().Testata), GetParam().Trovati) << GetParam().Testata;
}

INSTANTIATE_TEST_SUITE_P(
    Voci, RegoleDeiCodiciTest,
    testing::Values(Caso{"known_variable", "x <V1;30L>", ""}, Caso{"known_flag", "<F3N><V1;30L>", ""},
                    Caso{"unknown_variable", "x <V99;30L>", "1:3 variabile-sconosciuta"},
                    Caso{"unknown_variable_beyond_16_bits", "<V65537;30L>", "1:1 variabile-sconosciuta"},
                    Caso{"unknown_negative_variable", "<V-1;30L>", "1:1 variabile-sconosciuta"},
                    Caso{"variable_number_zero", "<V00;30L>", "1:1 variabile-sconosciuta"},
                    Caso{"number_of_another_type", "<V503;30L>", "1:1 variabile-sconosciuta"},
                    Caso{"variable_of_another_section", "¶ <V11;16L>", "2:2 variabile-di-altra-sezione"},
                    Caso{"unknown_flag", "<F55N><P1>", "1:1 flag-sconosciuto"},
                    Caso{"flag_with_a_fraction", "<F3.2N><P1>", "1:1 flag-sconosciuto"},
                    Caso{"flag_beyond_16_bits", "<F65539N><P1>", "1:1 flag-sconosciuto"},
                    Caso{"flag_of_another_section", "<F14N><P1>", "1:1 flag-di-altra-sezione"},
                    Caso{"page_conditions", "<F97N><P1><F98S><P1><F99N><P1>", ""},
                    Caso{"not_quite_a_page_condition", "<F96N><P1>", "1:1 flag-sconosciuto"}),
    [](const auto& riga) { return std::string(riga.param.Nome); });

INSTANTIATE_TEST_SUITE_P(Forma, RegoleDeiCodiciTest,
                         testing::Values(Caso{"unknown_kind", "<X1>", "1:1 codice-sconosciuto"},
                                         Caso{"small_letter", "<v1;30L>", "1:1 codice-sconosciuto"},
                                         Caso{"empty_code", "ab<>", "1:3 codice-sconosciuto"},
                                         Caso{"not_closed", "ab <V1;30L c", "1:4 codice-non-chiuso"},
                                         Caso{"over_lines", "ab <V1;¶30L> c", "1:4 codice-su-piu-righe"},
                                         Caso{"lone_lf_is_no_line_end", "<V1\n;30L>", "1:1 formato-diverso"},
                                         Caso{"opening_inside", "<V1;30L<V1;30L>", "1:1 apertura-nel-codice"},
                                         Caso{"stray_closing", "a> <V1;30L> b>",
                                              "1:2 chiusura-isolata, 1:14 chiusura-isolata"}),
                         [](const auto& riga) { return std::string(riga.param.Nome); });

INSTANTIATE_TEST_SUITE_P(
    Incompleti, RegoleDeiCodiciTest,
    testing::Values(Caso{"variable_without_number", "<V;30L>", "1:1 codice-incompleto"},
                    Caso{"variable_number_no_digit", "<Vx1;30L>", "1:1 codice-incompleto"},
                    Caso{"variable_without_width_group", "<V1>", "1:1 codice-incompleto"},
                    Caso{"variable_with_empty_width", "<V1;L>", "1:1 codice-incompleto"},
                    Caso{"variable_of_width_0", "<V1;0L>", "1:1 codice-incompleto"},
                    Caso{"variable_of_width_below_a_half", "<V1;0.4L>", "1:1 codice-incompleto"},
                    Caso{"variable_of_width_beyond_16_bits", "<V1;40000L>", "1:1 codice-incompleto"},
                    Caso{"variable_of_width_1", "<V1;1L>", ""},
                    Caso{"flag_without_number", "<FN><P1>", "1:1 codice-incompleto"},
                    Caso{"flag_of_one_letter", "<F><P1>", "1:1 codice-incompleto"},
                    Caso{"flag_switch_that_is_none", "<F3x><P1>", "1:1 codice-incompleto"},
                    Caso{"flag_switch_S", "<F3S><P1>", ""},
                    Caso{"style_without_separator", "<SGR>", "1:1 codice-incompleto"},
                    Caso{"style_word_that_is_none", "<S;FIRMA>", "1:1 codice-incompleto"},
                    Caso{"style_without_word", "<S;>", "1:1 codice-incompleto"},
                    Caso{"language_without_index", "<L;10>", "1:1 codice-incompleto"},
                    Caso{"language_index_no_number", "<Lx;10>", "1:1 codice-incompleto"},
                    Caso{"language_with_empty_width", "<L5;>", "1:1 codice-incompleto"},
                    Caso{"language_of_width_0", "<L5;0>", "1:1 codice-incompleto"},
                    Caso{"language_width_no_number", "<L5;x>", "1:1 codice-incompleto"},
                    Caso{"language_without_width_is_well_formed", "<L5>", ""},
                    Caso{"language_with_a_width", "<L5;20>", ""},
                    Caso{"page_without_number", "<P>", "1:1 codice-incompleto"},
                    Caso{"page_number_that_is_none", "<Px>", "1:1 codice-incompleto"},
                    Caso{"page_number", "<P12>", ""},
                    Caso{"constant_without_quotes", "<V0;Totale>", "1:1 codice-incompleto"},
                    Caso{"constant_without_closing_quote", "<V0;\"Totale>", "1:1 codice-incompleto"},
                    Caso{"constant_with_one_quote", "<V0;\">", "1:1 codice-incompleto"},
                    Caso{"constant_without_text", "<V0;\"\">", "1:1 codice-incompleto"},
                    Caso{"constant_of_spaces", "<V0;\"  \">", ""},
                    Caso{"constant_of_quotes", "<V0;\"\"\">", ""},
                    Caso{"constant_with_two_digits", "<C12;\"x\">", "1:1 codice-incompleto"}),
    [](const auto& riga) { return std::string(riga.param.Nome); });

INSTANTIATE_TEST_SUITE_P(
    Formato, RegoleDeiCodiciTest,
    testing::Values(Caso{"as_the_dialog_writes_it", "<V2;12R;.0,2;1>", ""},
                    Caso{"leading_zero", "<V01;30L>", "1:1 formato-diverso"},
                    Caso{"without_alignment", "<V1;30>", "1:1 formato-diverso"},
                    Caso{"numeric_format_on_a_string", "<V1;30L;#;0>", "1:1 formato-diverso"},
                    Caso{"euro_other_than_0_becomes_1", "<V2;12R;#;x>", "1:1 formato-diverso"},
                    Caso{"euro_0", "<V2;12R;#;0>", ""},
                    Caso{"only_where_the_section_offers_the_number", "<V011;16L>",
                         "1:1 variabile-di-altra-sezione"},
                    Caso{"flag_without_switch", "<F3><P1>", "1:1 formato-diverso"},
                    Caso{"flag_number_from_the_catalogue", "<F03N><P1>", "1:1 formato-diverso"},
                    Caso{"flag_of_another_section_and_odd_format", "<F014><P1>", "1:1 flag-di-altra-sezione"},
                    Caso{"page_condition_without_switch", "<F97><P1>", "1:1 formato-diverso"},
                    Caso{"style_in_small_letters", "<S;grassetto>", "1:1 formato-diverso"},
                    Caso{"older_constant", "<V0;\"a\">", ""},
                    Caso{"line_count_on_a_numeric_variable", "<V2,3;12R;#;0>", "1:1 multilinea-persa"},
                    Caso{"line_count_excludes_other_formats", "<V02,3;12R>", "1:1 multilinea-persa"},
                    Caso{"line_count_0_on_a_numeric_variable", "<V2,0;12R;#;0>", "1:1 formato-diverso"},
                    Caso{"line_count_on_a_string", "<V3,3;40L>", ""},
                    Caso{"line_count_on_a_string_in_another_format", "<V03,3;40L>", "1:1 formato-diverso"},
                    Caso{"line_count_where_the_number_is_not_offered", "<V12,3;12R;#;0>",
                         "1:1 variabile-di-altra-sezione"},
                    Caso{"width_too_small", "<V2;3R;0,2;1>", "1:1 larghezza-insufficiente"},
                    Caso{"width_just_enough", "<V2;4R;0,2;1>", ""},
                    Caso{"width_whatever_the_catalogue_says", "<V99;3R;0,2;1>",
                         "1:1 variabile-sconosciuta, 1:1 larghezza-insufficiente"},
                    Caso{"a_fill_of_hash_is_none", "<V2;3R\"#\";#;0>", ""},
                    Caso{"two_rules_at_one_place_in_the_tables_order", "<V02;3R;0,2;1>",
                         "1:1 formato-diverso, 1:1 larghezza-insufficiente"}),
    [](const auto& riga) { return std::string(riga.param.Nome); });

INSTANTIATE_TEST_SUITE_P(
    TestoStile, RegoleDeiCodiciTest,
    testing::Values(Caso{"each_in_plain_text", "GLASS;10 S;x", "1:5 testo-stile, 1:10 testo-stile"},
                    Caso{"in_a_constant_once_at_its_opening", "a<V0;\"S;aS;b\">", "1:2 testo-stile"},
                    Caso{"a_style_code_is_none", "<S;GRASSETTO>", ""},
                    Caso{"small_letters_are_none", "s;GR", ""}, Caso{"not_across_a_code", "S<P1>;", ""}),
    [](const auto& riga) { return std::string(riga.param.Nome); });

TEST(RegoleDeiCodici, GiveOneFindingToACodeThatIsNotWhole) {
  EXPECT_EQ(TrovaInTestata("<V99;0L;#;0"), "1:1 codice-non-chiuso");
  EXPECT_EQ(TrovaInTestata("<V99;¶0L;#;0>"), "1:1 codice-su-piu-righe");
  EXPECT_EQ(TrovaInTestata("<V99;0L<;#;0>"), "1:1 apertura-nel-codice");
  EXPECT_EQ(TrovaInTestata("<V99;0L;#;0>"), "1:1 codice-incompleto");
}

TEST(RegoleDeiCodici, GiveTheFirstOfThreeToACodeThatIsBrokenInSeveralWays) {
  EXPECT_EQ(TrovaInTestata("a <V1¶<V2>"), "1:3 apertura-nel-codice");
  EXPECT_EQ(TrovaInTestata("a <V1¶<V2"), "1:3 codice-non-chiuso");
}

TEST(RegoleDeiCodici, LookNoFurtherThanAnOpeningThatNothingCloses) {
  EXPECT_EQ(Trova("<V99;1L> S;x <V1 S;x <V99¶<C4;1;>¶<V98;3L>¶"),
            "1:1 variabile-sconosciuta, 1:10 testo-stile, 1:14 codice-non-chiuso, 3:1 variabile-sconosciuta");
}

TEST(RegoleDeiCodici, ProposeTheNumberOfWhatAnotherTypeCallsTheSame) {
  const std::vector<Rilievo> rilievi = Rilievi(ConTestata("<V501;30L><F7N><V1;30L>"));
  ASSERT_EQ(Elenco(rilievi), "1:1 variabile-sconosciuta, 1:11 flag-sconosciuto");
  EXPECT_EQ(rilievi[0].Proposta, "1");
  EXPECT_EQ(rilievi[0].Testo,
            "«V501;30L»: la variabile 501 non è del tipo «Fattura»; nel tipo «Etichetta» è \"Cliente\", che "
            "qui ha il numero 1");
  EXPECT_EQ(rilievi[1].Proposta, "3");
}

TEST(RegoleDeiCodici, ProposeNothingThatThisSectionDoesNotHave) {
  const std::vector<Rilievo> rilievi = Rilievi(ConTestata("<V502;30L><V503;30L><V504;30L>"));
  ASSERT_EQ(rilievi.size(), 3U);
  for (const Rilievo& rilievo : rilievi) EXPECT_EQ(rilievo.Proposta, std::nullopt) << rilievo.Testo;
}

TEST(RegoleDeiCodici, ProposeNothingForWhatHasNoDescription) {
  const auto catalogo = Catalogo::CaricaCampi(
      "1,\"Uno;U;1;1;2;0;0;0;0;0;0;0;0;0;0\"\r\n2,\"Due;D;1;3;4;0;0;0;0;0;0;0;0;0;0\"\r\n//fine documenti\r\n"
      "0001,\";1;9;;1;0;0;0;0;0;0\r\n0002,\"a;2;9;;1;0;0;0;0;0;0\r\n"
      "0003,\";5;9;;1;0;0;0;0;0;0\r\n0004,\"a;6;9;;1;0;0;0;0;0;0\r\n");
  ASSERT_TRUE(catalogo);
  Verificatore verificatore(*catalogo, catalogo->TipiDoc()[0]);
  const std::vector<Rilievo> rilievi = *verificatore.File(DelFile("<V5;9L><V6;9L>¶"), {});
  ASSERT_EQ(rilievi.size(), 2U);
  EXPECT_EQ(rilievi[0].Proposta, std::nullopt);
  EXPECT_EQ(rilievi[1].Proposta, "2");
}

TEST(RegoleDeiCodici, SayWhichSectionOffersIt) {
  const std::vector<Rilievo> rilievi = Rilievi(ConTestata("<V11;16L><V21;12R;#;0>"));
  ASSERT_EQ(rilievi.size(), 2U);
  EXPECT_EQ(rilievi[0].Testo, "la variabile 11 è della sezione corpo, non della sezione testata");
  EXPECT_EQ(rilievi[1].Testo, "la variabile 21 è della sezione piede, non della sezione testata");
}

TEST(RegoleDeiCodici, ShowHowTheDialogWritesIt) {
  const std::vector<Rilievo> rilievi = Rilievi(ConTestata("<F3><V1;30>"));
  ASSERT_EQ(rilievi.size(), 2U);
  EXPECT_EQ(rilievi[0].Testo, "«F3»: la maschera lo scrive «F3N»");
  EXPECT_EQ(rilievi[0].Proposta, DellaSezione("<F3N>"));
  EXPECT_EQ(rilievi[1].Proposta, DellaSezione("<V1;30L>"));
}

TEST(RegoleDeiCodici, TellWhatCanBeMendedWithoutAsking) {
  const std::vector<Rilievo> rilievi =
      Rilievi(ConTestata("<V1;30><V1;30LR><V1;R30x><S;Corsivo><S;grasse><V2,3;12R;#;0><V2;12L>"));
  ASSERT_EQ(Elenco(rilievi),
            "1:1 formato-diverso, 1:8 formato-diverso, 1:17 formato-diverso, 1:26 formato-diverso, 1:37 "
            "formato-diverso, 1:47 multilinea-persa, 1:61 formato-diverso");
  const std::vector<Rimedio> attesi = {Rimedio::Pronto,     Rimedio::AltraLettera, Rimedio::Pronto,
                                       Rimedio::AltroStile, Rimedio::Pronto,       Rimedio::Pronto,
                                       Rimedio::Pronto};
  for (std::size_t i = 0; i < attesi.size(); ++i) EXPECT_EQ(rilievi[i].Cosa, attesi[i]) << rilievi[i].Testo;
}

TEST(RegoleDeiCodici, SayWhatACodeLacks) {
  const std::vector<std::pair<const char*, const char*>> casi = {
      {"V;3L", "manca il numero della variabile"},
      {"V1", "manca la larghezza"},
      {"V1;0L", "la larghezza è 0"},
      {"V1;40000L", "la larghezza è oltre 16 bit, e si legge 0"},
      {"V0;x", "il testo della costante non è fra virgolette"},
      {"V0;\"\"", "manca il testo della costante"},
      {"FN", "manca il numero del flag"},
      {"F3x", "l'interruttore del flag non è S né N"},
      {"SGR", "manca lo stile"},
      {"S;FIRMA", "nessuno stile comincia così"},
      {"L;3", "manca l'indice della tabella lingue"},
      {"L5;", "manca la larghezza"},
      {"L5;0", "la larghezza è 0"},
      {"P", "manca il numero di pagina"}};
  for (const auto& [contenuto, manca] : casi) {
    const std::vector<Rilievo> rilievi = Rilievi(ConTestata("<" + std::string(contenuto) + ">"));
    ASSERT_EQ(rilievi.size(), 1U) << contenuto;
    EXPECT_EQ(rilievi[0].Testo, "«" + std::string(contenuto) + "»: " + manca);
  }
}

TEST(RegoleDeiCodici, KeepControlCharactersOutOfTheirTexts) {
  const std::vector<Rilievo> rilievi = Rilievi(ConTestata("<X\n\x1B\x81\t>"));
  ASSERT_EQ(rilievi.size(), 1U);
  EXPECT_EQ(rilievi[0].Testo, "codice di genere sconosciuto: «X    »");
}

TEST(RegoleDeiCodici, TellTheSameOfACodeThatTheyHaveMetBefore) {
  EXPECT_EQ(TrovaInTestata("<V1;30L><V99;1L><V1;30L><V99;1L><F3N><F3N><V1;30L>"),
            "1:9 variabile-sconosciuta, 1:25 variabile-sconosciuta, 1:33 flag-senza-effetto");
}

}  // namespace
}  // namespace parvik::prova
