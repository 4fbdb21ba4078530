#include "sistema/LetturaFile.h"

#include <gtest/gtest.h>

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

TEST(LeggiFile, ShowsWhatWasReadAfterEachPieceAndKeepsWhatIsDoneToIt) {
  const CartellaTemporanea cartella;
  const std::string byte(3'000'001, 'x');
  Crea(cartella / "a", byte);
  std::size_t visti = 0;
  int volte = 0;
  const Esito<ByteFile> letto = LeggiFile(cartella / "a", [&](std::span<char> finora) {
    EXPECT_GT(finora.size(), visti);
    for (; visti < finora.size(); ++visti) finora[visti] = static_cast<char>(finora[visti] + 1);
    ++volte;
  });
  ASSERT_TRUE(letto);
  EXPECT_GT(volte, 1);
  EXPECT_TRUE(std::string_view(letto->data(), letto->size()) == std::string(3'000'001, 'y'));
}

TEST(LeggiFile, ShowsNothingOfAnEmptyFileAndOfOneThatCannotBeRead) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a", "");
  const auto mai = [](std::span<char> finora) { ADD_FAILURE() << finora.size(); };
  EXPECT_TRUE(LeggiFile(cartella / "a", mai)->empty());
  EXPECT_EQ(LeggiFile(cartella / "manca", mai).Errore(), NumeroErrore::FileNonTrovato);
}

TEST(LeggiFile, ReadsAFileThatHidesItsSize) {
  EXPECT_NE("", Letto("/proc/self/status"));
}

TEST(LeggiFile, FollowsLinks) {
  if (!Collegamenti()) GTEST_SKIP() << "no links here";
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
  if (!FaiPipe(cartella / "pipe")) GTEST_SKIP() << "no pipes in folders here";
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
