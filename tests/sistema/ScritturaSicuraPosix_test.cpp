// What the safe writer keeps of a file on a POSIX system.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "common/FileDiProva.h"
#include "sistema/ScritturaSicura.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;

TEST(ScriviFile, GivesANewFileTheModeThatTheUserMaskLeaves) {
  const CartellaTemporanea cartella;
  const mode_t prima = ::umask(027);
  EXPECT_TRUE(ScriviFile(cartella / "a.img", "nuovo"));
  ::umask(prima);
  EXPECT_EQ(0640U, Modo(cartella / "a.img"));
}

TEST(ScriviFile, KeepsTheModeOfTheFileThatItReplaces) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "vecchio");
  for (const unsigned int modo : {0600U, 0664U, 0755U, 0666U}) {
    ASSERT_EQ(0, ::chmod((cartella / "a.img").c_str(), modo));
    EXPECT_TRUE(ScriviFile(cartella / "a.img", "nuovo"));
    EXPECT_EQ(modo, Modo(cartella / "a.img"));
  }
}

TEST(ScriviFile, KeepsTheOwnerOfTheFileThatItReplaces) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "vecchio");
  ASSERT_EQ(0, ::chown((cartella / "a.img").c_str(), 1234, 2345));
  EXPECT_TRUE(ScriviFile(cartella / "a.img", "nuovo"));
  struct stat stato = {};
  ASSERT_EQ(0, ::stat((cartella / "a.img").c_str(), &stato));
  EXPECT_EQ(1234U, stato.st_uid);
  EXPECT_EQ(2345U, stato.st_gid);
}

TEST(ScriviFile, WritesInPlaceWhereTheFolderTakesNoNewFile) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "vecchio");
  fs::permissions(cartella / "a.img", fs::perms{0666});
  fs::permissions(cartella.Percorso(), fs::perms{0555});
  {
    const UtenteComune utente;
    if (!utente.Comune()) GTEST_SKIP() << "root cannot become an ordinary user here";
    EXPECT_TRUE(ScriviFile(cartella / "a.img", "nuovo"));
    EXPECT_EQ("nuovo", Contenuto(cartella / "a.img"));
    EXPECT_EQ(Elenco{"a.img"}, Nomi(cartella.Percorso()));
  }
  fs::permissions(cartella.Percorso(), fs::perms::owner_all);  // so that it can be removed
}

}  // namespace
}  // namespace parvik::prova
