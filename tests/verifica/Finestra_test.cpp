// Texts as they stand in a window.
#include <gtest/gtest.h>

#include "verifica/DiProva.h"

namespace parvik::prova {
namespace {

std::vector<Rilievo> InFinestra(std::array<std::string, MaxSezioni> scritti, int tipo = 1,
                                std::int16_t righeCorpo = 4) {
  for (std::string& scritto : scritti) scritto = DellaSezione(scritto);
  Verificatore verificatore(CatalogoDiVerifica(), TipoDiVerifica(tipo));
  return *verificatore.Testi(
      {.Testi = {scritti[0], scritti[1], scritti[2]},
       .Corpo = {.RigheCorpo = righeCorpo, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""}},
      {});
}

TEST(TestiInFinestra, HaveLinesOfTheirSectionAndComeSectionBySection) {
  const std::vector<Rilievo> rilievi = InFinestra({"a¶ <X>¶", "<X>¶", "¶¶<V99;1L>¶"});
  EXPECT_EQ(Elenco(rilievi), "2:2 codice-sconosciuto, 1:1 codice-sconosciuto, 3:1 variabile-sconosciuta");
  EXPECT_EQ(rilievi[2].Dove, Sezione::Piede);
}

TEST(TestiInFinestra, NeedNoMarker) {
  EXPECT_EQ(Elenco(InFinestra({"¶", "¶", "¶"})), "");
  EXPECT_EQ(Elenco(InFinestra({"a\nb¶", "¶", "¶"})), "");
}

TEST(TestiInFinestra, SayAMarkerThatWasReadIntoTheFirstLine) {
  EXPECT_EQ(Elenco(InFinestra({"<C4;1;>¶<V22;12L>¶", "", ""})), "1:1 marcatore-in-prima-riga");
}

TEST(TestiInFinestra, SayDelimitersOfFiles) {
  EXPECT_EQ(Elenco(InFinestra({"a\xAE b\xAF¶", "¶", "<V0;\"\xAE\xAE\">¶"})),
            "1:2 delimitatore-di-file, 1:5 delimitatore-di-file, 1:1 delimitatore-di-file");
}

TEST(TestiInFinestra, SayALastLineThatSavingFollowsByAnEmptyOne) {
  EXPECT_EQ(Elenco(InFinestra({"a¶b", "c", "p"})), "2:1 riga-senza-fine, 1:1 riga-senza-fine");
  EXPECT_EQ(Elenco(InFinestra({"a¶  ", "c", "p¶"})), "");
}

TEST(TestiInFinestra, SayALastLineThatSavingDrops) {
  const std::vector<Rilievo> rilievi = InFinestra({"a¶b", "", ""}, 2);
  ASSERT_EQ(Elenco(rilievi), "2:1 riga-senza-fine");
  EXPECT_EQ(rilievi[0].Testo, "l'ultima riga non è finita: salvando va persa");
}

TEST(TestiInFinestra, SayABodyThatIsNotPrinted) {
  EXPECT_EQ(Elenco(InFinestra({"¶", "c¶", "¶"}, 1, 0)), "1:1 corpo-non-stampato");
  EXPECT_EQ(Elenco(InFinestra({"¶", "¶", "¶"}, 1, 0)), "");
}

TEST(TestiInFinestra, HaveNoOtherSectionsInATypeOfOne) {
  EXPECT_EQ(Elenco(InFinestra({"¶", "<X>¶", "<X>"}, 2)), "");
}

}  // namespace
}  // namespace parvik::prova
