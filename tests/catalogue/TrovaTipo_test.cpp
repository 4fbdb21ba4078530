#include "catalogue/TrovaTipo.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

struct Confronto {
  const char* nome;
  const char* file;
  const char* modello;
  bool corrisponde;

  friend void PrintTo(const Confronto& caso, std::ostream* dove) {
    *dove << caso.file << " with " << caso.modello;
  }
};

class NomeCorrispondeTest : public testing::TestWithParam<Confronto> {};

TEST_P(NomeCorrispondeTest, GoesByTheWholeName) {
  EXPECT_EQ(NomeCorrisponde(GetParam().file, GetParam().modello), GetParam().corrisponde);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, NomeCorrispondeTest,
    testing::Values(Confronto{"a_star", "FATT01.IMG", "FATT*.IMG", true},
                    Confronto{"a_star_for_nothing", "FATT.IMG", "FATT*.IMG", true},
                    Confronto{"other_case", "fatt01.img", "FATT*.IMG", true},
                    Confronto{"another_name", "NCRED01.IMG", "FATT*.IMG", false},
                    Confronto{"more_behind", "FATT01.IMG.bak", "FATT*.IMG", false},
                    Confronto{"more_in_front", "XFATT01.IMG", "FATT*.IMG", false},
                    Confronto{"a_question_mark", "A1.IMG", "A?.IMG", true},
                    Confronto{"a_question_mark_wants_one", "A.IMG", "A?.IMG", false},
                    Confronto{"one_character_of_two_bytes", "A\u00E0.IMG", "A?.IMG", true},
                    Confronto{"a_star_that_takes_more", "AxAxB", "A*xB", true},
                    Confronto{"a_star_over_a_question_mark", "ab\u00E0c", "*?c", true},
                    Confronto{"only_stars", "x", "**", true}, Confronto{"nothing_and_stars", "", "**", true},
                    Confronto{"nothing", "", "", true}, Confronto{"something_and_nothing", "a", "", false}),
    [](const auto& caso) { return std::string(caso.param.nome); });

Catalogo CatalogoDiEsempio() {
  return std::move(*Catalogo::CaricaCampi(Contenuto(Esempio() / "D_IMG" / "CAMPI.TXT")));
}

TEST(TipoPerNumero, IsTheSlotBelow) {
  const Catalogo catalogo = CatalogoDiEsempio();
  EXPECT_EQ(TipoPerNumero(catalogo, 1), 0U);
  EXPECT_EQ(TipoPerNumero(catalogo, 23), 22U);
  for (const int numero : {-1, 0, 24, 32767})
    EXPECT_EQ(TipoPerNumero(catalogo, numero), std::nullopt) << numero;
}

TEST(TipoPerNumero, IsNoEmptySlot) {
  const std::string riga = R"(2, "Uno;UNO*.IMG;3;1;1;1;1;1;1;1;1;1;1;1;1")";
  const auto catalogo = Catalogo::CaricaCampi(riga + "\r\n//fine documenti\r\n");
  ASSERT_TRUE(catalogo);
  EXPECT_EQ(TipoPerNumero(*catalogo, 1), std::nullopt);
  EXPECT_EQ(TipoPerNumero(*catalogo, 2), 1U);
}

TEST(TipiPerNome, FindsTheTypeOfEachExample) {
  const Catalogo catalogo = CatalogoDiEsempio();
  const std::vector<std::pair<std::string, std::size_t>> attesi = {
      {"FATT01.IMG", 0},  {"NCRED01.IMG", 2}, {"DDT01.IMG", 3},   {"ORDCL01.IMG", 4},  {"PREV01.IMG", 6},
      {"RICEV01.IMG", 7}, {"ESTCL01.IMG", 9}, {"LIST01.IMG", 11}, {"COLLO01.IMG", 13}, {"SOLL01.IMG", 14}};
  for (const auto& [nome, slot] : attesi) EXPECT_EQ(TipiPerNome(catalogo, nome), std::vector{slot}) << nome;
}

TEST(TipiPerNome, FindsNoneForANameThatNoTypeHas) {
  EXPECT_TRUE(TipiPerNome(CatalogoDiEsempio(), "lettera.img").empty());
}

}  // namespace
}  // namespace parvik::prova
