// What the safe writer leaves behind when it cannot write.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "common/FileDiProva.h"
#include "sistema/ScritturaSicura.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;

NumeroErrore Errore(const fs::path& meta, std::string_view byte = "nuovo") {
  const EsitoScrittura esito = ScriviFile(meta, byte);
  EXPECT_FALSE(esito) << meta;
  return esito ? NumeroErrore{} : esito.Errore().Numero;
}

TEST(ScriviFileFallito, DoesNotFindAMissingFolder) {
  const CartellaTemporanea cartella;
  EXPECT_EQ(NumeroErrore::PercorsoNonTrovato, Errore(cartella / "manca" / "a.img"));
  EXPECT_EQ(Elenco{}, Nomi(cartella.Percorso()));
}

TEST(ScriviFileFallito, DoesNotFindTheFolderOfALinksTarget) {
  const CartellaTemporanea cartella;
  fs::create_symlink("manca/a.img", cartella / "link.img");
  EXPECT_EQ(NumeroErrore::PercorsoNonTrovato, Errore(cartella / "link.img"));
}

TEST(ScriviFileFallito, DoesNotFindAPathThatGoesThroughAFile) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a", "");
  EXPECT_EQ(NumeroErrore::PercorsoNonTrovato, Errore(cartella / "a" / "b.img"));
}

TEST(ScriviFileFallito, RefusesAFolder) {
  const CartellaTemporanea cartella;
  fs::create_directory(cartella / "sotto");
  EXPECT_EQ(NumeroErrore::AccessoPercorsoFile, Errore(cartella / "sotto"));
  EXPECT_EQ(NumeroErrore::AccessoPercorsoFile, Errore(cartella / "sotto/"));
  EXPECT_EQ(NumeroErrore::AccessoPercorsoFile, Errore(""));
  EXPECT_EQ(Elenco{"sotto"}, Nomi(cartella.Percorso()));
  EXPECT_EQ(Elenco{}, Nomi(cartella / "sotto"));
}

TEST(ScriviFileFallito, RefusesLinksThatGoInACircle) {
  const CartellaTemporanea cartella;
  fs::create_symlink("b.img", cartella / "a.img");
  fs::create_symlink("a.img", cartella / "b.img");
  EXPECT_EQ(NumeroErrore::AccessoPercorsoFile, Errore(cartella / "a.img"));
}

TEST(ScriviFileFallito, RefusesAPipeThatNobodyReadsWithoutWaiting) {
  const CartellaTemporanea cartella;
  ASSERT_EQ(0, ::mkfifo((cartella / "pipe").c_str(), 0600));
  EXPECT_EQ(NumeroErrore::ErroreDiPeriferica, Errore(cartella / "pipe"));
}

TEST(ScriviFileFallito, ReportsTheDeviceThatIsFull) {
  EXPECT_EQ(NumeroErrore::DiscoPieno, Errore("/dev/full"));
}

TEST(ScriviFileFallito, IsDeniedAReadOnlyFileThoughTheFolderWouldTakeANewOne) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "vecchio");
  fs::permissions(cartella / "a.img", fs::perms{0444});
  fs::permissions(cartella.Percorso(), fs::perms{0777});
  const UtenteComune utente;
  if (!utente.Comune()) GTEST_SKIP() << "root cannot become an ordinary user here";
  EXPECT_EQ(NumeroErrore::AutorizzazioneNegata, Errore(cartella / "a.img"));
  EXPECT_EQ("vecchio", Contenuto(cartella / "a.img"));
  EXPECT_EQ(Elenco{"a.img"}, Nomi(cartella.Percorso()));
}

TEST(ScriviFileFallito, IsDeniedANewFileWhereTheFolderTakesNone) {
  const CartellaTemporanea cartella;
  fs::permissions(cartella.Percorso(), fs::perms{0555});
  const UtenteComune utente;
  if (!utente.Comune()) GTEST_SKIP() << "root cannot become an ordinary user here";
  EXPECT_EQ(NumeroErrore::AutorizzazioneNegata, Errore(cartella / "a.img"));
  EXPECT_EQ(Elenco{}, Nomi(cartella.Percorso()));
}

TEST(ScriviFileFallito, LeavesTheOldFileWholeWhenTheDiskFillsUp) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "vecchio");
  const LimiteDimensione disco(100);
  EXPECT_EQ(NumeroErrore::DiscoPieno, Errore(cartella / "a.img", std::string(1000, 'x')));
  EXPECT_EQ("vecchio", Contenuto(cartella / "a.img"));
  EXPECT_EQ(Elenco{"a.img"}, Nomi(cartella.Percorso()));
}

TEST(ScriviFileFallito, LeavesNoNewFileWhenTheDiskFillsUp) {
  const CartellaTemporanea cartella;
  const LimiteDimensione disco(100);
  EXPECT_EQ(NumeroErrore::DiscoPieno, Errore(cartella / "a.img", std::string(1000, 'x')));
  EXPECT_EQ(Elenco{}, Nomi(cartella.Percorso()));
}

TEST(ScriviFileFallito, PutsTheOldContentBackWhenTheDiskFillsUpWhileWritingInPlace) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "vecchio");
  fs::create_hard_link(cartella / "a.img", cartella / "b.img");
  const LimiteDimensione disco(100);
  EXPECT_EQ(NumeroErrore::DiscoPieno, Errore(cartella / "a.img", std::string(1000, 'x')));
  EXPECT_EQ("vecchio", Contenuto(cartella / "a.img"));
  EXPECT_EQ("vecchio", Contenuto(cartella / "b.img"));
  EXPECT_EQ((Elenco{"a.img", "b.img"}), Nomi(cartella.Percorso()));
}

TEST(ScriviFileFallito, LeavesNoCopyBehindWhenTheOldContentCouldNotBeLaidAside) {
  const CartellaTemporanea cartella;
  const std::string vecchio(1000, 'v');
  Crea(cartella / "a.img", vecchio);
  fs::create_hard_link(cartella / "a.img", cartella / "b.img");
  const LimiteDimensione disco(100);
  EXPECT_EQ(NumeroErrore::DiscoPieno, Errore(cartella / "a.img", "nuovo"));
  EXPECT_EQ(vecchio, Contenuto(cartella / "a.img"));
  EXPECT_EQ((Elenco{"a.img", "b.img"}), Nomi(cartella.Percorso()));
}

}  // namespace
}  // namespace parvik::prova
