// codici, spiega and verifica-catalogo.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"

namespace parvik::prova {
namespace {

using testing::HasSubstr;

class CodiciTest : public testing::Test {
 protected:
  Esecuzione Esegui(std::vector<std::string> altri) const {
    return prova::Esegui(Host.Argomenti(std::move(altri)));
  }

  HostDiProva Host;
};

TEST_F(CodiciTest, CountsWhatTemplatesUseAndInWhichFiles) {
  const std::string a =
      Host.Modello("a.img", NelFile("F3N") + NelFile("L5;3") + NelFile("L05") + NelFile("S;gr") + "\r\n")
          .string();
  const std::string b =
      Host.Modello("b.img", NelFile("F3N") + NelFile("P1") + NelFile("V77;3L") + NelFile("F97N") +
                                NelFile("F3") + NelFile("V77") + NelFile("V1\r\n;3L") + "\r\n")
          .string();
  const Esecuzione esito = Esegui({"codici", "--tipo", "2", a, b});
  EXPECT_EQ(esito.Stato, 0);
  EXPECT_EQ(esito.Errori, "");
  EXPECT_THAT(esito.Uscita, HasSubstr("variabile\t77\t1\t\t" + b + "\n"));
  EXPECT_THAT(esito.Uscita, HasSubstr("flag\t3\t3\t"));
  EXPECT_THAT(esito.Uscita, HasSubstr("\t" + a + "\t" + b + "\nflag\t97\t1\tSolo prima pagina\t" + b + "\n"));
  EXPECT_THAT(esito.Uscita, HasSubstr("lingua\t5\t2\t\t" + a + "\nstile\tGRASSETTO\t1\t\t" + a + "\n"));
  EXPECT_EQ(std::ranges::count(esito.Uscita, '\n'), 5);
  EXPECT_THAT(
      Esegui({"codici", "--tipo", "2", "--json", a, b}).Uscita,
      HasSubstr(
          "{\"genere\":\"lingua\",\"nome\":\"5\",\"volte\":2,\"descrizione\":\"\",\"file\":[{\"file\":\"" +
          InJson(a) + "\",\"volte\":2}]}"));
}

TEST_F(CodiciTest, ListsWhatNoTemplateUses) {
  const std::string a = Host.Modello("a.img", NelFile("F3N") + NelFile("P1") + "\r\n").string();
  const std::string uscita = Esegui({"codici", "--tipo", "2", "--non-usati", a}).Uscita;
  EXPECT_THAT(uscita, HasSubstr("testata\tflag\t4\t"));
  EXPECT_THAT(uscita, testing::Not(HasSubstr("flag\t3\t")));
  EXPECT_THAT(Esegui({"codici", "--tipo", "2", "--non-usati", "--json", a}).Uscita,
              HasSubstr("{\"sezione\":\"testata\",\"genere\":\"flag\",\"nome\":\"4\",\"descrizione\":"));
}

TEST_F(CodiciTest, FailsForAFileThatCannotBeReadAndCountsTheOthers) {
  const std::string a = Host.Modello("a.img", NelFile("S;NORMALE") + "\r\n").string();
  const Esecuzione esito = Esegui({"codici", "--tipo", "2", (Host.Percorso() / "manca.img").string(), a});
  EXPECT_EQ(esito.Stato, 2);
  EXPECT_EQ(esito.Uscita, "stile\tNORMALE\t1\t\t" + a + "\n");
}

TEST(Spiega, TellsKindFieldsDescriptionDialogAndSample) {
  EXPECT_EQ(
      EseguiEsempio({"spiega", "--tipo", "1", "--sezione", "testata", "«V13;16R;.0,2;1»"}),
      (Esecuzione{0,
                  "«V13;16R;.0,2;1»\n  genere: variabile\n  numero: 13\n  tipo: numerico\n  larghezza: 16\n"
                  "  allineamento: a destra\n  riempimento: \n  righe: 0\n  decimali: 2\n"
                  "  zero visibile: sì\n  separatore migliaia: sì\n  segno a destra: no\n  euro: 1\n"
                  "  descrizione: Capitale sociale\n  maschera: «V13;16R;.0,2;1»\n"
                  "  stampa:             0,00\n",
                  ""}));
}

TEST(Spiega, TakesCodesWithDelimitersOfEitherSideOrWithout) {
  const std::string detto =
      "«F3»\n  genere: flag\n  numero: 3\n  interruttore: N\n  descrizione: Agente presente\n"
      "  maschera: «F3N»\n  stampa: \n";
  std::vector<std::string> scritti = {"F3", "«F3»", "®F3¯"};
  if (NomiDiByte) scritti.push_back(NelFile("F3"));  // where words are bytes
  for (const std::string& codice : scritti) {
    EXPECT_EQ(EseguiEsempio({"spiega", "--tipo", "1", "--sezione", "testata", codice}),
              (Esecuzione{0, detto, ""}));
  }
}

TEST(Spiega, TellsWhatIsMissing) {
  EXPECT_EQ(EseguiEsempio({"spiega", "--tipo", "1", "--sezione", "corpo", "--json", "V0;\"à€\"", "L5;0", "X"})
                .Uscita,
            "[\n{\"codice\":\"«V0;\\\"à€\\\"»\",\"genere\":\"costante\",\"campi\":{\"testo\":\"à€\"},"
            "\"descrizione\":null,"
            "\"manca\":null,\"maschera\":\"«V0;\\\"à€\\\"»\",\"stampa\":\"à€\"},\n"
            "{\"codice\":\"«L5;0»\",\"genere\":\"lingua\",\"campi\":{\"indice\":\"5\",\"larghezza\":\"0\"},"
            "\"descrizione\":null,\"manca\":\"la larghezza è 0\",\"maschera\":\"«L5;0»\",\"stampa\":\"\"},\n"
            "{\"codice\":\"«X»\",\"genere\":\"sconosciuto\",\"campi\":{},\"descrizione\":null,\"manca\":null,"
            "\"maschera\":null,\"stampa\":\"\"}\n]\n");
}

TEST(Spiega, WantsASectionThatTheTypeHas) {
  EXPECT_EQ(EseguiEsempio({"spiega", "--tipo", "12", "--sezione", "corpo", "P1"}).Stato, 2);
  EXPECT_EQ(EseguiEsempio({"spiega", "--tipo", "1", "P1"}),
            (Esecuzione{2, "", Detto("manca --sezione (--help elenca gli argomenti)")}));
}

TEST(VerificaCatalogo, TellsWhatIsWrongWithItsPlace) {
  const CartellaTemporanea cartella;
  const std::filesystem::path file = cartella / "CAMPI.TXT";
  Crea(file, "1,\"T;T*.IMG;1;1;2;0;0;0;0;0;0;0;0;0;0\"\r\n//fine documenti\r\n0001,\"x\r\n0002,\"y;1;2\r\n");
  EXPECT_EQ(Esegui({"--campi", file.string(), "verifica-catalogo"}),
            (Esecuzione{
                1,
                file.string() + ":3:1: errore: la riga non si divide nei suoi campi [riga-non-divisa]\n" +
                    file.string() + ":4:1: errore: la riga non si divide nei suoi campi [riga-non-divisa]\n",
                ""}));
  EXPECT_EQ(Esegui({"--campi", file.string(), "verifica-catalogo", "--sommario"}).Uscita,
            file.string() + ": 2 errori, 0 avvisi\n");
  EXPECT_EQ(Esegui({"--campi", file.string(), "verifica-catalogo", "--json"}).Uscita.substr(0, 12),
            ("[\n{\"file\":\"" + InJson(file.string())).substr(0, 12));
  EXPECT_EQ(Esegui({"--campi", (cartella / "manca").string(), "verifica-catalogo"}).Stato, 2);
}

TEST(VerificaCatalogo, FindsInTheExampleOnlyTheTypeThatNoListShows) {
  const Esecuzione esito = EseguiEsempio({"verifica-catalogo"});
  EXPECT_EQ(esito.Stato, 0);
  EXPECT_THAT(esito.Uscita,
              HasSubstr("CAMPI.TXT:47:1: avviso: nessun elenco mostra il tipo 23 [tipo-non-elencato]\n"));
  EXPECT_EQ(std::ranges::count(esito.Uscita, '\n'), 1);
  EXPECT_EQ(EseguiEsempio({"verifica-catalogo", "--severo"}).Stato, 1);
}

}  // namespace
}  // namespace parvik::prova
