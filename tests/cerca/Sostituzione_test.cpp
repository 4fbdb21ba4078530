#include "cerca/Sostituzione.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <map>

#include "cerca/Cercatore.h"
#include "cerca/EspressioneDiProva.h"
#include "tokens/Pezzi.h"

namespace parvik::prova {
namespace {

struct Fatto {
  std::string Testo;
  std::size_t Quante = 0;
  std::size_t Tagliate = 0;
  std::size_t Inadatte = 0;
};

Fatto Fai(const std::string& testo, const Criterio& criterio, std::string_view con) {
  const auto espressione = criterio.Espressione ? EspressioneDi(criterio.Testo) : nullptr;
  const auto sostituto = Sostituto::Leggi(criterio, con);
  Cercatore cercatore(criterio, criterio.Espressione ? EspressioneDi(criterio.Testo) : nullptr,
                      [] { return false; });
  const Sostituzioni fatte =
      Sostituisci(testo, cercatore.Cerca(testo, Voci()), *sostituto, espressione.get(), Voci());
  Fatto fatto{
      .Testo = testo, .Quante = fatte.Fatte.size(), .Tagliate = fatte.Tagliate, .Inadatte = fatte.Inadatte};
  if (fatte.Fatte.empty()) return fatto;
  const Modifica una = InUna(testo, fatte.Fatte);
  fatto.Testo.replace(una.Dove, una.Tolti, una.Messi);
  return fatto;
}

std::string Sostituito(std::string_view scritto, const Criterio& criterio, std::string_view con) {
  return Scritto(Fai(DellaSezione(scritto), criterio, con).Testo);
}

TEST(Sostituzione, PutsATextInThePlaceOfAnother) {
  EXPECT_EQ(Sostituito("a b a¶a", {.Testo = "a"}, "xy"), "xy b xy¶xy");
  EXPECT_EQ(Sostituito("a b a", {.Testo = "a"}, ""), " b ");
  EXPECT_EQ(Sostituito("a", {.Testo = "a"}, "\\1"), "\\1");
}

TEST(Sostituzione, NeverCutsACode) {
  const Fatto fatto = Fai(DellaSezione("V1 <V1;9L> V1<V1"), {.Testo = "V1"}, "x");
  EXPECT_EQ(Scritto(fatto.Testo), "x <V1;9L> x<x");
  EXPECT_EQ(fatto.Quante, 3U);
  EXPECT_EQ(fatto.Tagliate, 1U);
}

TEST(Sostituzione, TakesWholeCodesWithTheText) {
  EXPECT_EQ(Sostituito("a<V1;9L>b",
                       {.Testo = "a\xAB"
                                 "V1;9L\xBB"
                                 "b"},
                       "x"),
            "x");
  EXPECT_EQ(Sostituito("a<V1;9L>b",
                       {.Testo = "a\xAB"
                                 "V1;9L"},
                       "x"),
            "a<V1;9L>b");
  EXPECT_EQ(Sostituito("a<V1;9L>b",
                       {.Testo = "L\xBB"
                                 "b"},
                       "x"),
            "a<V1;9L>b");
}

TEST(Sostituzione, MayNotBringDelimiters) {
  for (const char* con : {"\xAB", "a\xBB",
                          "\xAB"
                          "V1;9L\xBB"}) {
    const auto sostituto = Sostituto::Leggi({.Testo = "a"}, con);
    ASSERT_FALSE(sostituto);
    EXPECT_EQ(sostituto.Errore(), "« e » racchiudono i codici: una sostituzione non può metterne");
  }
}

TEST(Sostituzione, MayNotBringLineEnds) {
  for (const char* con : {"a\rb", "\n"}) EXPECT_FALSE(Sostituto::Leggi({.Testo = "a"}, con));
}

TEST(Sostituzione, KnowsTheGroupsOfAnExpression) {
  EXPECT_EQ(Sostituito("ab12 cd3", {.Testo = "([a-z]+)([0-9]+)", .Espressione = true}, "\\2\\1\\0\\\\\\9x"),
            "12abab12\\x 3cdcd3\\x");
  EXPECT_EQ(Sostituito("ab¶ab", {.Testo = "^(a)", .Espressione = true}, "> \\1"), "> ab¶> ab");
  EXPECT_EQ(Sostituito("ab¶cd", {.Testo = "$", .Espressione = true}, "|"), "ab|¶cd|");
  EXPECT_EQ(Sostituito("ab ac", {.Testo = "a(?=c)", .Espressione = true}, "\\0\\0"), "ab aac");
}

TEST(Sostituzione, BringsWholeCodesBackInGroups) {
  EXPECT_EQ(Sostituito("a<V1;9L>b", {.Testo = "^(.*)$", .Espressione = true}, "\\1 |"), "a<V1;9L>b |");
  const Fatto mezzo = Fai(DellaSezione("a<V1;9L>b"), {.Testo = "^(..)(.*)$", .Espressione = true}, "\\1");
  EXPECT_EQ(Scritto(mezzo.Testo), "a<V1;9L>b");
  EXPECT_EQ(mezzo.Tagliate, 1U);
  EXPECT_EQ(Sostituito("<V1;9L>-<F3N>", {.Testo = "^(.*)-(.*)$", .Espressione = true}, "\\2-\\1"),
            "<F3N>-<V1;9L>");
  EXPECT_EQ(Sostituito("<V1>-<F3N>", {.Testo = "^(..)(.*)$", .Espressione = true}, "\\1x\\2"), "<V1>-<F3N>");
}

TEST(Sostituzione, ChangesCodesByTheirFields) {
  const Criterio criterio{.Testo = "105", .Dove = DoveCercare::SoloCodici};
  const Fatto fatto =
      Fai(DellaSezione("<V105;29R;#;0> 105 <V15;29L>¶<V105;30R;#;0>"), criterio, "larghezza 29 -> 32");
  EXPECT_EQ(Scritto(fatto.Testo), "<V105;32R;#;0> 105 <V15;29L>¶<V105;30R;#;0>");
  EXPECT_EQ(fatto.Quante, 1U);
  EXPECT_EQ(fatto.Inadatte, 1U);
}

TEST(Sostituzione, TakesCodesAway) {
  EXPECT_EQ(Sostituito("a<V105;29R;#;0>b<V1;9L>", {.Testo = "105", .Dove = DoveCercare::SoloCodici}, ""),
            "ab<V1;9L>");
}

TEST(Sostituzione, SaysWhatCannotBeUnderstood) {
  const auto sostituto = Sostituto::Leggi({.Testo = "105", .Dove = DoveCercare::SoloCodici}, "ciao");
  ASSERT_FALSE(sostituto);
  EXPECT_EQ(
      sostituto.Errore(),
      "Dei codici si cambia numero, larghezza, allineamento, riempimento o decimali: per esempio «larghezza "
      "32», «larghezza 29 → 32», «a destra»");
}

/// Codes of a text, how often each.
std::map<std::string, int> Codici(std::string_view testo) {
  std::map<std::string, int> codici;
  LettorePezzi lettore(testo);
  while (const auto pezzo = lettore.Prossimo())
    if (pezzo->Genere == GenerePezzo::Codice) ++codici[std::string(pezzo->In(testo))];
  return codici;
}

RC_GTEST_PROP(Sostituzione, LeavesNoCodeThatWasNotThere, ()) {
  const auto pezzi = *rc::gen::container<std::vector<std::string>>(
      rc::gen::elementOf(std::vector<std::string>{"a", "b", "V1",
                                                  "\xAB"
                                                  "V1;9L\xBB",
                                                  "\xAB"
                                                  "F3N\xBB",
                                                  "\xAB", "\xBB", "\r\n", " "}));
  std::string testo;
  for (const std::string& pezzo : pezzi) testo += pezzo;
  const bool espressione = *rc::gen::arbitrary<bool>();
  const std::string cercato =
      espressione
          ? *rc::gen::elementOf(std::vector<std::string>{"(.)(.)", "(.*)", "^(.)", "(.*)(.*)$", "a|b"})
          : *rc::gen::elementOf(std::vector<std::string>{"a", "V1", "\xAB", "\xBB",
                                                         "\xBB"
                                                         "a",
                                                         "L\xBB"});
  const std::string con = *rc::gen::elementOf(std::vector<std::string>{"", "x", "\\1", "\\2\\1", "\\1x\\1"});
  const Fatto fatto = Fai(testo, {.Testo = cercato, .Espressione = espressione}, con);
  const std::map<std::string, int> prima = Codici(testo);
  for (const auto& [codice, volte] : Codici(fatto.Testo)) {
    RC_ASSERT(prima.contains(codice));
  }
}

}  // namespace
}  // namespace parvik::prova
