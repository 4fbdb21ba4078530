#include "start/Installazione.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "common/TestoPercorso.h"
#include "supporto/Cartelle.h"
#include "supporto/InterlocutoreScritto.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

/// A path as it is written here.
std::string Qui(const std::string& percorso) {
  return fs::path(percorso).make_preferred().string();
}

/// A host directory `velkor` with the program in its `PARVIK`; `conf1` and `conf2` are looked at for a
/// profile.
class InstallazioneTest : public testing::Test {
 protected:
  InstallazioneTest() {
    ambiente_.DirProgramma = Host() / "PARVIK";
    ambiente_.CartelleConfigurazione = {dir_ / "conf1", dir_ / "conf2"};
    fs::create_directories(ambiente_.DirProgramma);
  }

  fs::path Host() const { return dir_ / "velkor"; }
  void Profilo(const char* cartella, const std::string& valore, const char* nome = "VELKOR.INI") const {
    Crea(dir_ / cartella / nome, "[AMBIENTE]\r\nDir velkor=" + valore + "\r\n");
  }

  CartellaTemporanea dir_;
  Ambiente ambiente_;
  InterlocutoreScritto interlocutore_;
};

TEST_F(InstallazioneTest, IsTheParentOfTheProgramsFolderWhereTheConfigurationFileLies) {
  Crea(Host() / "VELKOR.INI", "[AMBIENTE]\r\nDir velkor=/altrove\r\n");
  Profilo("conf1", "/neanche");
  EXPECT_EQ((Host() / "").string(), TrovaDirVelkor(ambiente_).string());
}

TEST_F(InstallazioneTest, FindsTheConfigurationFileInAnyCase) {
  Crea(Host() / "Velkor.ini", "");
  EXPECT_EQ((Host() / "").string(), TrovaDirVelkor(ambiente_).string());
}

TEST_F(InstallazioneTest, DoesNotTakeAFolderForTheConfigurationFile) {
  fs::create_directory(Host() / "VELKOR.INI");
  EXPECT_EQ("", TrovaDirVelkor(ambiente_).string());
}

TEST_F(InstallazioneTest, IsWhatAConfigurationFileElsewhereSaysWithASeparatorAppended) {
  Profilo("conf1", "/srv/velkor");
  EXPECT_EQ(Qui("/srv/velkor/"), TrovaDirVelkor(ambiente_).string());
}

TEST_F(InstallazioneTest, KeepsTheSeparatorThatAConfigurationFileGives) {
  Profilo("conf1", "/srv/velkor/");
  EXPECT_EQ(Qui("/srv/velkor/"), TrovaDirVelkor(ambiente_).string());
}

TEST_F(InstallazioneTest, CutsALongValueTo199Bytes) {
  const std::string lungo = "/" + std::string(250, 'x');
  Profilo("conf1", lungo);
  EXPECT_EQ(Qui(lungo.substr(0, 199) + "/"), TrovaDirVelkor(ambiente_).string());
}

TEST_F(InstallazioneTest, IsTheFolderWhoseUtf8NameTheWindows1252ValueMeans) {
  const fs::path vera = dir_.Percorso() / PercorsoDaTesto("Citt\xC3\xA0 \xE2\x82\xAC") / "velkor";
  fs::create_directories(vera);
  Profilo("conf1", dir_.Percorso().string() + "/Citt\xE0 \x80/velkor");
  EXPECT_EQ(TestoPercorso(vera / ""), TestoPercorso(TrovaDirVelkor(ambiente_).make_preferred()));
}

TEST_F(InstallazioneTest, IsTheFolderWithTheVeryBytesOfTheValueWhenThatIsThere) {
  if (!NomiDiByte) GTEST_SKIP() << "names are no bytes here, and a backslash separates";
  fs::create_directories(dir_ / "Citt\xC3\xA0");
  fs::create_directories(dir_ / "Citt\xE0");
  Profilo("conf1", (dir_ / "Citt\xE0").string());
  EXPECT_EQ((dir_ / "Citt\xE0/").string(), TrovaDirVelkor(ambiente_).string());
  Profilo("conf1", (dir_ / "Citt\xC3\xA0").string());
  EXPECT_EQ((dir_ / "Citt\xC3\xA0/").string(), TrovaDirVelkor(ambiente_).string());
}

TEST_F(InstallazioneTest, TakesABackslashOfTheValueForASlash) {
  if (!NomiDiByte) GTEST_SKIP() << "names are no bytes here, and a backslash separates";
  fs::create_directories(dir_ / "a" / "Citt\xC3\xA0");
  Profilo("conf1", dir_.Percorso().string() + "\\a/Citt\xE0\\");
  EXPECT_EQ((dir_ / "a/Citt\xC3\xA0/").string(), TrovaDirVelkor(ambiente_).string());
  Profilo("conf1", "\\\\server\\dati");
  EXPECT_EQ("//server/dati/", TrovaDirVelkor(ambiente_).string());
  Profilo("conf1", "D:\\VELKOR\\");
  EXPECT_EQ("D:/VELKOR/", TrovaDirVelkor(ambiente_).string());
  Profilo("conf1", "D:\\VELKOR");
  EXPECT_EQ("D:/VELKOR/", TrovaDirVelkor(ambiente_).string());
}

TEST_F(InstallazioneTest, ReadsTheFirstConfigurationFileThatExistsAndNoOther) {
  Profilo("conf2", "/due", "velkor.ini");
  EXPECT_EQ(Qui("/due/"), TrovaDirVelkor(ambiente_).string());
  Profilo("conf1", "/uno");
  EXPECT_EQ(Qui("/uno/"), TrovaDirVelkor(ambiente_).string());
  Crea(dir_ / "conf1" / "VELKOR.INI", "[ALTRO]\r\n");
  EXPECT_EQ("", TrovaDirVelkor(ambiente_).string());
}

TEST_F(InstallazioneTest, TellsTheUserWhenThereIsNone) {
  interlocutore_.Rispondera(Risposta::Ok);
  EXPECT_FALSE(VerificaCampiTXT(ambiente_, interlocutore_));
  ASSERT_EQ(1U, interlocutore_.Messaggi.size());
  const Messaggio& messaggio = interlocutore_.Messaggi.front();
  EXPECT_EQ(
      "Non sono riuscito a trovare la directory di installazione di [velkor].\r\n"
      "Impossibile continure!",
      messaggio.Testo);
  EXPECT_EQ(Icona::Critica, messaggio.Simbolo);
  EXPECT_EQ(Pulsanti::Ok, messaggio.Tasti);
  EXPECT_EQ("Ordavia", messaggio.Titolo);
}

TEST_F(InstallazioneTest, FindsTheCatalogueWithoutAQuestion) {
  Crea(Host() / "VELKOR.INI", "");
  Crea(Host() / "D_IMG" / "CAMPI.TXT", "");
  const auto trovata = VerificaCampiTXT(ambiente_, interlocutore_);
  ASSERT_TRUE(trovata);
  EXPECT_EQ((Host() / "").string(), trovata->DirVelkor.string());
  EXPECT_EQ(Host() / "D_IMG", trovata->DirImg);
  EXPECT_EQ(Host() / "D_IMG" / "CAMPI.TXT", trovata->FileCampi);
  EXPECT_EQ(Host() / "D_STM", trovata->DirStm());
}

TEST_F(InstallazioneTest, FindsTheNamesOfTheHostInAnyCase) {
  if (!DistingueCasi()) GTEST_SKIP() << "this system does not tell the cases of letters apart";
  Crea(Host() / "velkor.ini", "");
  Crea(Host() / "d_img" / "Campi.Txt", "");
  fs::create_directory(Host() / "d_stm");
  const auto trovata = VerificaCampiTXT(ambiente_, interlocutore_);
  ASSERT_TRUE(trovata);
  EXPECT_EQ(Host() / "d_img", trovata->DirImg);
  EXPECT_EQ(Host() / "d_img" / "Campi.Txt", trovata->FileCampi);
  EXPECT_EQ(Host() / "d_stm", trovata->DirStm());
}

class CampiMancanti : public InstallazioneTest {
 protected:
  CampiMancanti() { Crea(Host() / "VELKOR.INI", ""); }

  void AttendiDomanda() const {
    ASSERT_EQ(1U, interlocutore_.Messaggi.size());
    const Messaggio& messaggio = interlocutore_.Messaggi.front();
    EXPECT_EQ(
        "File CAMPI.TXT non trovato! Senza di esso non sarà possibile proseguire.\r\n"
        "Si desidera cercarlo?",
        messaggio.Testo);
    EXPECT_EQ(Icona::Esclamazione, messaggio.Simbolo);
    EXPECT_EQ(Pulsanti::SiNo, messaggio.Tasti);
    EXPECT_EQ("Ordavia", messaggio.Titolo);
  }

  void AttendiRichiesta() const {
    ASSERT_EQ(1U, interlocutore_.Richieste.size());
    const RichiestaFile& richiesta = interlocutore_.Richieste.front();
    EXPECT_EQ(RichiestaFile::Scopo::Apri, richiesta.Uso);
    EXPECT_EQ("Apri file CAMPI.TXT", richiesta.Titolo);
    EXPECT_EQ(Host() / "D_IMG", richiesta.Cartella);
    EXPECT_EQ("File TXT (*.txt)", richiesta.EtichettaFiltro);
    EXPECT_EQ("CAMPI.TXT", richiesta.Modello);
    EXPECT_EQ("", richiesta.NomeProposto);
  }
};

TEST_F(CampiMancanti, AreGivenUpWhenTheAnswerIsNo) {
  interlocutore_.Rispondera(Risposta::No);
  EXPECT_FALSE(VerificaCampiTXT(ambiente_, interlocutore_));
  AttendiDomanda();
}

TEST_F(CampiMancanti, AreGivenUpWhenTheSearchIsCancelled) {
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Scegliera({});
  EXPECT_FALSE(VerificaCampiTXT(ambiente_, interlocutore_));
  AttendiDomanda();
  AttendiRichiesta();
}

TEST_F(CampiMancanti, AreTakenFromWhereverTheSearchFindsThemAndTheTemplatesStayAtHome) {
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Scegliera("/altrove/QUALSIASI.TXT");
  const auto trovata = VerificaCampiTXT(ambiente_, interlocutore_);
  ASSERT_TRUE(trovata);
  EXPECT_EQ("/altrove/QUALSIASI.TXT", trovata->FileCampi);
  EXPECT_EQ(Host() / "D_IMG", trovata->DirImg);
  AttendiDomanda();
  AttendiRichiesta();
}

TEST_F(CampiMancanti, AreMissedWhenAFolderBearsTheirName) {
  fs::create_directories(Host() / "D_IMG" / "CAMPI.TXT");
  interlocutore_.Rispondera(Risposta::No);
  EXPECT_FALSE(VerificaCampiTXT(ambiente_, interlocutore_));
}

TEST_F(CampiMancanti, AreAllThatShowsOfAHostDirectoryThatDoesNotExist) {
  fs::remove(Host() / "VELKOR.INI");
  Profilo("conf1", (dir_ / "manca").string());
  interlocutore_.Rispondera(Risposta::No);
  EXPECT_FALSE(VerificaCampiTXT(ambiente_, interlocutore_));
  AttendiDomanda();
}

}  // namespace
}  // namespace parvik::prova
