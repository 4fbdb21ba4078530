#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/TestoMostrabile.h"

namespace parvik::prova {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class VerificaTest : public testing::Test {
 protected:
  Esecuzione Verifica(std::vector<std::string> altri) const {
    altri.insert(altri.begin(), "verifica");
    return Esegui(Host.Argomenti(std::move(altri)));
  }
  std::string Modello(const std::string& byte, std::string_view nome = "m.img") const {
    return Host.Modello(nome, byte).string();
  }

  HostDiProva Host;
};

TEST_F(VerificaTest, TellsOneLineAFindingInTheOrderOfTheFile) {
  const std::string m = Modello("a" + NelFile("X") + "\r\nS;\r\n" + NelFile("") + "\r\n");
  EXPECT_EQ(Verifica({"--tipo", "2", m}),
            (Esecuzione{1,
                        m + ":1:2: errore: codice di genere sconosciuto: «X» [codice-sconosciuto]\n" + m +
                            ":2:1: avviso: l'anteprima prende \"S;\" per un segno di stile [testo-stile]\n" +
                            m + ":3:1: errore: codice vuoto [codice-sconosciuto]\n",
                        ""}));
}

TEST_F(VerificaTest, SaysNothingOfWhatIsInOrder) {
  EXPECT_EQ(Verifica({"--tipo", "2", Modello("a\r\n"), Modello("", "vuoto.img")}), (Esecuzione{0, "", ""}));
}

TEST_F(VerificaTest, EndsWithStatus1OnlyForErrorsUnlessItIsStrict) {
  const std::string m = Modello("S;\r\n");
  EXPECT_EQ(Verifica({"--tipo", "2", m}).Stato, 0);
  EXPECT_EQ(Verifica({"--tipo", "2", "--severo", m}).Stato, 1);
  EXPECT_EQ(Verifica({"--tipo", "2", "--severo", Modello("a\r\n")}).Stato, 0);
}

TEST_F(VerificaTest, EndsWithStatus2WhereAFileCannotBeCheckedAndChecksTheOthers) {
  const std::string manca = (Host.Percorso() / "manca.img").string();
  const std::string m = Modello(NelFile("") + "\r\n");
  EXPECT_EQ(Verifica({"--tipo", "2", manca, m}),
            (Esecuzione{2, m + ":1:1: errore: codice vuoto [codice-sconosciuto]\n",
                        Detto(manca + ": Si è verificato l'errore: 53 Impossibile trovare il file")}));
}

TEST_F(VerificaTest, TellsFilesInTheOrderOfTheArguments) {
  const std::string b = Modello("S;\r\n", "b.img");
  const std::string a = Modello("S;\r\n", "a.img");
  const std::string detto = ":1:1: avviso: l'anteprima prende \"S;\" per un segno di stile [testo-stile]\n";
  EXPECT_EQ(Verifica({"--tipo", "2", b, a, b}).Uscita, b + detto + a + detto + b + detto);
}

TEST_F(VerificaTest, SumsUpEachFileOnALine) {
  const std::string m = Modello(NelFile("") + "S;" + NelFile("") + "\r\n");
  const std::string n = Modello("\r\n", "n.img");
  EXPECT_EQ(Verifica({"--tipo", "2", "--sommario", m, n}),
            (Esecuzione{1, m + ": 2 errori, 1 avviso\n" + n + ": 0 errori, 0 avvisi\n", ""}));
}

TEST_F(VerificaTest, WritesOneJsonDocument) {
  const std::string m = Modello("a" + NelFile("F03N") + NelFile("P1") + "\r\n");
  const std::string n = Modello("\r\n", "n.img");
  EXPECT_EQ(
      Verifica({"--tipo", "2", "--json", m, n}),
      (Esecuzione{0,
                  "[\n{\"file\":\"" + InJson(m) +
                      "\",\"risultati\":[{\"regola\":\"formato-diverso\",\"livello\":\"avviso\","
                      "\"sezione\":\"testata\",\"riga\":1,\"colonna\":2,\"lunghezza\":6,\"testo\":"
                      "\"«F03N»: la maschera lo scrive «F3N»\",\"proposta\":\"«F3N»\"}]},\n{\"file\":\"" +
                      InJson(n) + "\",\"risultati\":[]}\n]\n",
                  ""}));
}

TEST_F(VerificaTest, HasNoSectionAndNoProposalInJsonWhereThereIsNone) {
  const std::string m = Modello("a\n");
  EXPECT_EQ(
      Verifica({"--tipo", "2", "--json", m}).Uscita,
      "[\n{\"file\":\"" + InJson(m) +
          "\",\"risultati\":[{\"regola\":\"fine-riga-lf\",\"livello\":\"errore\",\"sezione\":null,"
          "\"riga\":1,\"colonna\":1,\"lunghezza\":0,\"testo\":\"le righe finiscono con LF e non con CR LF: "
          "il file è una riga sola\",\"proposta\":null}]}\n]\n");
}

TEST_F(VerificaTest, SumsUpInJson) {
  const std::string m = Modello(NelFile("") + "\r\n");
  EXPECT_EQ(Verifica({"--tipo", "2", "--json", "--sommario", m}),
            (Esecuzione{1, "[\n{\"file\":\"" + InJson(m) + "\",\"errori\":1,\"avvisi\":0}\n]\n", ""}));
}

TEST_F(VerificaTest, ShowsANameThatIsNoUtf8) {
  if (!NomiDiByte) GTEST_SKIP() << "names are no bytes here, and a backslash separates";
  const std::string m = Modello("a\n", "caff\xE8.img");
  EXPECT_THAT(Verifica({"--tipo", "2", m}).Uscita, HasSubstr("caff\\xE8.img:1:1: errore: "));
  EXPECT_THAT(Verifica({"--tipo", "2", "--json", m}).Uscita, HasSubstr("caff\\\\xE8.img\","));
}

TEST_F(VerificaTest, TellsOnlySomeRules) {
  const std::string m = Modello(NelFile("") + "S;" + NelFile("S;it") + "\r\n");
  EXPECT_THAT(
      Verifica({"--tipo", "2", "--solo", "testo-stile", m}),
      (Esecuzione{0, m + ":1:3: avviso: l'anteprima prende \"S;\" per un segno di stile [testo-stile]\n",
                  ""}));
  EXPECT_EQ(Verifica({"--tipo", "2", "--escludi", "testo-stile,codice-sconosciuto", "--sommario", m}).Uscita,
            m + ": 0 errori, 1 avviso\n");
  EXPECT_EQ(Verifica({"--tipo", "2", "--solo", "testo-stile", "--escludi", "testo-stile", m}),
            (Esecuzione{0, "", ""}));
}

TEST_F(VerificaTest, RefusesARuleThatIsNone) {
  EXPECT_EQ(Verifica({"--tipo", "2", "--solo", "testo-stile,stile", Modello("\r\n")}),
            (Esecuzione{2, "",
                        Detto("--solo: regola sconosciuta: \"stile\" (--regole le elenca) (--help elenca gli "
                              "argomenti)")}));
  EXPECT_EQ(Verifica({"--tipo", "2", "--escludi", ",", Modello("\r\n")}).Stato, 2);
}

TEST_F(VerificaTest, LooksAtThePageWhereItIsTold) {
  const std::string m = Modello("+-+\r\n |\r\n+-+\r\n");
  EXPECT_EQ(Verifica({"--tipo", "2", m}), (Esecuzione{0, "", ""}));
  EXPECT_THAT(
      Verifica({"--tipo", "2", "--larghezza", "2", "--righe", "2", "--cornici", "--sommario", m}).Uscita,
      m + ": 0 errori, 4 avvisi\n");
  EXPECT_EQ(Verifica({"--tipo", "2", "--larghezza", "0", m}).Stato, 2);
}

TEST_F(VerificaTest, ListsTheRulesWithoutACatalogueOrAFile) {
  const Esecuzione tabella = Esegui({"--velkor", "/nonexistent", "verifica", "--regole"});
  EXPECT_EQ(tabella.Stato, 0);
  EXPECT_THAT(tabella.Uscita, StartsWith("tipo-incerto\terrore\t\tnessun tipo"));
  EXPECT_THAT(tabella.Uscita, HasSubstr("\nformato-diverso\tavviso\tcorregge\tun codice"));
  EXPECT_EQ(std::ranges::count(tabella.Uscita, '\n'), 30);
  EXPECT_THAT(Esegui({"verifica", "--regole", "--json"}).Uscita,
              StartsWith("[\n{\"regola\":\"tipo-incerto\",\"livello\":\"errore\",\"trova\":"));
}

TEST_F(VerificaTest, WantsATypeAndAFile) {
  EXPECT_EQ(Verifica({"--tipo", "2"}), (Esecuzione{2, "", Detto("manca IMG (--help elenca gli argomenti)")}));
  EXPECT_EQ(Verifica({Modello("\r\n")}),
            (Esecuzione{2, "", Detto("manca --tipo (--help elenca gli argomenti)")}));
  EXPECT_EQ(Verifica({"--tipo", "uno", Modello("\r\n")}),
            (Esecuzione{2, "",
                        Detto("--tipo: vuole un numero o auto, non \"uno\" (--help elenca gli argomenti)")}));
}

// --- the type by the file's name

class TipoAutoTest : public VerificaTest {
 protected:
  TipoAutoTest() {
    ScriviCatalogo(
        "1,\"Fattura;FATT*.IMG;1;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n"
        "2,\"Fattura due;?ATT2*.img;1;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n"
        "3,\"Senza modello;Fattura;1;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n"
        "5,\"Non elencato;DDT*.IMG;1;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n"
        "//fine documenti\r\n");
  }
  void ScriviCatalogo(std::string_view byte) const { Host.Modello("../D_IMG/CAMPI.TXT", byte); }
};

TEST_F(TipoAutoTest, TakesTheTypeWhosePatternFitsTheNameInEitherCase) {
  EXPECT_EQ(Verifica({"--tipo", "auto", Modello("a\r\n", "fatt1.img"), Modello("a\r\n", "FATT.Img")}),
            (Esecuzione{0, "", ""}));
}

TEST_F(TipoAutoTest, SaysWhenNoTypeFitsOrSeveralDoAndChecksNoFurther) {
  const std::string nessuno = Modello(NelFile(""), "DDT1.IMG");
  const std::string due = Modello(NelFile(""), "FATT2.IMG");
  EXPECT_EQ(Verifica({"--tipo", "auto", nessuno, due}),
            (Esecuzione{1,
                        nessuno +
                            ":1:1: errore: nessun tipo di documento corrisponde al nome del file "
                            "[tipo-incerto]\n" +
                            due +
                            ":1:1: errore: al nome del file corrispondono più tipi: 1 Fattura, 2 Fattura due "
                            "[tipo-incerto]\n",
                        ""}));
  EXPECT_EQ(Verifica({"--tipo", "auto", "--escludi", "tipo-incerto", due}), (Esecuzione{0, "", ""}));
}

TEST_F(TipoAutoTest, FailsForAFileThatIsNotThereWhateverItsName) {
  EXPECT_EQ(Verifica({"--tipo", "auto", (Host.Percorso() / "x.img").string()}).Stato, 2);
}

TEST_F(TipoAutoTest, CannotCheckWhereASectionOfTheTypeCannotBeLoaded) {
  ScriviCatalogo(
      "1,\"Fattura;FATT*.IMG;1;10;11;0;0;0;0;0;0;0;0;0;0\"\r\n"
      "2,\"Altro;ALTRO.IMG;1;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n"
      "//fine documenti\r\n"
      "0010,\"Non si divide\r\n");
  const std::string f = Modello(NelFile(""), "FATT.IMG");
  const std::string altro = Modello(NelFile("V1;1L"), "ALTRO.IMG");
  const Esecuzione esito = Verifica({"--tipo", "auto", f, altro, f});
  EXPECT_EQ(esito.Stato, 2);
  EXPECT_EQ(esito.Uscita,
            altro + ":1:1: errore: «V1;1L»: la variabile 1 non è del tipo «Altro» [variabile-sconosciuta]\n");
  EXPECT_EQ(std::ranges::count(esito.Errori, '\n'), 1) << esito.Errori;
  EXPECT_EQ(Verifica({"--tipo", "1", f}).Stato, 2);
  EXPECT_EQ(Verifica({"--tipo", "1", f}).Uscita, "");
}

TEST(VerificaEsempi, FindsNothingInTheExampleTemplates) {
  for (const ModelloEsempio& modello : ModelliEsempio()) {
    const std::string file = FileDi(modello).string();
    EXPECT_EQ(EseguiEsempio({"verifica", "--tipo", std::to_string(modello.Tipo), "--severo", file}),
              (Esecuzione{0, "", ""}));
    EXPECT_EQ(EseguiEsempio({"verifica", "--tipo", "auto", "--severo", file}), (Esecuzione{0, "", ""}));
  }
}

}  // namespace
}  // namespace parvik::prova
