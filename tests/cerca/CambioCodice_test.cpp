#include "cerca/CambioCodice.h"

#include <gtest/gtest.h>

#include "cerca/EspressioneDiProva.h"

namespace parvik::prova {
namespace {

/// "" where it cannot be, "?" where the change is not understood.
std::string Cambiato(std::string_view contenuto, std::string_view scritto) {
  const auto cambi = LeggiCambi(scritto);
  if (!cambi) return "?";
  return Scritto(Cambia(contenuto, *cambi, Voci()).value_or(""));
}

TEST(CambioCodice, GivesAVariableAnotherFormat) {
  EXPECT_EQ(Cambiato("V15;29L\".\"", "larghezza 32"), "<V15;32L\".\">");
  EXPECT_EQ(Cambiato("V15;29L", "a destra"), "<V15;29R>");
  EXPECT_EQ(Cambiato("V15;29R", "allineamento sinistra"), "<V15;29L>");
  EXPECT_EQ(Cambiato("V15;29L", "riempimento ."), "<V15;29L\".\">");
  EXPECT_EQ(Cambiato("V15;29L\".\"", "riempimento nessuno"), "<V15;29L>");
  EXPECT_EQ(Cambiato("V15;29L", "riempimento \",\", larghezza 5"), "<V15;5L\",\">");
  EXPECT_EQ(Cambiato("V15;29L", "Riempimento spazio"), "<V15;29L\" \">");
  EXPECT_EQ(Cambiato("V105;9R;#,2;0", "decimali 3"), "<V105;9R;#,3;0>");
  EXPECT_EQ(Cambiato("V105;9R;#,2;0", "decimali nessuno"), "<V105;9R;#;0>");
  EXPECT_EQ(Cambiato("V105;9R;#,2;0", "decimali *,  larghezza 12,a sinistra"), "<V105;12L;#,*;0>");
}

TEST(CambioCodice, TakesAnotherFieldWithItsOwnType) {
  EXPECT_EQ(Cambiato("V15;29L", "numero 1"), "<V1;29L>");
  EXPECT_EQ(Cambiato("V15;29R", "numero 105"), "<V105;29R;#;0>");
  EXPECT_EQ(Cambiato("V105;9R;.0,2;1", "numero 15"), "<V15;9R>");
  EXPECT_EQ(Cambiato("V15;29L", "numero 16"), "");
}

TEST(CambioCodice, LeavesWhatHoldsSomethingElse) {
  EXPECT_EQ(Cambiato("V15;29L", "larghezza 29 -> 32"), "<V15;32L>");
  EXPECT_EQ(Cambiato("V15;30L", "larghezza 29 -> 32"), "");
  EXPECT_EQ(Cambiato("V15;30L", "numero 15 -> 1"), "<V1;30L>");
  EXPECT_EQ(Cambiato("V15;30L", "numero 2 -> 1"), "");
  EXPECT_EQ(Cambiato("V15;30L", "allineamento sinistra -> destra"), "<V15;30R>");
  EXPECT_EQ(Cambiato("V15;30R", "allineamento sinistra -> destra"), "");
  EXPECT_EQ(Cambiato("V15;30L\"*\"", "riempimento * -> nessuno"), "<V15;30L>");
  EXPECT_EQ(Cambiato("V105;9R;#;0", "decimali 2 -> 3"), "");
}

TEST(CambioCodice, ChangesWhatOtherKindsHave) {
  EXPECT_EQ(Cambiato("L5;20", "numero 6, larghezza 12"), "<L6;12>");
  EXPECT_EQ(Cambiato("L5", "larghezza 10 -> 12"), "<L5;12>");
  EXPECT_EQ(Cambiato("F3S", "numero 14"), "<F14S>");
  EXPECT_EQ(Cambiato("F3S", "numero 97"), "<F97S>");
  EXPECT_EQ(Cambiato("P1", "numero 2"), "<P2>");
}

TEST(CambioCodice, LeavesWhatHasNoSuchField) {
  EXPECT_EQ(Cambiato("F3S", "numero 15"), "");
  EXPECT_EQ(Cambiato("F3S", "larghezza 5"), "");
  EXPECT_EQ(Cambiato("P1", "decimali 2"), "");
  EXPECT_EQ(Cambiato("L5;20", "a destra"), "");
  EXPECT_EQ(Cambiato("V15;29L", "decimali 2"), "");
  EXPECT_EQ(Cambiato("V16;29L", "larghezza 5"), "");
  EXPECT_EQ(Cambiato("S;GRASSETTO", "larghezza 5"), "");
  EXPECT_EQ(Cambiato("V0;\"a\"", "larghezza 5"), "");
  EXPECT_EQ(Cambiato("", "larghezza 5"), "");
  EXPECT_EQ(Cambiato("L;20", "larghezza 5"), "");
}

TEST(CambioCodice, IsNotUnderstood) {
  for (const char* scritto :
       {"", "ciao", "larghezza", "larghezza 0", "larghezza 1000", "larghezza x", "larghezza -1", "numero 0",
        "numero 32768", "decimali 12", "decimali x", "riempimento ab", "allineamento su", "larghezza 5,",
        "larghezza x -> 5", "larghezza 5 -> "})
    EXPECT_EQ(Cambiato("V15;29L", scritto), "?") << scritto;
}

TEST(CambioCodice, IsToldTwice) {
  const auto cambi = LeggiCambi("larghezza 5, larghezza 6");
  ASSERT_FALSE(cambi);
  EXPECT_EQ(cambi.Errore(), "«larghezza 6»: lo stesso campo cambia già");
}

}  // namespace
}  // namespace parvik::prova
