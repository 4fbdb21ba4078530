// The body of the catalogue: the variables of a section.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "catalogue/CampiDiProva.h"
#include "catalogue/Catalogo.h"
#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

using namespace std::string_literals;

// A record in which nothing has been put: unlike the default record, everything in it is zero or empty.
Variabile Vuota() {
  Variabile variabile;
  variabile.Intero2 = 0;
  variabile.Testo1 = "";
  variabile.Intero3 = 0;
  variabile.Testo2 = "";
  return variabile;
}

/// The one record of a run of two whose first line is `riga`.
Tabella<Variabile> Leggi(const std::string& riga) {
  Tabella<Variabile> tabella =
      VariabiliTestata(ConCorpo("1;2", "0;0", {riga, "0002,\"B;2;1;;1;0;0;0;0;0;0"}));
  return tabella;
}

TEST(LeggiVariabili, ReadsALineOfElevenFieldsAndSetsTheTwelfthToZero) {
  const Tabella<Variabile> tabella = Leggi("0001,\"Ragione sociale;15;40;*;0;1;2;3;4;5;6");
  EXPECT_EQ(std::nullopt, tabella.Errore);
  ASSERT_EQ(2U, tabella.Voci.size());
  EXPECT_EQ((Variabile{"Ragione sociale", 15, 40, "*", 0, 1, 2, 3, 4, 5, "6", "0"}), tabella.Voci[0]);
}

TEST(LeggiVariabili, ReadsTheTwelfthFieldAsTheRestOfTheLine) {
  const Tabella<Variabile> tabella = Leggi("0001,\"Totale;15;40;*;0;1;2;3;4;5;6;1;e altro\"");
  ASSERT_EQ(2U, tabella.Voci.size());
  EXPECT_EQ((Variabile{"Totale", 15, 40, "*", 0, 1, 2, 3, 4, 5, "6", "1;e altro\""}), tabella.Voci[0]);
}

TEST(LeggiVariabili, KeepsAClosingQuoteAsPartOfTheLastField) {
  const Tabella<Variabile> tabella = Leggi("0001,\"Totale;15;40;*;0;1;2;3;4;5;6\"");
  ASSERT_EQ(2U, tabella.Voci.size());
  EXPECT_EQ("6\"", tabella.Voci[0].Testo2);
}

TEST(LeggiVariabili, KeepsTheSpacesInsideTheRecordAndTrimsThoseAroundTheLine) {
  const Tabella<Variabile> tabella = Leggi("  0001,\" Totale ;15;40; ;0;1;2;3;4;5; 6  ");
  ASSERT_EQ(2U, tabella.Voci.size());
  EXPECT_EQ((Variabile{" Totale ", 15, 40, " ", 0, 1, 2, 3, 4, 5, " 6", "0"}), tabella.Voci[0]);
}

TEST(LeggiVariabili, ReadsNumbersLeniently) {
  const Tabella<Variabile> tabella = Leggi("0001,\"T;  15x;2.5;;3.5;-2.5;;x;+7;1e5;2;1");
  ASSERT_EQ(2U, tabella.Voci.size());
  EXPECT_EQ((Variabile{"T", 15, 2, "", 4, -2, 0, 0, 7, 1, "2", "1"}), tabella.Voci[0]);
}

TEST(LeggiVariabili, KeepsNulsLineFeedsAndEndOfFileBytes) {
  const Tabella<Variabile> tabella = Leggi("0001,\"A\0B\nC\x1A;1;2;\0;0;0;0;0;0;0;0"s);
  ASSERT_EQ(2U, tabella.Voci.size());
  EXPECT_EQ((Variabile{"A\0B\nC\x1A"s, 1, 2, "\0"s, 0, 0, 0, 0, 0, 0, "0", "0"}), tabella.Voci[0]);
}

struct CasoRotto {
  const char* Nome;
  std::string Riga;
  NumeroErrore Errore;
};
using prova::PrintTo;

class RigaVariabileRottaTest : public testing::TestWithParam<CasoRotto> {};

TEST_P(RigaVariabileRottaTest, EndsTheTableThere) {
  const Tabella<Variabile> tabella = VariabiliTestata(ConCorpo(
      "1;3", "0;0", {"0001,\"A;1;1;;1;0;0;0;0;0;0", GetParam().Riga, "0003,\"C;3;1;;1;0;0;0;0;0;0"}));
  EXPECT_EQ(GetParam().Errore, tabella.Errore);
  ASSERT_EQ(1U, tabella.Voci.size());
  EXPECT_EQ("A", tabella.Voci[0].Descrizione);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Casi, RigaVariabileRottaTest, testing::Values(
    CasoRotto{"ten_fields", "0002,\"B;2;1;;1;0;0;0;0;0", NumeroErrore::ArgomentoNonValido},
    CasoRotto{"no_quote", "0002,B;2;1;;1;0;0;0;0;0;0", NumeroErrore::ArgomentoNonValido},
    CasoRotto{"nothing_after_the_quote", "0002,\"", NumeroErrore::ArgomentoNonValido},
    CasoRotto{"number_beyond_16_bits", "0002,\"B;32768;1;;1;0;0;0;0;0;0", NumeroErrore::Overflow},
    CasoRotto{"negative_number_beyond_16_bits", "0002,\"B;2;-32769;;1;0;0;0;0;0;0", NumeroErrore::Overflow},
    CasoRotto{"half_beyond_16_bits", "0002,\"B;32767.5;1;;1;0;0;0;0;0;0", NumeroErrore::Overflow},
    CasoRotto{"overflow_before_the_missing_field", "0002,\"B;40000;1", NumeroErrore::Overflow},
    CasoRotto{"missing_field_before_the_overflow", "0002,\"B;40000", NumeroErrore::ArgomentoNonValido}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

TEST(CaricaVariabili, AddsAnEmptySlotAfterTheRecords) {
  const Catalogo catalogo =
      ConCorpo("1;2", "0;0", {"0001,\"A;1;2;x;0;0;0;0;0;0;0", "0002,\"B;2;3;y;0;1;0;0;0;0;2;1"});
  const Tabella<Variabile> tabella = catalogo.CaricaVariabili(catalogo.TipiDoc()[0], Sezione::Testata);
  EXPECT_EQ(std::nullopt, tabella.Errore);
  ASSERT_EQ(3U, tabella.Voci.size());
  EXPECT_EQ((Variabile{"A", 1, 2, "x", 0, 0, 0, 0, 0, 0, "0", "0"}), tabella.Voci[0]);
  EXPECT_EQ((Variabile{"B", 2, 3, "y", 0, 1, 0, 0, 0, 0, "2", "1"}), tabella.Voci[1]);
  EXPECT_EQ(Vuota(), tabella.Voci[2]);
}

TEST(CaricaVariabili, HasOneDefaultRecordNotTheParsedLineForARangeOfOneLine) {
  const Catalogo catalogo = ConCorpo("1;1", "0;0", {"0001,\"A;1;2;x;0;0;0;0;0;0;0"});
  const Tabella<Variabile> tabella = catalogo.CaricaVariabili(catalogo.TipiDoc()[0], Sezione::Testata);
  EXPECT_EQ(std::nullopt, tabella.Errore);
  ASSERT_EQ(2U, tabella.Voci.size());
  EXPECT_EQ((Variabile{"", 0, 1, "$", 1, 0, 0, 0, 0, 0, "0", ""}), tabella.Voci[0]);
  EXPECT_EQ(Vuota(), tabella.Voci[1]);
}

}  // namespace
}  // namespace parvik::prova
