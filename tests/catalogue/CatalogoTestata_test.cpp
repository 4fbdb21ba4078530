// The head of the catalogue: the document types.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "catalogue/CampiDiProva.h"
#include "catalogue/Catalogo.h"
#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

using namespace std::string_literals;

constexpr const char* Record = "\"Fattura;FATT*.IMG;3;1;2;3;4;5;6;7;8;9;10;11;12\"";

std::string DescrizioneDi(const std::string& contenuto, std::size_t slot) {
  return Carica(contenuto).TipiDoc()[slot].Descrizione;
}

std::tuple<std::int16_t, std::int16_t> Estremi(const Intervallo& intervallo) {
  return {intervallo.Da, intervallo.A};
}

TEST(CaricaCampi, ReadsAllFieldsOfADocumentType) {
  const Catalogo catalogo = Carica(
      "2,\"  Fattura immediata  ; FATT*.IMG ;3;1;51;81;108;121;172;61;70;111;118;181;190\"\r\n"
      "//fine documenti\r\n");
  const TipoDoc& tipo = catalogo.TipiDoc()[1];
  EXPECT_EQ(1, tipo.Indice);
  EXPECT_EQ("Fattura immediata", tipo.Descrizione);
  EXPECT_EQ(" FATT*.IMG ", tipo.Titolo);
  EXPECT_EQ(3, tipo.NumSezioni);
  EXPECT_EQ(std::tuple(1, 51), Estremi(tipo.Voci[0].Variabili));
  EXPECT_EQ(std::tuple(81, 108), Estremi(tipo.Voci[1].Variabili));
  EXPECT_EQ(std::tuple(121, 172), Estremi(tipo.Voci[2].Variabili));
  EXPECT_EQ(std::tuple(61, 70), Estremi(tipo.Voci[0].Flag));
  EXPECT_EQ(std::tuple(111, 118), Estremi(tipo.Voci[1].Flag));
  EXPECT_EQ(std::tuple(181, 190), Estremi(tipo.Voci[2].Flag));
}

TEST(CaricaCampi, ReadsTheNumbersOfADocumentTypeLeniently) {
  const Catalogo catalogo = Carica(
      " 1x,\"A;B; 3 sezioni;2.5;3.5;-2.5;x;;+7;1e5;&H10;.7;-.5;32767;-32768;9;tanti\"\r\n//fine "
      "documenti\r\n");
  const TipoDoc& tipo = catalogo.TipiDoc()[0];
  EXPECT_EQ(3, tipo.NumSezioni);
  EXPECT_EQ(std::tuple(2, 4), Estremi(tipo.Voci[0].Variabili));
  EXPECT_EQ(std::tuple(-2, 0), Estremi(tipo.Voci[1].Variabili));
  EXPECT_EQ(std::tuple(0, 7), Estremi(tipo.Voci[2].Variabili));
  EXPECT_EQ(std::tuple(1, 0), Estremi(tipo.Voci[0].Flag));
  EXPECT_EQ(std::tuple(1, 0), Estremi(tipo.Voci[1].Flag));
  // The fifteenth field runs to the end of the record, whatever follows its number.
  EXPECT_EQ(std::tuple(32767, -32768), Estremi(tipo.Voci[2].Flag));
}

TEST(CaricaCampi, PutsTypeThreeIntoSlotTwo) {
  const Catalogo catalogo = Carica(Righe({"3,"s + Record, "//fine documenti"}));
  for (std::size_t slot = 0; slot < MaxTipiDoc; ++slot) {
    EXPECT_EQ(slot == 2 ? "Fattura" : "", catalogo.TipiDoc()[slot].Descrizione) << slot;
  }
}

TEST(CaricaCampi, FillsSlotsInAnyOrder) {
  const Catalogo catalogo = Carica(Righe(
      {RigaTipo(3, "0;0", "0;0"), RigaTipo(1, "0;0", "0;0"), RigaTipo(2, "0;0", "0;0"), "//fine documenti"}));
  EXPECT_EQ((std::vector<std::string>{"Tipo 1", "Tipo 2", "Tipo 3"}), Descrizioni(catalogo.TipiElencati()));
}

TEST(CaricaCampi, LetsALaterLineOfTheSameTypeWin) {
  EXPECT_EQ("B", DescrizioneDi(
                     "1,\"A;T;1;1;2;3;4;5;6;7;8;9;10;11;12\"\r\n1,\"B;T;1;1;2;3;4;5;6;7;8;9;10;11;12\"\r\n"
                     "//fine documenti",
                     0));
}

TEST(CaricaCampi, SkipsCommentsAndEmptyLinesBetweenDocumentTypes) {
  const Catalogo catalogo = Carica(Righe({"// catalogo", "", "   ", RigaTipo(1, "0;0", "0;0"), "  // due",
                                          RigaTipo(2, "0;0", "0;0"), "//fine documenti"}));
  EXPECT_EQ((std::vector<std::string>{"Tipo 1", "Tipo 2"}), Descrizioni(catalogo.TipiElencati()));
}

TEST(CaricaCampi, TrimsSpacesAroundLinesTheEndMarkerIncluded) {
  EXPECT_EQ("Fattura", DescrizioneDi("   1,"s + Record + "   \r\n   //fine documenti  \r\n", 0));
}

TEST(CaricaCampi, TrimsNothingButSpaces) {
  const Esito<Catalogo, ErroreCatalogo> catalogo = Catalogo::CaricaCampi("\t\r\n//fine documenti\r\n");
  ASSERT_FALSE(catalogo);  // a tab is a line, and not a document type
  EXPECT_EQ(NumeroErrore::ArgomentoNonValido, catalogo.Errore().Numero);
}

TEST(CaricaCampi, EndsALineAtALoneCarriageReturn) {
  EXPECT_EQ("Fattura", DescrizioneDi("// primo\r1,"s + Record + "\r//fine documenti\r", 0));
}

TEST(CaricaCampi, KeepsLoneLineFeedsNulsAndEndOfFileBytesAsData) {
  EXPECT_EQ(
      "A\nB\0C\x1A"
      "D"s,
      DescrizioneDi("1,\"A\nB\0C\x1A"
                    "D;T;1;1;2;3;4;5;6;7;8;9;10;11;12\"\r\n//fine documenti"s,
                    0));
}

TEST(CaricaCampi, TakesTheEndMarkerOnTheLastLineWithoutALineEnd) {
  EXPECT_EQ(0U, Carica("//fine documenti").TipiElencati().size());
}

TEST(CaricaCampi, TakesTheRecordBetweenTheFirstTwoQuotesOnly) {
  EXPECT_EQ(
      "A",
      DescrizioneDi("1, numero \"A;T;1;1;2;3;4;5;6;7;8;9;10;11;12\" resto \"altro\"\r\n//fine documenti", 0));
}

TEST(CaricaCampi, TakesTheNumberFromTheTextBeforeTheFirstCommaEvenInsideTheRecord) {
  EXPECT_EQ("A,B", DescrizioneDi("5 \"A,B;T;1;1;2;3;4;5;6;7;8;9;10;11;12\"\r\n//fine documenti", 4));
}

struct CasoErrore {
  const char* Nome;
  std::string Contenuto;
  NumeroErrore Numero;
  std::size_t Riga;
};
using prova::PrintTo;

class CatalogoRottoTest : public testing::TestWithParam<CasoErrore> {};

TEST_P(CatalogoRottoTest, IsRefusedWithTheErrorAndItsLine) {
  const Esito<Catalogo, ErroreCatalogo> catalogo = Catalogo::CaricaCampi(GetParam().Contenuto);
  ASSERT_FALSE(catalogo);
  EXPECT_EQ(GetParam().Numero, catalogo.Errore().Numero);
  EXPECT_EQ(GetParam().Riga, catalogo.Errore().Riga);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Casi, CatalogoRottoTest, testing::Values(
    CasoErrore{"empty_file", "", NumeroErrore::InputOltreFine, 1},
    CasoErrore{"no_end_marker", "// a\r\n\r\n1,"s + Record + "\r\n", NumeroErrore::InputOltreFine, 4},
    CasoErrore{"end_marker_in_another_case", "//Fine documenti\r\n", NumeroErrore::InputOltreFine, 2},
    CasoErrore{"end_marker_with_more_text", "//fine documenti.\r\n", NumeroErrore::InputOltreFine, 2},
    CasoErrore{"lines_that_end_in_line_feeds", "// a\n1,"s + Record + "\n//fine documenti\n",
               NumeroErrore::InputOltreFine, 2},
    CasoErrore{"number_zero", "\r\n0,"s + Record + "\r\n//fine documenti", NumeroErrore::IndiceFuoriIntervallo, 2},
    CasoErrore{"number_24", "24,"s + Record + "\r\n//fine documenti", NumeroErrore::IndiceFuoriIntervallo, 1},
    CasoErrore{"negative_number", "-1,"s + Record + "\r\n//fine documenti", NumeroErrore::IndiceFuoriIntervallo, 1},
    CasoErrore{"number_beyond_16_bits", "40000,"s + Record + "\r\n//fine documenti", NumeroErrore::Overflow, 1},
    CasoErrore{"smallest_number", "-32768,"s + Record + "\r\n//fine documenti",
               NumeroErrore::IndiceFuoriIntervallo, 1},
    CasoErrore{"no_comma", "// a\r// b\r1 "s + Record + "\r//fine documenti",
               NumeroErrore::IndiceFuoriIntervallo, 3},
    CasoErrore{"no_quotes", "1,A;B\r\n//fine documenti", NumeroErrore::ArgomentoNonValido, 1},
    CasoErrore{"one_quote", "1,\"A;B;1;1;2;3;4;5;6;7;8;9;10;11;12\r\n//fine documenti",
               NumeroErrore::ArgomentoNonValido, 1},
    CasoErrore{"empty_record", "1,\"\"\r\n//fine documenti", NumeroErrore::ArgomentoNonValido, 1},
    CasoErrore{"fourteen_fields", "1,\"A;B;1;1;2;3;4;5;6;7;8;9;10;11\"\r\n//fine documenti",
               NumeroErrore::ArgomentoNonValido, 1},
    CasoErrore{"field_beyond_16_bits", "1,\"A;B;1;1;40000;3;4;5;6;7;8;9;10;11;12\"\r\n//fine documenti",
               NumeroErrore::Overflow, 1},
    CasoErrore{"last_field_beyond_16_bits", "1,\"A;B;1;1;2;3;4;5;6;7;8;9;10;11;32767.5\"\r\n//fine documenti",
               NumeroErrore::Overflow, 1},
    CasoErrore{"thousand_digits", "1,\"A;B;" + std::string(1000, '9') + ";1;2;3;4;5;6;7;8;9;10;11;12\"\r\n",
               NumeroErrore::Overflow, 1},
    // The first thing that goes wrong is the one that is reported.
    CasoErrore{"overflow_before_the_missing_field", "1,\"A;B;40000;1;2\"\r\n//fine documenti",
               NumeroErrore::Overflow, 1},
    CasoErrore{"missing_separator_before_the_overflow", "1,\"A;B;40000\"\r\n//fine documenti",
               NumeroErrore::ArgomentoNonValido, 1},
    CasoErrore{"missing_quotes_before_the_slot", "24,A;B\r\n//fine documenti", NumeroErrore::ArgomentoNonValido, 1},
    CasoErrore{"number_before_the_missing_quotes", "40000,A;B\r\n//fine documenti", NumeroErrore::Overflow, 1},
    CasoErrore{"slot_before_the_fields", "24,\"A;B\"\r\n//fine documenti", NumeroErrore::IndiceFuoriIntervallo, 1},
    CasoErrore{"first_bad_line_of_two", "24,"s + Record + "\r\n40000,"s + Record + "\r\n",
               NumeroErrore::IndiceFuoriIntervallo, 1}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

TEST(Catalogo, KeepsItsLinesWhenItIsMoved) {
  Catalogo primo = ConCorpo("1;2", "0;0", {"0001,\"A;1;2;$;1;0;0;0;0;0;0", "0002,\"B;2;2;$;1;0;0;0;0;0;0"});
  const Catalogo secondo = std::move(primo);
  const Tabella<Variabile> tabella = VariabiliTestata(secondo);
  ASSERT_EQ(2U, tabella.Voci.size());
  EXPECT_EQ("B", tabella.Voci[1].Descrizione);
}

TEST(CaricaCampi, NeverFallsOverWhateverTheBytes) {
  const auto pezzo =
      rc::gen::oneOf(rc::gen::arbitrary<std::string>(),
                     rc::gen::elementOf(std::vector<std::string>{
                         "\r\n", "\r", ";", "\"", ",", "//", "//fine documenti\r\n", "1",
                         "1,\"A;B;1;1;2;3;4;5;6;7;8;9;10;11;12\"\r\n", "40000", "0001,\"A;1;"}));
  EXPECT_TRUE(rc::check("any bytes load or are refused at one of their lines", [&pezzo] {
    std::string contenuto;
    for (const std::string& uno : *rc::gen::container<std::vector<std::string>>(pezzo)) contenuto += uno;
    const auto catalogo = Catalogo::CaricaCampi(contenuto);
    if (!catalogo) {
      RC_ASSERT(catalogo.Errore().Riga >= 1U);
      RC_ASSERT(catalogo.Errore().Riga <= contenuto.size() + 1);
      return;
    }
    for (const TipoDoc& tipo : catalogo->TipiDoc()) {
      for (const Sezione sezione : TutteLeSezioni) {
        const Intervallo voluto = tipo.Voci[Indice(sezione)].Variabili;
        RC_ASSERT(static_cast<int>(catalogo->LeggiVariabili(tipo, sezione).Voci.size()) <=
                  std::max(0, voluto.A - voluto.Da + 1));
      }
    }
  }));
}

}  // namespace
}  // namespace parvik::prova
