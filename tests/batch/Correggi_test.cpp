#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/FileDiProva.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

/// Type 2 of the test's host: one section, flags 3 and 4.
class CorreggiTest : public testing::Test {
 protected:
  Esecuzione Verifica(std::vector<std::string> altri) const {
    altri.insert(altri.begin(), {"verifica", "--tipo", "2"});
    return Esegui(Host.Argomenti(std::move(altri)));
  }
  std::string Modello(const std::string& byte, std::string_view nome = "m.img") const {
    return Host.Modello(nome, byte).string();
  }

  HostDiProva Host;
};

TEST_F(CorreggiTest, MendsInPlaceAndKeepsTheOldFile) {
  const std::string prima = "a" + NelFile("F03N") + NelFile("P1") + "\r" + NelFile("S;it") + "\n senza fine";
  const std::string dopo =
      "a" + NelFile("F3N") + NelFile("P1") + "\r" + NelFile("S;ITALICO") + "\n senza fine";
  const std::string m = Modello(prima);
  ASSERT_EQ(::chmod(m.c_str(), 0640), 0);
  EXPECT_EQ(Verifica({"--correggi", m}), (Esecuzione{0, "", ""}));
  EXPECT_EQ(Contenuto(m), dopo);
  EXPECT_EQ(Contenuto(m + "~"), prima);
  if (ConDiritti) {
    EXPECT_EQ(Modo(m), 0640U);
  }
}

TEST_F(CorreggiTest, FindsNothingLeftToMendInASecondRun) {
  const std::string m = Modello(NelFile("F03N") + NelFile("P1") + "\r\n");
  Verifica({"--correggi", m});
  const std::string dopo = Contenuto(m);
  const std::string tenuto = Contenuto(m + "~");
  EXPECT_EQ(Verifica({"--correggi", m}), (Esecuzione{0, "", ""}));
  EXPECT_EQ(Contenuto(m), dopo);
  EXPECT_EQ(Contenuto(m + "~"), tenuto);
}

TEST_F(CorreggiTest, LeavesAFileWithNothingToMendAlone) {
  const std::string m = Modello("a" + NelFile("") + "\r\n");
  EXPECT_EQ(Verifica({"--correggi", m}).Stato, 1);
  EXPECT_EQ(Contenuto(m), "a" + NelFile("") + "\r\n");
  EXPECT_FALSE(fs::exists(m + "~"));
}

TEST_F(CorreggiTest, TellsWhatIsLeftWithItsNewPlaces) {
  const std::string m = Modello(NelFile("F03N") + NelFile("P1") + NelFile("") + "\r\n");
  EXPECT_EQ(Verifica({"--correggi", m}),
            (Esecuzione{1, m + ":1:10: errore: codice vuoto [codice-sconosciuto]\n", ""}));
}

TEST_F(CorreggiTest, TellsWhatItDidNotMend) {
  const std::string m = Modello("\r\n" + NelFile("S;Corsivo") + "\r\nS;" + NelFile("S;it") + "\r\n");
  const Esecuzione esito = Verifica({"--correggi", "--escludi", "testo-stile", m});
  EXPECT_EQ(esito.Stato, 0);
  EXPECT_EQ(
      esito.Errori,
      Detto(m + ":2:1: avviso: non corretto, la parola non è l'inizio di quello stile [formato-diverso]") +
          Detto(m + ":3:3: avviso: non corretto, cambierebbe la stampa [formato-diverso]"));
  EXPECT_EQ(esito.Uscita,
            m + ":2:1: avviso: «S;Corsivo»: la maschera lo scrive «S;COMPRESSO» [formato-diverso]\n" + m +
                ":3:3: avviso: «S;it»: la maschera lo scrive «S;ITALICO» [formato-diverso]\n");
  EXPECT_FALSE(fs::exists(m + "~"));
}

TEST_F(CorreggiTest, ShowsTheMendsAndWritesNothing) {
  std::string prima;
  for (int i = 1; i <= 9; ++i) prima += "riga " + std::to_string(i) + "\r\n";
  prima += "\xE0 " + NelFile("F03N") + NelFile("P1") + "\r\n" + NelFile("S;it") + "\tx\r\nfine\r\n";
  const std::string m = Modello(prima);
  const Esecuzione atteso = {0,
                             "--- " + m + "\n+++ " + m +
                                 "\n@@ -7,6 +7,6 @@\n riga 7\n riga 8\n riga 9\n"
                                 "-à ®F03N¯®P1¯\n-®S;it¯ x\n+à ®F3N¯®P1¯\n+®S;ITALICO¯ x\n fine\n",
                             ""};
  EXPECT_EQ(Verifica({"--correggi", "--prova", m}), atteso);
  EXPECT_EQ(Verifica({"--prova", m}), atteso);
  EXPECT_EQ(Contenuto(m), prima);
  EXPECT_FALSE(fs::exists(m + "~"));
}

TEST_F(CorreggiTest, ShowsLinesThatAreFarApartEachWithItsOwn) {
  std::string prima;
  for (int i = 1; i <= 20; ++i) prima += (i == 2 || i == 18 ? NelFile("S;it") : "riga") + "\r\n";
  const std::string m = Modello(prima);
  const std::string uscita = Verifica({"--prova", m}).Uscita;
  EXPECT_NE(uscita.find(
                "\n@@ -1,5 +1,5 @@\n riga\n-®S;it¯\n+®S;ITALICO¯\n riga\n riga\n riga\n@@ -15,6 +15,6 @@\n"),
            std::string::npos)
      << uscita;
}

TEST_F(CorreggiTest, ShowsNothingWhereThereIsNothingToMend) {
  EXPECT_EQ(Verifica({"--prova", Modello("a\r\n")}), (Esecuzione{0, "", ""}));
}

TEST_F(CorreggiTest, FailsForAFileThatCannotBeWritten) {
  const fs::path cartella = Host.Percorso() / "sola";
  fs::create_directory(cartella);
  const std::string m = Host.Modello("../sola/m.img", NelFile("S;it") + "\r\n").string();
  ASSERT_EQ(::chmod(cartella.string().c_str(), 0555), 0);
  ASSERT_EQ(::chmod(m.c_str(), 0444), 0);
  const bool onnipotente = ::access(m.c_str(), W_OK) == 0;
  const Esecuzione esito = Verifica({"--correggi", m});
  ASSERT_EQ(::chmod(cartella.string().c_str(), 0755), 0);
  ASSERT_EQ(::chmod(m.c_str(), 0644), 0);  // so that it can be removed
  if (onnipotente) return;                 // root may write anything
  EXPECT_EQ(esito.Stato, 2);
  EXPECT_EQ(Contenuto(m), NelFile("S;it") + "\r\n");
}

}  // namespace
}  // namespace parvik::prova
