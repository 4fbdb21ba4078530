#include "output/TracciaStampa.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "output/CatalogoDiProva.h"

namespace parvik::prova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A traced run into a text file; flag 1 is false, flag 2 true.
struct Caso {
  std::string_view Testata = "";
  std::string_view Corpo = "";
  std::int16_t Righe = 1;

  const FlagPerStampe Flag = FlagDi({{.Numero = 1}, {.Numero = 2, .Vero = true}});
  TracciaStampa Traccia = {};
  std::string Testo = {};

  void Corri() {
    Raccolta raccolta;
    EXPECT_TRUE(GeneraStampa(
        {.Testi = {Testata, Corpo, ""}, .NumSezioni = 3, .RigheCorpo = Righe, .LineeCorpo = 1, .Flag = Flag},
        TipoStampa::File, raccolta, Traccia));
    Testo = raccolta.Testo;
  }
};

OrigineStampa Lettera(Sezione dove, std::size_t byte) {
  return {.Dove = dove, .Parte = {.Inizio = byte, .Lunghezza = 1}};
}

OrigineStampa Codice(std::size_t da, std::size_t lunghezza) {
  return {.Dove = Sezione::Testata, .Parte = {.Inizio = da, .Lunghezza = lunghezza}, .Codice = true};
}

TEST(TracciaStampa, LiteralTextMapsByteByByteAndACodeAsAWhole) {
  Caso caso{.Testata =
                "ab\xABV1;3\xBB"
                "c\r\n"};
  caso.Corri();
  ASSERT_EQ(caso.Testo, "ab$$$c\r\n");
  EXPECT_EQ(caso.Traccia.OrigineDi(1), Lettera(Sezione::Testata, 1));
  for (const std::size_t uscito : {2U, 3U, 4U}) EXPECT_EQ(caso.Traccia.OrigineDi(uscito), Codice(2, 6));
  EXPECT_EQ(caso.Traccia.OrigineDi(5), Lettera(Sezione::Testata, 8));
  EXPECT_EQ(caso.Traccia.OrigineDi(7), Lettera(Sezione::Testata, 10));
  EXPECT_EQ(caso.Traccia.OrigineDi(8), std::nullopt);
  for (const std::size_t byte : {2U, 4U, 7U})
    EXPECT_THAT(caso.Traccia.LuoghiDi(Sezione::Testata, byte),
                ElementsAre(LuogoStampa{.Inizio = 2, .Lunghezza = 3, .Passo = 8}));
  EXPECT_THAT(caso.Traccia.LuoghiDi(Sezione::Testata, 11), IsEmpty()) << "behind the section";
}

TEST(TracciaStampa, ABodyIsOnePeriodAndACount) {
  Caso caso{.Testata = "t\r\n", .Corpo = "\xABV1;2\xBB|\r\n", .Righe = 32767};
  caso.Corri();
  ASSERT_EQ(caso.Testo.size(), 3U + 32767U * 5U);
  // The code in front of the first time was none, in front of the others it is the body's own.
  EXPECT_THAT(caso.Traccia.LuoghiDi(Sezione::Corpo, 6),
              ElementsAre(LuogoStampa{.Inizio = 5, .Lunghezza = 1, .Passo = 5},
                          LuogoStampa{.Inizio = 10, .Lunghezza = 1, .Passo = 5, .Volte = 32766}));
  EXPECT_EQ(caso.Traccia.OrigineDi(3 + 32766 * 5 + 2), Lettera(Sezione::Corpo, 6));
  EXPECT_EQ(caso.Traccia.Tappe().size(), 3U);
}

TEST(TracciaStampa, ALongBodyIsOnePeriodToo) {
  std::string corpo;
  for (int i = 0; i < 3000; ++i) corpo += "una riga del corpo\r\n";
  Caso caso{.Corpo = corpo, .Righe = 40};
  caso.Corri();
  ASSERT_EQ(caso.Testo.size(), 40 * corpo.size());
  EXPECT_THAT(caso.Traccia.LuoghiDi(Sezione::Corpo, 4),
              ElementsAre(LuogoStampa{.Inizio = 4, .Lunghezza = 1, .Passo = corpo.size(), .Volte = 40}));
  EXPECT_LE(caso.Traccia.Tappe().size(), 1 + corpo.size() / 2048);
}

TEST(TracciaStampa, SaysWhichCodeAFalseFlagHides) {
  Caso caso{.Testata =
                "\xAB"
                "F1N\xBB\xABV1;3\xBB\xAB"
                "F2N\xBB\xABV1;4\xBB\r\n"};
  caso.Corri();
  ASSERT_EQ(caso.Testo, "$$$$\r\n");
  EXPECT_EQ(caso.Traccia.CodiceA(Sezione::Testata, 0), CodiceStampato{}) << "the flag itself";
  EXPECT_EQ(caso.Traccia.CodiceA(Sezione::Testata, 5), CodiceStampato({.Nascosto = true}));
  EXPECT_EQ(caso.Traccia.CodiceA(Sezione::Testata, 16), CodiceStampato({.Larghezza = 4}));
  EXPECT_THAT(caso.Traccia.LuoghiDi(Sezione::Testata, 5), IsEmpty());
}

TEST(TracciaStampa, ACodeOfUnknownKindHasTheWidthThatItRepeats) {
  Caso caso{.Testata = "\xABV1;3\xBB\xABX\xBB\r\n"};
  caso.Corri();
  ASSERT_EQ(caso.Testo, "$$$$$$\r\n");
  EXPECT_EQ(caso.Traccia.CodiceA(Sezione::Testata, 7), CodiceStampato({.Larghezza = 3}));
}

TEST(TracciaStampa, ALineWithoutItsEndIsMeasuredAndNotWritten) {
  Caso caso{.Testata = "a\r\nb\xABV1;3\xBB"};
  caso.Corri();
  ASSERT_EQ(caso.Testo, "a\r\n");
  EXPECT_EQ(caso.Traccia.CodiceA(Sezione::Testata, 4), CodiceStampato({.Larghezza = 3}));
  EXPECT_THAT(caso.Traccia.LuoghiDi(Sezione::Testata, 4), IsEmpty());
  EXPECT_THAT(caso.Traccia.LuoghiDi(Sezione::Testata, 3), IsEmpty());
  EXPECT_EQ(caso.Traccia.OrigineDi(3), std::nullopt);
}

TEST(TracciaStampa, ACrWithoutItsLfComesOutAsAWholeLineEnd) {
  Caso caso{.Testata = "a\rb\r\n"};
  caso.Corri();
  ASSERT_EQ(caso.Testo, "a\r\nb\r\n");
  EXPECT_EQ(caso.Traccia.OrigineDi(2), Lettera(Sezione::Testata, 1));
  EXPECT_EQ(caso.Traccia.OrigineDi(3), Lettera(Sezione::Testata, 2));
  EXPECT_THAT(caso.Traccia.LuoghiDi(Sezione::Testata, 1),
              ElementsAre(LuogoStampa{.Inizio = 1, .Lunghezza = 2, .Passo = 6}));
}

TEST(TracciaStampa, WhatIsBehindADelimiterThatIsNeverClosedIsNoCode) {
  Caso caso{.Testata = "a\r\n\xABV1;3\r\n"};
  caso.Corri();
  ASSERT_EQ(caso.Testo, "a\r\n");
  EXPECT_EQ(caso.Traccia.CodiceA(Sezione::Testata, 3), std::nullopt);
  EXPECT_THAT(caso.Traccia.LuoghiDi(Sezione::Testata, 8), IsEmpty());
}

TEST(TracciaStampa, KnowsThePlacesBehindTheStylePass) {
  const FlagPerStampe flag = FlagDi({});
  TracciaStampa traccia;
  const auto anteprima = GeneraAnteprima({.Testi = {"a\xABS;GRASSETTO\xBB"
                                                    "b\xABS;NORMALE\xBB\r\n",
                                                    "", ""},
                                          .NumSezioni = 1,
                                          .Flag = flag},
                                         std::stop_token(), traccia);
  ASSERT_EQ(anteprima->Testo, "ab\r\n\r\n--- Fine file ---");
  EXPECT_EQ(traccia.OrigineDi(1), Lettera(Sezione::Testata, 14));
  const auto luoghi = traccia.LuoghiDi(Sezione::Testata, 14);
  ASSERT_EQ(luoghi.size(), 1U);
  EXPECT_EQ(traccia.Mostrato(luoghi[0], 0), Selezione({.Inizio = 1, .Lunghezza = 1}));
  const auto stile = traccia.LuoghiDi(Sezione::Testata, 1);
  ASSERT_EQ(stile.size(), 1U);
  EXPECT_EQ(traccia.Mostrato(stile[0], 0), Selezione({.Inizio = 1, .Lunghezza = 0})) << "its marker is gone";
  EXPECT_EQ(traccia.OrigineDi(4), std::nullopt) << "the end marker";
}

}  // namespace
}  // namespace parvik::prova
