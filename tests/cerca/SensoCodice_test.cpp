#include "cerca/SensoCodice.h"

#include <gtest/gtest.h>

#include "cerca/EspressioneDiProva.h"

namespace parvik::prova {
namespace {

bool Trova(std::string_view contenuto, const char* cercato, bool parola = false, bool maiuscole = false) {
  const Criterio criterio{
      .Testo = cercato, .Dove = DoveCercare::SoloCodici, .Maiuscole = maiuscole, .Parola = parola};
  return SensoCodice(criterio).Trova(contenuto, Voci());
}

TEST(SensoCodice, IsFoundByItsDescription) {
  EXPECT_TRUE(Trova("V15;30L", "cliente"));
  EXPECT_TRUE(Trova("V15;30L", "CLIENTE sociale"));
  EXPECT_TRUE(Trova("V105;9R;#;0", "quantita"));
  EXPECT_TRUE(Trova("F3N", "estero"));
  EXPECT_TRUE(Trova("F97N", "pagina"));
  EXPECT_FALSE(Trova("V105;9R;#;0", "cliente"));
  EXPECT_FALSE(Trova("V15;30L", "cliente quantita"));
}

TEST(SensoCodice, IsFoundByItsKind) {
  EXPECT_TRUE(Trova("V15;30L", "variabile"));
  EXPECT_TRUE(Trova("F3N", "flag"));
  EXPECT_TRUE(Trova("S;GRASSETTO", "stile"));
  EXPECT_TRUE(Trova("S;GRASSETTO", "grassetto"));
  EXPECT_TRUE(Trova("L5;20", "lingua"));
  EXPECT_TRUE(Trova("P1", "numero pagina"));
  EXPECT_TRUE(Trova("V0;\"Totale documento\"", "costante"));
  EXPECT_TRUE(Trova("V0;\"Totale documento\"", "totale"));
  EXPECT_TRUE(Trova("X", "sconosciuto"));
  EXPECT_FALSE(Trova("F3N", "variabile"));
}

TEST(SensoCodice, IsFoundByItsNumber) {
  EXPECT_TRUE(Trova("V105;9R;#;0", "105"));
  EXPECT_TRUE(Trova("V105;9R;#;0", "V105"));
  EXPECT_TRUE(Trova("V105;9R;#;0", "v105"));
  EXPECT_TRUE(Trova("V105,2;9R;#;0", "V105"));
  EXPECT_TRUE(Trova("F3N", "f3"));
  EXPECT_TRUE(Trova("L3;20", "L3"));
  EXPECT_TRUE(Trova("P3", "3"));
  EXPECT_FALSE(Trova("V1055;9R", "105"));
  EXPECT_FALSE(Trova("V1;105L", "105"));
  EXPECT_FALSE(Trova("F3N", "V3"));
  EXPECT_FALSE(Trova("V3;9999999999L", "9999999999"));
}

TEST(SensoCodice, IsFoundByANumberInItsOwnText) {
  EXPECT_TRUE(Trova("V0;\"Pagamento a 30 giorni\"", "30"));
  EXPECT_FALSE(Trova("V0;\"Pagamento\"", "30"));
}

TEST(SensoCodice, IsFoundByHowItIsPrinted) {
  EXPECT_TRUE(Trova("V105;29R;#;0", "105 larghezza 29"));
  EXPECT_FALSE(Trova("V105;32R;#;0", "105 larghezza 29"));
  EXPECT_TRUE(Trova("L5;20", "larghezza 20"));
  EXPECT_FALSE(Trova("L5", "larghezza 20"));
  EXPECT_FALSE(Trova("P20", "larghezza 20"));
  EXPECT_TRUE(Trova("V105;29R;#,2;0", "decimali 2"));
  EXPECT_FALSE(Trova("V105;29R;#,3;0", "decimali 2"));
  EXPECT_TRUE(Trova("V15,3;30L", "righe 3"));
  EXPECT_TRUE(Trova("V15;30R", "destra"));
  EXPECT_FALSE(Trova("V15;30L", "destra"));
}

TEST(SensoCodice, IsFoundByHowItIsWritten) {
  EXPECT_TRUE(Trova("V15;30L", ";30L"));
  EXPECT_TRUE(Trova("F3S", "3s"));
}

TEST(SensoCodice, KeepsToWordsAndCaseThatItIsTold) {
  EXPECT_TRUE(Trova("V15;30L", "soc"));
  EXPECT_FALSE(Trova("V15;30L", "soc", true));
  EXPECT_TRUE(Trova("V15;30L", "sociale", true));
  EXPECT_FALSE(Trova("V15;30L", "ragione", false, true));
  EXPECT_TRUE(Trova("V15;30L", "Ragione", false, true));
}

TEST(SensoCodice, OfNoWordsFindsNothing) {
  EXPECT_FALSE(Trova("V15;30L", ""));
  EXPECT_FALSE(Trova("V15;30L", "  "));
}

}  // namespace
}  // namespace parvik::prova
