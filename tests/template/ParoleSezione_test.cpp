#include "template/ParoleSezione.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <vector>

#include "supporto/TestoConSelezione.h"
#include "template/TastiSezione.h"

namespace parvik {
namespace {

using prova::ConSelezione;
using prova::Scritto;

std::string Avanti(const char* disegno) {
  const ConSelezione caso(disegno);
  return Scritto(caso.Testo, {.Inizio = ParolaSeguente(caso.Testo, caso.Selezionato.Inizio), .Lunghezza = 0});
}

std::string Indietro(const char* disegno) {
  const ConSelezione caso(disegno);
  return Scritto(caso.Testo,
                 {.Inizio = ParolaPrecedente(caso.Testo, caso.Selezionato.Inizio), .Lunghezza = 0});
}

std::string Sotto(const char* disegno) {
  const ConSelezione caso(disegno);
  return Scritto(caso.Testo, ParolaSotto(caso.Testo, caso.Selezionato.Inizio));
}

TEST(ParolaSeguente, GoesByRowsOfCharactersOfOneKind) {
  EXPECT_EQ(Avanti("|abc_1 def"), "abc_1 |def");
  EXPECT_EQ(Avanti("ab|c  def"), "abc  |def");
  EXPECT_EQ(Avanti("abc|;;x"), "abc;;|x");
  EXPECT_EQ(Avanti("|perch\xE9 no"), "perché |no");
  EXPECT_EQ(Avanti("a\xD7|b"), "a×b|");
  EXPECT_EQ(Avanti("abc|"), "abc|");
}

TEST(ParolaSeguente, StopsAtTheEndOfALineAndThenGoesToTheNext) {
  EXPECT_EQ(Avanti("|ab\n cd"), "ab|\n cd");
  EXPECT_EQ(Avanti("ab|\n cd"), "ab\n| cd");
  EXPECT_EQ(Avanti("|ab  \ncd"), "ab  |\ncd");
}

TEST(ParolaSeguente, TakesADelimiterWithoutItsPartnerAsAWord) {
  EXPECT_EQ(Avanti("|ab»cd"), "ab|»cd");
  EXPECT_EQ(Avanti("ab|»cd"), "ab»|cd");
  EXPECT_EQ(Avanti("ab|«cd"), "ab«|cd");
}

TEST(ParolaPrecedente, IsTheWayBack) {
  EXPECT_EQ(Indietro("abc def|"), "abc |def");
  EXPECT_EQ(Indietro("abc  |def"), "|abc  def");
  EXPECT_EQ(Indietro("ab;;|"), "ab|;;");
  EXPECT_EQ(Indietro("ab\n|cd"), "ab|\ncd");
  EXPECT_EQ(Indietro("ab\n  |cd"), "ab\n|  cd");
  EXPECT_EQ(Indietro("ab»|cd"), "ab|»cd");
  EXPECT_EQ(Indietro("|ab"), "|ab");
  EXPECT_EQ(Indietro("  |ab"), "|  ab");
}

TEST(ParolaSotto, IsTheRowAroundTheCharacter) {
  EXPECT_EQ(Sotto("uno d|ue tre"), "uno [due] tre");
  EXPECT_EQ(Sotto("uno|  due"), "uno[  ]due");
  EXPECT_EQ(Sotto("a|;;b"), "a[;;]b");
  EXPECT_EQ(Sotto("uno due|\nx"), "uno [due]\nx");
  EXPECT_EQ(Sotto("uno due|"), "uno [due]");
  EXPECT_EQ(Sotto("|"), "|");
  EXPECT_EQ(Sotto("x\n|\ny"), "x\n|\ny");
}

TEST(ParolaSotto, DoesNotReachIntoACode) {
  EXPECT_EQ(Sotto("a|b«V1»cd"), "[ab]«V1»cd");
  EXPECT_EQ(Sotto("ab«V1»c|d"), "ab«V1»[cd]");
  EXPECT_EQ(Sotto("ab«|V1»cd"), "ab[«V1»]cd");
  EXPECT_EQ(Sotto("ab«V1»|\ncd"), "ab«V1»|\ncd");
}

TEST(ParoleProprieta, NoStepEndsInsideACodeAndEachGetsOn) {
  EXPECT_TRUE(rc::check([] {
    std::string disegno;
    for (const int pezzo : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 7))) {
      const char* const pezzi[] = {"«V1;2L»", "«a\nb»", "«»", "\n", "»", "ab", " ;"};
      disegno += pezzi[pezzo];
    }
    const TestoSezione testo = ConSelezione(disegno).Testo;
    const Selezione riga = testo.Riga(*rc::gen::inRange<std::size_t>(0, testo.Righe()));
    const std::size_t cursore = riga.Inizio + *rc::gen::inRange<std::size_t>(0, riga.Lunghezza + 1);
    const std::size_t avanti = ParolaSeguente(testo, cursore);
    const std::size_t indietro = ParolaPrecedente(testo, cursore);
    RC_ASSERT(avanti > cursore || cursore == testo.Dimensione());
    RC_ASSERT(indietro < cursore || cursore == 0);
    RC_ASSERT(!CodiceIntorno(testo, avanti));
    RC_ASSERT(!CodiceIntorno(testo, indietro));
    const Selezione parola = ParolaSotto(testo, cursore);
    RC_ASSERT(!CodiceIntorno(testo, parola.Inizio));
    RC_ASSERT(!CodiceIntorno(testo, parola.Fine()));
  }));
}

}  // namespace
}  // namespace parvik
