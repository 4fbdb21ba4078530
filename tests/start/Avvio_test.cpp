#include "start/Avvio.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "supporto/Cartelle.h"
#include "supporto/InterlocutoreScritto.h"

namespace parvik::prova {
namespace {

std::string ErroreDi(const std::filesystem::path& file) {
  const Esito<Catalogo, std::string> catalogo = LeggiCatalogo(file);
  return catalogo ? "no error" : catalogo.Errore();
}

/// An installation whose catalogue a test writes.
class AvvioTest : public testing::Test {
 protected:
  AvvioTest() {
    Crea(dir_ / "VELKOR.INI", "");
    ambiente_.DirProgramma = dir_ / "PARVIK";
  }
  std::filesystem::path Campi() const { return dir_ / "D_IMG" / "CAMPI.TXT"; }

  CartellaTemporanea dir_;
  Ambiente ambiente_;
  InterlocutoreScritto interlocutore_;
};

TEST_F(AvvioTest, FindsTheExampleInstallationAndLoadsItsCatalogue) {
  ambiente_.DirProgramma = Esempio() / "PARVIK";
  const std::optional<DatiAvvio> dati = Avvia(ambiente_, interlocutore_);
  ASSERT_TRUE(dati);
  EXPECT_EQ(Esempio() / "D_IMG" / "CAMPI.TXT", dati->Dove.FileCampi);
  EXPECT_EQ(22U, dati->Campi.TipiElencati().size());
  EXPECT_TRUE(interlocutore_.Messaggi.empty());
}

TEST_F(AvvioTest, EndsWithAMessageThatNamesTheErrorTheCatalogueAndItsLine) {
  Crea(Campi(), "// uno\r\n\r\n24,\"A;B\"\r\n//fine documenti\r\n");
  interlocutore_.Rispondera(Risposta::Ok);
  EXPECT_FALSE(Avvia(ambiente_, interlocutore_));
  ASSERT_EQ(1U, interlocutore_.Messaggi.size());
  const Messaggio& messaggio = interlocutore_.Messaggi.front();
  EXPECT_EQ(
      "Si è verificato l'errore: 9 Indice non incluso nell'intervallo\r\n" + Campi().string() + ", riga 3",
      messaggio.Testo);
  EXPECT_EQ(Icona::Critica, messaggio.Simbolo);
  EXPECT_EQ(Pulsanti::Ok, messaggio.Tasti);
  EXPECT_EQ("Ordavia", messaggio.Titolo);
}

TEST_F(AvvioTest, ShowsTheNameOfACatalogueThatIsNoText) {
  if (!NomiDiByte) GTEST_SKIP() << "names are no bytes here, and a backslash separates";
  const CartellaTemporanea cartella;
  const auto file = cartella / "caff\xE8\n\x1B.txt";
  Crea(file, "");
  EXPECT_EQ("Si è verificato l'errore: 62 Input oltre la fine del file\r\n" +
                (cartella / "caff\\xE8\\x0A\\x1B.txt").string() + ", riga 1",
            ErroreDi(file));
}

TEST_F(AvvioTest, EndsWithoutAFurtherMessageWhenTheCatalogueIsNotFound) {
  interlocutore_.Rispondera(Risposta::No);
  EXPECT_FALSE(Avvia(ambiente_, interlocutore_));
  EXPECT_EQ(1U, interlocutore_.Messaggi.size());
}

TEST_F(AvvioTest, EndsWithAMessageWhenTheFileFoundByTheSearchIsNoCatalogue) {
  Crea(dir_ / "altro.txt", "niente\r\n");
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Scegliera(dir_ / "altro.txt");
  interlocutore_.Rispondera(Risposta::Ok);
  EXPECT_FALSE(Avvia(ambiente_, interlocutore_));
  ASSERT_EQ(2U, interlocutore_.Messaggi.size());
  EXPECT_EQ("Si è verificato l'errore: 5 Chiamata di routine o argomento non validi\r\n" +
                (dir_ / "altro.txt").string() + ", riga 1",
            interlocutore_.Messaggi[1].Testo);
}

TEST(LeggiCatalogo, SaysWhatIsWrongWithAFileThatCannotBeRead) {
  const CartellaTemporanea dir;
  EXPECT_EQ("Si è verificato l'errore: 53 Impossibile trovare il file\r\n" + (dir / "CAMPI.TXT").string() +
                ", riga 1",
            ErroreDi(dir / "CAMPI.TXT"));
  EXPECT_EQ("Si è verificato l'errore: 75 Errore di accesso al percorso/file\r\n" + dir.Percorso().string() +
                ", riga 1",
            ErroreDi(dir.Percorso()));
}

TEST(LeggiCatalogo, SaysThatTheEndMarkerIsMissing) {
  const CartellaTemporanea dir;
  Crea(dir / "CAMPI.TXT", "// uno\r\n// due\r\n");
  EXPECT_EQ("Si è verificato l'errore: 62 Input oltre la fine del file\r\n" + (dir / "CAMPI.TXT").string() +
                ", riga 3",
            ErroreDi(dir / "CAMPI.TXT"));
}

}  // namespace
}  // namespace parvik::prova
