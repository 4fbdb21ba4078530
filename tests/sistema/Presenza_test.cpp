#include "sistema/Presenza.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <utility>

#include "supporto/Cartelle.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;
using Altri = Presenza::Altri;

class PresenzaTest : public testing::Test {
 protected:
  Altri Trovati() const { return Presenza(File).Trovati(); }
  static mode_t Modo(const fs::path& file) {
    struct stat stato = {};
    EXPECT_EQ(::stat(file.c_str(), &stato), 0) << file;
    return stato.st_mode & 07777U;
  }

  prova::CartellaTemporanea cartella_;
  const fs::path File = cartella_ / "sua" / "segno";
};

TEST_F(PresenzaTest, FindsNobodyAndLeavesNothingBehind) {
  {
    const Presenza presenza(File);
    EXPECT_EQ(presenza.Trovati(), Altri::Nessuno);
    EXPECT_EQ(Modo(File), 0600U);
    EXPECT_EQ(Modo(File.parent_path()), 0700U);
  }
  EXPECT_FALSE(fs::exists(File));
}

TEST_F(PresenzaTest, FindsTheOthersAndIsFoundByThem) {
  Presenza prima(File);
  auto seconda = std::make_unique<Presenza>(File);
  EXPECT_EQ(seconda->Trovati(), Altri::Presenti);
  EXPECT_EQ(prima.Trovati(), Altri::Nessuno) << "as it was found";
  prima = Presenza();
  EXPECT_TRUE(fs::exists(File)) << "the second one is there still";
  EXPECT_EQ(Trovati(), Altri::Presenti);
  seconda.reset();
  EXPECT_FALSE(fs::exists(File));
  EXPECT_EQ(Trovati(), Altri::Nessuno);
}

TEST_F(PresenzaTest, GoesAlongWhenItIsMoved) {
  Presenza prima(File);
  const Presenza dopo(std::move(prima));
  EXPECT_EQ(dopo.Trovati(), Altri::Nessuno);
  EXPECT_EQ(Trovati(), Altri::Presenti);
}

TEST_F(PresenzaTest, DiesWithItsHolder) {
  int tubo[2] = {};
  ASSERT_EQ(::pipe(tubo), 0);
  const pid_t figlio = ::fork();
  ASSERT_GE(figlio, 0);
  if (figlio == 0) {
    const Presenza presenza(File);
    const char pronta = presenza.Trovati() == Altri::Nessuno ? 's' : 'n';
    if (::write(tubo[1], &pronta, 1) == 1) ::pause();
    ::_exit(1);
  }
  char pronta = 0;
  ASSERT_EQ(::read(tubo[0], &pronta, 1), 1);
  EXPECT_EQ(pronta, 's');
  EXPECT_EQ(Trovati(), Altri::Presenti);
  ::kill(figlio, SIGKILL);
  int stato = 0;
  ASSERT_EQ(::waitpid(figlio, &stato, 0), figlio);
  EXPECT_TRUE(fs::exists(File)) << "what a killed program leaves";
  EXPECT_EQ(Trovati(), Altri::Nessuno) << "is harmless";
  for (const int numero : tubo) ::close(numero);
}

TEST_F(PresenzaTest, WithoutAFolderThereIsNoSign) {
  EXPECT_EQ(Presenza(cartella_ / "manca" / "sua" / "segno").Trovati(), Altri::Ignoti);
  EXPECT_FALSE(fs::exists(cartella_ / "manca"));
  EXPECT_EQ(Presenza().Trovati(), Altri::Ignoti);
}

TEST_F(PresenzaTest, AFolderThatOthersSeeIsNotUsed) {
  fs::create_directory(File.parent_path());
  fs::permissions(File.parent_path(), fs::perms(0755));
  EXPECT_EQ(Trovati(), Altri::Ignoti);
  EXPECT_FALSE(fs::exists(File));
  fs::remove(File.parent_path());
  prova::Crea(File.parent_path(), "a file in its place");
  EXPECT_EQ(Trovati(), Altri::Ignoti);
}

TEST_F(PresenzaTest, ALinkInTheFilesPlaceIsNotFollowed) {
  ASSERT_EQ(Trovati(), Altri::Nessuno);
  fs::create_symlink(cartella_ / "altrove", File);
  EXPECT_EQ(Trovati(), Altri::Ignoti);
  EXPECT_FALSE(fs::exists(cartella_ / "altrove"));
}

TEST_F(PresenzaTest, AFileThatItsHolderTakesAwayMeanwhileIsMadeAnew) {
  ASSERT_EQ(Trovati(), Altri::Nessuno);
  prova::Crea(File, "");
  const int vecchio = ::open(File.c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(::flock(vecchio, LOCK_SH | LOCK_NB), 0);
  fs::remove(File);
  EXPECT_EQ(Trovati(), Altri::Nessuno) << "the lock of a file that has no name any more tells nothing";
  ::close(vecchio);
}

}  // namespace
}  // namespace parvik
