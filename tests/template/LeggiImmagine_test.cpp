#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "supporto/ConNome.h"
#include "template/ImmagineModello.h"
#include "template/Modelli.h"

namespace parvik::prova {
namespace {

using namespace std::string_literals;

TestiSezioni Testi(std::string testata, std::string corpo = "", std::string piede = "") {
  return {std::move(testata), std::move(corpo), std::move(piede)};
}

TEST(LeggiImmagine, PutsAWholeFileOfOneSectionIntoTheTestata) {
  const ImmagineLetta letta = LeggiUna("a\r\n" + Marcatore("1;1;") + "b");
  EXPECT_EQ(Testi("a\r\n" + Codice("C1;1;") + "\r\nb\r\n"), letta.Testi);
  EXPECT_EQ(Precedenti(), letta.Corpo);
  EXPECT_EQ(std::nullopt, letta.Errore);
  EXPECT_FALSE(letta.TestoNonLetto);
}

TEST(LeggiImmagine, SplitsAFileOfThreeSectionsAtItsMarkerAndItsCountOfBodyLines) {
  const ImmagineLetta letta = LeggiTre("t1\r\nt2\r\n" + Marcatore("23;2;CS") + "c1\r\nc2\r\np1\r\np2\r\n");
  EXPECT_EQ(Testi("t1\r\nt2\r\n", "c1\r\nc2\r\n", "p1\r\np2\r\n"), letta.Testi);
  EXPECT_EQ((ImpostazioniCorpo{23, 2, "C", "S"}), letta.Corpo);
  EXPECT_EQ(std::nullopt, letta.Errore);
  EXPECT_FALSE(letta.CorpoIncompleto);
  EXPECT_FALSE(letta.TestoNonLetto);
}

TEST(LeggiImmagine, AcceptsAnEmptyFileInEitherLayout) {
  for (const Formato formato : {Formato::UnaSezione, Formato::TreSezioni}) {
    const ImmagineLetta letta = *LeggiImmagine("", formato, Precedenti());
    EXPECT_EQ(Testi(""), letta.Testi);
    EXPECT_EQ(Precedenti(), letta.Corpo);
    EXPECT_EQ(std::nullopt, letta.Errore);
  }
}

TEST(LeggiImmagine, CompletesALastLineWithoutALineEnd) {
  EXPECT_EQ(Testi("a\r\nb\r\n"), LeggiUna("a\r\nb").Testi);
  EXPECT_EQ(Testi("a\r\n", "c\r\n", "p\r\n"), LeggiTre("a\r\n" + Marcatore("1;1;") + "c\r\np").Testi);
}

TEST(LeggiImmagine, EndsALineAtALoneCarriageReturn) {
  EXPECT_EQ(Testi("a\r\nb\r\n\r\nc\r\n"), LeggiUna("a\rb\r\r\nc\r").Testi);
}

TEST(LeggiImmagine, KeepsLoneLineFeedsNulsAndEndOfFileBytes) {
  EXPECT_EQ(Testi("a\nb\0c\x1A"
                  "d\r\n\ne\r\n"s),
            LeggiUna("a\nb\0c\x1A"
                     "d\r\n\ne\r\n"s)
                .Testi);
}

TEST(LeggiImmagine, KeepsEveryByteButLineEndsAndDelimiters) {
  std::string byte;
  for (int i = 0; i < 256; ++i) {
    const char c = static_cast<char>(i);
    if (c != '\r' && c != DelimFileApertura && c != DelimFileChiusura) byte.push_back(c);
  }
  EXPECT_EQ(Testi(byte + "\r\n"), LeggiUna(byte + "\r\n").Testi);
}

TEST(LeggiImmagine, TurnsTheDelimitersOfFilesIntoThoseOfTheEditorAndLeavesTheLatterAlone) {
  EXPECT_EQ(Testi("x" + Codice("V1") + "y" + Codice("N") + "\r\n"),
            LeggiUna("x" + CodiceFile("V1") + "y" + Codice("N") + "\r\n").Testi);
}

TEST(LeggiImmagine, TakesAFileWithoutAMarkerForTheTestata) {
  const ImmagineLetta letta = LeggiTre("a\r\nb\r\n");
  EXPECT_EQ(Testi("a\r\nb\r\n"), letta.Testi);
  EXPECT_EQ(Precedenti(), letta.Corpo);
  EXPECT_EQ(std::nullopt, letta.Errore);
  EXPECT_FALSE(letta.CorpoIncompleto);
}

TEST(LeggiImmagine, NeverLooksForTheMarkerInTheFirstLine) {
  const ImmagineLetta letta = LeggiTre(Marcatore("23;1;") + "c\r\np\r\n");
  EXPECT_EQ(Testi(Codice("C23;1;") + "\r\nc\r\np\r\n"), letta.Testi);
  EXPECT_EQ(Precedenti(), letta.Corpo);
}

TEST(LeggiImmagine, TakesTheFirstMarkerAfterTheFirstLine) {
  const ImmagineLetta letta = LeggiTre(Marcatore("9;9;") + Marcatore("23;1;") + "c\r\n" + Marcatore("8;8;"));
  EXPECT_EQ(Testi(Codice("C9;9;") + "\r\n", "c\r\n", Codice("C8;8;") + "\r\n"), letta.Testi);
  EXPECT_EQ((ImpostazioniCorpo{23, 1, "", ""}), letta.Corpo);
}

TEST(LeggiImmagine, TakesAHeaderLineWithACodeThatBeginsWithCForTheMarker) {
  const ImmagineLetta letta =
      LeggiTre("a\r\nTel. " + CodiceFile("C5;2") + " x\r\nc1\r\nc2\r\n" + Marcatore("23;1;"));
  EXPECT_EQ(Testi("a\r\n", "c1\r\nc2\r\n", Codice("C23;1;") + "\r\n"), letta.Testi);
  EXPECT_EQ(5, letta.Corpo.RigheCorpo);
  EXPECT_EQ(2, letta.Corpo.LineeCorpo);
}

TEST(LeggiImmagine, DoesNotTakeTheEditorsOwnDelimiterForAMarker) {
  EXPECT_EQ(Testi("a\r\n" + Codice("C1;1;") + "\r\n"), LeggiTre("a\r\n" + Codice("C1;1;") + "\r\n").Testi);
}

TEST(LeggiImmagine, LeavesCorpoAndPiedeEmptyWhenTheFileEndsAtTheMarker) {
  const ImmagineLetta letta = LeggiTre("a\r\n" + Marcatore("23;2;"));
  EXPECT_EQ(Testi("a\r\n"), letta.Testi);
  EXPECT_EQ((ImpostazioniCorpo{23, 2, "", ""}), letta.Corpo);
  EXPECT_EQ(std::nullopt, letta.Errore);
  EXPECT_TRUE(letta.CorpoIncompleto);
  EXPECT_FALSE(letta.TestoNonLetto);
}

TEST(LeggiImmagine, KeepsTheBodyLinesThereAreWhenTheMarkerPromisesMore) {
  const ImmagineLetta letta = LeggiTre("a\r\n" + Marcatore("23;3;") + "c1\r\nc2\r\n");
  EXPECT_EQ(Testi("a\r\n", "c1\r\nc2\r\n"), letta.Testi);
  EXPECT_EQ((ImpostazioniCorpo{23, 3, "", ""}), letta.Corpo);
  EXPECT_EQ(NumeroErrore::InputOltreFine, letta.Errore);
  EXPECT_TRUE(letta.CorpoIncompleto);
  EXPECT_FALSE(letta.TestoNonLetto);
}

TEST(LeggiImmagine, ReadsNoBodyLineWhenTheMarkerPromisesNone) {
  for (const char* linee : {"0", "-3", "-32768", "", "x"}) {
    const ImmagineLetta letta = LeggiTre("a\r\n" + Marcatore("23;"s + linee + ";") + "p\r\n");
    EXPECT_EQ(Testi("a\r\n", "", "p\r\n"), letta.Testi) << linee;
    EXPECT_EQ(std::nullopt, letta.Errore) << linee;
    EXPECT_FALSE(letta.CorpoIncompleto) << linee;
  }
}

struct CasoMarcatore {
  const char* Nome;
  std::string Riga;  // the whole line, as in the file
  ImpostazioniCorpo Atteso;
};
using prova::PrintTo;

class MarcatoreTest : public testing::TestWithParam<CasoMarcatore> {};

TEST_P(MarcatoreTest, SetsWhatItSaysAndLeavesTheRest) {
  std::string file = "a\r\n" + GetParam().Riga + "\r\n";
  for (int i = 0; i < 100; ++i) file += "x\r\n";
  const ImmagineLetta letta = LeggiTre(file);
  EXPECT_EQ(std::nullopt, letta.Errore);
  EXPECT_EQ("a\r\n", letta.Testi[0]);
  EXPECT_EQ(GetParam().Atteso.RigheCorpo, letta.Corpo.RigheCorpo);
  EXPECT_EQ(GetParam().Atteso.LineeCorpo, letta.Corpo.LineeCorpo);
  EXPECT_EQ(GetParam().Atteso.FlagSbarra, letta.Corpo.FlagSbarra);
  EXPECT_EQ(GetParam().Atteso.FlagAccorpa, letta.Corpo.FlagAccorpa);
}

// The settings before are 77, 66, "C" and "S".
// clang-format off
INSTANTIATE_TEST_SUITE_P(Casi, MarcatoreTest, testing::Values(
    CasoMarcatore{"both_switches", CodiceFile("C23;14;CS"), {23, 14, "C", "S"}},
    CasoMarcatore{"bar_only", CodiceFile("C23;14;C"), {23, 14, "C", ""}},
    CasoMarcatore{"merge_only", CodiceFile("C23;14;S"), {23, 14, "", "S"}},
    CasoMarcatore{"no_switch", CodiceFile("C23;14;"), {23, 14, "", ""}},
    CasoMarcatore{"no_rows", CodiceFile("C0;3;"), {0, 3, "", ""}},
    CasoMarcatore{"negative_rows", CodiceFile("C-5;3;"), {-5, 3, "", ""}},
    CasoMarcatore{"smallest_and_largest", CodiceFile("C-32768;-32768;"), {-32768, -32768, "", ""}},
    CasoMarcatore{"rounded_half_to_even", CodiceFile("C2.5;3.5;"), {2, 4, "", ""}},
    CasoMarcatore{"spaces_before_numbers", CodiceFile("C  23;  14;"), {23, 14, "", ""}},
    CasoMarcatore{"text_for_numbers", CodiceFile("Cuno;due;"), {0, 0, "", ""}},
    CasoMarcatore{"nothing_for_numbers", CodiceFile("C;;"), {0, 0, "", ""}},
    CasoMarcatore{"text_before_the_marker", "xx " + CodiceFile("C23;14;S"), {23, 14, "", "S"}},
    CasoMarcatore{"separator_before_the_marker", "9;8;C" + CodiceFile("C23;14;S"), {23, 14, "", "S"}},
    CasoMarcatore{"text_after_the_marker", CodiceFile("C23;14;C") + " y;z", {23, 14, "C", ""}},
    CasoMarcatore{"any_character_for_the_second_switch", CodiceFile("C23;14;Cx"), {23, 14, "C", "x"}},
    CasoMarcatore{"any_character_after_merge", CodiceFile("C23;14;Sx"), {23, 14, "", "x"}},
    CasoMarcatore{"undefined_byte_for_the_second_switch", CodiceFile("C23;14;C\x81"), {23, 14, "C", "\x81"}},
    CasoMarcatore{"unknown_first_switch_keeps_both", CodiceFile("C23;14;x"), {23, 14, "C", "S"}},
    CasoMarcatore{"unknown_first_switch_and_a_second", CodiceFile("C23;14;xy"), {23, 14, "C", "y"}},
    CasoMarcatore{"small_letters_are_unknown", CodiceFile("C23;14;c"), {23, 14, "C", "S"}},
    CasoMarcatore{"more_than_two_switches", CodiceFile("C23;14;CSx"), {23, 14, "C", "S"}},
    CasoMarcatore{"line_ends_after_the_second_separator", "\xAE" "C23;14;", {23, 14, "C", ""}},
    CasoMarcatore{"line_ends_after_the_first_switch", "\xAE" "C23;14;S", {23, 14, "", ""}},
    // Without its second ";" the switches are looked for from the start of the line: there the marker itself is.
    CasoMarcatore{"no_second_separator", CodiceFile("C23;14"), {23, 14, "C", "C"}},
    CasoMarcatore{"no_second_separator_after_a_switch_letter", "S" + CodiceFile("C23;14"), {23, 14, "", "\xAE"}},
    // Without its first ";" the second number too.
    CasoMarcatore{"no_separator", CodiceFile("C23"), {23, 0, "C", "C"}},
    CasoMarcatore{"no_separator_after_a_number", "5" + CodiceFile("C23"), {23, 5, "C", "\xAE"}},
    CasoMarcatore{"separator_only_before_the_marker", "7;C" + CodiceFile("C23"), {23, 7, "C", "\xAE"}}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

TEST(LeggiImmagine, StopsAtAMarkerWhoseRowsGoBeyond16Bits) {
  const ImmagineLetta letta = LeggiTre("a\r\n" + Marcatore("40000;1;") + "c\r\n");
  EXPECT_EQ(NumeroErrore::Overflow, letta.Errore);
  EXPECT_EQ(Testi("a\r\n"), letta.Testi);
  EXPECT_EQ(Precedenti(), letta.Corpo);
  EXPECT_TRUE(letta.TestoNonLetto);
}

TEST(LeggiImmagine, StopsAtAMarkerWhoseLinesGoBeyond16BitsHavingSetItsRows) {
  const ImmagineLetta letta = LeggiTre("a\r\n" + Marcatore("5;32767.5;") + "c\r\n");
  EXPECT_EQ(NumeroErrore::Overflow, letta.Errore);
  EXPECT_EQ(Testi("a\r\n"), letta.Testi);
  EXPECT_EQ((ImpostazioniCorpo{5, 66, "C", "S"}), letta.Corpo);
  EXPECT_TRUE(letta.TestoNonLetto);
}

TEST(LeggiImmagine, CountsTheMarkerItselfAsUnreadWhenItCannotBeUnderstood) {
  EXPECT_TRUE(LeggiTre("a\r\n" + Marcatore("40000;1;")).TestoNonLetto);
}

TEST(FormatoDi, GivesThreeSectionsForExactlyThree) {
  EXPECT_EQ(Formato::TreSezioni, FormatoDi(3));
  for (const std::int16_t numero : std::initializer_list<std::int16_t>{0, 1, 2, 4, -3, 32767}) {
    EXPECT_EQ(Formato::UnaSezione, FormatoDi(numero)) << numero;
  }
}

}  // namespace
}  // namespace parvik::prova
