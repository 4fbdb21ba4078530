#include <gtest/gtest.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"

namespace parvik::prova {
namespace {

const std::string Testata =
    "testata\tV\t1\t«V1;40L»\tRagione sociale\n"
    "testata\tV\t2\t«V2;30R\".\"»\tCittà\n"
    "testata\tF\t1\t«F1N»\tCliente estero\n"
    "testata\tF\t2\t«F2S»\tValuta\n";
const std::string Corpo =
    "corpo\tV\t101\t«V101,3;60L»\tNote\n"
    "corpo\tV\t102\t«V102;12R\"*\";.0,2-;1»\tImporto\n"
    "corpo\tF\t14\t«F14S»\tLotto\n"
    "corpo\tF\t15\t«F15N»\tScadenza\n"
    "corpo\tF\t14\t«F14»\tLotto ancora\n";

Esecuzione Campi(std::vector<std::string> opzioni) {
  const HostDiProva host;
  opzioni.insert(opzioni.begin(), "campi");
  return Esegui(host.Argomenti(std::move(opzioni)));
}

TEST(Campi, ListsVariablesAndFlagsOfEachSectionInOrder) {
  EXPECT_EQ(Campi({"--tipo", "1"}), (Esecuzione{0, Testata + Corpo, ""}));
}

TEST(Campi, ListsOneSectionAlone) {
  EXPECT_EQ(Campi({"--tipo", "1", "--sezione", "testata"}), (Esecuzione{0, Testata, ""}));
  EXPECT_EQ(Campi({"--tipo", "1", "--sezione", "corpo"}), (Esecuzione{0, Corpo, ""}));
}

TEST(Campi, PrintsNothingForASectionWithoutEntries) {
  EXPECT_EQ(Campi({"--tipo", "1", "--sezione", "piede"}), (Esecuzione{0, "", ""}));
  EXPECT_EQ(Campi({"--tipo", "23"}), (Esecuzione{0, "", ""}));
}

TEST(Campi, ListsTheTestataAloneForATypeOfOneSection) {
  EXPECT_EQ(Campi({"--tipo", "2"}), (Esecuzione{0,
                                                "testata\tV\t1\t«V1;40L»\tRagione sociale\n"
                                                "testata\tV\t2\t«V2;30R\".\"»\tCittà\n"
                                                "testata\tF\t3\t«F3N»\tPrezzi netti\n"
                                                "testata\tF\t4\t«F4N»\tNovità\n",
                                                ""}));
  EXPECT_EQ(Campi({"--tipo", "2", "--sezione", "corpo"}), (Esecuzione{0, "", ""}));
}

TEST(Campi, TakesTheOptionsInFrontOfTheCommandToo) {
  const HostDiProva host;
  const Esecuzione dopo = Esegui({"campi", "--tipo", "1", "--velkor", host.Percorso().string()});
  EXPECT_EQ(dopo, (Esecuzione{0, Testata + Corpo, ""}));
}

/// A type of three sections whose Testata has the body lines 1 and 2 for variables and 3 and 4 for flags.
struct CatalogoDiDueRighe {
  explicit CatalogoDiDueRighe(const std::string& corpo) {
    Crea(File, "1,\"T;T;3;1;2;9;9;9;9;3;4;9;9;9;9\"\r\n//fine documenti\r\n" + corpo);
  }
  CartellaTemporanea Cartella;
  std::filesystem::path File = Cartella / "campi.txt";

  Esecuzione Campi(std::vector<std::string> opzioni) const {
    opzioni.insert(opzioni.begin(), {"--campi", File.string(), "campi", "--tipo", "1"});
    return Esegui(opzioni);
  }
};

constexpr std::string_view AltraVersione =
    "Questa versione di Parvik a 32 bit è disallineata con quella del file CAMPI.TXT. - Impossibile "
    "continuare!";

TEST(Campi, PrintsControlCharactersOfCodesAndDescriptionsAsSpaces) {
  const CatalogoDiDueRighe catalogo(
      "0001,\"a\tb;1;4;\t;1;0;0;0;0;0;0\r\n0002,\"c\x01\n\x81;2;4;;1;0;0;0;0;0;0\r\n"
      "0003,\"d\x1F;1;\t\r\n0004,\"e;2;N\r\n");
  EXPECT_EQ(catalogo.Campi({}), (Esecuzione{0,
                                            "testata\tV\t1\t«V1;4L\" \"»\ta b\n"
                                            "testata\tV\t2\t«V2;4L»\tc  \xC2\x81\n"
                                            "testata\tF\t1\t«F1 »\td \n"
                                            "testata\tF\t2\t«F2N»\te\n",
                                            ""}));
}

TEST(Campi, RefusesACatalogueOfAnotherVersion) {
  const CatalogoDiDueRighe variabile(
      "0001,\"a;1;4;;1;0;0;0;0;0;0\r\n0002,\"b;2\r\n0003,\"d;1;N\r\n0004,\"e;2;N\r\n");
  EXPECT_EQ(variabile.Campi({}), (Esecuzione{2, "", Detto(variabile.File, AltraVersione)}));
  const CatalogoDiDueRighe flag(
      "0001,\"a;1;4;;1;0;0;0;0;0;0\r\n0002,\"b;2;4;;1;0;0;0;0;0;0\r\n0003,\"d;1;N\r\n0004,e;2;N\r\n");
  EXPECT_EQ(flag.Campi({}), (Esecuzione{2, "", Detto(flag.File, AltraVersione)}));
}

TEST(Campi, RefusesARangeThatRunsPastTheLastLine) {
  const CatalogoDiDueRighe catalogo("0001,\"a;1;4;;1;0;0;0;0;0;0\r\n");
  EXPECT_EQ(catalogo.Campi({}), (Esecuzione{2, "", Detto(catalogo.File, AltraVersione)}));
}

TEST(Campi, LoadsOnlyTheSectionThatItPrints) {
  const CatalogoDiDueRighe catalogo("0001,\"a;1\r\n0002,\"b;2\r\n0003,\"d\r\n0004,\"e\r\n");
  EXPECT_EQ(catalogo.Campi({"--sezione", "corpo"}), (Esecuzione{0, "", ""}));
}

TEST(Campi, PrintsWhatItReadBeforeANumberBeyond16Bits) {
  const CatalogoDiDueRighe catalogo(
      "0001,\"a;1;4;;1;0;0;0;0;0;0\r\n0002,\"b;99999;4;;1;0;0;0;0;0;0\r\n0003,\"d;1;N\r\n0004,\"e;2;N\r\n");
  EXPECT_EQ(catalogo.Campi({}), (Esecuzione{2,
                                            "testata\tV\t1\t«V1;4L»\ta\n"
                                            "testata\tF\t1\t«F1N»\td\n"
                                            "testata\tF\t2\t«F2N»\te\n",
                                            Detto(catalogo.File, "Si è verificato l'errore: 6 Overflow")}));
}

}  // namespace
}  // namespace parvik::prova
