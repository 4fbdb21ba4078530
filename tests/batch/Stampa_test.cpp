// `stampa` to standard output.
#include <gtest/gtest.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/FileDiProva.h"

namespace parvik::prova {
namespace {

/// Renders templates of type 1 of the small host.
class StampaTest : public testing::Test {
 protected:
  Esecuzione Stampa(std::vector<std::string> altri, const std::string& tipo = "1") const {
    altri.insert(altri.begin(), {"stampa", "--tipo", tipo});
    return Esegui(Host.Argomenti(std::move(altri)));
  }
  std::string Modello(std::string_view nome, const std::string& byte) const {
    return Host.Modello(nome, byte).string();
  }

  HostDiProva Host;
};

TEST_F(StampaTest, WritesTheSectionsInTheBytesOfTheFile) {
  const std::string m = Modello("m.img", "Citt\xE0 \x80\n" + NelFile("V2;5L") + "\r\n" + NelFile("C4;2;") +
                                             "\r\n" + "c\r\n" + NelFile("P7") + "\r\np\r\n");
  EXPECT_EQ(Stampa({m}), (Esecuzione{0, "Citt\xE0 \x80\n$$$$$\r\nc\r\n7\r\nc\r\n7\r\np\r\n", ""}));
}

TEST_F(StampaTest, ReadsATypeOfOneSectionAsOneSection) {
  const std::string m = Modello("m.img", "a\r\n" + NelFile("C4;2;") + "\r\nb");
  EXPECT_EQ(Stampa({m}, "2"), (Esecuzione{0, "a\r\n\r\nb\r\n", ""}));
}

TEST_F(StampaTest, TakesATypeThatTheListDoesNotOffer) {
  EXPECT_EQ(Stampa({Modello("m.img", "a\r\n")}, "23"), (Esecuzione{0, "a\r\n", ""}));
}

TEST_F(StampaTest, HidesWhatFalseFlagsHideAndShowsWhatTrueOnesShow) {
  const std::string m = Modello("m.img", NelFile("F1N") + NelFile("P1") + NelFile("F2S") + NelFile("P2") +
                                             NelFile("F97N") + NelFile("P3") + "\r\n");
  EXPECT_EQ(Stampa({m}), (Esecuzione{0, "\r\n", ""}));
  EXPECT_EQ(Stampa({"--veri", "2", m}), (Esecuzione{0, "2\r\n", ""}));
  EXPECT_EQ(Stampa({"--veri", "1,97", m}), (Esecuzione{0, "13\r\n", ""}));
  EXPECT_EQ(Stampa({"--veri", "97,1,2", m}), (Esecuzione{0, "123\r\n", ""}));
}

TEST_F(StampaTest, WarnsOfANumberThatNoFlagHasAndGoesOn) {
  const std::string m = Modello("m.img", NelFile("F1N") + NelFile("P1") + "\r\n");
  EXPECT_EQ(Stampa({"--veri", "77,1", m}),
            (Esecuzione{0, "1\r\n",
                        Detto(Host.Catalogo(), "avviso: il tipo di documento non ha il flag 77: ignorato")}));
}

TEST_F(StampaTest, WarnsOfEachNumberOnce) {
  const std::string avviso = "avviso: il tipo di documento non ha il flag ";
  EXPECT_EQ(Stampa({"--veri", "77,5,1,77", Modello("m.img", "a\r\n")}),
            (Esecuzione{0, "a\r\n",
                        Detto(Host.Catalogo(), avviso + "5: ignorato") +
                            Detto(Host.Catalogo(), avviso + "77: ignorato")}));
}

TEST_F(StampaTest, WarnsOfAFlagOfAnotherType) {
  const std::string m = Modello("m.img", "a\r\n");
  EXPECT_EQ(Stampa({"--veri", "14", m}, "2"),
            (Esecuzione{0, "a\r\n",
                        Detto(Host.Catalogo(), "avviso: il tipo di documento non ha il flag 14: ignorato")}));
}

TEST_F(StampaTest, WritesFilesOneAfterTheOther) {
  EXPECT_EQ(Stampa({Modello("a.img", "a\r\n"), Modello("b.img", "b\r\n"), Modello("c.img", "c\r\n")}),
            (Esecuzione{0, "a\r\nb\r\nc\r\n", ""}));
}

TEST_F(StampaTest, StartsEachFileAsInAFreshProgram) {
  // The first file ends with a false flag and body settings; the second has an unknown code and no marker.
  const std::string a =
      Modello("a.img", NelFile("P1") + "\r\n" + NelFile("C4;1;") + "\r\n" + NelFile("F1N") + "\r\n");
  const std::string b = Modello("b.img", NelFile("X") + NelFile("P2") + "\r\n");
  EXPECT_EQ(Stampa({a, b}), (Esecuzione{0, "1\r\n\r\n\r\n\r\n\r\n2\r\n", ""}));
}

TEST_F(StampaTest, GoesOnAfterAFileThatFails) {
  const std::string manca = (Host.Percorso() / "D_IMG" / "manca.img").string();
  EXPECT_EQ(Stampa({Modello("a.img", "a\r\n"), manca, Modello("b.img", "b\r\n")}),
            (Esecuzione{2, "a\r\nb\r\n",
                        Detto(manca + ": Si è verificato l'errore: 53 Impossibile trovare il file")}));
}

TEST_F(StampaTest, SaysOfEveryFileThatFails) {
  const std::string uno = (Host.Percorso() / "uno.img").string();
  const std::string due = (Host.Percorso() / "manca" / "due.img").string();
  EXPECT_EQ(Stampa({uno, due}),
            (Esecuzione{2, "",
                        Detto(uno + ": Si è verificato l'errore: 53 Impossibile trovare il file") +
                            Detto(due + ": Si è verificato l'errore: 53 Impossibile trovare il file")}));
}

TEST_F(StampaTest, RefusesAFolder) {
  EXPECT_EQ(
      Stampa({Host.Percorso().string()}),
      (Esecuzione{
          2, "", Detto(Host.Percorso(), "Si è verificato l'errore: 75 Errore di accesso al percorso/file")}));
}

TEST_F(StampaTest, RefusesAPipeWithoutWaitingForAWriter) {
  const std::string tubo = (Host.Percorso() / "tubo.img").string();
  if (!FaiPipe(tubo)) GTEST_SKIP() << "no pipes in folders here";
  EXPECT_EQ(
      Stampa({tubo}),
      (Esecuzione{2, "", Detto(tubo + ": Si è verificato l'errore: 75 Errore di accesso al percorso/file")}));
}

TEST_F(StampaTest, PrintsNothingForAnEmptyTemplate) {
  EXPECT_EQ(Stampa({Modello("m.img", "")}), (Esecuzione{0, "", ""}));
  EXPECT_EQ(Stampa({Modello("m.img", "")}, "2"), (Esecuzione{0, "", ""}));
  EXPECT_EQ(Stampa({Modello("m.img", "\r\n")}, "2"), (Esecuzione{0, "", ""}));
}

TEST_F(StampaTest, WarnsWhenTheMarkerPromisesMoreLinesThanTheFileHas) {
  const std::string m = Modello("m.img", "t\r\n" + NelFile("C8;4;") + "\r\nc\r\nd\r\n");
  EXPECT_EQ(
      Stampa({m}),
      (Esecuzione{0, "t\r\nc\r\nd\r\nc\r\nd\r\n",
                  Detto(m + ": avviso: il file ha meno delle 4 righe di corpo che il marcatore promette")}));
}

TEST_F(StampaTest, WarnsWhenNothingFollowsAMarkerThatPromisesLines) {
  const std::string m = Modello("m.img", "t\r\n" + NelFile("C8;4;") + "\r\n");
  EXPECT_EQ(
      Stampa({m}),
      (Esecuzione{0, "t\r\n",
                  Detto(m + ": avviso: il file ha meno delle 4 righe di corpo che il marcatore promette")}));
}

TEST_F(StampaTest, GoesOnWithWhatStandsBeforeAMarkerNumberBeyond16Bits) {
  const std::string m = Modello("m.img", "t\r\n" + NelFile("C8;40000;") + "\r\nc\r\n");
  const Esecuzione esecuzione = Stampa({m});
  EXPECT_EQ(esecuzione.Stato, 0);
  EXPECT_EQ(esecuzione.Uscita, "t\r\n");
  EXPECT_EQ(esecuzione.Errori,
            Detto(m + ": avviso: lettura interrotta: Si è verificato l'errore: 6 Overflow"));
}

TEST_F(StampaTest, DoesNotChangeTheTemplate) {
  const std::string byte = "a\rb\n" + NelFile("P1") + "\r\nsenza fine";
  const std::string m = Modello("m.img", byte);
  EXPECT_EQ(Stampa({m}).Stato, 0);
  EXPECT_EQ(Contenuto(m), byte);
}

const std::string AltraVersione =
    "Questa versione di Parvik a 32 bit è disallineata con quella del file CAMPI.TXT. - Impossibile "
    "continuare!";

/// `stampa` under a type of one section whose flags are body lines 3 and 4, its variables 1 and 2.
Esecuzione StampaConCatalogo(const CartellaTemporanea& cartella, const std::string& corpo) {
  Crea(cartella / "campi.txt", "1,\"T;T;1;1;2;9;9;9;9;3;4;9;9;9;9\"\r\n//fine documenti\r\n" + corpo);
  Crea(cartella / "m.img", "a" + NelFile("F1N") + NelFile("P1") + "\r\n");
  return Esegui(
      {"--campi", (cartella / "campi.txt").string(), "stampa", "--tipo", "1", (cartella / "m.img").string()});
}

TEST(Stampa, RefusesAFlagLineOfAnotherVersion) {
  const CartellaTemporanea cartella;
  EXPECT_EQ(StampaConCatalogo(cartella, "0003,\"a;1;N\r\n0004,\"b\r\n"),
            (Esecuzione{2, "", Detto(cartella / "campi.txt", "testata, riga 4: " + AltraVersione)}));
}

TEST(Stampa, DoesNotMindVariablesOfAnotherVersion) {
  const CartellaTemporanea cartella;
  EXPECT_EQ(StampaConCatalogo(cartella, "0001,\"a\r\n0002,\"b\r\n0003,\"a;1;N\r\n0004,\"b;2;N\r\n"),
            (Esecuzione{0, "a\r\n", ""}));
}

TEST(Stampa, RendersWithTheFlagsReadBeforeANumberBeyond16Bits) {
  const CartellaTemporanea cartella;
  EXPECT_EQ(
      StampaConCatalogo(cartella, "0003,\"a;1;N\r\n0004,\"b;40000;N\r\n"),
      (Esecuzione{2, "a\r\n",
                  Detto(cartella / "campi.txt", "testata, riga 4: Si è verificato l'errore: 6 Overflow")}));
}

}  // namespace
}  // namespace parvik::prova
