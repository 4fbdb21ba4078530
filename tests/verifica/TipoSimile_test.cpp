#include "verifica/TipoSimile.h"

#include <gtest/gtest.h>

#include "verifica/DiProva.h"

namespace parvik::prova {
namespace {

/// The number of the type that a template of type 1 seems to be of; 0 of none.
int Simile(std::string_view testata, std::string_view corpo = "", std::string_view piede = "", int tipo = 1) {
  const std::string testi[] = {DellaSezione(testata), DellaSezione(corpo), DellaSezione(piede)};
  const VociTipo voci(CatalogoDiVerifica(), TipoDiVerifica(tipo));
  const TipoDoc* simile = TipoSimile({testi[0], testi[1], testi[2]}, voci, CatalogoDiVerifica());
  return simile == nullptr ? 0 : simile->Indice + 1;
}

TEST(TipoSimile, IsTheOneThatKnowsMoreThanHalfOfTheVariables) {
  EXPECT_EQ(Simile("<V501;30L><V502;30L><V1;30L>¶"), 2);
  EXPECT_EQ(Simile("<V501;30L>¶", "<V502;30L>¶", "<V22;12L>¶"), 2);
  EXPECT_EQ(Simile("<V1;30L><V2;12R>¶", "", "", 2), 1);
}

TEST(TipoSimile, IsNoneWhereHalfAreKnownOrNobodyKnowsThem) {
  EXPECT_EQ(Simile("<V501;30L><V1;30L>¶"), 0);
  EXPECT_EQ(Simile("<V901;30L><V902;30L><V903;30L>¶"), 0);
  EXPECT_EQ(Simile("<V501;30L><V902;30L>¶"), 0) << "one of two is not more than half";
  EXPECT_EQ(Simile(""), 0);
  EXPECT_EQ(Simile("testo <F7N> <L3;10> V501;30L¶"), 0);
}

TEST(TipoSimile, CountsEveryUseAndVariablesWithoutANumber) {
  EXPECT_EQ(Simile("<V501;30L><V501;30L><V501;30L><V1;30L><V2;12R>¶"), 2);
  EXPECT_EQ(Simile("<V501;30L><V><V>¶"), 0);
}

TEST(TipoSimile, LooksAtTheSectionsOfTheTypeAlone) {
  EXPECT_EQ(Simile("<V503;30L>¶", "<V1;30L><V2;12R>¶", "", 2), 0);
}

}  // namespace
}  // namespace parvik::prova
