// The list of the document types that a user may choose from.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "catalogue/CampiDiProva.h"
#include "catalogue/Catalogo.h"

namespace parvik::prova {
namespace {

TEST(TipiElencati, ListsOnlyTheFirst22Of23Types) {
  std::vector<std::string> righe;
  std::vector<std::string> attese;
  for (int numero = 1; numero <= 23; ++numero) {
    righe.push_back(RigaTipo(numero, "0;0", "0;0"));
    if (numero <= 22) attese.push_back("Tipo " + std::to_string(numero));
  }
  righe.emplace_back("//fine documenti");
  const Catalogo catalogo = Carica(Righe(righe));
  EXPECT_EQ(attese, Descrizioni(catalogo.TipiElencati()));
  EXPECT_EQ("Tipo 23", catalogo.TipiDoc()[22].Descrizione);
}

TEST(TipiElencati, EndsAtTheFirstGap) {
  std::vector<std::string> righe;
  for (const int numero : {1, 2, 3, 4, 6, 7}) righe.push_back(RigaTipo(numero, "0;0", "0;0"));
  righe.emplace_back("//fine documenti");
  const Catalogo catalogo = Carica(Righe(righe));
  EXPECT_EQ((std::vector<std::string>{"Tipo 1", "Tipo 2", "Tipo 3", "Tipo 4"}),
            Descrizioni(catalogo.TipiElencati()));
  EXPECT_EQ("Tipo 6", catalogo.TipiDoc()[5].Descrizione);
}

TEST(TipiElencati, EndsAtATypeWhoseDescriptionIsOnlySpaces) {
  const Catalogo catalogo =
      Carica(Righe({RigaTipo(1, "0;0", "0;0"), "2,\"   ;T;1;1;2;3;4;5;6;7;8;9;10;11;12\"",
                    RigaTipo(3, "0;0", "0;0"), "//fine documenti"}));
  EXPECT_EQ(std::vector<std::string>{"Tipo 1"}, Descrizioni(catalogo.TipiElencati()));
}

TEST(TipiElencati, IsEmptyWithoutTypesAndWhenTheFirstIsMissing) {
  EXPECT_TRUE(Carica("//fine documenti").TipiElencati().empty());
  EXPECT_TRUE(Carica(Righe({RigaTipo(2, "0;0", "0;0"), "//fine documenti"})).TipiElencati().empty());
}

}  // namespace
}  // namespace parvik::prova
