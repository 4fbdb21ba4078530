// Which catalogue the program takes, and what it says of one that it cannot take.
#include <gtest/gtest.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/TestoPercorso.h"
#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

const std::string TipoBuono = "1,\"T;T*;3;1;1;1;1;1;1;1;1;1;1;1;1\"\r\n";
const Esecuzione UnTipo = {0, "1\tT\tT*\t3\n", ""};

/// The program's own copy in the folder of a host that the test makes.
fs::path ProgrammaIn(const fs::path& cartella) {
  fs::create_directories(cartella);
  fs::copy_file(Batch(), cartella / "parvik32-batch");
  return cartella / "parvik32-batch";
}

TEST(CatalogoScelto, IsThatOfTheFolderAboveTheProgram) {
  const CartellaTemporanea host;
  Crea(host / "VELKOR.INI", "");
  Crea(host / "D_IMG" / "CAMPI.TXT", TipoBuono + "//fine documenti\r\n");
  EXPECT_EQ(Esegui({"tipi"}, {.Programma = ProgrammaIn(host / "PARVIK")}), UnTipo);
}

TEST(CatalogoScelto, IsThatOfTheExampleForTheBuiltProgram) {
  EXPECT_EQ(Esegui({"tipi"}), EseguiEsempio({"tipi"}));
}

TEST(CatalogoScelto, IsThatOfTheProfileInTheUsersConfiguration) {
  const CartellaTemporanea cartella;
  Crea(cartella / "host" / "d_img" / "campi.txt", TipoBuono + "//fine documenti\r\n");
  Crea(cartella / "casa" / "VELKOR.INI", "[AMBIENTE]\r\nDir velkor=" + (cartella / "host").string() + "\r\n");
  EXPECT_EQ(
      Esegui({"tipi"}, {.Programma = ProgrammaIn(cartella / "altrove" / "P"), .Casa = cartella / "casa"}),
      UnTipo);
}

TEST(CatalogoScelto, IsThatOfAProfileAsTheHostsPlatformWritesIt) {
  const CartellaTemporanea cartella;
  Crea(cartella.Percorso() / PercorsoDaTesto("citt\xC3\xA0") / "host" / "d_img" / "campi.txt",
       TipoBuono + "//fine documenti\r\n");
  const std::string profilo =
      "[AMBIENTE]\r\nDir velkor=" + cartella.Percorso().string() + "\\citt\xE0\\host\\\r\n";
  std::string utf16 = "\xFF\xFE";
  for (const char c : profilo) utf16.append(1, c).append(1, '\0');
  const fs::path programma = ProgrammaIn(cartella / "altrove" / "P");
  for (const std::string& contenuto : {profilo, utf16}) {
    Crea(cartella / "casa" / "VELKOR.INI", contenuto);
    EXPECT_EQ(Esegui({"tipi"}, {.Programma = programma, .Casa = cartella / "casa"}), UnTipo);
  }
}

TEST(CatalogoScelto, CannotBeFoundWithoutAProfile) {
  const CartellaTemporanea cartella;
  const Esecuzione esecuzione = Esegui({"tipi"}, {.Programma = ProgrammaIn(cartella / "altrove" / "P")});
  EXPECT_EQ(
      esecuzione,
      (Esecuzione{
          2, "",
          Detto("VELKOR.INI: Non sono riuscito a trovare la directory di installazione di [velkor].")}));
}

TEST(CatalogoScelto, IsThatOfTheHostNamedWithVelkorInAnyCaseOfItsFolders) {
  const CartellaTemporanea host;
  Crea(host / "d_img" / "Campi.txt", TipoBuono + "//fine documenti\r\n");
  EXPECT_EQ(Esegui({"--velkor", host.Percorso().string(), "tipi"}), UnTipo);
}

TEST(CatalogoScelto, IsTheFileNamedWithCampi) {
  const CartellaTemporanea cartella;
  Crea(cartella / "qualunque nome", TipoBuono + "//fine documenti\r\n");
  EXPECT_EQ(Esegui({"--campi", (cartella / "qualunque nome").string(), "tipi"}), UnTipo);
}

TEST(CatalogoScelto, IsNamedInTheMessageWhenTheHostHasNone) {
  const CartellaTemporanea host;
  EXPECT_EQ(Esegui({"--velkor", host.Percorso().string(), "tipi"}),
            (Esecuzione{2, "", Detto(host / "D_IMG" / "CAMPI.TXT", "catalogo non trovato")}));
}

TEST(CatalogoScelto, MayBeNeitherAFolderNorAbsent) {
  const CartellaTemporanea host;
  EXPECT_EQ(Esegui({"--campi", host.Percorso().string(), "tipi"}),
            (Esecuzione{2, "",
                        Detto("Si è verificato l'errore: 75 Errore di accesso al percorso/file - " +
                              host.Percorso().string() + ", riga 1")}));
  EXPECT_EQ(Esegui({"--campi", (host / "manca").string(), "tipi"}),
            (Esecuzione{2, "", Detto(host / "manca", "catalogo non trovato")}));
  Crea(host / "file", "");
  EXPECT_EQ(Esegui({"--campi", (host / "file" / "campi.txt").string(), "tipi"}),
            (Esecuzione{2, "", Detto(host / "file" / "campi.txt", "catalogo non trovato")}));
}

TEST(CatalogoScelto, MayBeNoLinkThatLeadsNowhere) {
  if (!Collegamenti()) GTEST_SKIP() << "no links here";
  const CartellaTemporanea host;
  std::filesystem::create_symlink("nulla", host / "legame");
  EXPECT_EQ(Esegui({"--campi", (host / "legame").string(), "tipi"}),
            (Esecuzione{2, "", Detto(host / "legame", "catalogo non trovato")}));
}

struct Caso {
  const char* Nome;
  std::string Contenuto;
  std::string_view Errore;
  int Riga;
};
using prova::PrintTo;

class TestataErrataTest : public testing::TestWithParam<Caso> {};

TEST_P(TestataErrataTest, IsRefusedByEveryCommandWithItsLine) {
  const CartellaTemporanea cartella;
  const fs::path file = cartella / "campi.txt";
  Crea(file, GetParam().Contenuto);
  Crea(cartella / "m.img", "x\r\n");
  const std::string modello = (cartella / "m.img").string();
  const Esecuzione atteso = {2, "",
                             Detto("Si è verificato l'errore: " + std::string(GetParam().Errore) + " - " +
                                   file.string() + ", riga " + std::to_string(GetParam().Riga))};
  EXPECT_EQ(Esegui({"--campi", file.string(), "tipi"}), atteso);
  EXPECT_EQ(Esegui({"--campi", file.string(), "campi", "--tipo", "1"}), atteso);
  EXPECT_EQ(Esegui({"--campi", file.string(), "stampa", "--tipo", "1", modello}), atteso);
  EXPECT_EQ(Esegui({"--campi", file.string(), "normalizza", "--tipo", "1", modello}), atteso);
  EXPECT_EQ(Contenuto(modello), "x\r\n");
}

constexpr std::string_view Indice = "9 Indice non incluso nell'intervallo";
constexpr std::string_view Argomento = "5 Chiamata di routine o argomento non validi";
const std::string Campi14 = ";3;1;1;1;1;1;1;1;1;1;1;1";

INSTANTIATE_TEST_SUITE_P(
    Casi, TestataErrataTest,
    testing::Values(Caso{"empty_file", "", "62 Input oltre la fine del file", 1},
                    Caso{"no_end_marker", TipoBuono + "// nota\r\n", "62 Input oltre la fine del file", 3},
                    Caso{"slot_24", TipoBuono + "24,\"T;T" + Campi14 + ";1\"\r\n//fine documenti\r\n", Indice,
                         2},
                    Caso{"slot_0", "\r\n\r\n0,\"T;T" + Campi14 + ";1\"\r\n//fine documenti\r\n", Indice, 3},
                    Caso{"no_comma", "1 \"T;T" + Campi14 + ";1\"\r\n//fine documenti\r\n", Indice, 1},
                    Caso{"fourteen_fields", "1,\"T;T" + Campi14 + "\"\r\n//fine documenti\r\n", Argomento, 1},
                    Caso{"no_quotes", "1,T;T" + Campi14 + ";1\r\n//fine documenti\r\n", Argomento, 1},
                    Caso{"one_quote", "1,\"T;T" + Campi14 + ";1\r\n//fine documenti\r\n", Argomento, 1},
                    Caso{"number_beyond_16_bits", "99999,\"T;T" + Campi14 + ";1\"\r\n//fine documenti\r\n",
                         "6 Overflow", 1},
                    Caso{"field_beyond_16_bits",
                         "1,\"T;T;3;1;1;1;1;1;1;40000;1;1;1;1;1\"\r\n//fine documenti\r\n", "6 Overflow", 1}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

}  // namespace
}  // namespace parvik::prova
