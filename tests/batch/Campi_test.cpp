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

const std::string AltraVersione =
    "Questa versione di Parvik a 32 bit è disallineata con quella del file CAMPI.TXT. - Impossibile "
    "continuare!";
const std::string Overflow = "Si è verificato l'errore: 6 Overflow";

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
  EXPECT_EQ(variabile.Campi({}),
            (Esecuzione{2, "", Detto(variabile.File, "testata, riga 4: " + AltraVersione)}));
  const CatalogoDiDueRighe flag(
      "0001,\"a;1;4;;1;0;0;0;0;0;0\r\n0002,\"b;2;4;;1;0;0;0;0;0;0\r\n0003,\"d;1;N\r\n0004,e;2;N\r\n");
  EXPECT_EQ(flag.Campi({}), (Esecuzione{2, "", Detto(flag.File, "testata, riga 6: " + AltraVersione)}));
}

TEST(Campi, RefusesARangeThatRunsPastTheLastLine) {
  const CatalogoDiDueRighe catalogo("0001,\"a;1;4;;1;0;0;0;0;0;0\r\n");
  EXPECT_EQ(catalogo.Campi({}),
            (Esecuzione{2, "", Detto(catalogo.File, "testata, riga 4: " + AltraVersione)}));
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
                                            Detto(catalogo.File, "testata, riga 4: " + Overflow)}));
}

/// A type of three sections with the runs given for its variables, then its flags.
struct CatalogoDiSezioni {
  CatalogoDiSezioni(const std::string& intervalli, const std::string& corpo) {
    Crea(File, "1,\"T;T;3;" + intervalli + "\"\r\n//fine documenti\r\n" + corpo);
    Crea(Cartella / "m.img", "a\r\n");
  }
  CartellaTemporanea Cartella;
  std::filesystem::path File = Cartella / "campi.txt";

  std::string Errori(std::vector<std::string> argomenti) const {
    argomenti.insert(argomenti.begin(), {"--campi", File.string()});
    const Esecuzione esecuzione = Esegui(argomenti);
    EXPECT_EQ(esecuzione.Stato, 2);
    return esecuzione.Errori;
  }
  std::string ErroriCampi() const { return Errori({"campi", "--tipo", "1"}); }
  std::string ErroriStampa() const {
    return Errori({"stampa", "--tipo", "1", (Cartella / "m.img").string()});
  }
};

TEST(Campi, TellsOfEachErrorWhereItIs) {
  const CatalogoDiSezioni catalogo("1;2;3;4;5;6;7;8;9;10;20;20",
                                   "0001,\"a;99999;4;;1;0;0;0;0;0;0\r\n"
                                   "\r\n// corpo\r"
                                   "0003,\"c;3;4;;1;0;0;0;0;0;0\r\n"
                                   "0004,\"d;4;99999;;1;0;0;0;0;0;0\r\n"
                                   "0005,\"e;5;4;;1;0;0;0;0;0;0\r\n"
                                   "0006,\"f;6;4;;1;0;0;0;0;0;0\r\n"
                                   "0007,\"g;70000;N\r\n"
                                   "0008,\"h;8;N\r\n"
                                   "0009,\"i;9;N\r\n"
                                   "0010,\"l;80000;N\r\n");
  EXPECT_EQ(catalogo.ErroriCampi(), Detto(catalogo.File, "testata, riga 3: " + Overflow) +
                                        Detto(catalogo.File, "testata, riga 10: " + Overflow) +
                                        Detto(catalogo.File, "corpo, riga 7: " + Overflow) +
                                        Detto(catalogo.File, "corpo, riga 13: " + Overflow));
  EXPECT_EQ(catalogo.ErroriStampa(), Detto(catalogo.File, "testata, riga 10: " + Overflow) +
                                         Detto(catalogo.File, "corpo, riga 13: " + Overflow));
}

TEST(Campi, TellsOnceOfALineThatIsInSeveralSections) {
  const CatalogoDiSezioni catalogo("9;9;9;9;9;9;1;2;1;2;1;2", "0001,\"a;1;N\r\n0002,\"b;99999;N\r\n");
  const std::string atteso = Detto(catalogo.File, "testata, corpo, piede, riga 4: " + Overflow);
  EXPECT_EQ(catalogo.ErroriCampi(), atteso);
  EXPECT_EQ(catalogo.ErroriStampa(), atteso);
}

TEST(Campi, TellsOfAnotherVersionAfterWhatItFoundBeforeAndOnce) {
  const CatalogoDiSezioni catalogo("9;9;9;9;9;9;1;2;3;4;3;4",
                                   "0001,\"a;1;N\r\n0002,\"b;99999;N\r\n0003,\"c;3\r\n0004,\"d\r\n");
  const std::string atteso = Detto(catalogo.File, "testata, riga 4: " + Overflow) +
                             Detto(catalogo.File, "corpo, riga 5: " + AltraVersione);
  EXPECT_EQ(catalogo.ErroriCampi(), atteso);
  EXPECT_EQ(catalogo.ErroriStampa(), atteso);
}

}  // namespace
}  // namespace parvik::prova
