#include "output/FlagPerStampe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "output/CatalogoDiProva.h"
#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

//                         column 1    6                                                           66 69
const std::string Pagina97 = "F97  Solo prima pagina                                              F";
const std::string Pagina98 = "F98  Escluso ultima pagina                                          F";
const std::string Pagina99 = "F99  Su tutte le pagine                                             F";

/// The first row of a type that has this flag.
std::string RigaDi(int numero, const std::string& descrizione) {
  return FlagDi({{.Numero = numero, .Descrizione = descrizione}}).Righe().front();
}

struct Caso {
  const char* Nome;
  int Numero;
  std::string Descrizione;
  std::string Riga;
  double NumeroLetto;
};
using prova::PrintTo;

class RigaFlagTest : public testing::TestWithParam<Caso> {};

TEST_P(RigaFlagTest, HasTheFixedLayoutOf69Columns) {
  const std::string riga = RigaDi(GetParam().Numero, GetParam().Descrizione);
  EXPECT_EQ(riga, GetParam().Riga);
  EXPECT_EQ(riga.size(), 69U);
}

TEST_P(RigaFlagTest, IsReadBackFromItsSecondColumnOn) {
  const FlagPerStampe flag = FlagDi({{.Numero = GetParam().Numero, .Descrizione = GetParam().Descrizione}});
  EXPECT_EQ(flag.Numero(0), GetParam().NumeroLetto);
  EXPECT_FALSE(flag.Vero(0));
}

INSTANTIATE_TEST_SUITE_P(
    Casi, RigaFlagTest,
    testing::Values(
        Caso{"two_digits", 41, "Ultima pagina",
             "F41  Ultima pagina                                                  F", 41},
        Caso{"one_digit", 3, "Agente presente",
             "F3   Agente presente                                                F", 3},
        Caso{"zero", 0, "Zero", "F0   Zero                                                           F", 0},
        Caso{"three_digits_are_cut", 123, "Tre cifre",
             "F12  Tre cifre                                                      F", 12},
        Caso{"five_digits_are_cut", 32767, "Cinque",
             "F32  Cinque                                                         F", 32},
        Caso{"negative_digit", -7, "Negativo",
             "F-7  Negativo                                                       F", -7},
        Caso{"negative_number_is_cut", -12, "Negativo",
             "F-1  Negativo                                                       F", -1},
        Caso{"no_description", 5, "", "F5                                                                  F",
             5},
        Caso{"digits_in_front_of_the_description", 5, "12 mesi",
             "F5   12 mesi                                                        F", 5},
        Caso{"description_of_60", 44, "123456789 123456789 123456789 123456789 123456789 1234567890",
             "F44  123456789 123456789 123456789 123456789 123456789 1234567890   F", 44},
        Caso{"description_of_61_is_cut", 44, "123456789 123456789 123456789 123456789 123456789 1234567890X",
             "F44  123456789 123456789 123456789 123456789 123456789 1234567890   F", 44},
        Caso{"accents_are_one_column", 44, "Citt\xE0",
             "F44  Citt\xE0                                                          F", 44}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(FlagPerStampe, EndWithThePageConditions) {
  EXPECT_THAT(
      FlagDi({{.Numero = 3, .Descrizione = "Tre"}, {.Numero = 14, .Descrizione = "Quattordici"}}).Righe(),
      ElementsAre("F3   Tre                                                            F",
                  "F14  Quattordici                                                    F", Pagina97, Pagina98,
                  Pagina99));
}

TEST(FlagPerStampe, AreThePageConditionsAloneWhereTheTypeHasNoFlags) {
  const auto catalogo =
      Catalogo::CaricaCampi("1,\"P;P;3;9;9;9;9;9;9;9;9;9;9;9;9\"\r\n//fine documenti\r\n0009,\"a;1;N\r\n");
  ASSERT_TRUE(catalogo);
  FlagPerStampe flag;
  EXPECT_THAT(flag.Carica(*catalogo, catalogo->TipiDoc()[0]), IsEmpty());
  EXPECT_THAT(flag.Righe(), ElementsAre(Pagina97, Pagina98, Pagina99));
}

/// Three sections of two flags each, and a section count of the test's choice.
std::vector<std::string> NumeriConSezioni(int numSezioni) {
  const auto catalogo = Catalogo::CaricaCampi("1,\"P;P;" + std::to_string(numSezioni) +
                                              ";9;9;9;9;9;9;1;2;3;4;5;6\"\r\n//fine documenti\r\n" +
                                              "0001,\"a;11;N\r\n0002,\"b;12;N\r\n0003,\"c;21;N\r\n0004,\"d;"
                                              "22;N\r\n0005,\"e;31;N\r\n0006,\"f;32;N\r\n");
  FlagPerStampe flag;
  EXPECT_TRUE(catalogo && flag.Carica(*catalogo, catalogo->TipiDoc()[0]).empty());
  std::vector<std::string> numeri;
  for (const std::string& riga : flag.Righe()) numeri.push_back(riga.substr(1, 2));
  return numeri;
}

TEST(FlagPerStampe, ListTheFlagsOfEverySectionOfTheTypeInOrder) {
  EXPECT_THAT(NumeriConSezioni(3), ElementsAre("11", "12", "21", "22", "31", "32", "97", "98", "99"));
}

TEST(FlagPerStampe, ListTheTestataAloneForATypeOfOneSection) {
  EXPECT_THAT(NumeriConSezioni(1), ElementsAre("11", "12", "97", "98", "99"));
}

TEST(FlagPerStampe, AreLoadedAfresh) {
  const auto catalogo = Catalogo::CaricaCampi(
      "1,\"P;P;1;9;9;9;9;9;9;1;2;9;9;9;9\"\r\n//fine documenti\r\n0001,\"a;11;N\r\n0002,\"b;12;N\r\n");
  ASSERT_TRUE(catalogo);
  FlagPerStampe flag;
  EXPECT_THAT(flag.Carica(*catalogo, catalogo->TipiDoc()[0]), IsEmpty());
  flag.SettaFlag(0, true);
  EXPECT_THAT(flag.Carica(*catalogo, catalogo->TipiDoc()[0]), IsEmpty());
  EXPECT_EQ(flag.Righe().size(), 5U);
  EXPECT_FALSE(flag.Vero(0));
}

TEST(FlagPerStampe, TellThatTheCatalogueIsOfAnotherVersion) {
  const auto catalogo = Catalogo::CaricaCampi(
      "1,\"P;P;1;9;9;9;9;9;9;1;3;9;9;9;9\"\r\n//fine "
      "documenti\r\n0001,\"a;11;N\r\n0002,b;12;N\r\n0003,\"c;13;N\r\n");
  ASSERT_TRUE(catalogo);
  FlagPerStampe flag;
  EXPECT_THAT(flag.Carica(*catalogo, catalogo->TipiDoc()[0]),
              ElementsAre(ErroreSezione{Sezione::Testata, NumeroErrore::ArgomentoNonValido, 4}));
}

TEST(FlagPerStampe, GoOnInTheNextSectionAfterANumberBeyond16Bits) {
  const auto catalogo = Catalogo::CaricaCampi(
      "1,\"P;P;3;9;9;9;9;9;9;1;2;3;4;5;6\"\r\n//fine documenti\r\n0001,\"a;11;N\r\n0002,\"b;99999;N\r\n"
      "0003,\"c;21;N\r\n0004,\"d;22;N\r\n0005,\"e;40000;N\r\n0006,\"f;32;N\r\n");
  ASSERT_TRUE(catalogo);
  FlagPerStampe flag;
  EXPECT_THAT(flag.Carica(*catalogo, catalogo->TipiDoc()[0]),
              ElementsAre(ErroreSezione{Sezione::Testata, NumeroErrore::Overflow, 4},
                          ErroreSezione{Sezione::Piede, NumeroErrore::Overflow, 7}));
  EXPECT_THAT(flag.Righe(),
              ElementsAre("F11  a                                                              F",
                          "F21  c                                                              F",
                          "F22  d                                                              F", Pagina97,
                          Pagina98, Pagina99));
}

TEST(FlagPerStampe, KeepTheirStateInTheLastColumn) {
  FlagPerStampe flag = FlagDi({{.Numero = 3, .Descrizione = "Tre"}, {.Numero = 14}});
  flag.SettaFlag(0, true);
  EXPECT_EQ(flag.Righe()[0], "F3   Tre                                                            V");
  EXPECT_TRUE(flag.Vero(0));
  EXPECT_FALSE(flag.Vero(1));
  flag.SettaFlag(0, false);
  EXPECT_EQ(flag.Righe()[0], "F3   Tre                                                            F");
}

TEST(FlagPerStampe, AreAllFalseAgainAfterTheReset) {
  FlagPerStampe flag = FlagDi({{.Numero = 3, .Vero = true}, {.Numero = 14, .Vero = true}});
  flag.SettaFlag(4, true);
  flag.AzzeraTutti();
  for (std::size_t i = 0; i < flag.Righe().size(); ++i) EXPECT_FALSE(flag.Vero(i)) << i;
}

TEST(FlagPerStampe, SetEveryRowOfANumber) {
  FlagPerStampe flag = FlagDi({{.Numero = 3}, {.Numero = 14}, {.Numero = 3}});
  EXPECT_TRUE(flag.SettaNumero(3, true));
  EXPECT_TRUE(flag.Vero(0));
  EXPECT_FALSE(flag.Vero(1));
  EXPECT_TRUE(flag.Vero(2));
  EXPECT_TRUE(flag.SettaNumero(97, true));
  EXPECT_TRUE(flag.Vero(3));
}

TEST(FlagPerStampe, ChangeNothingForANumberThatNoRowHas) {
  FlagPerStampe flag = FlagDi({{.Numero = 3}, {.Numero = 123}});
  const std::vector<std::string> prima = flag.Righe();
  EXPECT_FALSE(flag.SettaNumero(4, true));
  EXPECT_FALSE(flag.SettaNumero(123, true));
  EXPECT_EQ(flag.Righe(), prima);
}

TEST(FlagPerStampe, KnowNoRowsWhileNoTypeIsChosen) {
  FlagPerStampe flag = FlagDi({{.Numero = 3}, {.Numero = 14}});
  flag.Svuota();
  EXPECT_TRUE(flag.Righe().empty());
  EXPECT_FALSE(flag.SettaNumero(3, true));
}

}  // namespace
}  // namespace parvik::prova
