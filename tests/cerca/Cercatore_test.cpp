#include "cerca/Cercatore.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

#include "cerca/EspressioneDiProva.h"
#include "tokens/Pezzi.h"

namespace parvik::prova {
namespace {

Cercatore CercatoreDi(const Criterio& criterio) {
  return {criterio, criterio.Espressione ? EspressioneDi(criterio.Testo) : nullptr, [] { return false; }};
}

std::string Trovate(std::string_view scritto, const Criterio& criterio) {
  const std::string testo = DellaSezione(scritto);
  return Segnate(testo, CercatoreDi(criterio).Cerca(testo, Voci()));
}

TEST(Cercatore, FindsATextWhereverItStands) {
  EXPECT_EQ(Trovate("ab<Vab>ab¶AB", {.Testo = "ab"}), "[ab]<V[ab]>[ab]¶[AB]");
  EXPECT_EQ(Trovate("ab<Vab>ab", {.Testo = "b\xAB"
                                           "V"}),
            "a[b<V]ab>ab");
  EXPECT_EQ(Trovate("ab", {.Testo = ""}), "ab");
  EXPECT_EQ(Trovate("", {.Testo = "a"}), "");
}

TEST(Cercatore, FindsNoPlaceTwice) {
  EXPECT_EQ(Trovate("aaaaa", {.Testo = "aa"}), "[aa][aa]a");
}

TEST(Cercatore, KeepsToTheCaseThatItIsTold) {
  EXPECT_EQ(Trovate("Iva IVA iva", {.Testo = "IVA", .Maiuscole = true}), "Iva [IVA] iva");
  EXPECT_EQ(Trovate("\xC8 \xE8 e", {.Testo = "\xE8"}), "[\xC8] [\xE8] e");
}

TEST(Cercatore, FindsWholeWordsOnly) {
  EXPECT_EQ(Trovate("iva ivata (iva) <iva>iva1 \xE0iva", {.Testo = "iva", .Parola = true}),
            "[iva] ivata ([iva]) <[iva]>iva1 \xE0iva");
  EXPECT_EQ(Trovate("aaa a", {.Testo = "a", .Parola = true}), "aaa [a]");
  EXPECT_EQ(Trovate("+a +", {.Testo = "+", .Parola = true}), "[+]a [+]");
}

TEST(Cercatore, FindsNoHalfOfALineEnd) {
  EXPECT_EQ(Trovate("a¶b\nc", {.Testo = "\n"}).size(), Trovate("a¶b\nc", {.Testo = ""}).size() + 2);
  EXPECT_EQ(Trovate("a¶b", {.Testo = "\r"}), "a¶b");
  EXPECT_EQ(Trovate("a¶b", {.Testo = "a\r\nb"}), "[a¶b]");
}

TEST(Cercatore, LeavesCodesOutOfASearchForText) {
  EXPECT_EQ(Trovate("ab<Vab>ab¶<ab", {.Testo = "ab", .Dove = DoveCercare::SoloTesto}), "[ab]<Vab>[ab]¶<[ab]");
  EXPECT_EQ(Trovate("a<V1>b", {.Testo = "ab", .Dove = DoveCercare::SoloTesto}), "a<V1>b");
}

TEST(Cercatore, FindsWholeCodesByWhatTheyMean) {
  EXPECT_EQ(Trovate("cliente <V15;30L> <V105;9R;#;0>¶<V1;\r\n2L>",
                    {.Testo = "cliente", .Dove = DoveCercare::SoloCodici}),
            "cliente [<V15;30L>] <V105;9R;#;0>¶[<V1;¶2L>]");
}

TEST(Cercatore, FindsAnExpressionLineByLine) {
  EXPECT_EQ(Trovate("ab¶b¶ab", {.Testo = "^b", .Espressione = true}), "ab¶[b]¶ab");
  EXPECT_EQ(Trovate("ab¶ba¶", {.Testo = "b$", .Espressione = true}), "a[b]¶ba¶");
  EXPECT_EQ(Trovate("a1 b22", {.Testo = "[0-9]+", .Espressione = true}), "a[1] b[22]");
}

TEST(Cercatore, GoesOnBehindAnEmptyMatch) {
  EXPECT_EQ(Trovate("ab¶¶c", {.Testo = "^", .Espressione = true}), "[]ab¶[]¶[]c");
  EXPECT_EQ(Trovate("axxb", {.Testo = "x*", .Espressione = true}), "[]a[xx]b[]");
}

TEST(Cercatore, FindsAnExpressionBetweenTheCodes) {
  const Criterio lettere{.Testo = "[a-z]+", .Dove = DoveCercare::SoloTesto, .Espressione = true};
  EXPECT_EQ(Trovate("ab<Vcd>ef<x>¶<a¶b>gh", lettere), "[ab]<Vcd>[ef]<x>¶<a¶b>[gh]");
  const Criterio tutto{.Testo = ".+", .Dove = DoveCercare::SoloTesto, .Espressione = true};
  EXPECT_EQ(Trovate("ab<Vcd>ef", tutto), "[ab]<Vcd>[ef]");
  const Criterio fine{.Testo = "[a-z]$", .Dove = DoveCercare::SoloTesto, .Espressione = true};
  EXPECT_EQ(Trovate("ab<Vcd>ef", fine), "ab<Vcd>e[f]");
  const Criterio inizio{.Testo = "^[a-z]", .Dove = DoveCercare::SoloTesto, .Espressione = true};
  EXPECT_EQ(Trovate("ab<Vcd>ef", inizio), "[a]b<Vcd>ef");
}

TEST(Cercatore, FindsCodesWhoseContentAnExpressionMatches) {
  EXPECT_EQ(
      Trovate("<V1;9L>V1<V12;9L>", {.Testo = "^V1;", .Dove = DoveCercare::SoloCodici, .Espressione = true}),
      "[<V1;9L>]V1<V12;9L>");
}

TEST(Cercatore, GivesUpWhatTakesTooLong) {
  Cercatore lunga = CercatoreDi({.Testo = "!", .Espressione = true});
  EXPECT_TRUE(lunga.Cerca("abc", Voci()).empty());
  EXPECT_TRUE(lunga.Interrotta());

  int volte = 0;
  Cercatore molte({.Testo = "a", .Espressione = true}, EspressioneDi("a"), [&volte] { return ++volte > 5; });
  EXPECT_LT(molte.Cerca("aaaaaaaaaa", Voci()).size(), 10U);
  EXPECT_TRUE(molte.Interrotta());
  EXPECT_FALSE(CercatoreDi({.Testo = "a", .Espressione = true}).Interrotta());
}

std::string CasualeConCodici() {
  const auto pezzi = *rc::gen::container<std::vector<std::string>>(
      rc::gen::elementOf(std::vector<std::string>{"a", "b", "ab", " ", "\xAB", "\xBB",
                                                  "\xAB"
                                                  "Va\xBB",
                                                  "\xAB"
                                                  "V1;9L\xBB",
                                                  "\r\n", "A"}));
  std::string testo;
  for (const std::string& pezzo : pezzi) testo += pezzo;
  return testo;
}

RC_GTEST_PROP(Cercatore, FindsAllThatALiteralLookWouldFind, ()) {
  const std::string testo = CasualeConCodici();
  const std::string cercato = *rc::gen::elementOf(std::vector<std::string>{"a", "ab", "b", "\xAB", "aa"});
  std::vector<Selezione> attese;
  for (std::size_t i = 0; i + cercato.size() <= testo.size();) {
    const bool qui = testo.compare(i, cercato.size(), cercato) == 0;
    if (qui) attese.push_back({.Inizio = i, .Lunghezza = cercato.size()});
    i += qui ? cercato.size() : 1;
  }
  RC_ASSERT(CercatoreDi({.Testo = cercato, .Maiuscole = true}).Cerca(testo, Voci()) == attese);
}

RC_GTEST_PROP(Cercatore, FindsPlacesInOrderAndNoTextInACode, ()) {
  const std::string testo = CasualeConCodici();
  const auto dove =
      *rc::gen::elementOf(std::vector<DoveCercare>{DoveCercare::SoloTesto, DoveCercare::SoloCodici});
  const std::string cercato = *rc::gen::elementOf(std::vector<std::string>{"a", "a*", "^", "b?$", "V.*"});
  const bool espressione = *rc::gen::arbitrary<bool>();
  const std::vector<Selezione> trovate =
      CercatoreDi({.Testo = cercato, .Dove = dove, .Espressione = espressione}).Cerca(testo, Voci());
  std::size_t qui = 0;
  for (const Selezione& posto : trovate) {
    RC_ASSERT(posto.Inizio >= qui && posto.Fine() <= testo.size());
    qui = posto.Fine();
    LettorePezzi lettore(testo);
    while (const auto pezzo = lettore.Prossimo()) {
      if (pezzo->Genere != GenerePezzo::Codice) continue;
      const bool insieme = posto.Inizio < pezzo->Fine && pezzo->Inizio < posto.Fine();
      const bool intero =
          posto == Selezione{.Inizio = pezzo->Inizio, .Lunghezza = pezzo->Fine - pezzo->Inizio};
      RC_ASSERT(!insieme || (dove == DoveCercare::SoloCodici && intero));
    }
  }
}

}  // namespace
}  // namespace parvik::prova
