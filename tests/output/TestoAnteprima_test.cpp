#include "output/TestoAnteprima.h"

#include <gtest/gtest.h>

namespace parvik {
namespace {

constexpr Aspetto Grassetto{.Grassetto = true};
constexpr Aspetto Compresso{.Corpo = CorpoCarattere::Compresso};

std::vector<std::string> Righe(std::string testo) {
  const TestoAnteprima anteprima({.Testo = std::move(testo), .Tratti = {}});
  std::vector<std::string> righe;
  for (std::size_t i = 0; i < anteprima.NumRighe(); ++i) righe.emplace_back(anteprima.Riga(i));
  return righe;
}

std::string Ripeti(std::string_view testo, std::size_t volte) {
  std::string ripetuto;
  for (std::size_t i = 0; i < volte; ++i) ripetuto += testo;
  return ripetuto;
}

using Elenco = std::vector<std::string>;

TEST(TestoAnteprima, AnEmptyTextHasOneEmptyLine) {
  EXPECT_EQ(Righe(""), Elenco({""}));
}

TEST(TestoAnteprima, ATextThatEndsWithALineEndHasAnEmptyLineBehindIt) {
  EXPECT_EQ(Righe("a\r\n"), Elenco({"a", ""}));
  EXPECT_EQ(Righe("a\r\n\r\nb"), Elenco({"a", "", "b"}));
}

TEST(TestoAnteprima, OnlyCrLfEndsALine) {
  EXPECT_EQ(Righe("a\rb\nc\n\rd\r\ne"), Elenco({"a\rb\nc\n\rd", "e"}));
  EXPECT_EQ(Righe("a\r\r\n\nb\r"), Elenco({"a\r", "\nb\r"}));
}

TEST(TestoAnteprima, ALineKnowsItsBytes) {
  const TestoAnteprima testo({.Testo = "ab\r\nc\r\n", .Tratti = {}});
  EXPECT_EQ(testo.InizioRiga(1), 4U);
  EXPECT_EQ(testo.TermineRiga(1), 5U);
  EXPECT_EQ(testo.InizioRiga(2), 7U);
  EXPECT_EQ(testo.TermineRiga(2), 7U);
}

TEST(TestoAnteprima, TheLineEndBelongsToTheLineThatItEnds) {
  const TestoAnteprima testo({.Testo = "ab\r\nc", .Tratti = {}});
  EXPECT_EQ(testo.RigaDi(2), 0U);
  EXPECT_EQ(testo.RigaDi(3), 0U);
  EXPECT_EQ(testo.RigaDi(4), 1U);
  EXPECT_EQ(testo.RigaDi(100), 1U);
}

TEST(TestoAnteprima, FindsLinesBehindAndBetweenLongOnes) {
  const std::string lunga(1'000'000, 'x');
  const TestoAnteprima testo({.Testo = "a\r\n" + lunga + "\r\nb\r\n" + lunga + "\r\n", .Tratti = {}});
  ASSERT_EQ(testo.NumRighe(), 5U);
  EXPECT_EQ(testo.Riga(1), lunga);
  EXPECT_EQ(testo.Riga(2), "b");
  EXPECT_EQ(testo.Riga(3), lunga);
  EXPECT_EQ(testo.Riga(4), "");
  EXPECT_EQ(testo.RigaDi(500'000), 1U);
  EXPECT_EQ(testo.RigaDi(1'000'005), 2U);
  EXPECT_EQ(testo.RigaDi(1'500'000), 3U);
}

TEST(TestoAnteprima, FindsEveryOneOfManyLines) {
  constexpr std::size_t Quante = 10'000;
  const TestoAnteprima testo({.Testo = Ripeti("abc\r\n", Quante), .Tratti = {}});
  ASSERT_EQ(testo.NumRighe(), Quante + 1);
  for (std::size_t i = 0; i < Quante; ++i) {
    ASSERT_EQ(testo.InizioRiga(i), i * 5);
    ASSERT_EQ(testo.Riga(i), "abc");
    ASSERT_EQ(testo.RigaDi(i * 5 + 4), i);
  }
}

TEST(TestoAnteprima, RunsAreThoseThatShareAByte) {
  const std::vector<Tratto> tratti = {{0, 2, Grassetto}, {2, 3, Compresso}, {5, 1, {}}};
  const TestoAnteprima testo({.Testo = "abcdef", .Tratti = tratti});
  const auto in = [&testo](std::size_t da, std::size_t a) {
    const auto trovati = testo.TrattiIn(da, a);
    return std::vector<Tratto>(trovati.begin(), trovati.end());
  };
  EXPECT_EQ(in(0, 6), tratti);
  EXPECT_EQ(in(2, 5), std::vector<Tratto>({tratti[1]}));
  EXPECT_EQ(in(1, 3), std::vector<Tratto>({tratti[0], tratti[1]}));
  EXPECT_EQ(in(3, 3), std::vector<Tratto>());
  EXPECT_EQ(in(6, 9), std::vector<Tratto>());
}

TEST(TestoAnteprima, TheLookBehindTheEndIsThatOfTheLastByte) {
  const TestoAnteprima testo({.Testo = "ab", .Tratti = {{0, 1, Grassetto}, {1, 1, Compresso}}});
  EXPECT_EQ(testo.AspettoDi(0), Grassetto);
  EXPECT_EQ(testo.AspettoDi(1), Compresso);
  EXPECT_EQ(testo.AspettoDi(2), Compresso);
  EXPECT_EQ(TestoAnteprima().AspettoDi(0), Aspetto());
}

TEST(TestoAnteprima, EveryLookHasItsNumber) {
  for (std::size_t i = 0; i < NumAspetti; ++i) EXPECT_EQ(IndiceDi(AspettoDiIndice(i)), i);
  EXPECT_EQ(AspettoDiIndice(IndiceDi(Compresso)), Compresso);
  EXPECT_EQ(AspettoDiIndice(IndiceDi({.Italico = true, .Corpo = CorpoCarattere::Normale})),
            (Aspetto{.Italico = true, .Corpo = CorpoCarattere::Normale}));
}

TEST(TestoAnteprima, TheWidestLineIsNotTheLongestOneWhenCellsDiffer) {
  const TestoAnteprima testo({.Testo = "abcd\r\nefg", .Tratti = {{0, 6, Compresso}, {6, 3, Grassetto}}});
  PerAspetto<double> larghezze = {};
  larghezze[IndiceDi(Compresso)] = 6;
  larghezze[IndiceDi(Grassetto)] = 10;
  EXPECT_EQ(testo.LarghezzaMassima(larghezze), 30);
}

}  // namespace
}  // namespace parvik
