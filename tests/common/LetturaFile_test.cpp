#include "common/LetturaFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "common/FileDiProva.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

std::string Letto(const fs::path& file) {
  const Esito<std::string> esito = LeggiFile(file);
  EXPECT_TRUE(esito) << file;
  return esito ? *esito : "";
}

NumeroErrore Errore(const fs::path& file) {
  const Esito<std::string> esito = LeggiFile(file);
  EXPECT_FALSE(esito) << file;
  return esito ? NumeroErrore{} : esito.Errore();
}

TEST(LeggiFile, GivesAllBytesAsTheyAre) {
  const CartellaTemporanea cartella;
  std::string byte;
  for (int i = 0; i < 256; ++i) byte.push_back(static_cast<char>(i));
  byte += "\r\n\r\n";
  Crea(cartella / "a", byte);
  EXPECT_EQ(byte, Letto(cartella / "a"));
}

TEST(LeggiFile, GivesNothingOfAnEmptyFile) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a", "");
  EXPECT_EQ("", Letto(cartella / "a"));
}

TEST(LeggiFile, ReadsALargeFileWhole) {
  const CartellaTemporanea cartella;
  const std::string byte(3'000'001, 'x');
  Crea(cartella / "a", byte);
  EXPECT_EQ(byte, Letto(cartella / "a"));
}

TEST(LeggiFile, ReadsAFileThatHidesItsSize) {
  EXPECT_NE("", Letto("/proc/self/status"));
}

TEST(LeggiFile, FollowsLinks) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a", "testo");
  fs::create_symlink("a", cartella / "b");
  EXPECT_EQ("testo", Letto(cartella / "b"));
}

TEST(LeggiFile, DoesNotFindAMissingFile) {
  const CartellaTemporanea cartella;
  EXPECT_EQ(NumeroErrore::FileNonTrovato, Errore(cartella / "manca"));
}

TEST(LeggiFile, DoesNotFindAPathThatGoesThroughAFile) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a", "");
  EXPECT_EQ(NumeroErrore::PercorsoNonTrovato, Errore(cartella / "a" / "b"));
}

TEST(LeggiFile, RefusesAFolder) {
  const CartellaTemporanea cartella;
  EXPECT_EQ(NumeroErrore::AccessoPercorsoFile, Errore(cartella.Percorso()));
}

TEST(LeggiFile, RefusesAPipeThatNobodyWritesToWithoutWaiting) {
  const CartellaTemporanea cartella;
  ASSERT_EQ(0, ::mkfifo((cartella / "pipe").c_str(), 0600));
  EXPECT_EQ(NumeroErrore::AccessoPercorsoFile, Errore(cartella / "pipe"));
}

TEST(LeggiFile, RefusesADevice) {
  EXPECT_EQ(NumeroErrore::AccessoPercorsoFile, Errore("/dev/null"));
  EXPECT_EQ(NumeroErrore::AccessoPercorsoFile, Errore("/dev/zero"));
}

TEST(LeggiFile, IsDeniedAFileThatTheUserMayNotRead) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a", "segreto");
  fs::permissions(cartella / "a", fs::perms::none);
  fs::permissions(cartella.Percorso(), fs::perms::all);
  const UtenteComune utente;
  if (!utente.Comune()) GTEST_SKIP() << "root cannot become an ordinary user here";
  EXPECT_EQ(NumeroErrore::AutorizzazioneNegata, Errore(cartella / "a"));
}

}  // namespace
}  // namespace parvik::prova
