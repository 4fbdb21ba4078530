#include "tokens/RiscriviCodice.h"

#include <gtest/gtest.h>

#include <array>

#include "tokens/Codice.h"

namespace parvik::prova {
namespace {

std::string Riscritto(std::string_view contenuto) {
  Variabile stringa;
  stringa.Intero1 = 12;
  Variabile numerica;
  numerica.Intero1 = 8;
  numerica.Intero4 = 1;
  numerica.Testo3 = "vecchio";
  const std::array variabili = {stringa, numerica};
  const std::array flag = {Flag{.Descrizione = "Estero", .Codice = 3, .Valore = "S"}};
  const auto riscritto = Riscrivi(contenuto, variabili, flag);
  if (!riscritto) return "-";
  return riscritto->empty() ? "" : std::string(ContenutoDi(*riscritto));
}

TEST(Riscrivi, GivesTheCodeThatTheDialogOfItsKindWrites) {
  EXPECT_EQ(Riscritto("V12;30"), "V12;30L");
  EXPECT_EQ(Riscritto("V8;10"), "V8;10R;#;1");  // the catalogue's euro is no 0
  EXPECT_EQ(Riscritto("V8,3;10L;0;0"), "V8;10L;0;0");
  EXPECT_EQ(Riscritto("F03"), "F3N");
  EXPECT_EQ(Riscritto("F97S"), "F97S");
  EXPECT_EQ(Riscritto("S;corsivo"), "S;COMPRESSO");
  EXPECT_EQ(Riscritto("C0;\"x\""), "V0;\"x\"");
  EXPECT_EQ(Riscritto("L5"), "L5;10");
  EXPECT_EQ(Riscritto("P07"), "P07");
}

TEST(Riscrivi, GivesNothingWhereTheDialogShowsAnotherEntry) {
  EXPECT_EQ(Riscritto("V13;30L"), "-");
  EXPECT_EQ(Riscritto("V65548;30L"), "-");
  EXPECT_EQ(Riscritto("F4N"), "-");
  EXPECT_EQ(Riscritto("F3.5N"), "-");
  EXPECT_EQ(Riscritto("X"), "-");
}

TEST(Riscrivi, IsEmptyWhereTheDialogWritesNothing) {
  EXPECT_EQ(Riscritto("V0;\"  \""), "");
  EXPECT_EQ(Riscritto("P "), "");
  EXPECT_EQ(Riscritto("L;5"), "");
}

}  // namespace
}  // namespace parvik::prova
