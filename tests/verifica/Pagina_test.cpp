// The rules of the printed page.
#include <gtest/gtest.h>

#include "verifica/DiProva.h"

namespace parvik::prova {
namespace {

std::string Lunghe(std::string_view scritto, std::size_t larghezza, int tipo = 2) {
  OpzioniVerifica opzioni;
  opzioni.Larghezza = larghezza;
  return Trova(scritto, tipo, opzioni);
}

std::string Pagina(std::string_view scritto, std::size_t righe, int tipo = 1) {
  OpzioniVerifica opzioni;
  opzioni.Righe = righe;
  return Trova(scritto, tipo, opzioni);
}

std::string Cornici(std::string_view scritto, int tipo = 2) {
  OpzioniVerifica opzioni;
  opzioni.Cornici = true;
  return Trova(scritto, tipo, opzioni);
}

TEST(RigaLunga, IsPrintedLongerThanAsked) {
  EXPECT_EQ(Lunghe("abc¶abcd¶", 3), "2:1 riga-lunga");
  EXPECT_EQ(Lunghe("a<V501;3L>¶a<V501;4L>¶", 4), "2:1 riga-lunga");
  EXPECT_EQ(Lunghe("<S;GRASSETTO>abc¶", 3), "");
  EXPECT_EQ(Lunghe("<L5>¶", 9), "1:1 riga-lunga");
  EXPECT_EQ(Lunghe("<L5;999999><L5;999999>¶", 1'999'997), "1:1 riga-lunga");
  EXPECT_EQ(Lunghe("<L5;999999><L5;999999>¶", 1'999'998), "");
}

TEST(RigaLunga, IsMeasuredInTimeInProportionToItsCodes) {
  constexpr std::size_t Codici = 500'000;
  std::string riga;
  for (std::size_t i = 0; i < Codici; ++i) riga += "<P1>";
  EXPECT_EQ(Lunghe(riga + "¶", Codici), "");
  EXPECT_EQ(Lunghe(riga + "x¶", Codici), "1:1 riga-lunga");
}

TEST(RigaLunga, IsNotAskedForByDefault) {
  EXPECT_EQ(Trova(std::string(5000, 'x') + "¶", 2), "");
}

TEST(RigaLunga, CountsWithAllFlagsTrue) {
  EXPECT_EQ(Lunghe("a <F7N><V501;5L>¶", 6), "1:1 riga-lunga");
}

TEST(RigaLunga, CountsTheBodyOnceWhetherItPrintsOrNot) {
  EXPECT_EQ(Lunghe("t¶<C4;1;>¶abcd¶p¶", 3, 1), "3:1 riga-lunga");
  EXPECT_EQ(Lunghe("t¶<C0;1;>¶abcd¶p¶", 3, 1), "2:1 corpo-non-stampato, 3:1 riga-lunga");
}

TEST(RigaLunga, LeavesOutLinesThatACodeCrosses) {
  EXPECT_EQ(Lunghe("abcdef<V501;¶3L>abcdef¶abcdef¶", 3), "1:7 codice-su-piu-righe, 3:1 riga-lunga");
  EXPECT_EQ(Lunghe("abcdef¶abcdef<V501;¶abcdef¶", 3), "1:1 riga-lunga, 2:7 codice-non-chiuso");
}

TEST(RigaLunga, RepeatsTheTextOfTheCodeBeforeAnUnknownOne) {
  EXPECT_EQ(Lunghe("<V501;3L>¶<X>ab¶", 4), "2:1 codice-sconosciuto, 2:1 riga-lunga");
}

TEST(PaginaLunga, AddsHeaderRowsAndFooter) {
  EXPECT_EQ(Pagina("a¶b¶<C10;1;>¶c¶d¶e¶f¶", 15), "");
  EXPECT_EQ(Pagina("a¶b¶<C10;1;>¶c¶d¶e¶f¶", 14), "1:1 pagina-lunga");
  EXPECT_EQ(Pagina("a¶b¶<C-10;0;>¶d¶", 3), "");
  EXPECT_EQ(Pagina("a¶b¶<C-10;0;>¶d¶", 2), "1:1 pagina-lunga");
  EXPECT_EQ(Pagina("a¶b¶c¶", 2, 2), "1:1 pagina-lunga");
  EXPECT_EQ(Pagina("a¶b¶c", 3, 2), "");
  EXPECT_EQ(Pagina("", 1), "");
}

TEST(Cornice, WantsBarsWhereBothRulingLinesHaveACross) {
  EXPECT_EQ(Cornici("+--+--+¶|  |  |¶+--+--+¶"), "");
  EXPECT_EQ(Cornici("+--+--+¶|     |¶+--+--+¶"), "2:1 cornice");
  EXPECT_EQ(Cornici("+--+--+¶|     |¶+-----+¶"), "");
  EXPECT_EQ(Cornici("+--+--+¶|  |   ¶+--+--+¶"), "2:1 cornice");
  EXPECT_EQ(Cornici("+--+--+¶   |  |¶+--+--+¶"), "2:1 cornice");
}

TEST(Cornice, WantsNoBarWhereNeitherHasACross) {
  EXPECT_EQ(Cornici("+--+--+¶|  | ||¶+-----+¶"), "2:1 cornice");
  EXPECT_EQ(Cornici("+-----+¶|  |  |¶+--+--+¶"), "");
  EXPECT_EQ(Cornici("+--+¶|  | |¶+--+¶"), "2:1 cornice");
}

TEST(Cornice, TellsOneFindingALine) {
  EXPECT_EQ(Cornici("+--+--+¶ | | | ¶||||||¶+--+--+¶"), "2:1 cornice, 3:1 cornice");
}

TEST(Cornice, SkipsLinesWithoutBars) {
  EXPECT_EQ(Cornici("+--+--+¶ testo ¶¶+--+--+¶"), "");
}

TEST(Cornice, LooksOnlyBetweenTwoRulingLines) {
  EXPECT_EQ(Cornici("| x¶+--+¶ | ¶"), "");
  EXPECT_EQ(Cornici("+--+¶ |¶+--+¶ |¶+--+¶ |¶"), "2:1 cornice, 4:1 cornice");
}

TEST(Cornice, KnowsARulingLineByItsCharacters) {
  EXPECT_EQ(Cornici("+==+¶ |¶ +-=  +¶"), "");
  EXPECT_EQ(Cornici("+==+¶  |¶+---¶  |¶++¶"), "2:1 cornice, 4:1 cornice");  // one cross rules nothing
  EXPECT_EQ(Cornici("+--+¶|  x¶+---¶+--+¶"), "2:1 cornice");
  EXPECT_EQ(Cornici("+==+¶  |¶x+-+¶"), "");
  EXPECT_EQ(Cornici("++¶  |¶++¶"), "2:1 cornice");
}

TEST(Cornice, ReadsTheLinesAsTheyPrint) {
  EXPECT_EQ(Cornici("+<V501;3L\"-\">+¶|<V501;3L>|¶+<V0;\"---\">+¶"), "");
  EXPECT_EQ(Cornici("+<V501;3L\"-\">+¶|<V501;2L>|¶+<V0;\"---\">+¶"), "2:1 cornice");
  EXPECT_EQ(Cornici("<V501;9L\"+\">¶<V501;9L\"|\">¶<V501;9L\"+\">¶"), "");
  EXPECT_EQ(Cornici("<V501;9L\"+\">¶<V501;8L\"|\">¶<V501;9L\"+\">¶"), "2:1 cornice");
  EXPECT_EQ(Cornici("<V501;8L\"+\">¶<V501;9L\"|\">¶<V501;8L\"+\">¶"), "2:1 cornice");
}

TEST(Cornice, TakesRulingLinesAcrossSections) {
  EXPECT_EQ(Cornici("+--+--+¶<C4;2;>¶|  |  |¶|     |¶+--+--+¶", 1), "4:1 cornice");
}

TEST(Cornice, IsNotAskedForByDefault) {
  EXPECT_EQ(Trova("+--+¶ |¶+--+¶", 2), "");
}

}  // namespace
}  // namespace parvik::prova
