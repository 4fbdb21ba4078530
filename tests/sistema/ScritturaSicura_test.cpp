#include "sistema/ScritturaSicura.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

#include "common/FileDiProva.h"
#include "sistema/IdentitaFile.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;

TEST(ScriviFile, MakesANewFileAndNothingElse) {
  const CartellaTemporanea cartella;
  EXPECT_TRUE(ScriviFile(cartella / "a.img", "nuovo"));
  EXPECT_EQ("nuovo", Contenuto(cartella / "a.img"));
  EXPECT_EQ(Elenco{"a.img"}, Nomi(cartella.Percorso()));
}

TEST(ScriviFile, ReplacesAFileAndLeavesNothingElse) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "molto vecchio e piu' lungo");
  EXPECT_TRUE(ScriviFile(cartella / "a.img", "nuovo"));
  EXPECT_EQ("nuovo", Contenuto(cartella / "a.img"));
  EXPECT_EQ(Elenco{"a.img"}, Nomi(cartella.Percorso()));
}

TEST(ScriviFile, WritesEveryByteValueAsItIs) {
  const CartellaTemporanea cartella;
  std::string byte;
  for (int i = 0; i < 256; ++i) byte.push_back(static_cast<char>(i));
  EXPECT_TRUE(ScriviFile(cartella / "a.img", byte));
  EXPECT_EQ(byte, Contenuto(cartella / "a.img"));
}

TEST(ScriviFile, WritesAnEmptyFile) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "vecchio");
  EXPECT_TRUE(ScriviFile(cartella / "a.img", ""));
  EXPECT_EQ("", Contenuto(cartella / "a.img"));
}

TEST(ScriviFile, WritesToANameWithoutAFolder) {
  const CartellaTemporanea cartella;
  const fs::path prima = fs::current_path();
  fs::current_path(cartella.Percorso());
  EXPECT_TRUE(ScriviFile("a.img", "nuovo"));
  fs::current_path(prima);
  EXPECT_EQ("nuovo", Contenuto(cartella / "a.img"));
  EXPECT_EQ(Elenco{"a.img"}, Nomi(cartella.Percorso()));
}

TEST(ScriviFile, WritesToTheLongestNameThatAFileCanHave) {
  const CartellaTemporanea cartella;
  const std::string nome(255, 'n');
  EXPECT_TRUE(ScriviFile(cartella / nome, "uno"));
  EXPECT_TRUE(ScriviFile(cartella / nome, "due"));
  EXPECT_EQ("due", Contenuto(cartella / nome));
  EXPECT_EQ(Elenco{nome}, Nomi(cartella.Percorso()));
}

TEST(ScriviFile, FollowsALinkWhichStaysALink) {
  if (!Collegamenti()) GTEST_SKIP() << "no links here";
  const CartellaTemporanea cartella;
  Crea(cartella / "vero" / "a.img", "vecchio");
  fs::create_symlink("vero/a.img", cartella / "link.img");
  EXPECT_TRUE(ScriviFile(cartella / "link.img", "nuovo"));
  EXPECT_TRUE(fs::is_symlink(cartella / "link.img"));
  EXPECT_EQ("vero/a.img", fs::read_symlink(cartella / "link.img"));
  EXPECT_EQ("nuovo", Contenuto(cartella / "vero" / "a.img"));
  EXPECT_EQ((Elenco{"link.img", "vero"}), Nomi(cartella.Percorso()));
  EXPECT_EQ(Elenco{"a.img"}, Nomi(cartella / "vero"));
}

TEST(ScriviFile, FollowsAChainOfAbsoluteAndRelativeLinks) {
  if (!Collegamenti()) GTEST_SKIP() << "no links here";
  const CartellaTemporanea cartella;
  Crea(cartella / "x" / "a.img", "vecchio");
  fs::create_symlink("a.img", cartella / "x" / "due.img");
  fs::create_symlink(cartella / "x" / "due.img", cartella / "uno.img");
  EXPECT_TRUE(ScriviFile(cartella / "uno.img", "nuovo"));
  EXPECT_EQ("nuovo", Contenuto(cartella / "x" / "a.img"));
  EXPECT_TRUE(fs::is_symlink(cartella / "uno.img"));
  EXPECT_TRUE(fs::is_symlink(cartella / "x" / "due.img"));
}

TEST(ScriviFile, MakesTheFileThatADanglingLinkNames) {
  if (!Collegamenti()) GTEST_SKIP() << "no links here";
  const CartellaTemporanea cartella;
  fs::create_symlink("manca.img", cartella / "link.img");
  EXPECT_TRUE(ScriviFile(cartella / "link.img", "nuovo"));
  EXPECT_TRUE(fs::is_symlink(cartella / "link.img"));
  EXPECT_EQ("nuovo", Contenuto(cartella / "manca.img"));
  EXPECT_EQ((Elenco{"link.img", "manca.img"}), Nomi(cartella.Percorso()));
}

TEST(ScriviFile, ShowsTheNewContentUnderBothNamesOfAFileAndLeavesNoCopyBehind) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "vecchio e piu' lungo");
  fs::create_hard_link(cartella / "a.img", cartella / "b.img");
  EXPECT_TRUE(ScriviFile(cartella / "a.img", "nuovo"));
  EXPECT_EQ("nuovo", Contenuto(cartella / "a.img"));
  EXPECT_EQ("nuovo", Contenuto(cartella / "b.img"));
  EXPECT_EQ(*IdentitaDi(cartella / "a.img"), *IdentitaDi(cartella / "b.img"));
  EXPECT_EQ((Elenco{"a.img", "b.img"}), Nomi(cartella.Percorso()));
}

TEST(ScriviFile, ReplacesWhatAKilledProgramLeftBehind) {
  if (!Collegamenti()) GTEST_SKIP() << "no links here";
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "vecchio");
  {
    // The name is the writer's own business: it is learnt from one at work.
    auto inCorso = ScritturaSicura::Apri(cartella / "a.img");
    ASSERT_TRUE(inCorso);
    const Elenco nomi = Nomi(cartella.Percorso());
    ASSERT_EQ(2U, nomi.size());
    const std::string provvisorio = nomi[0] == "a.img" ? nomi[1] : nomi[0];
    const CartellaTemporanea altrove;
    Crea(altrove / "suo", "di un altro");
    fs::remove(cartella / provvisorio);
    fs::create_symlink(altrove / "suo", cartella / provvisorio);
    EXPECT_TRUE(ScriviFile(cartella / "a.img", "nuovo"));
    EXPECT_EQ("di un altro", Contenuto(altrove / "suo"));
  }
  EXPECT_EQ("nuovo", Contenuto(cartella / "a.img"));
  EXPECT_FALSE(fs::is_symlink(cartella / "a.img"));
  EXPECT_EQ(Elenco{"a.img"}, Nomi(cartella.Percorso()));
}

TEST(ScritturaSicura, ChangesNothingBeforeItIsConfirmed) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "vecchio");
  auto file = ScritturaSicura::Apri(cartella / "a.img");
  ASSERT_TRUE(file);
  EXPECT_TRUE(file->Scrivi("nuo"));
  EXPECT_TRUE(file->Scrivi("vo"));
  EXPECT_EQ("vecchio", Contenuto(cartella / "a.img"));
  EXPECT_TRUE(file->Conferma());
  EXPECT_EQ("nuovo", Contenuto(cartella / "a.img"));
}

/// Whoever did that is no program of ours, or began before this one could be seen.
TEST(ScritturaSicura, SaysThatTheFileIsInUseWhenItWasReplacedOrChangedMeanwhile) {
  const CartellaTemporanea cartella;
  const fs::path file = cartella / "a.img";
  const auto cambia = [&](const std::string& come) {
    if (come == "replaced") {
      Crea(cartella / "altro", "vecchio");
      fs::rename(cartella / "altro", file);
    } else if (come == "changed") {
      Crea(file, "di un altro");
    } else {
      fs::remove(file);
    }
  };
  for (const std::string come : {"replaced", "changed", "removed"}) {
    Crea(file, "vecchio");
    auto scrittura = ScritturaSicura::Apri(file);
    ASSERT_TRUE(scrittura);
    EXPECT_TRUE(scrittura->Scrivi("nuovo"));
    cambia(come);
    const EsitoScrittura scritto = scrittura->Conferma();
    ASSERT_FALSE(scritto) << come;
    EXPECT_NE(scritto.Errore().Nota.find("in uso"), std::string::npos) << come;
    EXPECT_EQ(fs::exists(file), come != "removed");
  }
}

TEST(ScritturaSicura, SaysThatTheFileIsInUseWhenSomebodyElseMadeItMeanwhile) {
  const CartellaTemporanea cartella;
  auto scrittura = ScritturaSicura::Apri(cartella / "a.img");
  ASSERT_TRUE(scrittura);
  Crea(cartella / "a.img", "di un altro");
  EXPECT_FALSE(scrittura->Conferma());
  EXPECT_EQ("di un altro", Contenuto(cartella / "a.img"));
}

TEST(ScritturaSicura, LeavesNothingWhenItGoesAwayUnconfirmed) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "vecchio");
  fs::create_directory(cartella / "doppi");
  Crea(cartella / "doppi" / "b.img", "doppio");
  fs::create_hard_link(cartella / "doppi" / "b.img", cartella / "doppi" / "c.img");
  for (const fs::path& meta : {cartella / "a.img", cartella / "n.img", cartella / "doppi" / "b.img"}) {
    auto file = ScritturaSicura::Apri(meta);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file->Scrivi("nuovo"));
  }
  EXPECT_EQ("vecchio", Contenuto(cartella / "a.img"));
  EXPECT_EQ("doppio", Contenuto(cartella / "doppi" / "b.img"));
  EXPECT_EQ((Elenco{"a.img", "doppi"}), Nomi(cartella.Percorso()));
  EXPECT_EQ((Elenco{"b.img", "c.img"}), Nomi(cartella / "doppi"));
}

TEST(ScritturaSicura, CanBeMovedWhileItIsUnderWay) {
  const CartellaTemporanea cartella;
  auto file = ScritturaSicura::Apri(cartella / "a.img");
  ASSERT_TRUE(file);
  EXPECT_TRUE(file->Scrivi("nuo"));
  ScritturaSicura altra = std::move(*file);
  EXPECT_TRUE(altra.Scrivi("vo"));
  EXPECT_TRUE(altra.Conferma());
  EXPECT_EQ("nuovo", Contenuto(cartella / "a.img"));
}

}  // namespace
}  // namespace parvik::prova
