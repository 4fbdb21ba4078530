// The catalogue itself.
#include <gtest/gtest.h>

#include "supporto/ConNome.h"
#include "verifica/RegoleCatalogo.h"

namespace parvik::prova {
namespace {

std::string Elenco(const std::string& byte) {
  const auto trovati = VerificaCatalogo(byte);
  EXPECT_TRUE(trovati);
  std::string elenco;
  for (const RilievoCatalogo& rilievo : *trovati) {
    elenco +=
        (elenco.empty() ? "" : ", ") + std::to_string(rilievo.Riga) + ":" + std::to_string(rilievo.Colonna);
    elenco.append(" ").append(VoceDi(rilievo.Quale).Nome);
  }
  return elenco;
}

const std::string Fine = "//fine documenti\r\n";

/// A catalogue of one type with these ranges of the Testata's variables and flags, and three sections of
/// which the others have nothing.
std::string ConIntervalli(const std::string& variabili, const std::string& flag, const std::string& corpo) {
  return "1,\"T;T*.IMG;3;" + variabili + ";0;0;0;0;" + flag + ";0;0;0;0\"\r\n" + Fine + corpo;
}

std::string Variabile(const std::string& riga, const std::string& numero) {
  return riga + ",\"Nome;" + numero + ";30;;1;0;0;0;0;0;0\r\n";
}

struct Caso {
  const char* Nome;
  std::string Byte;
  const char* Trovati;
};
using prova::PrintTo;

class VerificaCatalogoTest : public testing::TestWithParam<Caso> {};

TEST_P(VerificaCatalogoTest, FindsWhatIsWrongAtItsPlace) {
  EXPECT_EQ(Elenco(GetParam().Byte), GetParam().Trovati) << GetParam().Byte;
}

INSTANTIATE_TEST_SUITE_P(
    Casi, VerificaCatalogoTest,
    testing::Values(
        Caso{"in_order", ConIntervalli("1;2", "0;0", Variabile("0001", "1") + Variabile("0002", "2")), ""},
        Caso{"head_that_does_not_split", "  1,\"T;x\r\n" + Fine, "1:3 riga-non-divisa"},
        Caso{"head_with_a_number_beyond_16_bits", ConIntervalli("1;70000", "0;0", ""),
             "1:17 numero-oltre-16-bit"},
        Caso{"type_number_24", "24,\"T;x;1;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n" + Fine, "1:1 numero-di-tipo"},
        Caso{"type_number_0", "0,\"T;x;1;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n" + Fine, "1:1 numero-di-tipo"},
        Caso{"no_end_mark", "// a\r\n", "2:1 fine-documenti-mancante"},
        Caso{"range_that_no_line_begins", ConIntervalli("5;6", "0;0", Variabile("0001", "1")),
             "1:15 intervallo-senza-inizio"},
        Caso{"range_past_the_end",
             ConIntervalli("1;3", "0;0", Variabile("0001", "1") + Variabile("0002", "2")),
             "1:17 intervallo-oltre-la-fine"},
        Caso{"range_of_no_entries_needs_no_line", ConIntervalli("9;9", "8;7", Variabile("0001", "1")), ""},
        Caso{"line_that_does_not_split",
             ConIntervalli("1;2", "0;0", Variabile("0001", "1") + "0002,\"Nome;2\r\n"),
             "4:1 riga-non-divisa"},
        Caso{"line_with_a_number_beyond_16_bits",
             ConIntervalli("1;2", "0;0", Variabile("0001", "1") + " " + Variabile("0002", "40000")),
             "4:13 numero-oltre-16-bit"},
        Caso{"line_in_no_range", ConIntervalli("0;0", "0;0", "0001 niente\r\n"), ""},
        Caso{"number_twice",
             ConIntervalli("1;3", "0;0",
                           Variabile("0001", "7") + Variabile("0002", "8") + Variabile("0003", "7")),
             "5:12 numero-doppio"},
        Caso{"flag_of_three_digits", ConIntervalli("0;0", "1;2", "0001,\"A;99;N\r\n0002,\"B;100;N\r\n"),
             "4:9 flag-di-tre-cifre"},
        Caso{"flag_of_two_digits_and_a_sign",
             ConIntervalli("0;0", "1;2", "0001,\"A;-9;N\r\n0002,\"B;-10;N\r\n"), "4:9 flag-di-tre-cifre"},
        Caso{"description_of_61_characters",
             ConIntervalli("0;0", "1;2",
                           "0001,\"" + std::string(60, 'x') + ";1;N\r\n0002,\"" + std::string(61, 'x') +
                               ";2;N\r\n"),
             "4:7 descrizione-lunga"},
        Caso{"ranges_that_overlap",
             "1,\"T;T*.IMG;3;1;2;2;3;0;0;0;0;0;0;0;0\"\r\n" + Fine + Variabile("0001", "1") +
                 Variabile("0002", "2") + Variabile("0003", "3"),
             "1:19 intervalli-sovrapposti"},
        Caso{"ranges_side_by_side",
             "1,\"T;T*.IMG;3;1;2;3;4;0;0;0;0;0;0;0;0\"\r\n" + Fine + Variabile("0001", "1") +
                 Variabile("0002", "2") + Variabile("0003", "3") + Variabile("0004", "4"),
             ""},
        Caso{"sections_that_a_type_does_not_have",
             "1,\"T;T*.IMG;1;1;2;1;2;9;12;0;0;0;0;0;0\"\r\n" + Fine + Variabile("0001", "1") +
                 Variabile("0002", "2"),
             ""},
        Caso{"ranges_that_types_share",
             "1,\"T;T*.IMG;1;1;2;0;0;0;0;0;0;0;0;0;0\"\r\n2,\"U;U*.IMG;1;1;2;0;0;0;0;0;0;0;0;0;0\"\r\n" +
                 Fine + Variabile("0001", "1") + Variabile("0002", "1"),
             "5:12 numero-doppio"},
        Caso{"type_behind_a_gap",
             "1,\"T;x;1;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n3,\"U;x;1;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n" + Fine,
             "2:1 tipo-non-elencato"},
        Caso{"type_23", "23,\"U;x;1;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n" + Fine, "1:1 tipo-non-elencato"},
        Caso{"type_that_a_later_line_replaces",
             "1,\"T;x;1;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n1,\"U;x;1;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n" + Fine,
             "1:1 tipo-non-elencato"}),
    [](const auto& riga) { return std::string(riga.param.Nome); });

TEST(RegoleCatalogo, StandAtTheirPlaceInTheTable) {
  for (std::size_t i = 0; i < NumRegoleCatalogo; ++i)
    EXPECT_EQ(static_cast<std::size_t>(RegoleCatalogo()[i].Quale), i) << RegoleCatalogo()[i].Nome;
}

}  // namespace
}  // namespace parvik::prova
