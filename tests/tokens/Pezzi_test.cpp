#include "tokens/Pezzi.h"

#include <gtest/gtest.h>

#include <string>

#include "supporto/ConNome.h"

namespace parvik {
namespace {

/// The pieces of a text, each after a letter that tells its kind: t, c or d, in brackets.
std::string Racconta(std::string_view testo) {
  constexpr std::string_view Lettere = "tcd";
  std::string racconto;
  LettorePezzi lettore(testo);
  while (const auto pezzo = lettore.Prossimo()) {
    racconto += Lettere[static_cast<std::size_t>(pezzo->Genere)];
    racconto += "[" + std::string(pezzo->In(testo)) + "]";
  }
  return racconto;
}

/// The same of what the run reads: text, and the content of a code where there is one; a + ends the stretch.
std::string RaccontaCorsa(std::string_view testo) {
  std::string racconto;
  for (LettoreCorsa lettore(testo); lettore.Prossimo();) {
    racconto += "t[";
    racconto += testo.substr(lettore.InizioTesto(), lettore.FineTesto() - lettore.InizioTesto());
    racconto += lettore.ConCodice() ? "]c[" + std::string(lettore.Contenuto()) + "]+" : "]+";
  }
  return racconto;
}

struct CasoPezzi {
  const char* Nome;
  std::string_view Testo;
  std::string_view Pezzi;
  std::string_view Corsa;
};
using prova::PrintTo;

class PezziTest : public testing::TestWithParam<CasoPezzi> {};

TEST_P(PezziTest, AreLiteralTextWholeCodesAndStrayDelimiters) {
  EXPECT_EQ(Racconta(GetParam().Testo), GetParam().Pezzi);
}

TEST_P(PezziTest, AreReadByTheRunAsTextAndCodesAlone) {
  EXPECT_EQ(RaccontaCorsa(GetParam().Testo), GetParam().Corsa);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, PezziTest,
    testing::Values(CasoPezzi{"nothing", "", "", ""},
                    CasoPezzi{"text", "V12;30L", "t[V12;30L]", "t[V12;30L]+"},
                    CasoPezzi{"code_in_text",
                              "ab\xAB"
                              "P1\xBB"
                              "c",
                              "t[ab]c[\xAB"
                              "P1\xBB]t[c]",
                              "t[ab]c[P1]+t[c]+"},
                    CasoPezzi{"codes_side_by_side",
                              "\xAB"
                              "P1\xBB\xAB"
                              "P22\xBB",
                              "c[\xAB"
                              "P1\xBB]c[\xAB"
                              "P22\xBB]",
                              "t[]c[P1]+t[]c[P22]+"},
                    CasoPezzi{"code_without_content", "\xAB\xBB", "c[\xAB\xBB]", "t[]c[]+"},
                    CasoPezzi{"second_opening_is_content",
                              "\xAB"
                              "V1\xAB"
                              "P1\xBB",
                              "c[\xAB"
                              "V1\xAB"
                              "P1\xBB]",
                              "t[]c[V1\xAB"
                              "P1]+"},
                    CasoPezzi{"first_closing_closes",
                              "\xAB"
                              "P1\xBB"
                              "a\xBB",
                              "c[\xAB"
                              "P1\xBB]t[a]d[\xBB]",
                              "t[]c[P1]+t[a\xBB]+"},
                    CasoPezzi{"line_end_is_content",
                              "\xAB"
                              "P\r\n1\xBB",
                              "c[\xAB"
                              "P\r\n1\xBB]",
                              "t[]c[P\r\n1]+"},
                    CasoPezzi{"closing_outside",
                              "a\xBB"
                              "b\xAB"
                              "P1\xBB",
                              "t[a]d[\xBB]t[b]c[\xAB"
                              "P1\xBB]",
                              "t[a\xBB"
                              "b]c[P1]+"},
                    CasoPezzi{"closings_alone", "\xBB\xBB", "d[\xBB]d[\xBB]", "t[\xBB\xBB]+"},
                    CasoPezzi{"opening_that_nothing_closes",
                              "a\xAB"
                              "P1",
                              "t[a]d[\xAB]t[P1]", "t[a]+"},
                    CasoPezzi{"openings_that_nothing_closes",
                              "\xAB"
                              "a\xAB\xAB",
                              "d[\xAB]t[a]d[\xAB]d[\xAB]", "t[]+"},
                    CasoPezzi{"opening_behind_the_last_code",
                              "\xAB"
                              "P1\xBB\xAB\r\nb",
                              "c[\xAB"
                              "P1\xBB]d[\xAB]t[\r\nb]",
                              "t[]c[P1]+t[]+"},
                    CasoPezzi{"delimiters_of_files",
                              "\xAE"
                              "P1\xAF",
                              "t[\xAE"
                              "P1\xAF]",
                              "t[\xAE"
                              "P1\xAF]+"}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(ProssimoCodice, StartsLookingAtTheGivenByte) {
  const std::string_view testo =
      "ab\xAB"
      "P1\xBB"
      "c\xAB"
      "P22\xBB";
  EXPECT_EQ(ProssimoCodice(testo, 2), (ConfiniCodice{.Apertura = 2, .Chiusura = 5}));
  EXPECT_EQ(ProssimoCodice(testo, 3), (ConfiniCodice{.Apertura = 7, .Chiusura = 11}));
  EXPECT_EQ(ProssimoCodice(testo, 8), (ConfiniCodice{.Apertura = 12, .Chiusura = 12}));
  EXPECT_EQ(ProssimoCodice(testo, testo.size()), (ConfiniCodice{.Apertura = 12, .Chiusura = 12}));
}

TEST(LettorePezzi, WalksOnceOverATextOfNothingButOpeningDelimiters) {
  constexpr std::size_t Molti = 4'000'000;
  const std::string testo(Molti, '\xAB');
  LettorePezzi lettore(testo);
  std::size_t pezzi = 0;
  while (const auto pezzo = lettore.Prossimo()) {
    ASSERT_EQ(*pezzo, (Pezzo{.Genere = GenerePezzo::Delimitatore, .Inizio = pezzi, .Fine = pezzi + 1}));
    ++pezzi;
  }
  EXPECT_EQ(pezzi, Molti);
}

TEST(LettorePezzi, WalksOnceOverStrayClosingDelimitersInFrontOfACodeFarAway) {
  constexpr std::size_t Molti = 4'000'000;
  const std::string testo = std::string(Molti, '\xBB') + "\xAB\xBB";
  LettorePezzi lettore(testo);
  std::size_t pezzi = 0;
  GenerePezzo ultimo = GenerePezzo::Testo;
  for (; const auto pezzo = lettore.Prossimo(); ++pezzi) ultimo = pezzo->Genere;
  EXPECT_EQ(pezzi, Molti + 1);
  EXPECT_EQ(ultimo, GenerePezzo::Codice);
}

}  // namespace
}  // namespace parvik
